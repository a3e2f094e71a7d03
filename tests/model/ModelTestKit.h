// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "model/Pattern.h"
#include "support/RecordingDoors.h"

namespace zol::test {

/// A context with a message door, and patterns made in it.
class ModelTest : public ::testing::Test {
protected:
    ModelTest() { context.Messages = &messages; }

    Pattern Make(int width, int height, int clothCount = 14) {
        Pattern pattern(context);
        pattern.Initialize(width, height, clothCount, clothCount);
        return pattern;
    }

    RecordingMessages messages;
    ProgramContext context;
};

/// Remembers the squares it is told of.
class RecordingUndo : public UndoRecorder {
public:
    void RecordSquare(const Pattern& /*pattern*/, int x, int y) override {
        squares.push_back({x, y});
    }
    std::vector<SquarePos> squares;
};

inline std::string CellText(const StitchCell& cell) {
    return std::to_string(cell.StitchType) + "/" + std::to_string(cell.PaletteIndex) + "/" +
           std::to_string(cell.CellFlags);
}

inline std::string LineText(const BackStitchLine& line) {
    std::string text;
    for (const int value :
         {int{line.StartX}, int{line.StartY}, int{line.StartPos}, int{line.EndX}, int{line.EndY},
          int{line.EndPos}, int{line.PaletteIndex}, int{line.LineStyle}}) {
        text += std::to_string(value) + " ";
    }
    return text;
}

/// The whole stitch content as text, tables in their order, so that two patterns can be compared
/// and a difference read.
inline std::string Dump(const Pattern& pattern) {
    std::string text = std::to_string(pattern.GetPatternWidth()) + "x" +
                       std::to_string(pattern.GetPatternHeight()) + "\n";
    for (int x = 1; x <= pattern.GetPatternWidth(); ++x) {
        for (int y = 1; y <= pattern.GetPatternHeight(); ++y) {
            if (pattern.Cell(x, y) != StitchCell{}) {
                text += std::to_string(x) + "," + std::to_string(y) + " " +
                        CellText(pattern.Cell(x, y)) + "\n";
            }
        }
    }
    pattern.DupStitches().ForEach([&text](const DupStitch& dup) {
        text += "dup " + std::to_string(dup.X) + "," + std::to_string(dup.Y);
        for (std::size_t i = 0; i < DupStitch::Slots; ++i) {
            text += " " + std::to_string(dup.StitchTypes()[i]) + "/" +
                    std::to_string(dup.PaletteIndexes()[i]);
        }
        text += "\n";
    });
    pattern.FrenchKnots().ForEach([&text](const FrenchKnot& knot) {
        text += "knot " + std::to_string(knot.X) + "," + std::to_string(knot.Y) + " " +
                std::to_string(knot.GetPaletteIndex()) + "/" + std::to_string(knot.Orientation) +
                "\n";
    });
    for (const BackStitchLine& line : pattern.Lines()) {
        text += "line " + LineText(line) + "\n";
    }
    return text;
}

inline std::set<std::pair<int, int>> KnotPoints(const Pattern& pattern) {
    std::set<std::pair<int, int>> points;
    pattern.FrenchKnots().ForEach([&points](const FrenchKnot& knot) {
        points.insert({knot.X, knot.Y});
    });
    return points;
}

/// (kind, floss) of the stitches of a square that are no knots, in index order.
inline std::vector<std::pair<int, int>> StitchesAt(const Pattern& pattern, int x, int y) {
    std::vector<std::pair<int, int>> stitches;
    for (int i = 0; i < pattern.GetStitchCount(x, y); ++i) {
        if (pattern.GetStitchType(x, y, i) != StitchFKnot) {
            stitches.emplace_back(pattern.GetStitchType(x, y, i),
                                  pattern.GetStitchColorIndex(x, y, i));
        }
    }
    return stitches;
}

/// What holds on every pattern that the operations themselves can make.
inline void CheckInvariants(const Pattern& pattern, bool linesInGrid = true) {
    const int width = pattern.GetPatternWidth();
    const int height = pattern.GetPatternHeight();
    ASSERT_EQ(pattern.Cells().size(), static_cast<std::size_t>(width * height));
    std::size_t dups = 0;
    for (int x = 1; x <= width; ++x) {
        for (int y = 1; y <= height; ++y) {
            const StitchCell& cell = pattern.Cell(x, y);
            const DupStitch* dup = pattern.DupStitches().Find(KeyedTable<DupStitch>::KeyOf(y, x));
            ASSERT_EQ(dup != nullptr, (cell.CellFlags & CellHasDup) != 0) << x << "," << y;
            ASSERT_EQ(cell.CellFlags & 252, 0) << x << "," << y;
            ASSERT_EQ(cell.StitchType == NoStitch, cell.PaletteIndex == NoFloss) << x << "," << y;
            if (dup != nullptr) {
                ++dups;
                ASSERT_NE(cell.StitchType, NoStitch) << "a DupStitch without a primary stitch";
                ASSERT_GT(dup->GetStitchCount(), 0);
                ASSERT_EQ(dup->X, x);
                ASSERT_EQ(dup->Y, y);
            }
        }
    }
    ASSERT_EQ(dups, pattern.DupStitches().Count());
    pattern.FrenchKnots().ForEach([&](const FrenchKnot& knot) {
        ASSERT_TRUE(pattern.IsOnLattice({knot.X, knot.Y})) << knot.X << "," << knot.Y;
    });
    for (int i = 1; linesInGrid && i <= pattern.GetBackStitchCount(); ++i) {
        const BackStitchLine line = pattern.GetBackStitchLine(i);
        ASSERT_TRUE(pattern.IsInGrid(line.StartX, line.StartY)) << LineText(line);
        ASSERT_TRUE(pattern.IsInGrid(line.EndX, line.EndY)) << LineText(line);
    }
}

/// Fills a pattern with random stitches, knots and lines of flosses 1 to `flosses`.
inline void Scatter(Pattern& pattern, std::mt19937& random, int stitches, int knots, int lines,
                    int flosses) {
    const auto pick = [&random](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    const int width = pattern.GetPatternWidth();
    const int height = pattern.GetPatternHeight();
    static constexpr std::array<int, 13> kinds{1, 1, 2, 3, 4, 5, 6, 7, 9, 10, 11, 12, 15};
    for (int i = 0; i < stitches; ++i) {
        pattern.SetStitch(pick(1, width), pick(1, height),
                          kinds[static_cast<std::size_t>(pick(0, 12))], pick(1, flosses),
                          pick(1, 9));
    }
    for (int i = 0; i < knots; ++i) {
        pattern.Context().FrenchKnotStyle = static_cast<std::uint8_t>(pick(0, 4));
        pattern.SetStitch(pick(1, width), pick(1, height), StitchFKnot, pick(1, flosses),
                          pick(1, 9));
    }
    pattern.Context().FrenchKnotStyle = KnotNormal;
    for (int i = 0; i < lines; ++i) {
        BackStitchLine line;
        line.StartX = static_cast<std::int16_t>(pick(1, width));
        line.StartY = static_cast<std::int16_t>(pick(1, height));
        line.StartPos = static_cast<std::int16_t>(pick(1, 9));
        line.EndX = static_cast<std::int16_t>(pick(1, width));
        line.EndY = static_cast<std::int16_t>(pick(1, height));
        line.EndPos = static_cast<std::int16_t>(pick(1, 9));
        line.PaletteIndex = static_cast<std::uint8_t>(pick(1, flosses));
        line.LineStyle = static_cast<std::uint8_t>(pick(0, 5));
        pattern.SetBackstitchLine(line);
    }
}

inline BackStitchLine Line(int startX, int startY, int startPos, int endX, int endY, int endPos,
                           int floss = 1, int style = LineStraight) {
    BackStitchLine line;
    line.StartX = static_cast<std::int16_t>(startX);
    line.StartY = static_cast<std::int16_t>(startY);
    line.StartPos = static_cast<std::int16_t>(startPos);
    line.EndX = static_cast<std::int16_t>(endX);
    line.EndY = static_cast<std::int16_t>(endY);
    line.EndPos = static_cast<std::int16_t>(endPos);
    line.PaletteIndex = static_cast<std::uint8_t>(floss);
    line.LineStyle = static_cast<std::uint8_t>(style);
    return line;
}

} // namespace zol::test
