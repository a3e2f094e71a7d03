// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "import/Picture.h"

class QImage;

namespace zol {

/// An image of the system's as a picture to import: sRGB, what is partly transparent over white,
/// what is fully transparent as TransparentPixel.
[[nodiscard]] Picture PictureOf(const QImage& image);

} // namespace zol
