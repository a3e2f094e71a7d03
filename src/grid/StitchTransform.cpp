// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/StitchTransform.h"

#include <array>

#include "grid/basEditBox.h"
#include "model/Rounding.h"

namespace zol::StitchTransform {

namespace {

using KindTable = std::array<int, 13>;
using PositionTable = std::array<int, 10>;

// Element k is what kind k becomes; 0 stands where no row is told.
constexpr KindTable rotateKinds{0, 1, 3, 5, 2, 4, 7, 6, 8, 10, 12, 9, 11};
constexpr KindTable flipVerticalKinds{0, 1, 4, 5, 2, 3, 7, 6, 8, 11, 12, 9, 10};
constexpr KindTable flipHorizontalKinds{0, 1, 3, 2, 5, 4, 7, 6, 8, 10, 9, 12, 11};

constexpr PositionTable rotatePositions{0, 3, 6, 9, 2, 5, 8, 1, 4, 7};
constexpr PositionTable flipVerticalPositions{0, 7, 8, 9, 4, 5, 6, 1, 2, 3};
constexpr PositionTable flipHorizontalPositions{0, 3, 2, 1, 6, 5, 4, 9, 8, 7};

int QuarterTurns(TransformOperation operation) {
    switch (operation) {
    case TransformOperation::Rotate90:
        return 1;
    case TransformOperation::Rotate180:
        return 2;
    case TransformOperation::Rotate270:
        return 3;
    case TransformOperation::FlipVertical:
    case TransformOperation::FlipHorizontal:
        break;
    }
    return 0;
}

/// Looks a value up once for a flip, or once for each quarter turn.
template<typename Table>
int LookUp(int value, TransformOperation operation, const Table& rotate, const Table& vertical,
           const Table& horizontal) {
    if (value < 1 || value >= static_cast<int>(rotate.size())) {
        return value;
    }
    const auto at = [](const Table& table, int index) {
        return table[static_cast<std::size_t>(index)];
    };
    if (operation == TransformOperation::FlipVertical) {
        return at(vertical, value);
    }
    if (operation == TransformOperation::FlipHorizontal) {
        return at(horizontal, value);
    }
    for (int turn = QuarterTurns(operation); turn > 0; --turn) {
        value = at(rotate, value);
    }
    return value;
}

BackStitchLine TransformedLine(BackStitchLine line, int width, int height,
                               TransformOperation operation) {
    const SquarePos start = Square({line.StartX, line.StartY}, width, height, operation);
    const SquarePos end = Square({line.EndX, line.EndY}, width, height, operation);
    line.StartX = static_cast<std::int16_t>(start.X);
    line.StartY = static_cast<std::int16_t>(start.Y);
    line.StartPos = static_cast<std::int16_t>(Position(line.StartPos, operation));
    line.EndX = static_cast<std::int16_t>(end.X);
    line.EndY = static_cast<std::int16_t>(end.Y);
    line.EndPos = static_cast<std::int16_t>(Position(line.EndPos, operation));
    return line;
}

void CopySquare(const Pattern& source, SquarePos from, Pattern& target, SquarePos to,
                TransformOperation operation) {
    const int count = source.GetStitchCount(from.X, from.Y);
    for (int index = 0; index < count; ++index) {
        const int kind = source.GetStitchType(from.X, from.Y, index);
        const int floss = source.GetStitchColorIndex(from.X, from.Y, index);
        if (kind == StitchFKnot) {
            const int point = source.GetFrenchKnotPoint(from.X, from.Y, index);
            const int style = source.GetFrenchKnotOrientation(from.X, from.Y, index);
            const KnotStyleScope scope(target.Context(), Orientation(style, operation));
            target.SetStitch(to.X, to.Y, StitchFKnot, floss, Position(point, operation));
        } else {
            target.SetStitch(to.X, to.Y, StitchType(kind, operation), floss, 0);
        }
    }
}

} // namespace

int StitchType(int kind, TransformOperation operation) {
    return LookUp(kind, operation, rotateKinds, flipVerticalKinds, flipHorizontalKinds);
}

int Position(int position, TransformOperation operation) {
    return LookUp(position, operation, rotatePositions, flipVerticalPositions,
                  flipHorizontalPositions);
}

int Orientation(int orientation, TransformOperation operation) {
    const int turns = QuarterTurns(operation);
    if (turns == 2) {
        return orientation;
    }
    switch (orientation) {
    case KnotUpperLeftDiagonal:
        return KnotUpperRightDiagonal;
    case KnotUpperRightDiagonal:
        return KnotUpperLeftDiagonal;
    case KnotHorizontalOval:
        return turns == 0 ? orientation : KnotVerticalOval;
    case KnotVerticalOval:
        return turns == 0 ? orientation : KnotHorizontalOval;
    default:
        return orientation;
    }
}

SquarePos Square(SquarePos square, int width, int height, TransformOperation operation) {
    switch (operation) {
    case TransformOperation::Rotate90:
        return {height + 1 - square.Y, square.X};
    case TransformOperation::Rotate180:
        return {width + 1 - square.X, height + 1 - square.Y};
    case TransformOperation::Rotate270:
        return {square.Y, width + 1 - square.X};
    case TransformOperation::FlipVertical:
        return {square.X, height + 1 - square.Y};
    case TransformOperation::FlipHorizontal:
        return {width + 1 - square.X, square.Y};
    }
    return square;
}

SquareRect Rect(const SquareRect& rect, TransformOperation operation) {
    if (QuarterTurns(operation) % 2 == 0) {
        return rect;
    }
    const int newWidth = rect.Bottom - rect.Top + 1;
    const int newHeight = rect.Right - rect.Left + 1;
    const int left = RoundToInt(rect.Left - (newWidth - newHeight) / 2.0);
    const int top = RoundToInt(rect.Top - (newHeight - newWidth) / 2.0);
    return {left, top, left + newWidth - 1, top + newHeight - 1};
}

Pattern Apply(const Pattern& source, TransformOperation operation) {
    const int width = source.GetPatternWidth();
    const int height = source.GetPatternHeight();
    const bool swaps = QuarterTurns(operation) % 2 == 1;
    Pattern target(source.Context());
    target.Initialize(swaps ? height : width, swaps ? width : height,
                      source.GetPatternClothCountX(), source.GetPatternClothCountY());
    source.GetPalette().CreateCopy(target.GetPalette());
    for (int x = 1; x <= width; ++x) {
        for (int y = 1; y <= height; ++y) {
            CopySquare(source, {x, y}, target, Square({x, y}, width, height, operation), operation);
        }
    }
    for (const BackStitchLine& line : source.Lines()) {
        target.SetBackstitchLine(TransformedLine(line, width, height, operation));
    }
    return target;
}

} // namespace zol::StitchTransform
