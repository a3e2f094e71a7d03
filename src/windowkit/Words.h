// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <string_view>
#include <vector>

namespace zol {

/// The words of a list that are parted by single blanks, for tables of names.
[[nodiscard]] inline std::vector<std::string_view> Words(std::string_view list) {
    std::vector<std::string_view> words;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(' '), list.size());
        words.push_back(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return words;
}

} // namespace zol
