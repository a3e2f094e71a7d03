// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/Undo.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

#include "grid/RowsAndColumns.h"
#include "model/ModelTestKit.h"
#include "model/PlainDesign.h"
#include "model/RunTimeError.h"
#include "support/TempFolder.h"

namespace zol {
namespace {

namespace fs = std::filesystem;
using test::Line;
using test::PlainDesign;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class RecordingView : public UndoView {
public:
    void SetBusy(bool busy) override { calls.emplace_back(busy ? "busy" : "idle"); }
    void DropFloating() override { calls.emplace_back("drop"); }
    void RedrawSquares(const SquareRect& rect) override { redrawn.push_back(rect); }
    void DesignChanged() override { calls.emplace_back("design"); }

    std::vector<std::string> calls;
    std::vector<SquareRect> redrawn;
};

/// The content as text, without regard to the order of the tables of stitches and knots.
std::string Content(const Pattern& pattern) {
    std::istringstream dump(test::Dump(pattern));
    std::vector<std::string> rows;
    for (std::string row; std::getline(dump, row);) {
        rows.push_back(row);
    }
    std::stable_sort(rows.begin(), rows.end(), [](const std::string& a, const std::string& b) {
        const bool lines = a.starts_with("line") && b.starts_with("line");
        return !lines && a < b;
    });
    std::string text;
    for (const std::string& row : rows) {
        text += row + "\n";
    }
    return text;
}

class UndoTest : public test::ModelTest {
protected:
    UndoTest() { steps.SetView(&view); }

    Pattern& Design() { return open.Design(); }
    std::string Bytes() {
        ByteWriter stream;
        EXPECT_EQ(open.Get().WriteTo(stream), ErrNone);
        return {stream.Bytes().begin(), stream.Bytes().end()};
    }
    int Pick(int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    }
    void RandomChange() {
        const SquarePos at{Pick(0, Design().GetPatternWidth() + 1),
                           Pick(0, Design().GetPatternHeight() + 1)};
        context.FrenchKnotStyle = static_cast<std::uint8_t>(Pick(0, 4));
        if (Pick(0, 2) == 0) {
            Design().DeleteStitch(at.X, at.Y, Pick(0, 15));
        } else {
            Design().SetStitch(at.X, at.Y, Pick(1, 15), Pick(1, 4), Pick(0, 10));
        }
    }

    test::TempFolder folder;
    std::mt19937 random{20};
    DesignHolder open{std::make_unique<PlainDesign>(Make(12, 9))};
    RecordingView view;
    Undo steps{open, folder / "tmppat.$$$"};
};

TEST_F(UndoTest, TheSecondUndoDoesNothing) {
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    Design().SetStitch(3, 3, StitchWhole, 1, 0);
    steps.EndUndo();
    EXPECT_EQ(steps.GetUndoLabel(), "Stitches");
    steps.PerformUndo();
    EXPECT_EQ(Design().GetStitchCount(3, 3), 0);
    EXPECT_FALSE(steps.IsAvailable());
    EXPECT_EQ(steps.GetUndoLabel(), "");
    Design().SetStitch(3, 3, StitchWhole, 2, 0);
    steps.PerformUndo();
    EXPECT_EQ(Design().GetStitchColorIndex(3, 3, 0), 2);
}

TEST_F(UndoTest, AnOpenStepCannotBeUndone) {
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    Design().SetStitch(3, 3, StitchWhole, 1, 0);
    EXPECT_FALSE(steps.IsAvailable());
    EXPECT_EQ(steps.GetUndoLabel(), "");
    steps.PerformUndo();
    EXPECT_EQ(Design().GetStitchCount(3, 3), 1);
}

TEST_F(UndoTest, AStepReplacesTheLastOne) {
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    Design().SetStitch(3, 3, StitchWhole, 1, 0);
    steps.EndUndo();
    steps.BeginUndo(UndoKind::Squares, "Erase Stitches");
    Design().DeleteStitch(3, 3, StitchWhole);
    steps.EndUndo();
    EXPECT_EQ(steps.GetUndoLabel(), "Erase Stitches");
    steps.PerformUndo();
    EXPECT_EQ(Design().GetStitchCount(3, 3), 1);
}

TEST_F(UndoTest, AScopeKeepsTheStepOpen) {
    {
        const UndoStep step(steps, UndoKind::Squares, "Stitches");
        Design().SetStitch(3, 3, StitchWhole, 1, 0);
        EXPECT_FALSE(steps.IsAvailable());
    }
    EXPECT_TRUE(steps.IsAvailable());
    steps.PerformUndo();
    EXPECT_EQ(Design().GetStitchCount(3, 3), 0);
}

TEST_F(UndoTest, AStepThatWasClearedStaysAwayWhenItsScopeEnds) {
    {
        const UndoStep step(steps, UndoKind::Squares, "Stitches");
        Design().SetStitch(3, 3, StitchWhole, 1, 0);
        steps.ClearUndo();
    }
    EXPECT_FALSE(steps.IsAvailable());
}

TEST_F(UndoTest, AStrokeOverAKnotAndAHalfStitchBringsBothBack) {
    context.FrenchKnotStyle = KnotVerticalOval;
    Design().SetStitch(4, 4, StitchTBH, 2, 0);
    Design().SetStitch(4, 4, StitchFKnot, 3, 6);
    context.FrenchKnotStyle = KnotNormal;
    const std::string before = Content(Design());
    steps.BeginUndo(UndoKind::Squares, "Erase Stitches");
    Design().DeleteStitch(4, 4, Pattern::Everything);
    Design().SetStitch(4, 4, StitchWhole, 1, 0);
    steps.EndUndo();
    ASSERT_EQ(Design().FrenchKnots().Count(), 0U);
    steps.PerformUndo();
    EXPECT_EQ(Design().GetStitchType(4, 4, 0), StitchTBH);
    EXPECT_EQ(Design().GetStitchType(4, 4, 1), StitchFKnot);
    EXPECT_EQ(Design().GetFrenchKnotPoint(4, 4, 1), 6);
    EXPECT_EQ(Design().GetFrenchKnotOrientation(4, 4, 1), KnotVerticalOval);
    EXPECT_EQ(Content(Design()), before);
}

TEST_F(UndoTest, AKnotThatASquareDoesNotListIsNotLost) {
    // A whole stitch over two quarters clears the knot flag along with the second quarter's.
    Design().SetStitch(4, 4, StitchULQ, 1, 0);
    Design().SetStitch(4, 4, StitchLRQ, 2, 0);
    Design().SetStitch(4, 4, StitchFKnot, 3, 5);
    Design().SetStitch(4, 4, StitchWhole, 1, 0);
    ASSERT_EQ(Design().GetStitchCount(4, 4), 1);
    ASSERT_EQ(Design().FrenchKnots().Count(), 1U);
    const std::string before = Content(Design());
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    Design().SetStitch(4, 4, StitchTBH, 4, 0);
    Design().SetStitch(4, 5, StitchWhole, 4, 0);
    steps.EndUndo();
    steps.PerformUndo();
    EXPECT_EQ(Content(Design()), before);
}

TEST_F(UndoTest, AKnotOnACornerComesBackToAllItsSquares) {
    Design().SetStitch(4, 4, StitchFKnot, 3, 9);
    const std::string before = Content(Design());
    steps.BeginUndo(UndoKind::Squares, "Erase Stitches");
    Design().DeleteStitch(5, 5, Pattern::Everything);
    steps.EndUndo();
    ASSERT_EQ(Design().GetStitchCount(4, 4), 0);
    steps.PerformUndo();
    EXPECT_EQ(Content(Design()), before);
}

TEST_F(UndoTest, ASquarePassedTwiceEndsOnItsOlderState) {
    Design().SetStitch(2, 2, StitchWhole, 1, 0);
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    Design().SetStitch(2, 2, StitchWhole, 2, 0);
    Design().SetStitch(2, 2, StitchTBH, 3, 0);
    steps.EndUndo();
    steps.PerformUndo();
    EXPECT_THAT(test::StitchesAt(Design(), 2, 2), ElementsAre(std::pair(1, 1)));
}

TEST_F(UndoTest, RandomStrokesAreTakenBackExactly) {
    test::Scatter(Design(), random, 150, 60, 10, 4);
    for (int round = 0; round < 300; ++round) {
        const std::string before = Content(Design());
        steps.BeginUndo(UndoKind::Squares, "Stitches");
        for (int i = Pick(1, 30); i > 0; --i) {
            RandomChange();
        }
        steps.EndUndo();
        const std::string after = Content(Design());
        steps.PerformUndo();
        ASSERT_EQ(Content(Design()), before) << round;
        // Every other round stays, so that the pattern itself becomes odd.
        for (int i = round % 2 == 0 ? 10 : 0; i > 0; --i) {
            RandomChange();
        }
    }
}

TEST_F(UndoTest, AStrokeOfPlainStitchesIsTakenBackByteForByte) {
    for (int i = 0; i < 60; ++i) {
        Design().SetStitch(Pick(1, 12), Pick(1, 9), StitchWhole, Pick(1, 4), 0);
    }
    const std::string before = Bytes();
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    for (int i = 0; i < 60; ++i) {
        Design().SetStitch(Pick(1, 12), Pick(1, 9), Pick(1, 7), Pick(1, 4), 0);
    }
    steps.EndUndo();
    ASSERT_NE(Bytes(), before);
    steps.PerformUndo();
    EXPECT_EQ(Bytes(), before);
}

TEST_F(UndoTest, UndoOfAStrokeMarksThePatternAsChanged) {
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    Design().SetStitch(2, 2, StitchWhole, 2, 0);
    steps.EndUndo();
    Design().SetChanged(false);
    steps.PerformUndo();
    EXPECT_TRUE(Design().IsChanged());
}

TEST_F(UndoTest, UndoOfAStrokeRedrawsItsSquares) {
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    Design().SetStitch(2, 3, StitchWhole, 2, 0);
    Design().SetStitch(7, 5, StitchWhole, 2, 0);
    steps.EndUndo();
    steps.PerformUndo();
    EXPECT_THAT(view.redrawn, ElementsAre(SquareRect{2, 3, 2, 3}, SquareRect{7, 5, 7, 5}));
    EXPECT_THAT(view.calls, IsEmpty());
}

TEST_F(UndoTest, ALongStrokeIsRedrawnAsOneRectangle) {
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    for (int i = 0; i < 600; ++i) {
        Design().SetStitch(2 + i % 5, 3 + i % 4, StitchWhole, 1 + i % 3, 0);
    }
    steps.EndUndo();
    steps.PerformUndo();
    EXPECT_THAT(view.redrawn, ElementsAre(SquareRect{2, 3, 6, 6}));
}

TEST_F(UndoTest, StrokeRectHoldsTheSquaresOfTheStep) {
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    EXPECT_TRUE(steps.StrokeRect().IsEmpty());
    Design().SetStitch(7, 3, StitchWhole, 2, 0);
    Design().DeleteStitch(4, 8, StitchWhole);
    Design().SetStitch(40, 40, StitchWhole, 2, 0);
    EXPECT_EQ(steps.StrokeRect(), (SquareRect{4, 3, 7, 8}));
    steps.EndUndo();
    Design().SetStitch(1, 1, StitchWhole, 2, 0);
    EXPECT_EQ(steps.StrokeRect(), (SquareRect{4, 3, 7, 8}));
    steps.BeginUndo(UndoKind::Lines, "Line");
    EXPECT_TRUE(steps.StrokeRect().IsEmpty());
}

TEST_F(UndoTest, AChainOfLinesIsOneStep) {
    Design().SetBackstitchLine(Line(1, 1, 1, 2, 2, 1));
    steps.BeginUndo(UndoKind::Lines, "Line");
    Design().SetBackstitchLine(Line(2, 2, 1, 6, 4, 1));
    Design().SetBackstitchLine(Line(6, 4, 1, 5, 8, 1));
    Design().SetBackstitchLine(Line(5, 8, 1, 9, 9, 9));
    steps.EndUndo();
    Design().SetChanged(false);
    steps.PerformUndo();
    ASSERT_EQ(Design().GetBackStitchCount(), 1);
    EXPECT_EQ(Design().GetBackStitchLine(1), Line(1, 1, 1, 2, 2, 1));
    EXPECT_TRUE(Design().IsChanged());
    EXPECT_THAT(view.redrawn, ElementsAre(SquareRect{5, 8, 9, 9}, SquareRect{5, 4, 6, 8},
                                          SquareRect{2, 2, 6, 4}));
}

TEST_F(UndoTest, ALineStepLogsNoSquares) {
    steps.BeginUndo(UndoKind::Lines, "Line");
    Design().SetStitch(2, 2, StitchWhole, 1, 0);
    steps.EndUndo();
    steps.PerformUndo();
    EXPECT_EQ(Design().GetStitchCount(2, 2), 1);
}

TEST_F(UndoTest, ACustomStitchTakesBackSquaresAndLines) {
    test::Scatter(Design(), random, 60, 20, 3, 4);
    const std::string before = Content(Design());
    steps.BeginUndo(UndoKind::CustomStitch, "Custom Stitch");
    Design().SetStitch(5, 5, StitchWhole, 2, 0);
    Design().SetStitch(6, 5, StitchFKnot, 2, 1);
    Design().SetBackstitchLine(Line(5, 5, 1, 6, 6, 9));
    steps.EndUndo();
    ASSERT_NE(Content(Design()), before);
    steps.PerformUndo();
    EXPECT_EQ(Content(Design()), before);
    EXPECT_EQ(view.redrawn.front(), (SquareRect{5, 5, 6, 6}));
}

TEST_F(UndoTest, UndoOfAddRowsRestoresTheOldSize) {
    test::Scatter(Design(), random, 40, 10, 5, 4);
    const std::string before = Bytes();
    steps.BeginUndo(UndoKind::Snapshot, "Add Rows");
    RowsAndColumns::Add(Design(), RowsAndColumns::Band::Rows, 4, 5);
    steps.EndUndo();
    ASSERT_EQ(Design().GetPatternHeight(), 14);
    steps.PerformUndo();
    EXPECT_EQ(Design().GetPatternHeight(), 9);
    EXPECT_EQ(Bytes(), before);
    EXPECT_TRUE(Design().IsChanged());
}

TEST_F(UndoTest, RandomCommandsAreTakenBackByteForByte) {
    test::Scatter(Design(), random, 80, 30, 12, 4);
    for (int round = 0; round < 60; ++round) {
        const std::string before = Bytes();
        steps.BeginUndo(UndoKind::Snapshot, "Paint");
        switch (round % 6) {
        case 0:
            Design().RemoveColor(Pick(1, 4), -1, 0, 0, 0);
            break;
        case 1:
            Design().Center(2);
            break;
        case 2:
            Design().ShrinkToFit();
            break;
        case 3:
            Design().Paint(Pick(1, 6), Pick(1, 6), StitchWhole, 1, NoFloss);
            break;
        case 4:
            Design().Title = "Another " + std::to_string(round);
            Design().ClearUnusedPaletteColors();
            break;
        default:
            RandomChange();
        }
        steps.EndUndo();
        steps.PerformUndo();
        ASSERT_EQ(Bytes(), before) << round;
        RandomChange();
    }
}

TEST_F(UndoTest, ASnapshotLeavesTheChangedFlagAndTheNameAlone) {
    for (const bool changed : {false, true}) {
        Design().FileName = "/patterns/rose.pat";
        Design().SetChanged(changed);
        steps.BeginUndo(UndoKind::Snapshot, "Paint");
        EXPECT_EQ(Design().IsChanged(), changed);
        EXPECT_EQ(Design().FileName, "/patterns/rose.pat");
        steps.EndUndo();
        Design().SetChanged(false);
        // A name that the step took comes back; one that was chosen since stays.
        Design().FileName = changed ? "" : "/saved since.pat";
        steps.PerformUndo();
        EXPECT_TRUE(Design().IsChanged());
        EXPECT_EQ(Design().FileName, changed ? "/patterns/rose.pat" : "/saved since.pat");
    }
}

TEST_F(UndoTest, ASnapshotBringsBackWhatALoadWouldReset) {
    Design().SetNoMapping();
    Design().ClearFlags(); // the flag is gone, the refusal stays
    Design().GetPalette().Sort(SortDescription);
    const PatternHeader header = Design().GetHeader();
    steps.BeginUndo(UndoKind::Snapshot, "Palette Changes");
    Design().ClearNoMapping();
    steps.EndUndo();
    steps.PerformUndo();
    EXPECT_FALSE(Design().AllowFlossMapping());
    EXPECT_EQ(Design().GetHeader().PatternFlags, header.PatternFlags);
    EXPECT_EQ(Design().GetHeader().Checksum, header.Checksum);
    EXPECT_EQ(Design().GetPalette().GetSortOrder(), SortDescription);
    EXPECT_NE(Design().GetPalette().GetSortIndex(1), 0);
}

TEST_F(UndoTest, ASnapshotShowsTheHourglassAndDropsWhatFloats) {
    steps.BeginUndo(UndoKind::Snapshot, "Cut");
    EXPECT_THAT(view.calls, ElementsAre("busy", "idle"));
    steps.EndUndo();
    view.calls.clear();
    steps.PerformUndo();
    EXPECT_THAT(view.calls, ElementsAre("busy", "drop", "design", "idle"));
}

TEST_F(UndoTest, AStrokeAfterASnapshotIsRecorded) {
    steps.BeginUndo(UndoKind::Snapshot, "Paint");
    steps.EndUndo();
    steps.PerformUndo();
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    Design().SetStitch(2, 2, StitchWhole, 1, 0);
    steps.EndUndo();
    steps.PerformUndo();
    EXPECT_EQ(Design().GetStitchCount(2, 2), 0);
}

TEST_F(UndoTest, DeletingEveryRowCanBeUndone) {
    Design().SetStitch(2, 2, StitchWhole, 1, 0);
    const std::string before = Bytes();
    steps.BeginUndo(UndoKind::Snapshot, "Delete Rows");
    Design().Resize(12, 0, 14, 14);
    steps.EndUndo();
    steps.PerformUndo();
    EXPECT_EQ(Bytes(), before);
}

TEST_F(UndoTest, APatternWithoutSquaresTellsThatItsStepCannotBeUndone) {
    Design().Resize(12, 0, 14, 14);
    steps.BeginUndo(UndoKind::Snapshot, "Add Rows");
    ASSERT_EQ(messages.told.size(), 1U);
    EXPECT_EQ(messages.told[0].text, "The step \"Add Rows\" cannot be undone.");
    steps.EndUndo();
    EXPECT_FALSE(steps.IsAvailable());
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    EXPECT_TRUE(steps.StrokeRect().IsEmpty());
}

/// A door that keeps what stands below a message, too.
class TellingMore : public test::RecordingMessages {
public:
    void TellMore(const std::string& text, const std::string& more, MessageIcon icon,
                  const std::string& title) override {
        Tell(text + "|" + more, icon, title);
    }
};

class FailingSnapshot : public UndoTest {
protected:
    FailingSnapshot() { context.Messages = &door; }

    void ExpectRefusal(Undo& failing, const std::string& reason) {
        failing.BeginUndo(UndoKind::Squares, "Stitches");
        failing.EndUndo();
        failing.BeginUndo(UndoKind::Snapshot, "Paint");
        ASSERT_EQ(door.told.size(), 1U);
        EXPECT_EQ(door.told[0].icon, MessageIcon::Exclamation);
        EXPECT_THAT(door.told[0].text, HasSubstr("The step \"Paint\" cannot be undone.|"));
        EXPECT_THAT(door.told[0].text, HasSubstr(reason));
        Design().SetStitch(2, 2, StitchWhole, 1, 0);
        failing.EndUndo();
        EXPECT_FALSE(failing.IsAvailable());
        EXPECT_EQ(failing.GetUndoLabel(), "");
        failing.PerformUndo();
        EXPECT_EQ(Design().GetStitchCount(2, 2), 1);
    }

    TellingMore door;
};

TEST_F(FailingSnapshot, AMissingFolderIsTold) {
    Undo failing(open, folder / "no" / "tmppat.$$$");
    ExpectRefusal(failing, RunTimeErrorText(ErrPathNotFound));
}

TEST_F(FailingSnapshot, AFullDeviceIsTold) {
    Undo failing(open, "/dev/full");
    ExpectRefusal(failing, RunTimeErrorText(ErrDiskFull));
}

TEST_F(FailingSnapshot, AReadOnlyFolderIsTold) {
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0555), 0);
    // In a process of its own that has no special rights.
    const pid_t child = ::fork();
    if (child == 0) {
        constexpr uid_t nobody = 65534;
        if (::getuid() == 0 && ::setuid(nobody) != 0) {
            ::_exit(2);
        }
        ExpectRefusal(steps, RunTimeErrorText(ErrPermission));
        ::_exit(HasFailure() ? 1 : 0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(FailingSnapshot, ATextThatIsTooLongIsToldOnce) {
    Design().Instructions.assign(40000, 'x');
    ExpectRefusal(steps, RunTimeErrorText(ErrOverflow));
    EXPECT_EQ(context.Messages, &door);
}

TEST_F(FailingSnapshot, ALostFileLeavesThePatternAsItIs) {
    steps.BeginUndo(UndoKind::Snapshot, "Paint");
    Design().SetStitch(2, 2, StitchWhole, 1, 0);
    steps.EndUndo();
    fs::remove(folder / "tmppat.$$$");
    Design().SetChanged(false);
    view.calls.clear();
    steps.PerformUndo();
    EXPECT_EQ(Design().GetStitchCount(2, 2), 1);
    EXPECT_FALSE(Design().IsChanged());
    EXPECT_FALSE(steps.IsAvailable());
    EXPECT_THAT(view.calls, ElementsAre("busy", "drop", "idle"));
    ASSERT_EQ(door.told.size(), 1U);
    EXPECT_THAT(door.told[0].text, HasSubstr("The step \"Paint\" could not be undone.|"));
}

TEST_F(FailingSnapshot, ADamagedFileLeavesThePatternAsItIs) {
    steps.BeginUndo(UndoKind::Snapshot, "Paint");
    Design().SetStitch(2, 2, StitchWhole, 1, 0);
    steps.EndUndo();
    const std::string whole = test::ReadFile(folder / "tmppat.$$$");
    test::WriteFile(folder / "tmppat.$$$", whole.substr(0, 300) + "\xFF" + whole.substr(301));
    steps.PerformUndo();
    EXPECT_EQ(Design().GetStitchCount(2, 2), 1);
    ASSERT_EQ(door.told.size(), 1U);
}

TEST_F(UndoTest, TheSnapshotGoesWhereTheEnvironmentSays) {
    ASSERT_EQ(::unsetenv("ZOLUNDO"), 0);
    EXPECT_EQ(Undo::SnapshotPath(folder.Path()), folder / "tmppat.$$$");
    ASSERT_EQ(::setenv("ZOLUNDO", "", 1), 0);
    EXPECT_EQ(Undo::SnapshotPath(folder.Path()), folder / "tmppat.$$$");
    ASSERT_EQ(::setenv("ZOLUNDO", (folder / "mine").c_str(), 1), 0);
    Undo chosen(open, Undo::SnapshotPath(folder / "other"));
    ASSERT_EQ(::unsetenv("ZOLUNDO"), 0);
    chosen.BeginUndo(UndoKind::Snapshot, "Paint");
    chosen.EndUndo();
    EXPECT_TRUE(chosen.IsAvailable());
    EXPECT_TRUE(test::ReadFile(folder / "mine").starts_with(PatternHeader::Magic));
}

TEST_F(UndoTest, TheUndoFileGoesWithTheTemporaryFiles) {
    test::WriteFile(folder / "tmppat.$$$", "of somebody else");
    steps.DeleteUndoFile();
    EXPECT_TRUE(fs::exists(folder / "tmppat.$$$")) << "nothing was written yet";
    steps.BeginUndo(UndoKind::Snapshot, "Paint");
    steps.EndUndo();
    steps.DeleteUndoFile();
    EXPECT_TRUE(fs::is_empty(folder.Path())) << "no half-written file either";
    steps.DeleteUndoFile();
}

TEST_F(UndoTest, AFreshSnapshotBelongsToNoStep) {
    steps.BeginUndo(UndoKind::Snapshot, "Paint");
    steps.EndUndo();
    const std::string old = test::ReadFile(folder / "tmppat.$$$");
    Design().SetStitch(2, 2, StitchWhole, 1, 0);
    steps.RefreshSnapshot();
    EXPECT_FALSE(steps.IsAvailable());
    EXPECT_NE(test::ReadFile(folder / "tmppat.$$$"), old);
}

TEST_F(UndoTest, AFreshSnapshotThatFailsIsNoTrouble) {
    Undo failing(open, folder / "no" / "tmppat.$$$");
    failing.RefreshSnapshot();
    EXPECT_THAT(messages.told, IsEmpty());
}

TEST_F(UndoTest, AnotherDesignIsWatchedAndTheOldStepForgotten) {
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    Design().SetStitch(2, 2, StitchWhole, 1, 0);
    steps.EndUndo();
    open.Put(std::make_unique<PlainDesign>(Make(5, 5)));
    steps.WatchOpenDesign();
    EXPECT_FALSE(steps.IsAvailable());
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    Design().SetStitch(3, 3, StitchWhole, 1, 0);
    steps.EndUndo();
    steps.PerformUndo();
    EXPECT_EQ(Design().GetStitchCount(3, 3), 0);
}

TEST_F(UndoTest, SquaresOfAnotherPatternAreNotLogged) {
    Pattern other = Make(5, 5);
    other.SetUndoRecorder(&steps);
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    other.SetStitch(3, 3, StitchWhole, 1, 0);
    EXPECT_TRUE(steps.StrokeRect().IsEmpty());
}

} // namespace
} // namespace zol
