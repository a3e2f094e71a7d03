// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <string>

namespace zol {

/// True if a pattern's instructions are rich text, which they say by how they begin.
[[nodiscard]] bool IsRichText(const std::string& text);

/// The words of an RTF text, without its formatting: paragraphs as lines. Never fails; what is
/// not understood is left out. Bytes are read in the code page, or as UTF-8 where they are.
[[nodiscard]] QString WordsOfRichText(const std::string& rtf);

/// The instructions as they are printed while formatting is not: plain text as it stands, rich
/// text by its words.
[[nodiscard]] QString PrintableInstructions(const std::string& instructions);

} // namespace zol
