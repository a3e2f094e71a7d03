// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QImage>

#include "grid/painting/StitchShapes.h"

class QPainter;

namespace zol {

/// Stitch shapes as a screen or picture shows them, where a pixel is something that is seen.
namespace StitchPixels {

/// Fills a kind's shape, its outermost pixels included.
void FillShape(QPainter& painter, int kind, const PixelRect& square, const QColor& color);
/// The same shape hollow, one pixel wide.
void DrawOutline(QPainter& painter, int kind, const PixelRect& square, const QColor& color);

/// A kind's part of the stitch image, stretched to width x height; transparent elsewhere.
[[nodiscard]] QImage ImagePart(const QImage& image, int kind, int width, int height);

} // namespace StitchPixels
} // namespace zol
