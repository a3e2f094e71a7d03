// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

#include "model/ZOLTypes.h"

namespace zol {

/// An item of the submenu that restyles a backstitch line.
struct LineStyleItem {
    const char* Caption;
    LineStyle Style;
};

/// The items in the menu's order, which is not the order of the styles: dots stand before tracks.
inline constexpr std::array<LineStyleItem, 6> LineStyleItems{{
    {"&Line", LineStraight},
    {"&Squiggle", LineSquiggle},
    {"&Dash", LineDashed},
    {"D&ots", LineDotted},
    {"&Tracks", LineTracks},
    {"&Plus", LinePlus},
}};

} // namespace zol
