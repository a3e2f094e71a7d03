// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringDecoder>

#include <map>
#include <string>

namespace zol {

/// Turns bytes of the code pages that RTF names by number into text. Decoders are made once a page.
class RtfCodePages {
public:
    static constexpr int Western = 1252;
    static constexpr int Symbol = -2; ///< fonts whose codes are pictures, not letters

    /// The code page of a font's charset (\fcharset); `ofDocument` for those without a page of
    /// their own.
    [[nodiscard]] static int OfCharset(int charset, int ofDocument);

    /// Pages that are not known are read as Windows-1252. Bytes that a page lacks become U+FFFD.
    [[nodiscard]] QString Decode(const std::string& bytes, int codePage);

private:
    std::map<int, QStringDecoder> m_decoders;
};

} // namespace zol
