// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>

#include "model/OpenDesign.h"

namespace zol::test {

/// A pattern that stands open and owns itself.
class PlainDesign : public OpenDesign {
public:
    explicit PlainDesign(Pattern pattern, char kind = 'P')
        : m_pattern(std::move(pattern)),
          m_kind(kind) {}

    Pattern& GetPattern() override { return m_pattern; }
    const Pattern& GetPattern() const override { return m_pattern; }
    std::string WindowTitle() const override { return m_pattern.FileName; }
    Question SaveQuestion() const override { return {}; }
    bool HasPlace() const override { return !m_pattern.FileName.empty(); }
    int Save() override { return m_pattern.Save({}); }
    char RecoveryKind() const override { return m_kind; }
    std::string FileName() const override { return m_pattern.FileName; }

    int WriteTo(ByteWriter& stream) override {
        const bool changed = m_pattern.IsChanged();
        const int number = m_pattern.Save(std::string(m_pattern.FileName), stream, 0);
        m_pattern.SetChanged(changed);
        return number;
    }
    int ReadFrom(ByteReader& stream) override {
        return m_pattern.Load(std::string(m_pattern.FileName), stream, 0, 0);
    }

private:
    Pattern m_pattern;
    char m_kind;
};

} // namespace zol::test
