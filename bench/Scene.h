// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Pattern.h"

namespace zol {

/// A full design of 999 by 999 squares in 200 flosses, the same on every machine: 90 % whole
/// stitches, 8 % part stitches, 2 % squares with several, 2,000 knots and 2,000 lines. Neighbours
/// have nothing in common: no run of a file and no tile of a picture comes cheap.
void FillScene(Pattern& pattern);

/// The scene, filled once for all of a program.
[[nodiscard]] Pattern& SharedScene();

} // namespace zol
