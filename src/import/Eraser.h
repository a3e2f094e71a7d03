// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

#include "import/Picture.h"
#include "import/PictureRegion.h"

/// The eraser tool: a disc that leaves empty squares behind it.
namespace zol::Eraser {

/// Pixels across, in the order in which they are offered.
inline constexpr std::array<int, 3> Sizes{8, 16, 32};

/// What a disc of that size at a place, or its way from one place to another, can change in a
/// picture of that size: of no width when it passes beside it.
[[nodiscard]] PixelRect ReachOf(PicturePoint from, PicturePoint to, int across, int width,
                                int height);

/// Erases along the whole way, both ends included, so that a quick movement leaves no gaps. The
/// middle of the disc goes from corner to corner of pixels, and it is `across` (even) pixels wide
/// wherever it is.
void Erase(Picture& image, PicturePoint from, PicturePoint to, int across);

} // namespace zol::Eraser
