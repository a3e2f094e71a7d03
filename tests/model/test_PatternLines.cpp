// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/ModelTestKit.h"
#include "support/TempFolder.h"

namespace zol {
namespace {

using test::Line;
using test::ModelTest;

class PatternLines : public ModelTest {
protected:
    BackStitchLine Added(BackStitchLine line) {
        pattern.AddBackStitchLine(line);
        return pattern.GetBackStitchLine(pattern.GetBackStitchCount());
    }
    Pattern pattern = Make(10, 8);
};

TEST_F(PatternLines, EndOneStepOutsideIsNamedFromInside) {
    EXPECT_EQ(Added(Line(0, 5, 3, 4, 4, 5)), Line(1, 5, 1, 4, 4, 5));
    EXPECT_EQ(Added(Line(4, 4, 5, 0, 5, 9)), Line(4, 4, 5, 1, 5, 7));
    EXPECT_EQ(Added(Line(3, 0, 7, 4, 4, 5)), Line(3, 1, 1, 4, 4, 5));
    EXPECT_EQ(Added(Line(11, 5, 4, 4, 4, 5)), Line(10, 5, 6, 4, 4, 5));
    EXPECT_EQ(Added(Line(3, 9, 2, 4, 4, 5)), Line(3, 8, 8, 4, 4, 5));
    EXPECT_EQ(Added(Line(0, 0, 9, 11, 9, 1)), Line(1, 1, 1, 10, 8, 9));
    EXPECT_EQ(pattern.GetBackStitchCount(), 6);
}

TEST_F(PatternLines, TheLineComesBackAsItWasNormalised) {
    BackStitchLine line = Line(0, 5, 3, 4, 4, 5);
    pattern.AddBackStitchLine(line);
    EXPECT_EQ(line, Line(1, 5, 1, 4, 4, 5));
}

TEST_F(PatternLines, EndFartherOutsideIsRefused) {
    for (BackStitchLine line : {Line(-1, 5, 3, 4, 4, 5), Line(4, 4, 5, 12, 4, 1),
                                Line(0, 5, 2, 4, 4, 5), Line(4, 4, 5, 4, 0, 1)}) {
        pattern.AddBackStitchLine(line);
    }
    EXPECT_EQ(pattern.GetBackStitchCount(), 0);
}

TEST_F(PatternLines, PositionOutsideOneToNineIsRefused) {
    for (const int position : {0, 10, -3, 77}) {
        BackStitchLine line = Line(1, 1, position, 2, 2, 5);
        pattern.AddBackStitchLine(line);
        line = Line(2, 2, 5, 1, 1, position);
        pattern.AddBackStitchLine(line);
    }
    EXPECT_EQ(pattern.GetBackStitchCount(), 0);
}

TEST_F(PatternLines, HundredAndFirstLineKeepsTheOthersInOrder) {
    for (int i = 1; i <= 250; ++i) {
        BackStitchLine line = Line(1 + i % 10, 1 + i % 8, 1, 1 + i % 10, 1 + i % 8, 9, i % 250);
        pattern.AddBackStitchLine(line);
    }
    ASSERT_EQ(pattern.GetBackStitchCount(), 250);
    for (int i = 1; i <= 250; ++i) {
        EXPECT_EQ(pattern.GetBackStitchLine(i).PaletteIndex, i % 250);
    }
}

TEST_F(PatternLines, LineOfNoLengthNamedFromTwoSquaresIsNotStored) {
    pattern.SetBackstitchLine(Line(3, 3, 3, 4, 3, 1));
    EXPECT_EQ(pattern.GetBackStitchCount(), 0);
    EXPECT_FALSE(pattern.IsChanged());
    pattern.SetBackstitchLine(Line(3, 3, 3, 4, 3, 2));
    EXPECT_EQ(pattern.GetBackStitchCount(), 1);
    EXPECT_TRUE(pattern.IsChanged());
}

TEST_F(PatternLines, AfterRemovingTheFirstTheSecondIsTheFirst) {
    Added(Line(1, 1, 1, 2, 2, 1, 1));
    Added(Line(1, 1, 1, 2, 2, 1, 2));
    Added(Line(1, 1, 1, 2, 2, 1, 3));
    pattern.RemoveBackStitchLine(1);
    EXPECT_EQ(pattern.GetBackStitchCount(), 2);
    EXPECT_EQ(pattern.GetBackStitchLine(1).PaletteIndex, 2);
    EXPECT_EQ(pattern.GetBackStitchLine(2).PaletteIndex, 3);
}

TEST_F(PatternLines, IndexOutsideDoesNothingAndAnswersEmpty) {
    Added(Line(1, 1, 1, 2, 2, 1, 5));
    for (const int index : {-1, 0, 2, 100}) {
        pattern.RemoveBackStitchLine(index);
        pattern.ChangeBSColor(index, 3);
        pattern.ChangeBSStyle(index, LineDotted);
        EXPECT_EQ(pattern.GetBackStitchLine(index), BackStitchLine());
        EXPECT_FALSE(pattern.IsLineInRect(index, 1, 1, 10, 8));
        EXPECT_FALSE(pattern.DoesLineStartAt(index, 1, 1, 1));
    }
    EXPECT_EQ(pattern.GetBackStitchLine(1), Line(1, 1, 1, 2, 2, 1, 5));
}

TEST_F(PatternLines, ColorAndStyleChange) {
    Added(Line(1, 1, 1, 2, 2, 1, 5));
    pattern.ChangeBSColor(1, 9);
    pattern.ChangeBSStyle(1, LinePlus);
    EXPECT_EQ(pattern.GetBackStitchLine(1), Line(1, 1, 1, 2, 2, 1, 9, LinePlus));
}

TEST_F(PatternLines, PictureIndexHasAnOrderOfItsOwn) {
    Added(Line(1, 1, 1, 2, 2, 1, 5));
    Added(Line(1, 1, 1, 2, 2, 1, 6, LineSquiggle));
    const std::array<int, 7> styles{-1, 0, 2, 4, 5, 3, 1};
    for (int picture = 1; picture <= 6; ++picture) {
        pattern.Changebackstitchline(5, picture);
        EXPECT_EQ(pattern.GetBackStitchLine(1).LineStyle,
                  styles[static_cast<std::size_t>(picture)]);
    }
    for (const int picture : {0, 7, -1}) {
        pattern.Changebackstitchline(5, picture);
        EXPECT_EQ(pattern.GetBackStitchLine(1).LineStyle, LineSquiggle);
    }
    EXPECT_EQ(pattern.GetBackStitchLine(2).LineStyle, LineSquiggle);
}

TEST_F(PatternLines, RectangleTakesEndsOnItsEdgeNamedFromOutside) {
    const auto inRect = [this](const BackStitchLine& line) {
        BackStitchLine copy = line;
        pattern.AddBackStitchLine(copy);
        return pattern.IsLineInRect(pattern.GetBackStitchCount(), 3, 3, 5, 5);
    };
    EXPECT_TRUE(inRect(Line(3, 3, 1, 5, 5, 9)));
    EXPECT_TRUE(inRect(Line(6, 4, 4, 4, 4, 5)));
    EXPECT_FALSE(inRect(Line(6, 4, 5, 4, 4, 5)));
    EXPECT_TRUE(inRect(Line(4, 4, 5, 2, 4, 6)));
    EXPECT_FALSE(inRect(Line(4, 4, 5, 2, 4, 5)));
    EXPECT_TRUE(inRect(Line(4, 2, 8, 4, 4, 5)));
    EXPECT_FALSE(inRect(Line(4, 2, 5, 4, 4, 5)));
    EXPECT_TRUE(inRect(Line(4, 4, 5, 4, 6, 2)));
    EXPECT_FALSE(inRect(Line(4, 4, 5, 4, 6, 5)));
    EXPECT_TRUE(inRect(Line(2, 2, 9, 6, 6, 1)));
    EXPECT_FALSE(inRect(Line(4, 4, 5, 7, 4, 1)));
}

TEST_F(PatternLines, EndsAreFoundOnTheLatticeOrBySquareAlone) {
    Added(Line(3, 3, 9, 6, 6, 1));
    EXPECT_TRUE(pattern.DoesLineStartAt(1, 4, 4, 1));
    EXPECT_TRUE(pattern.DoesLineStartAt(1, 4, 3, 7));
    EXPECT_TRUE(pattern.DoesLineStartAt(1, 5, 5, 9));
    EXPECT_FALSE(pattern.DoesLineStartAt(1, 4, 4, 2));
    EXPECT_TRUE(pattern.DoesLineStartAt(1, 3, 3, -1));
    EXPECT_TRUE(pattern.DoesLineStartAt(1, 6, 6, -1));
    EXPECT_FALSE(pattern.DoesLineStartAt(1, 4, 4, -1));
}

TEST_F(PatternLines, ExtremesAreMinusOneWithoutLines) {
    EXPECT_EQ(pattern.GetLeftMostLine(), -1);
    EXPECT_EQ(pattern.GetRightMostLine(), -1);
    EXPECT_EQ(pattern.GetTopMostLine(), -1);
    EXPECT_EQ(pattern.GetBottomMostLine(), -1);
}

TEST_F(PatternLines, EndOnASquaresEdgeBelongsToTheInnerSide) {
    Added(Line(3, 3, 9, 6, 6, 1));
    EXPECT_EQ(pattern.GetLeftMostLine(), 4);
    EXPECT_EQ(pattern.GetRightMostLine(), 5);
    EXPECT_EQ(pattern.GetTopMostLine(), 4);
    EXPECT_EQ(pattern.GetBottomMostLine(), 5);
    Added(Line(2, 2, 5, 7, 7, 5));
    EXPECT_EQ(pattern.GetLeftMostLine(), 2);
    EXPECT_EQ(pattern.GetRightMostLine(), 7);
    EXPECT_EQ(pattern.GetTopMostLine(), 2);
    EXPECT_EQ(pattern.GetBottomMostLine(), 7);
}

TEST_F(PatternLines, FixStopsOneShortOfTheLastLineAndRunsBothTests) {
    for (const int floss : {0, 200, 5, 200}) {
        Added(Line(1, 1, 1, 2, 2, 1, floss));
    }
    pattern.FixBackStitchLines();
    EXPECT_EQ(pattern.GetBackStitchLine(1).PaletteIndex, 1);
    EXPECT_EQ(pattern.GetBackStitchLine(2).PaletteIndex, 16);
    EXPECT_EQ(pattern.GetBackStitchLine(3).PaletteIndex, 5);
    EXPECT_EQ(pattern.GetBackStitchLine(4).PaletteIndex, 200);
    pattern.GetPalette().ClearPalette();
    pattern.RemoveBackStitchLine(4);
    Added(Line(1, 1, 1, 2, 2, 1, 0));
    Added(Line(1, 1, 1, 2, 2, 1, 0));
    pattern.FixBackStitchLines();
    EXPECT_EQ(pattern.GetBackStitchLine(4).PaletteIndex, 0)
        << "made 1 by the first test and the count by the second";
    EXPECT_EQ(pattern.GetBackStitchLine(1).PaletteIndex, 0);
}

TEST_F(PatternLines, EveryChangeOfTheLinesHasARevisionOfItsOwn) {
    std::set<std::uint64_t> seen{pattern.LinesRevision()};
    const auto expectNew = [&](const char* what) {
        EXPECT_TRUE(seen.insert(pattern.LinesRevision()).second) << what;
    };
    Added(Line(1, 1, 1, 4, 4, 5, 2));
    expectNew("added");
    pattern.SetBackstitchLine(Line(2, 2, 1, 10, 8, 5, 3));
    expectNew("set");
    pattern.ChangeBSColor(1, 4);
    expectNew("another floss");
    pattern.ChangeBSStyle(1, LineDashed);
    expectNew("another style");
    pattern.Changebackstitchline(4, 5);
    expectNew("another style for a floss");
    pattern.MoveArea(1, 1, 10, 8, -1, 0);
    expectNew("moved");
    pattern.ChangeColor(3, 5, Pattern::WholePattern, 0, 0, 0);
    expectNew("a floss changed for another");
    pattern.MapPalette({0, 1, 2, 3, 4, 6});
    expectNew("a floss renumbered");
    pattern.RemoveColor(6, Pattern::WholePattern, 0, 0, 0);
    expectNew("a floss taken out");
    pattern.Resize(3, 3, 14, 14);
    expectNew("cut to a smaller grid");
    Added(Line(1, 1, 1, 3, 3, 5, 2));
    expectNew("added again");
    pattern.RemoveBackStitchLine(1);
    expectNew("removed");
    pattern.Initialize(10, 8, 14, 14);
    expectNew("a fresh pattern");
}

TEST_F(PatternLines, StitchesAndReadersLeaveTheLinesRevision) {
    Added(Line(1, 1, 1, 4, 4, 5, 2));
    const std::uint64_t before = pattern.LinesRevision();
    pattern.SetStitch(3, 3, StitchWhole, 1, 5);
    pattern.DeleteStitch(3, 3, Pattern::Everything);
    pattern.RemoveBackStitchLine(2);
    pattern.ChangeBSColor(0, 1);
    (void)pattern.GetBackStitchLine(1);
    (void)pattern.IsLineInRect(1, 1, 1, 5, 5);
    EXPECT_EQ(pattern.LinesRevision(), before);
}

TEST_F(PatternLines, TheRevisionGoesWithItsLines) {
    Pattern other = Make(10, 8);
    EXPECT_NE(other.LinesRevision(), pattern.LinesRevision());
    Added(Line(1, 1, 1, 4, 4, 5, 2));
    const std::uint64_t revision = pattern.LinesRevision();
    Pattern moved = std::move(pattern);
    EXPECT_EQ(moved.LinesRevision(), revision);
    EXPECT_NE(pattern.LinesRevision(), revision) << "without lines now"; // NOLINT: that is the test
    other = std::move(moved);
    EXPECT_EQ(other.LinesRevision(), revision);
    EXPECT_NE(moved.LinesRevision(), revision); // NOLINT
    EXPECT_NE(moved.LinesRevision(), pattern.LinesRevision());
}

TEST_F(PatternLines, ALoadGivesAnotherRevision) {
    const test::TempFolder folder;
    Added(Line(1, 1, 1, 4, 4, 5, 2));
    const std::filesystem::path file = folder / "Lines.zol";
    ASSERT_EQ(pattern.Save(file), 0);
    std::set<std::uint64_t> seen{pattern.LinesRevision()};
    for (int load = 1; load <= 3; ++load) {
        ASSERT_EQ(pattern.Load(file), 0);
        EXPECT_TRUE(seen.insert(pattern.LinesRevision()).second);
    }
    Pattern other(context);
    ASSERT_EQ(other.Load(file), 0);
    EXPECT_TRUE(seen.insert(other.LinesRevision()).second);
}

} // namespace
} // namespace zol
