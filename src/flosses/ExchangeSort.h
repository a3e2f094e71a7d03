// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

namespace zol {

/// The order (0-based places) that sorting `keys` by exchange gives: each place in turn is
/// compared with all places behind it, and a greater key in front changes places with the smaller
/// one. That is not stable, and users know the order of equal keys that follows from it, so no
/// other method may stand in for it where keys are equal. Quadratic there, on small integers: keys
/// are ranked first, and ranks that all differ are the order.
template<typename Key>
[[nodiscard]] std::vector<int> ExchangeOrder(const std::vector<Key>& keys) {
    std::vector<Key> ascending(keys);
    std::sort(ascending.begin(), ascending.end());
    std::vector<int> ranks;
    ranks.reserve(keys.size());
    for (const Key& key : keys) {
        ranks.push_back(static_cast<int>(std::lower_bound(ascending.begin(), ascending.end(), key) -
                                         ascending.begin()));
    }
    std::vector<int> order(keys.size());
    if (std::adjacent_find(ascending.begin(), ascending.end()) == ascending.end()) {
        for (std::size_t i = 0; i < ranks.size(); ++i) {
            order[static_cast<std::size_t>(ranks[i])] = static_cast<int>(i);
        }
        return order;
    }
    std::iota(order.begin(), order.end(), 0);
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        for (std::size_t j = i + 1; j < ranks.size(); ++j) {
            if (ranks[i] > ranks[j]) {
                std::swap(ranks[i], ranks[j]);
                std::swap(order[i], order[j]);
            }
        }
    }
    return order;
}

} // namespace zol
