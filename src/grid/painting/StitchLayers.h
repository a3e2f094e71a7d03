// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <span>

#include "model/ZOLTypes.h"

namespace zol {

/// One step of painting a stitch in a display style.
struct StitchLayer {
    enum class Paint : std::uint8_t {
        Fill,    ///< the kind's shape, filled
        Outline, ///< the kind's shape, hollow, one pixel wide
        Symbol,  ///< the floss's symbol in the kind's part of the square
        Image,   ///< the kind's part of the stitch image
    };
    enum class Ink : std::uint8_t { Floss, Black, Contrast };

    Paint What = Paint::Fill;
    std::uint8_t Kind = 0;
    Ink Colour = Ink::Floss;
};

/// The steps for a stitch of a kind, in order. None for a French knot, which has its own way, and
/// for unknown kinds and styles.
[[nodiscard]] std::span<const StitchLayer> LayersOf(int style, int kind);

/// The colour of an ink for a floss.
[[nodiscard]] Colour InkOf(StitchLayer::Ink ink, Colour floss);

/// Whether the stitch hides its whole square, so that no ground is painted below it.
[[nodiscard]] bool CoversSquare(int style, int kind);

} // namespace zol
