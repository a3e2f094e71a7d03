// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>

#include "model/Pattern.h"
#include "model/ZOLTypes.h"

namespace zol {

/// A line between two points of the half-square lattice.
struct OverlayLine {
    LatticePos Start;
    LatticePos End;

    friend bool operator==(const OverlayLine&, const OverlayLine&) = default;
};

/// Where the line lies across which stitches are mirrored.
struct OverlayAxis {
    MirrorAxis Axis = MirrorVertical;
    SquarePos Centre; ///< (0, 0) while it is not set: then nothing shows

    friend bool operator==(const OverlayAxis&, const OverlayAxis&) = default;
};

/// A block that floats over the design. Two are the same if they show the same object: what it
/// holds is exchanged, never changed, while it floats.
struct OverlayContent {
    std::shared_ptr<const Pattern> Block;
    SquarePos At;          ///< square of the design that the block's square (1, 1) lies on
    bool IsMoving = false; ///< the pointer holds it

    friend bool operator==(const OverlayContent&, const OverlayContent&) = default;
};

/// What lies over the design on the screen and is no part of it. Tools keep it as plain state; it
/// is painted last, over whatever lies beneath.
struct Overlay {
    std::optional<OverlayLine> RubberBand; ///< a line whose second end follows the pointer
    std::optional<OverlayLine> Handles;    ///< the two ends of the selected line
    std::optional<OverlayContent> Content; ///< lies below all else of the overlay
    std::optional<SquareRect> Frame;       ///< a selection
    std::optional<OverlayAxis> Mirror;

    friend bool operator==(const Overlay&, const Overlay&) = default;
};

} // namespace zol
