// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "files/DesignOpener.h"

namespace zol {

/// Opens pattern files, and every file that nobody else takes: its content then says what it is.
class PatternOpener : public DesignOpener {
public:
    /// Files are read into `pattern`, which belongs to the program.
    explicit PatternOpener(Pattern& pattern) : m_pattern(pattern) {}

    [[nodiscard]] char Kind() const override { return 'P'; }
    [[nodiscard]] bool Takes(const std::string& /*lowerCaseName*/) const override { return true; }
    [[nodiscard]] DesignOpening Open(const std::string& fileName,
                                     const std::string& displayName) override;
    [[nodiscard]] DesignOpening Recover(const std::string& fileName, ByteReader& stream) override;

private:
    Pattern& m_pattern;
};

/// Stands where stitched fonts will be opened, so that such a file is not taken for a pattern.
class UnreadFontOpener : public DesignOpener {
public:
    [[nodiscard]] char Kind() const override { return 'F'; }
    [[nodiscard]] bool Takes(const std::string& lowerCaseName) const override;
    [[nodiscard]] DesignOpening Open(const std::string& fileName,
                                     const std::string& displayName) override;
    [[nodiscard]] DesignOpening Recover(const std::string& fileName, ByteReader& stream) override;
    [[nodiscard]] bool CanOpen() const override { return false; }
};

} // namespace zol
