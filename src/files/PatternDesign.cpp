// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "files/PatternDesign.h"

#include <filesystem>
#include <string_view>

#include "model/CodePage.h"
#include "model/SafeFile.h"

namespace zol {

namespace {

/// Where the present file goes when a save replaces it; empty for names that keep no backup.
std::filesystem::path BackupOf(const std::string& fileName) {
    constexpr std::string_view ending = ".pat";
    if (!LowerCase(fileName).ends_with(ending)) {
        return {};
    }
    return PathOf(fileName.substr(0, fileName.size() - ending.size()) + ".bpt");
}

} // namespace

std::string PatternDesign::WindowTitle() const {
    const bool lostFile = m_hadFile && m_pattern.FileName.empty();
    return lostFile || m_displayName.empty() ? "Unsaved Pattern" : m_displayName;
}

OpenDesign::Question PatternDesign::SaveQuestion() const {
    const std::string name = m_pattern.FileName.empty() ? "<New Pattern>" : m_pattern.FileName;
    return {"Save " + name + " ?", {}};
}

int PatternDesign::Save() {
    return m_pattern.Save({}, BackupOf(m_pattern.FileName));
}

int PatternDesign::WriteTo(ByteWriter& stream) {
    const std::string name = m_pattern.FileName;
    const bool changed = m_pattern.IsChanged();
    const int result = m_pattern.Save(name, stream, 0);
    m_pattern.FileName = name;
    m_pattern.SetChanged(changed);
    return result;
}

int PatternDesign::ReadFrom(ByteReader& stream) {
    const std::string name = m_pattern.FileName;
    const int result = m_pattern.Load(name, stream, 0, 0);
    m_pattern.FileName = name;
    return result;
}

} // namespace zol
