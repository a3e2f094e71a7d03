// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Pattern.h"
#include "model/ZOLTypes.h"

namespace zol {

/// How a block is turned or flipped.
enum class TransformOperation {
    Rotate90 = 1,
    Rotate180 = 2,
    Rotate270 = 3,
    FlipVertical = 4,   ///< top to bottom
    FlipHorizontal = 5, ///< left to right
};

namespace StitchTransform {

/// The stitch kind after the operation; a kind that no table tells of stays as it is.
[[nodiscard]] int StitchType(int kind, TransformOperation operation);
/// The position 1 to 9 after the operation.
[[nodiscard]] int Position(int position, TransformOperation operation);
/// An oval knot's orientation after the operation: a quarter turn exchanges horizontal and
/// vertical and the two diagonals, a flip the diagonals alone, half a turn nothing.
[[nodiscard]] int Orientation(int orientation, TransformOperation operation);
/// Where a square of a block of `width` by `height` comes to lie.
[[nodiscard]] SquarePos Square(SquarePos square, int width, int height,
                               TransformOperation operation);
/// The rectangle of the turned block; a quarter turn keeps the centre, a half rounded to even.
[[nodiscard]] SquareRect Rect(const SquareRect& rect, TransformOperation operation);
/// A new pattern with the whole content turned or flipped.
[[nodiscard]] Pattern Apply(const Pattern& source, TransformOperation operation);

} // namespace StitchTransform
} // namespace zol
