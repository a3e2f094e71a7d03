// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

// The codes that every subsystem speaks in. They are stored in files, so no value here may change.

#include <array>
#include <cstdint>

namespace zol {

/// What a stitch is. Codes 14 and 15 are requests that SetStitch resolves by the position; they
/// and 13 are never stored.
enum StitchKind : std::uint8_t {
    StitchWhole = 1,
    StitchUL3Q = 2,
    StitchUR3Q = 3,
    StitchLL3Q = 4,
    StitchLR3Q = 5,
    StitchTBH = 6, ///< half stitch, upper left to lower right
    StitchBTH = 7, ///< half stitch, lower left to upper right
    StitchFKnot = 8,
    StitchULQ = 9,
    StitchURQ = 10,
    StitchLLQ = 11,
    StitchLRQ = 12,
    StitchCustom = 13,
    StitchS3Q = 14, ///< smart three-quarter: resolved by the position
    StitchSQ = 15,  ///< smart quarter: resolved by the position
    NoStitch = 255,
};

/// Palette index of a square without a floss. Entries count from 1; 0 is not used by a stitch.
inline constexpr std::uint8_t NoFloss = 255;

/// Bits of a cell's flags.
enum CellFlag : std::uint8_t {
    CellHasDup = 1,  ///< the square has a DupStitch record
    CellHasKnot = 2, ///< a French knot may touch the square
};

/// One square's primary stitch. A new cell is (255, 255, 0).
struct StitchCell {
    std::uint8_t StitchType = NoStitch;
    std::uint8_t PaletteIndex = NoFloss;
    std::uint8_t CellFlags = 0;

    friend bool operator==(const StitchCell&, const StitchCell&) = default;
};
static_assert(sizeof(StitchCell) == 3);

/// Values of a backstitch line's style, as stored.
enum LineStyle : std::uint8_t {
    LineStraight = 0,
    LineSquiggle = 1,
    LineDashed = 2,
    LineTracks = 3,
    LineDotted = 4,
    LinePlus = 5,
};

/// Values of a French knot's Orientation.
enum KnotStyle : std::uint8_t {
    KnotNormal = 0,
    KnotHorizontalOval = 1,
    KnotUpperLeftDiagonal = 2,
    KnotVerticalOval = 3,
    KnotUpperRightDiagonal = 4,
};

/// How stitches are shown on the grid.
enum DisplayStyle : std::uint8_t {
    ShowColorSquares = 1,
    ShowBlackSymbols = 2,
    ShowColorSymbols = 3,
    ShowColorBlocksSymbols = 4,
    ShowColorStitch = 5,
    ShowVStitches = 6,
};

/// What a painter paints for: it selects style, zoom and grid-line options.
enum RenderTarget : std::uint8_t { TargetGrid = 0, TargetPrinter = 1, TargetPicture = 2 };

/// The draw mode of the main window.
enum DrawMode : std::uint8_t {
    DrawStitches = 1,
    DrawLines = 2,
    DrawEditBox = 3,
    DrawZoom = 4,
    DrawText = 5,
    DrawPaintOnce = 6,
    DrawPaint = 7,
    DrawColorPicker = 8,
    DrawErase = 9,
};

enum MirrorAxis : std::uint8_t { MirrorVertical = 1, MirrorHorizontal = 2 };

/// A square of the grid; columns and rows count from 1.
struct SquarePos {
    int X = 0;
    int Y = 0;

    friend bool operator==(const SquarePos&, const SquarePos&) = default;
};

/// A rectangle of squares, both corners inclusive.
struct SquareRect {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;

    [[nodiscard]] bool IsEmpty() const { return Left > Right || Top > Bottom; }
    friend bool operator==(const SquareRect&, const SquareRect&) = default;
};

/// A point of the half-square lattice, from 1 to 2 * Width + 1: odd values lie on grid lines.
struct LatticePos {
    int LX = 0;
    int LY = 0;

    friend bool operator==(const LatticePos&, const LatticePos&) = default;
};

/// Column 0 to 2 and row 0 to 2 of a position 1 to 9, read as a 3 by 3 block.
[[nodiscard]] constexpr int PositionColumn(int position) {
    return (position - 1) % 3;
}
[[nodiscard]] constexpr int PositionRow(int position) {
    return (position - 1) / 3;
}
[[nodiscard]] constexpr bool IsPosition(int position) {
    return position >= 1 && position <= 9;
}

/// The lattice point of a position in a square.
[[nodiscard]] constexpr LatticePos LatticeOf(int x, int y, int position) {
    return {(x - 1) * 2 + PositionColumn(position) + 1, (y - 1) * 2 + PositionRow(position) + 1};
}

/// A backstitch line; the fields are those of the record on disk.
struct BackStitchLine {
    std::int16_t StartX = 0;
    std::int16_t StartY = 0;
    std::int16_t StartPos = 0;
    std::int16_t EndX = 0;
    std::int16_t EndY = 0;
    std::int16_t EndPos = 0;
    std::uint8_t PaletteIndex = 0;
    std::uint8_t LineStyle = 0;

    friend bool operator==(const BackStitchLine&, const BackStitchLine&) = default;
};

/// A colour as 0x00BBGGRR.
using Colour = std::uint32_t;

[[nodiscard]] constexpr Colour MakeColour(unsigned red, unsigned green, unsigned blue) {
    return red | (green << 8U) | (blue << 16U);
}

inline constexpr int PatternVersion = 60416; ///< Major * 10000 + Minor * 100 + Revision
inline constexpr int MaxRunLength = 10000;
inline constexpr int MaxDialogSize = 999; ///< squares a side through the dialogs
/// A grid above this is refused before it is allocated.
inline constexpr std::int64_t MaxSquares = 16'000'000;

/// Thread length of one stitch in diagonals of a square; 0 for kinds without a length.
[[nodiscard]] constexpr double LengthWeight(int kind) {
    constexpr std::array<double, 13> weights{0, 2, 1.5, 1.5, 1.5, 1.5, 1, 1, 3, 0.5, 0.5, 0.5, 0.5};
    return kind >= 1 && kind <= 12 ? weights[static_cast<std::size_t>(kind)] : 0;
}

} // namespace zol
