// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "grid/GridScale.h"
#include "grid/painting/PaintOptions.h"
#include "model/Pattern.h"

namespace zol {

/// A pattern as it is to be painted: what, how large, where and how. Held by value; the pattern
/// must outlive it.
struct GridView {
    const Pattern* Source = nullptr;
    GridScale Scale;
    PaintOptions Options;
    double OriginX = 0; ///< twips on the device of the upper left corner of square (1, 1)
    double OriginY = 0;

    /// The whole grid.
    [[nodiscard]] SquareRect Everything() const {
        return {1, 1, Source->GetPatternWidth(), Source->GetPatternHeight()};
    }
};

} // namespace zol
