// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "model/OpenDesign.h"

namespace zol {

/// A pattern that has a file of its own or none yet. The pattern itself belongs to the program
/// and stays over every load.
class PatternDesign : public OpenDesign {
public:
    /// `displayName` is the file's name as the title shows it; empty while there is no file.
    PatternDesign(Pattern& pattern, std::string displayName)
        : m_pattern(pattern),
          m_displayName(std::move(displayName)),
          m_hadFile(!pattern.FileName.empty()) {}

    [[nodiscard]] Pattern& GetPattern() override { return m_pattern; }
    [[nodiscard]] const Pattern& GetPattern() const override { return m_pattern; }
    [[nodiscard]] std::string WindowTitle() const override;
    [[nodiscard]] Question SaveQuestion() const override;
    [[nodiscard]] bool HasPlace() const override { return !m_pattern.FileName.empty(); }
    /// The present file becomes the backup if its name ends in ".PAT" in any case.
    [[nodiscard]] int Save() override;
    [[nodiscard]] char RecoveryKind() const override { return 'P'; }
    [[nodiscard]] std::string FileName() const override { return m_pattern.FileName; }
    [[nodiscard]] int WriteTo(ByteWriter& stream) override;
    [[nodiscard]] int ReadFrom(ByteReader& stream) override;

private:
    Pattern& m_pattern;
    std::string m_displayName;
    bool m_hadFile; ///< a pattern begun anew in its place is no longer that file's
};

} // namespace zol
