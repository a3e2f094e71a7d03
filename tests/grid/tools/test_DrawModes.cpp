// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "DrawModesTest.h"

namespace zol::test {
namespace {

TEST_F(DrawModesTest, StartsWithStitches) {
    EXPECT_EQ(modes.GetDrawMode(), DrawStitches);
    EXPECT_EQ(modes.LastDrawMode(), DrawStitches);
    EXPECT_EQ(modes.BaseDrawMode(), DrawStitches);
    EXPECT_EQ(modes.Cursor(), GridCursor::Default);
    Click(Left(3, 3));
    EXPECT_EQ(Kind(3, 3), StitchWhole);
}

TEST_F(DrawModesTest, EachModeHasItsPointer) {
    const std::vector<std::pair<DrawMode, GridCursor>> table{
        {DrawErase, GridCursor::Erase},
        {DrawLines, GridCursor::Default},
        {DrawZoom, GridCursor::Cross},
        {DrawPaintOnce, GridCursor::Paint},
        {DrawEditBox, GridCursor::Cross},
        {DrawPaint, GridCursor::Paint},
        {DrawColorPicker, GridCursor::ColorPicker},
        {DrawStitches, GridCursor::Default}};
    for (const auto& [mode, cursor] : table) {
        view.cursors.clear();
        modes.SetDrawMode(mode);
        EXPECT_EQ(modes.GetDrawMode(), mode);
        EXPECT_EQ(view.cursors, (std::vector<GridCursor>{cursor})) << int{mode};
        EXPECT_EQ(modes.Cursor(), cursor);
    }
    EXPECT_EQ(listener.modes, static_cast<int>(table.size()));
}

TEST_F(DrawModesTest, ModesWithoutAToolAreRefused) {
    modes.SetDrawMode(DrawLines);
    for (const DrawMode mode : {DrawText, static_cast<DrawMode>(0), static_cast<DrawMode>(10),
                                static_cast<DrawMode>(255)}) {
        modes.SetDrawMode(mode);
        EXPECT_EQ(modes.GetDrawMode(), DrawLines);
    }
    EXPECT_EQ(listener.modes, 1);
}

TEST_F(DrawModesTest, EraseIsRefusedWhilePainting) {
    for (const DrawMode mode : {DrawPaintOnce, DrawPaint}) {
        modes.SetDrawMode(mode);
        modes.SetDrawMode(DrawErase);
        EXPECT_EQ(modes.GetDrawMode(), mode);
    }
    modes.SetDrawMode(DrawColorPicker);
    modes.SetDrawMode(DrawErase);
    EXPECT_EQ(modes.GetDrawMode(), DrawErase);
}

TEST_F(DrawModesTest, ZoomToolIsNoModeToComeBackTo) {
    modes.SetDrawMode(DrawErase);
    modes.SetDrawMode(DrawZoom);
    EXPECT_EQ(modes.LastDrawMode(), DrawErase);
    modes.SetDrawMode(DrawZoom);
    modes.RestoreDrawMode();
    EXPECT_EQ(modes.GetDrawMode(), DrawErase);
}

TEST_F(DrawModesTest, ButtonOfStitchesOrLinesStaysPressedUnderOtherTools) {
    modes.SetDrawMode(DrawLines);
    for (const DrawMode mode : {DrawErase, DrawZoom, DrawPaint, DrawColorPicker}) {
        modes.SetDrawMode(mode);
        EXPECT_EQ(modes.BaseDrawMode(), DrawLines) << int{mode};
    }
    modes.SetDrawMode(DrawStitches);
    EXPECT_EQ(modes.BaseDrawMode(), DrawStitches);
}

TEST_F(DrawModesTest, ChangeOfModeEndsTheStroke) {
    modes.Press(Left(3, 3));
    modes.SetDrawMode(DrawLines);
    EXPECT_EQ(steps.GetUndoLabel(), "Stitches");
    modes.SetDrawMode(DrawStitches);
    modes.Move(Left(9, 3));
    EXPECT_EQ(Kind(9, 3), NoStitch);
}

TEST_F(DrawModesTest, ChangeOfModeCancelsALineUnderWay) {
    modes.SetDrawMode(DrawLines);
    modes.Press(Left(3, 3));
    modes.Move(Left(6, 6));
    ASSERT_TRUE(modes.GetOverlay().RubberBand.has_value());
    modes.SetDrawMode(DrawStitches);
    EXPECT_FALSE(modes.GetOverlay().RubberBand.has_value());
    modes.SetDrawMode(DrawLines);
    modes.Move(Left(7, 7));
    modes.Release(Left(7, 7));
    EXPECT_EQ(pattern.GetBackStitchCount(), 0);
}

TEST_F(DrawModesTest, StitchTypesGoFromOneToFifteen) {
    modes.SetDrawMode(DrawLines);
    for (int type = 1; type <= 15; ++type) {
        modes.SetStitchType(type);
        EXPECT_EQ(choice.CurrentStitchType, type == StitchCustom ? int{StitchWhole} : type);
        EXPECT_EQ(modes.GetDrawMode(), DrawStitches) << "a stitch ends another tool";
    }
    EXPECT_EQ(listener.types, 15);
    for (const int unknown : {0, 16, -1, 255}) {
        choice.CurrentStitchType = StitchTBH;
        modes.SetStitchType(unknown);
        EXPECT_EQ(choice.CurrentStitchType, StitchWhole) << unknown;
    }
}

TEST_F(DrawModesTest, ASmartStitchThatIsNotOfferedBecomesTheWholeStitch) {
    modes.SetStitchType(StitchS3Q);
    modes.SetDrawMode(DrawLines);
    modes.OfferSmartStitches(true, false);
    EXPECT_EQ(choice.CurrentStitchType, StitchS3Q);
    EXPECT_EQ(listener.types, 1);
    modes.OfferSmartStitches(false, true);
    EXPECT_EQ(choice.CurrentStitchType, StitchWhole);
    EXPECT_EQ(listener.types, 2) << "the buttons hear of it";
    EXPECT_EQ(modes.GetDrawMode(), DrawLines);
    modes.SetStitchType(StitchSQ);
    modes.OfferSmartStitches(true, false);
    EXPECT_EQ(choice.CurrentStitchType, StitchWhole);
    modes.SetStitchType(StitchTBH);
    modes.OfferSmartStitches(false, false);
    EXPECT_EQ(choice.CurrentStitchType, StitchTBH);
}

TEST_F(DrawModesTest, CurrentColorShowsItsFloss) {
    modes.SetCurrentColor(3);
    EXPECT_EQ(choice.CurrentPaletteIndex, 3);
    EXPECT_EQ(view.flosses, (std::vector<std::string>{pattern.GetPalette().GetFlossLongDesc(3)}));
    EXPECT_FALSE(view.flosses.back().empty());
    EXPECT_EQ(listener.colors, 1);
}

TEST_F(DrawModesTest, ColorOutsideThePaletteDoesNothing) {
    modes.SetCurrentColor(3);
    for (const int index : {0, 5, -1, 255}) {
        modes.SetCurrentColor(index);
    }
    EXPECT_EQ(choice.CurrentPaletteIndex, 3);
    EXPECT_EQ(listener.colors, 1);
}

TEST_F(DrawModesTest, ColorStaysValidWhenThePaletteShrinks) {
    modes.SetCurrentColor(4);
    modes.PaletteChanged();
    EXPECT_EQ(choice.CurrentPaletteIndex, 4);
    pattern.GetPalette().RemovePaletteEntry(4);
    modes.PaletteChanged();
    EXPECT_EQ(choice.CurrentPaletteIndex, 1);
    EXPECT_EQ(listener.colors, 2);
    modes.SetCurrentColor(3);
    pattern.GetPalette().RemovePaletteEntry(3);
    Click(Left(2, 2));
    EXPECT_EQ(Floss(2, 2), 1) << "also when nobody has told of it";
}

TEST_F(DrawModesTest, PickerTakesTheFlossAndGoesBackToStitches) {
    pattern.SetStitch(3, 3, StitchWhole, 2, 5);
    modes.SetDrawMode(DrawColorPicker);
    Click(Left(3, 3));
    EXPECT_EQ(choice.CurrentPaletteIndex, 2);
    EXPECT_EQ(modes.GetDrawMode(), DrawStitches);
    EXPECT_EQ(view.flosses.back(), pattern.GetPalette().GetFlossLongDesc(2));
}

TEST_F(DrawModesTest, PickerOnClothOrBesideItLeavesTheColor) {
    modes.SetCurrentColor(3);
    for (const auto& [x, y] : {std::pair{5, 5}, {0, 0}, {25, 25}}) {
        modes.SetDrawMode(DrawColorPicker);
        Click(Left(x, y));
        EXPECT_EQ(choice.CurrentPaletteIndex, 3);
        EXPECT_EQ(modes.GetDrawMode(), DrawStitches);
    }
}

TEST_F(DrawModesTest, PaintOnceGoesBackToStitchesAndPaintStays) {
    choice.CurrentPaletteIndex = 2;
    modes.SetDrawMode(DrawPaintOnce);
    Click(Left(3, 3));
    EXPECT_EQ(Floss(24, 24), 2);
    EXPECT_EQ(modes.GetDrawMode(), DrawStitches);
    choice.CurrentPaletteIndex = 3;
    modes.SetDrawMode(DrawPaint);
    Click(Left(3, 3));
    EXPECT_EQ(Floss(24, 24), 3);
    EXPECT_EQ(modes.GetDrawMode(), DrawPaint);
    modes.SetPaintErases(true);
    Click(Left(3, 3));
    EXPECT_EQ(Kind(24, 24), NoStitch);
    EXPECT_EQ(modes.GetDrawMode(), DrawPaint);
    ExpectScreenIsTrue();
}

TEST_F(DrawModesTest, PaintErasesOnlyWhilePainting) {
    modes.SetPaintErases(true);
    EXPECT_FALSE(modes.PaintErases());
    modes.SetDrawMode(DrawPaint);
    modes.SetPaintErases(true);
    EXPECT_TRUE(modes.PaintErases());
    modes.SetDrawMode(DrawZoom);
    modes.RestoreDrawMode();
    EXPECT_TRUE(modes.PaintErases()) << "the zoom tool only borrows the pointer";
    modes.SetDrawMode(DrawStitches);
    EXPECT_FALSE(modes.PaintErases());
    modes.SetDrawMode(DrawPaint);
    EXPECT_FALSE(modes.PaintErases());
}

TEST_F(DrawModesTest, EraserTakesWhatTheModeBeforeItDrew) {
    pattern.SetStitch(5, 5, StitchWhole, 1, 5);
    AddLine(4, 4, 1, 9, 4, 1);
    modes.SetDrawMode(DrawLines);
    modes.SetDrawMode(DrawErase);
    Click(Left(5, 4, 1));
    EXPECT_EQ(pattern.GetBackStitchCount(), 0);
    EXPECT_EQ(Kind(5, 5), StitchWhole);
    modes.SetDrawMode(DrawStitches);
    modes.SetDrawMode(DrawErase);
    AddLine(4, 4, 1, 9, 4, 1);
    Click(Left(5, 5));
    EXPECT_EQ(Kind(5, 5), NoStitch);
    EXPECT_EQ(pattern.GetBackStitchCount(), 1);
}

TEST_F(DrawModesTest, MovesAreBroughtIntoThePatternAndPressesAreNot) {
    Click(Left(25, 5));
    EXPECT_EQ(Kind(24, 5), NoStitch);
    modes.Press(Left(20, 5));
    modes.Move(Left(99, 5));
    EXPECT_EQ(Kind(24, 5), StitchWhole);
    modes.Move(Left(-7, -7));
    EXPECT_EQ(Kind(1, 1), StitchWhole);
    modes.Release(Left(-7, -7));
    ExpectScreenIsTrue();
}

TEST_F(DrawModesTest, MovesShowPlaceAndFloss) {
    pattern.SetStitch(12, 20, StitchULQ, 2, 5);
    pattern.SetStitch(12, 20, StitchLRQ, 3, 5);
    modes.Move(At(12, 20, PointerButton::None));
    EXPECT_EQ(view.places, (std::vector<std::string>{"12, 20"}));
    EXPECT_EQ(view.flosses, (std::vector<std::string>{pattern.GetPalette().GetFlossLongDesc(2)}));
    modes.Move(At(13, 20, PointerButton::None));
    EXPECT_EQ(view.flosses.back(), "");
    modes.Move(At(100, 0, PointerButton::None));
    EXPECT_EQ(view.places.back(), "24, 1");
}

TEST_F(DrawModesTest, MovesWithAKeyOrAmongLinesShowNothing) {
    modes.Move(WithKeys(At(3, 3, PointerButton::None), true, false));
    modes.Move(WithKeys(At(3, 3, PointerButton::None), false, true));
    modes.SetDrawMode(DrawLines);
    modes.Move(At(4, 4, PointerButton::None));
    EXPECT_TRUE(view.places.empty());
    for (const DrawMode mode : {DrawErase, DrawZoom, DrawColorPicker, DrawPaint}) {
        view.places.clear();
        modes.SetDrawMode(mode);
        modes.Move(At(4, 4, PointerButton::None));
        EXPECT_EQ(view.places.size(), 1U) << int{mode};
    }
}

TEST_F(DrawModesTest, EveryReleaseEndsAStroke) {
    int expected = 0;
    for (const DrawMode mode : {DrawStitches, DrawErase, DrawLines, DrawZoom, DrawColorPicker,
                                DrawPaintOnce, DrawPaint}) {
        modes.SetDrawMode(mode);
        Click(Left(3, 3));
        EXPECT_EQ(listener.strokes, ++expected) << int{mode};
        Click(Left(0, 0));
        EXPECT_EQ(listener.strokes, ++expected) << int{mode};
    }
    modes.ToggleMirrorMode(MirrorVertical);
    Click(Right(3, 3));
    EXPECT_EQ(listener.strokes, ++expected);
}

// --- Mirror mode -------------------------------------------------------------------------------

TEST_F(DrawModesTest, MirrorModeTogglesAndChangesItsAxis) {
    modes.ToggleMirrorMode(MirrorHorizontal);
    EXPECT_TRUE(mirror.IsMirrorActive());
    EXPECT_EQ(mirror.GetMirrorAxis(), MirrorHorizontal);
    modes.ToggleMirrorMode(MirrorVertical);
    EXPECT_TRUE(mirror.IsMirrorActive());
    EXPECT_EQ(mirror.GetMirrorAxis(), MirrorVertical);
    modes.ToggleMirrorMode(MirrorVertical);
    EXPECT_FALSE(mirror.IsMirrorActive());
    modes.ClearMirrorMode();
    EXPECT_EQ(listener.mirrors, 4);
    EXPECT_EQ(view.overlayChanges, 4);
}

TEST_F(DrawModesTest, RightPressMovesTheAxisAndErasesNothing) {
    pattern.SetStitch(5, 5, StitchWhole, 1, 5);
    pattern.SetStitch(6, 5, StitchWhole, 1, 5);
    Click(Left(20, 20));
    modes.ToggleMirrorMode(MirrorVertical);
    view.redraws.clear();
    for (const DrawMode mode : {DrawStitches, DrawErase, DrawLines, DrawZoom, DrawColorPicker,
                                DrawPaintOnce, DrawPaint}) {
        modes.SetDrawMode(mode);
        mirror.SetMirrorCentre(1, 1);
        const auto cells = pattern.Cells();
        modes.Press(Right(5, 5));
        modes.Move(Right(6, 5));
        modes.Release(Right(6, 5));
        EXPECT_EQ(mirror.GetMirrorCentre(), (SquarePos{5, 5})) << int{mode};
        EXPECT_EQ(pattern.Cells(), cells) << int{mode};
        EXPECT_EQ(modes.GetDrawMode(), mode) << "nothing else happens, also not at the release";
    }
    EXPECT_TRUE(view.redraws.empty());
    EXPECT_TRUE(view.lineMenus.empty());
    steps.PerformUndo();
    EXPECT_EQ(Kind(20, 20), NoStitch) << "no step has replaced the stroke";
}

TEST_F(DrawModesTest, CentreResetsWithEveryChangeOfMirrorMode) {
    modes.ToggleMirrorMode(MirrorVertical);
    Click(Right(5, 5));
    modes.ToggleMirrorMode(MirrorHorizontal);
    EXPECT_EQ(mirror.GetMirrorCentre(), (SquarePos{0, 0}));
}

TEST_F(DrawModesTest, OverlayShowsTheAxisInEveryMode) {
    EXPECT_FALSE(modes.GetOverlay().Mirror.has_value());
    modes.ToggleMirrorMode(MirrorHorizontal);
    EXPECT_EQ(modes.GetOverlay().Mirror, (OverlayAxis{MirrorHorizontal, {0, 0}}));
    Click(Right(5, 6));
    for (const DrawMode mode : {DrawLines, DrawZoom, DrawErase, DrawStitches}) {
        modes.SetDrawMode(mode);
        EXPECT_EQ(modes.GetOverlay().Mirror, (OverlayAxis{MirrorHorizontal, {5, 6}}));
    }
    modes.SetDrawMode(DrawLines);
    modes.Press(Left(3, 3));
    modes.Move(Left(6, 6));
    EXPECT_TRUE(modes.GetOverlay().RubberBand.has_value());
    EXPECT_TRUE(modes.GetOverlay().Mirror.has_value());
}

TEST_F(DrawModesTest, LeftStrokeSurvivesNoMirrorPressBetween) {
    modes.ToggleMirrorMode(MirrorVertical);
    modes.Press(Left(3, 3));
    modes.Press(Right(9, 9));
    modes.Move(At(6, 3, PointerButton::None));
    modes.Release(Right(9, 9));
    modes.Move(Left(8, 3));
    modes.Release(Left(8, 3));
    EXPECT_EQ(Kind(3, 3), StitchWhole);
    EXPECT_EQ(Kind(8, 3), NoStitch) << "the button state has changed in between";
    EXPECT_EQ(mirror.GetMirrorCentre(), (SquarePos{9, 9}));
    steps.PerformUndo();
    EXPECT_EQ(Kind(3, 3), NoStitch);
}

// --- Escape ------------------------------------------------------------------------------------

TEST_F(DrawModesTest, EscapeEndsWhatIsUnderWayAndOnlyThenTheMode) {
    modes.SetDrawMode(DrawZoom);
    modes.Press(Left(3, 3));
    modes.Move(Left(6, 6));
    ASSERT_TRUE(modes.GetOverlay().Frame.has_value());
    modes.Escape();
    EXPECT_FALSE(modes.GetOverlay().Frame.has_value());
    EXPECT_EQ(modes.GetDrawMode(), DrawZoom);
    modes.Escape();
    EXPECT_EQ(modes.GetDrawMode(), DrawStitches);
    EXPECT_TRUE(view.zooms.empty());
}

TEST_F(DrawModesTest, EscapeGoesBackToStitchesOrLines) {
    for (const DrawMode base : {DrawStitches, DrawLines}) {
        for (const DrawMode mode :
             {DrawErase, DrawZoom, DrawColorPicker, DrawPaintOnce, DrawPaint}) {
            modes.SetDrawMode(base);
            modes.SetDrawMode(mode);
            modes.Escape();
            EXPECT_EQ(modes.GetDrawMode(), base) << int{mode};
        }
        modes.Escape();
        EXPECT_EQ(modes.GetDrawMode(), base);
    }
}

TEST_F(DrawModesTest, EscapeFromTheZoomToolGoesBackToTheToolBefore) {
    modes.SetDrawMode(DrawPaint);
    modes.SetDrawMode(DrawZoom);
    modes.Escape();
    EXPECT_EQ(modes.GetDrawMode(), DrawPaint);
}

TEST_F(DrawModesTest, EscapeInTheMiddleOfAStrokeKeepsItAsAStep) {
    modes.Press(Left(3, 3));
    modes.Move(Left(5, 3));
    modes.Escape();
    modes.Move(Left(9, 3));
    modes.Release(Left(9, 3));
    EXPECT_EQ(Kind(5, 3), StitchWhole);
    EXPECT_EQ(Kind(9, 3), NoStitch);
    steps.PerformUndo();
    EXPECT_EQ(Kind(3, 3), NoStitch);
}

// --- A pattern without squares -----------------------------------------------------------------

TEST_F(DrawModesTest, PatternWithoutSquaresIgnoresThePointer) {
    Click(Left(3, 3));
    pattern.Resize(24, 0, 12, 12);
    view.redraws.clear();
    for (const DrawMode mode :
         {DrawStitches, DrawErase, DrawLines, DrawZoom, DrawPaint, DrawColorPicker}) {
        modes.SetDrawMode(mode);
        for (const PointerButton button : {PointerButton::Left, PointerButton::Right}) {
            modes.Press(At(1, 1, button));
            modes.Move(At(2, 2, button));
            modes.Release(At(2, 2, button));
        }
    }
    EXPECT_TRUE(view.redraws.empty());
    EXPECT_TRUE(view.zooms.empty());
    EXPECT_TRUE(view.lineMenus.empty());
    EXPECT_TRUE(view.places.empty());
    EXPECT_EQ(pattern.GetBackStitchCount(), 0);
    EXPECT_TRUE(steps.IsAvailable()) << "the step before can still be undone";
}

} // namespace
} // namespace zol::test
