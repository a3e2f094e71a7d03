// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "import/Picture.h"

namespace zol {

class ProgressDoor;

/// What becomes of a pixel that is brighter than around it.
enum class EdgeResult {
    Alone, ///< how much brighter it is
    Added, ///< its own levels and that, at most 255
};

/// How much brighter each channel is than the mean of its neighbours (itself among them) that are
/// not erased. Erased pixels stay. False if the door (which may be null) stopped it half-way.
[[nodiscard]] bool EnhanceEdges(ProgressDoor* door, Picture& image, EdgeResult result);

} // namespace zol
