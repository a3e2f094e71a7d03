// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "model/ZOLTypes.h"

namespace zol {

/// Finds the nearest of many candidate colours by the palette's distance: the lowest index wins a
/// tie. Built once for a set of candidates and asked for many colours; it remembers nothing about
/// what was asked.
class NearestFloss {
public:
    /// Adds the next candidate; its index counts from 1.
    void Add(Colour colour);
    void Clear();
    [[nodiscard]] int Count() const { return m_count; }

    /// Index of the nearest candidate, 0 if there are none.
    [[nodiscard]] int GetClosest(int red, int green, int blue) const;
    /// The same among the candidates whose `used` element is not 0; element i - 1 belongs to
    /// candidate i.
    [[nodiscard]] int GetClosest(int red, int green, int blue,
                                 const std::vector<std::int16_t>& used) const;

private:
    [[nodiscard]] int Search(int red, int green, int blue,
                             const std::vector<std::int16_t>* used) const;
    /// The search when no candidate lies within the range of the fast one.
    [[nodiscard]] int SearchFar(int red, int green, int blue,
                                const std::vector<std::int16_t>* used) const;

    int m_count = 0;
    // Channels on the match curve, each candidate's in its place, padded for the vector unit.
    std::vector<std::uint8_t> m_red;
    std::vector<std::uint8_t> m_green;
    std::vector<std::uint8_t> m_blue;
};

} // namespace zol
