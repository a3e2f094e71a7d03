// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/MRUFuncs.h"

#include <QString>

#include <algorithm>

namespace zol {

namespace {

constexpr const char* section = "MRU";

std::string NameOf(std::size_t index) {
    return "MRUFile" + std::to_string(index + 1);
}

QString InUpperCase(const std::string& path) {
    return QString::fromStdString(path).toUpper();
}

} // namespace

void MRUFuncs::SetMenu(MenuRefresher menu) {
    m_menu = std::move(menu);
    RefreshMRUMenu();
}

void MRUFuncs::LoadMRU() {
    for (std::size_t i = 0; i < Size; ++i) {
        m_files[i] = m_store.ReadSetting(section, NameOf(i), {});
    }
    RefreshMRUMenu();
}

void MRUFuncs::AddToMRU(const std::string& path) {
    const QString wanted = InUpperCase(path);
    auto place = std::find_if(m_files.begin(), m_files.end(), [&wanted](const std::string& file) {
        return InUpperCase(file) == wanted;
    });
    if (place == m_files.end()) {
        --place; // the last one drops off
    }
    std::rotate(m_files.begin(), place, place + 1);
    m_files.front() = path;
    StoreMRU();
    RefreshMRUMenu();
}

void MRUFuncs::StoreMRU() {
    for (std::size_t i = 0; i < Size; ++i) {
        m_store.WriteSetting(section, NameOf(i), m_files[i]);
    }
}

void MRUFuncs::RefreshMRUMenu() const {
    if (!m_menu) {
        return;
    }
    std::vector<std::string> paths;
    std::copy_if(m_files.begin(), m_files.end(), std::back_inserter(paths),
                 [](const std::string& file) { return !file.empty(); });
    m_menu(paths);
}

} // namespace zol
