// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/ZOLTypes.h"

namespace zol {

class AvailColors;
class Palette;

/// The flosses that a picture may be stitched in, and how they fare. Candidates count from 1 in
/// the order in which they were added: first the locked ones, which stay whatever happens, then
/// the rest. Element 0 of the arrays is not used.
class ImportCandidates {
public:
    static constexpr std::int16_t InPlay = -1;
    static constexpr std::int16_t OutOfPlay = 0;

    ImportCandidates() { Clear(); }

    void Clear();
    /// The entries of the current pattern's palette, in play from the start. Call it before any
    /// other candidate is added.
    void AddLocked(const Palette& palette);
    void AddCatalogue(const AvailColors& catalogue);
    /// A blend counts with its mixed colour.
    void AddPalette(const Palette& palette);
    void Add(Colour colour);

    [[nodiscard]] int NumColors() const { return static_cast<int>(ColorRGB.size()) - 1; }
    [[nodiscard]] int LockedColors() const { return m_lockedColors; }
    /// The most flosses worth asking for: their number, at most 200.
    [[nodiscard]] int MaxColorLimit() const;
    [[nodiscard]] bool IsInPlay(int index) const {
        return ColorUsed[static_cast<std::size_t>(index)] != OutOfPlay;
    }
    [[nodiscard]] int ColorsLeft() const;
    /// Before a matching: all but the locked ones are out of play and have won no pixel.
    void TakeOutOfPlay();

    std::vector<std::int16_t> ColorUsed;
    std::vector<std::int32_t> ColorPixels; ///< pixels won in the first matching
    std::vector<std::int32_t> Stitches;    ///< squares of the preview
    std::vector<Colour> ColorRGB;

private:
    int m_lockedColors = 0;
};

} // namespace zol
