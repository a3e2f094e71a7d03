// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "model/Pattern.h"

namespace zol {

/// Which sizes a pattern can have. Commands ask before they move anything, so that what they
/// refuse has changed nothing.
namespace PatternSize {

struct Size {
    int Width;
    int Height;
};

/// 0, or the run-time error number that a pattern of so many squares is refused with.
[[nodiscard]] int Fault(int width, int height);
/// The size that ShrinkToFit gives a pattern whose design fills `box`: with a border on every side
/// it may be larger than before. Nothing if the pattern keeps its own.
[[nodiscard]] std::optional<Size> Shrunk(const Pattern& pattern, const SquareRect& box);
/// 0, or the run-time error number that ShrinkToFit refuses the pattern with.
[[nodiscard]] int ShrinkFault(const Pattern& pattern);

} // namespace PatternSize
} // namespace zol
