// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "grid/painting/PaintOptions.h"
#include "settings/Options.h"

namespace zol {

/// How the user's options want the design grid painted; pictures are painted so too.
[[nodiscard]] inline PaintOptions GridPaintOptions(const Options& options,
                                                   RenderTarget target = TargetGrid) {
    PaintOptions paint;
    paint.Target = target;
    paint.StitchStyle = options.StitchesDisplayAs;
    paint.GridLines = options.GridlinesVisible;
    paint.NormalWidthPercent = options.GridLineWidthPercentage1;
    paint.BoldWidthPercent = options.GridLineWidthPercentage2;
    paint.BackStitchWidthPercent = options.BackStitchLineWidthPercentage;
    paint.ClothColor = options.ClothColor;
    paint.NormalGLColor = options.NormalGLColor;
    paint.BoldGLColor = options.BoldGLColor;
    return paint;
}

} // namespace zol
