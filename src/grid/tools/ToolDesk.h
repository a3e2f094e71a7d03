// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "grid/MirrorMode.h"
#include "grid/tools/ToolView.h"
#include "grid/tools/Undo.h"
#include "model/OpenDesign.h"

namespace zol {

/// What the designer draws with.
struct DrawingChoice {
    int CurrentStitchType = StitchWhole; ///< 1 to 15
    int CurrentPaletteIndex = 1;
    bool AnchorBackstitches = false; ///< every end of a line falls on the square's upper left
};

/// What lies within a tool's reach. All of it belongs to the window's owner and outlives the
/// tools; what stands open may change between two gestures, never within one.
struct ToolDesk {
    DesignHolder& Open;
    Undo& Steps;
    MirrorMode& Mirror;
    DrawingChoice& With;
    ToolView& View;

    [[nodiscard]] Pattern& Design() const { return Open.Get().GetPattern(); }
};

} // namespace zol
