// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "model/Doors.h"

namespace zol {

/// The last four files, most recent first, kept in the settings store.
class MRUFuncs {
public:
    static constexpr std::size_t Size = 4;
    /// Shows the entries that are there; none: no separator either.
    using MenuRefresher = std::function<void(const std::vector<std::string>& paths)>;

    explicit MRUFuncs(SettingsDoor& store) : m_store(store) {}

    /// Called at once and after every change.
    void SetMenu(MenuRefresher menu);
    void LoadMRU();
    /// Puts a path on top and stores the list. Names that differ by case count as one.
    void AddToMRU(const std::string& path);
    void StoreMRU();
    void RefreshMRUMenu() const;

    [[nodiscard]] const std::array<std::string, Size>& MRUFiles() const { return m_files; }

private:
    SettingsDoor& m_store;
    MenuRefresher m_menu;
    std::array<std::string, Size> m_files;
};

} // namespace zol
