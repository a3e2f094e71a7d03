// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// A block that stays within its design keeps its blends.

#include <array>
#include <functional>
#include <vector>

#include "EditBoxTest.h"
#include "grid/basEditBox.h"

namespace zol::test {

namespace {

using Op = TransformOperation;

/// A design with two blends of one first thread behind that thread itself, and two blends of a
/// thread without a catalogue identity.
class EditBoxBlendTest : public EditBoxTest {
protected:
    static constexpr int FirstBlend = 5;
    static constexpr int SecondBlend = 6;
    static constexpr int FirstOwn = 7;
    static constexpr int SecondOwn = 8;
    static constexpr std::array blends{FirstBlend, SecondBlend, FirstOwn, SecondOwn};
    static constexpr SquareRect block{4, 4, 7, 6};

    EditBoxBlendTest() {
        Palette& palette = pattern.GetPalette();
        for (int i = 0; i < 2; ++i) {
            palette.AddPaletteEntry(palette.GetFlossRGB(1), "1", "Floss", "DMC", "b", 2, 2, 0, 1, 0,
                                    "DMC");
        }
        for (int i = 0; i < 2; ++i) {
            palette.AddPaletteEntry(0x4080C0U, "my", "Own", "CUSTOM", "c", 2, 2, 0, 0, 0,
                                    "My Colors");
        }
        for (const int blend : blends) {
            palette.BlendFloss(blend, blend % 2 == 0 ? 0xFF0000U : 0x202020U, "2", "DMC", "Floss",
                               2);
        }
        for (int i = 0; i < 4; ++i) {
            const int floss = blends[static_cast<std::size_t>(i)];
            Stitch(4 + i, 4, floss);
            Knot(4 + i, 6, 5, KnotNormal, floss);
            AddLine(4 + i, 5, 1, 4 + i, 5, 9, floss);
        }
        view.PaintAfresh();
    }

    /// How often each floss is in the design, as a stitch, a knot or a line.
    [[nodiscard]] std::vector<int> Uses() const {
        std::vector<int> uses(static_cast<std::size_t>(pattern.GetPalette().GetEntriesCount()));
        const auto count = [&uses](int floss) {
            if (floss >= 1 && floss <= static_cast<int>(uses.size())) {
                ++uses[static_cast<std::size_t>(floss - 1)];
            }
        };
        for (int x = 1; x <= Size; ++x) {
            for (int y = 1; y <= Size; ++y) {
                for (int index = 0; index < pattern.GetStitchCount(x, y); ++index) {
                    count(pattern.GetStitchColorIndex(x, y, index));
                }
            }
        }
        for (const BackStitchLine& line : pattern.Lines()) {
            count(line.PaletteIndex);
        }
        return uses;
    }
    void ExpectBlendsAreKept() const {
        EXPECT_EQ(Uses(), (std::vector<int>{0, 0, 0, 0, 3, 3, 3, 3}));
        for (const int blend : blends) {
            EXPECT_TRUE(pattern.GetPalette().IsBlended(blend));
        }
    }
};

} // namespace

TEST_F(EditBoxBlendTest, AMovedBlockKeepsItsBlends) {
    const Twin before(pattern);
    const auto lines = pattern.Lines();
    Select(block);
    Drag({4, 4}, {12, 14});
    EXPECT_EQ(Floss(12, 14), FirstBlend);
    EXPECT_EQ(Floss(13, 14), SecondBlend);
    EXPECT_EQ(pattern.GetStitchColorIndex(14, 16, 0), FirstOwn);
    ExpectBlendsAreKept();
    EXPECT_EQ(view.flossChanges, 0);
    ExpectScreenIsTrue();
    steps.PerformUndo();
    EXPECT_EQ(Floss(4, 4), FirstBlend);
    EXPECT_EQ(pattern.Lines(), lines);
    ExpectBlendsAreKept();
}

TEST_F(EditBoxBlendTest, ANudgedBlockKeepsItsBlends) {
    Select(block);
    modes.Nudge(1, 0);
    modes.Nudge(0, 1);
    modes.Confirm();
    EXPECT_EQ(Floss(5, 5), FirstBlend);
    ExpectBlendsAreKept();
    ExpectScreenIsTrue();
    steps.PerformUndo();
    EXPECT_EQ(Floss(4, 4), FirstBlend);
    ExpectBlendsAreKept();
}

TEST_F(EditBoxBlendTest, ATurnedBlockKeepsItsBlends) {
    for (const Op operation :
         {Op::Rotate90, Op::Rotate180, Op::Rotate270, Op::FlipVertical, Op::FlipHorizontal}) {
        box.SelectAll();
        box.TransformEditBox(operation);
        box.DropEditBox(false);
        ExpectBlendsAreKept();
    }
    ExpectScreenIsTrue();
    steps.PerformUndo();
    ExpectBlendsAreKept();
}

TEST_F(EditBoxBlendTest, ATurnThatIsDraggedOnKeepsItsBlends) {
    Select(block);
    box.TransformEditBox(Op::Rotate90);
    const SquareRect turned = box.GetEditBoxRect();
    Drag({turned.Left, turned.Top}, {turned.Left + 9, turned.Top + 9});
    ExpectBlendsAreKept();
    steps.PerformUndo();
    EXPECT_EQ(Floss(4, 4), FirstBlend);
    ExpectBlendsAreKept();
}

TEST_F(EditBoxBlendTest, AnAreaThatIsTurnedWithoutABoxKeepsItsBlends) {
    basEditBox::TransformArea(pattern, block, Op::Rotate90);
    ExpectBlendsAreKept();
}

TEST_F(EditBoxBlendTest, ACustomStitchInABlendIsStitchedInIt) {
    for (const int blend : blends) {
        box.PickUpSelection(*ForeignBlock(2, 1), 12, 10 + blend, blend);
        box.DropAsStep(UndoKind::CustomStitch, "Custom Stitch");
        EXPECT_EQ(Floss(12, 10 + blend), blend);
    }
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), SecondOwn);
}

TEST_F(EditBoxBlendTest, APastedBlockBringsTheFirstThreadsOfItsBlends) {
    Select(block);
    box.CopyEditBox();
    view.visible = {12, 12, 24, 24};
    box.PasteClipboard();
    box.DropEditBox(false);
    EXPECT_EQ(Floss(12, 12), 1);
    EXPECT_EQ(Floss(13, 12), 1);
    EXPECT_EQ(Floss(14, 12), SecondOwn + 1) << "the plain thread, which the design lacked";
    EXPECT_EQ(Floss(15, 12), SecondOwn + 1);
}

TEST_F(EditBoxBlendTest, ABlockWhoseNumbersNameOtherThreadsNowIsMerged) {
    Select({4, 4, 4, 4});
    box.TransformEditBox(Op::FlipHorizontal);
    pattern.GetPalette().ChangePaletteEntry(FirstBlend, 0x777777U, "99", "Other", "DMC", 99,
                                            Palette::KeepStrands, Palette::KeepStrands);
    box.DropEditBox(false);
    EXPECT_EQ(Floss(4, 4), 1);
}

} // namespace zol::test
