// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "model/Pattern.h"

/// What the windows write about a floss of a palette. Empty outside the palette.
namespace zol::FlossText {

/// "310", for a blend "310 & 550".
[[nodiscard]] QString Number(const Palette& palette, int floss);
/// "black", for a blend what it is called in the palette.
[[nodiscard]] QString Name(const Palette& palette, int floss);
/// GetFlossLongDesc: "310 - black".
[[nodiscard]] QString LongDescription(const Palette& palette, int floss);
/// The place in the display order of the floss whose number is what was typed, or begins with it,
/// whatever the case of its letters; 0 for none.
[[nodiscard]] int PositionOfNumber(const Palette& palette, const QString& typed);
/// The long description and, in a line of its own, how much of the design is sewn with it. Counts
/// the whole pattern, so it is for a tool tip that is about to show.
[[nodiscard]] QString Tip(Pattern& pattern, int floss);

} // namespace zol::FlossText
