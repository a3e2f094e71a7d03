// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "model/ZOLTypes.h"

namespace zol {

/// The squares that a stroke passes between two places of the pointer, the first included: the
/// pointer skips squares when it is fast. A flat or steep stroke makes steps of equal length; a
/// diagonal has one square a row.
[[nodiscard]] std::vector<SquarePos> StitchRun(SquarePos from, SquarePos to);

} // namespace zol
