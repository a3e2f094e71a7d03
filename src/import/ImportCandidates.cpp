// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/ImportCandidates.h"

#include <algorithm>

#include "flosses/AvailColors.h"
#include "flosses/Palette.h"
#include "import/ImportMessages.h"
#include "model/RunTimeError.h"

namespace zol {

void ImportCandidates::Clear() {
    m_lockedColors = 0;
    ColorUsed.assign(1, OutOfPlay);
    ColorPixels.assign(1, 0);
    Stitches.assign(1, 0);
    ColorRGB.assign(1, 0);
}

void ImportCandidates::AddLocked(const Palette& palette) {
    AddPalette(palette);
    m_lockedColors = NumColors();
    std::fill(ColorUsed.begin() + 1, ColorUsed.end(), InPlay);
}

void ImportCandidates::AddCatalogue(const AvailColors& catalogue) {
    for (int row = 1; row <= catalogue.GetFlossCount(); ++row) {
        Add(catalogue.GetFlossRGB(row));
    }
}

void ImportCandidates::AddPalette(const Palette& palette) {
    for (int entry = 1; entry <= palette.GetEntriesCount(); ++entry) {
        Add(palette.GetFlossRGB(entry));
    }
}

void ImportCandidates::Add(Colour colour) {
    constexpr int most = 32767; // candidates are numbered in 16 bits
    if (NumColors() >= most) {
        throw RunTimeError(ErrOverflow);
    }
    ColorUsed.push_back(OutOfPlay);
    ColorPixels.push_back(0);
    Stitches.push_back(0);
    ColorRGB.push_back(colour & 0x00FFFFFFU);
}

int ImportCandidates::MaxColorLimit() const {
    return std::min(NumColors(), ImportMessages::MaxImportColors);
}

int ImportCandidates::ColorsLeft() const {
    return static_cast<int>(std::count(ColorUsed.begin() + 1, ColorUsed.end(), InPlay));
}

void ImportCandidates::TakeOutOfPlay() {
    std::fill(ColorUsed.begin() + 1 + m_lockedColors, ColorUsed.end(), OutOfPlay);
    std::fill(ColorPixels.begin() + 1 + m_lockedColors, ColorPixels.end(), 0);
    std::fill(Stitches.begin(), Stitches.end(), 0);
}

} // namespace zol
