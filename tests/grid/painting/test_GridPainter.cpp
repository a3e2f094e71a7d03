// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/GridTestKit.h"

#include <QBuffer>
#include <QPdfWriter>

#include "grid/painting/SquarePainter.h"

namespace zol {
namespace {

class GridPainterTest : public PaintTest {};

TEST(GetContrastColor, TurnsAtAMeanOf125) {
    EXPECT_EQ(GetContrastColor(MakeColour(125, 125, 125)), 0U);
    EXPECT_EQ(GetContrastColor(MakeColour(124, 125, 125)), 0xFFFFFFU);
    EXPECT_EQ(GetContrastColor(MakeColour(255, 120, 0)), 0U);
}

TEST_F(GridPainterTest, AWholeStitchFillsItsSquareToThePixel) {
    pattern.SetStitch(2, 3, StitchWhole, 1, 5);
    const QImage image = Paint(View(20, ShowColorSquares));
    for (int y = 35; y < 65; ++y) {
        for (int x = 15; x < 45; ++x) {
            const bool inside = x >= 21 && x <= 39 && y >= 41 && y <= 59;
            EXPECT_EQ(image.pixel(x, y) == ToRgb(Red), inside) << x << "," << y;
        }
    }
}

TEST_F(GridPainterTest, SquaresOfOnePixelArePixels) {
    GridView view = View(1, ShowColorSquares);
    view.Options.GridLines = false;
    pattern.SetStitch(5, 7, StitchWhole, 2, 5);
    pattern.SetStitch(6, 7, StitchTBH, 1, 5);
    const QImage image = Paint(view);
    EXPECT_EQ(image.pixel(4, 6), ToRgb(Blue));
    EXPECT_EQ(image.pixel(5, 6), ToRgb(Red));
    EXPECT_EQ(InkIn(image, image.rect()), 2);
}

TEST_F(GridPainterTest, ASquareThatItsLineFillsPaintsNothingAndKeepsItsStitches) {
    pattern.SetStitch(11, 12, StitchWhole, 1, 5);
    pattern.SetStitch(12, 12, StitchWhole, 1, 5);
    const QImage image = Paint(View(1, ShowColorSquares)); // bold lines are a pixel wide
    EXPECT_EQ(image.pixel(10, 11), ToRgb(8882055));
    EXPECT_EQ(image.pixel(11, 11), ToRgb(Red));
    EXPECT_EQ(pattern.GetStitchCount(11, 12), 1);
}

TEST_F(GridPainterTest, SquaresBelowAPixelDoNoHarm) {
    FillWithEverything();
    AddLine(1, 1, 1, 20, 20, 9, LineSquiggle);
    GridView view = View(1, 1);
    view.Scale = GridScale::ForZoom(1, 14, 14);
    for (int style = ShowColorSquares; style <= ShowVStitches; ++style) {
        view.Options.StitchStyle = style;
        QImage image(4, 4, QImage::Format_RGB32);
        painter.PaintImage(image, {0, 0}, view, view.Everything());
        QPainter qt(&image);
        painter.PaintGrid(qt, view, view.Everything());
    }
}

TEST_F(GridPainterTest, EveryKindHasInkInEveryStyle) {
    for (int style = ShowColorSquares; style <= ShowVStitches; ++style) {
        for (const int pixels : {6, 10, 24}) {
            for (int kind = StitchWhole; kind <= StitchLRQ; ++kind) {
                pattern.Initialize(24, 24, 14, 14);
                pattern.SetStitch(3, 3, kind, 1, 5);
                const QImage image = Paint(View(pixels, style));
                const QRect square(2 * pixels + 1, 2 * pixels + 1, pixels - 2, pixels - 2);
                EXPECT_GT(InkIn(image, square), 0)
                    << "style " << style << ", kind " << kind << ", " << pixels << " pixels";
            }
        }
    }
}

TEST_F(GridPainterTest, AThreeQuarterIsATriangleInStyle1AndALegAndAHalfInStyle5) {
    pattern.SetStitch(1, 1, StitchUL3Q, 1, 5);
    GridView view = View(30, ShowColorSquares);
    view.Options.GridLines = false;
    const QImage solid = Paint(view);
    EXPECT_EQ(solid.pixel(1, 1), ToRgb(Red));
    EXPECT_EQ(solid.pixel(4, 14), ToRgb(Red));
    EXPECT_EQ(solid.pixel(27, 1), ToRgb(Red));
    EXPECT_EQ(solid.pixel(28, 28), White);
    EXPECT_EQ(solid.pixel(18, 18), White);

    view.Options.StitchStyle = ShowColorStitch;
    const QImage legs = Paint(view);
    EXPECT_EQ(legs.pixel(1, 28), ToRgb(Red)) << "one end of the whole leg";
    EXPECT_EQ(legs.pixel(28, 1), ToRgb(Red)) << "the other end";
    EXPECT_EQ(legs.pixel(2, 2), ToRgb(Red)) << "the quarter leg";
    EXPECT_EQ(legs.pixel(26, 26), White) << "no leg";
    EXPECT_EQ(legs.pixel(4, 14), White) << "no triangle";
}

TEST_F(GridPainterTest, APartStitchOnAWholeOneLeavesNoClothBetween) {
    GridView view = View(20, ShowColorSquares);
    view.Options.ClothColor = 0x00FF00;
    const StitchCell cell{StitchWhole, 1, CellHasDup};
    DupStitch dup;
    dup.AddDupStitch(StitchUL3Q, 2);
    QImage image(20, 20, QImage::Format_RGB32);
    {
        QPainter qt(&image);
        SquarePainter squares(qt, view, painter.Images(), painter.Symbols());
        squares.DrawStitches(SquareContent(cell, &dup), {0, 0, 19, 19});
    }
    EXPECT_EQ(image.pixel(2, 2), ToRgb(Blue));
    EXPECT_EQ(image.pixel(18, 18), ToRgb(Red));
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x) {
            EXPECT_EQ(qGreen(image.pixel(x, y)), 0) << x << "," << y;
        }
    }
}

TEST_F(GridPainterTest, RoundKnotsShowTheirSymbolAndOvalsDoNot) {
    const auto changesWithSymbol = [this](std::uint8_t orientation) {
        pattern.Initialize(24, 24, 14, 14);
        context.FrenchKnotStyle = orientation;
        pattern.SetStitch(3, 3, StitchFKnot, 1, 5);
        pattern.GetPalette().SetFlossSymbol(1, "!");
        const QImage first = Paint(View(24, ShowBlackSymbols));
        pattern.GetPalette().SetFlossSymbol(1, "%");
        return Paint(View(24, ShowBlackSymbols)) != first;
    };
    EXPECT_TRUE(changesWithSymbol(KnotNormal));
    EXPECT_FALSE(changesWithSymbol(KnotHorizontalOval));
    EXPECT_FALSE(changesWithSymbol(KnotUpperLeftDiagonal));
}

TEST_F(GridPainterTest, KnotsInSymbolStylesHaveAClothColouredBody) {
    pattern.SetStitch(3, 3, StitchWhole, 3, 5);
    pattern.SetStitch(3, 3, StitchFKnot, 1, 5);
    GridView view = View(40, ShowBlackSymbols);
    view.Options.ClothColor = 0x80E0E0;
    pattern.GetPalette().SetFlossSymbol(1, "-");
    const QImage image = Paint(view);
    // Just inside the ring, above the symbol's box.
    EXPECT_EQ(image.pixel(2 * 40 + 22, 2 * 40 + 10), ToRgb(0x80E0E0));
}

TEST_F(GridPainterTest, KnotsReachIntoTheirNeighboursAndOutOfThePattern) {
    pattern.SetStitch(1, 1, StitchFKnot, 1, 1);
    pattern.SetStitch(3, 3, StitchFKnot, 2, 6);
    pattern.SetStitch(4, 3, StitchWhole, 4, 5);
    const QImage image = Paint(View(20, ShowColorSquares));
    EXPECT_EQ(image.pixel(3, 3), ToRgb(Red));
    EXPECT_EQ(image.pixel(14, 14), White);
    EXPECT_EQ(image.pixel(63, 50), ToRgb(Blue)) << "over the neighbour's stitch";
    EXPECT_EQ(image.pixel(60, 50), ToRgb(Blue)) << "and the grid line";
}

TEST_F(GridPainterTest, AClearKnotFlagHidesTheKnot) {
    pattern.SetStitch(5, 5, StitchUL3Q, 1, 1);
    pattern.SetStitch(5, 5, StitchLR3Q, 1, 9);
    pattern.SetStitch(5, 5, StitchFKnot, 2, 5);
    const QRgb knot = ToRgb(Blue);
    EXPECT_EQ(Paint(View(20, 1)).pixel(90, 90), knot);
    pattern.DeleteStitch(5, 5, StitchLR3Q); // takes the flag with the record
    ASSERT_EQ(pattern.FrenchKnots().Count(), 1U);
    const QImage image = Paint(View(20, 1));
    const QImage shapes = PaintByShapes(View(20, 1));
    for (int y = 81; y < 100; ++y) {
        for (int x = 81; x < 100; ++x) {
            EXPECT_NE(image.pixel(x, y), knot);
            EXPECT_NE(shapes.pixel(x, y), knot);
        }
    }
}

TEST_F(GridPainterTest, FlossesOutsideThePaletteAreBlack) {
    pattern.SetStitch(3, 3, StitchWhole, 200, 5);
    pattern.SetStitch(4, 3, StitchUL3Q, 254, 5);
    pattern.SetStitch(5, 3, StitchFKnot, 77, 5);
    for (int style = ShowColorSquares; style <= ShowVStitches; ++style) {
        (void)Paint(View(20, style));
        (void)PaintByShapes(View(20, style));
    }
    EXPECT_EQ(Paint(View(20, 1)).pixel(50, 50), 0xFF000000U);
    EXPECT_EQ(PaintByShapes(View(20, 1)).pixel(50, 50), 0xFF000000U);
}

TEST_F(GridPainterTest, DrawSquareAndItsNeighboursRestoreAnErasedKnot) {
    FillWithEverything();
    const GridView view = View(20, ShowColorSquares);
    const QImage before = PaintByShapes(view);
    pattern.SetStitch(20, 20, StitchFKnot, 1, 1);
    pattern.SetStitch(20, 20, StitchFKnot, 1, 9);
    QImage image = PaintByShapes(view);
    ASSERT_NE(image, before);
    pattern.DeleteStitch(20, 20, 0);
    QPainter qt(&image);
    painter.DrawSquare(qt, view, 20, 20);
    painter.RedrawNeighbours(qt, view, 20, 20);
    painter.DrawGridLines(qt, view, {18, 18, 22, 22});
    qt.end();
    EXPECT_EQ(image, before);
}

TEST_F(GridPainterTest, PaperGetsNoGroundBelowStitches) {
    pattern.SetStitch(3, 3, StitchUL3Q, 1, 5);
    GridView view = View(20, ShowBlackSymbols);
    view.Options.Target = TargetPrinter;
    QImage paper(480, 480, QImage::Format_ARGB32_Premultiplied);
    paper.fill(Qt::transparent);
    QPainter qt(&paper);
    painter.DrawSquares(qt, view, view.Everything());
    qt.end();
    EXPECT_EQ(qAlpha(paper.pixel(57, 57)), 0) << "beside the triangle";
    EXPECT_GT(qAlpha(paper.pixel(50, 41)) + qAlpha(paper.pixel(50, 40)), 0) << "its outline";
}

TEST_F(GridPainterTest, SymbolsOnPaperAreTextInTheEmbeddedFont) {
    for (int x = 1; x <= 4; ++x) {
        pattern.SetStitch(x, 1, StitchWhole, x, 5);
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    ASSERT_TRUE(buffer.open(QIODevice::WriteOnly));
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(1440);
        QPainter qt(&writer);
        GridView view = View(1, ShowBlackSymbols);
        view.Scale = GridScale::ForPrint(10, 14, 14, 1, 1);
        view.Options.Target = TargetPrinter;
        painter.PaintGrid(qt, view, view.Everything());
    }
    EXPECT_TRUE(bytes.contains("/ToUnicode"));
    EXPECT_TRUE(bytes.contains("/FontFile2"));
    EXPECT_TRUE(bytes.contains("KorvantaSymbols"));
    EXPECT_FALSE(bytes.contains("/Subtype /Image"));
}

TEST_F(GridPainterTest, StylesOfNonePaintNoStitchesAndNoLines) {
    FillWithEverything();
    AddLine(3, 3, 1, 9, 9, 9, LineStraight);
    GridView view = View(20, PaintOptions::None);
    view.Options.LinesStyle = PaintOptions::None;
    view.Options.GridLines = false;
    const QImage shapes = PaintByShapes(view);
    EXPECT_EQ(InkIn(shapes, shapes.rect()), 0);
    const QImage image = Paint(view);
    EXPECT_EQ(InkIn(image, image.rect()), 0);
}

TEST_F(GridPainterTest, StitchImagesHaveSlotsInThePalette) {
    Palette& palette = pattern.GetPalette();
    const int slot = painter.GetPaletteImage(1, palette, 0xFFFFFF);
    EXPECT_EQ(palette.GetPaletteImage(1), slot);
    EXPECT_FALSE(painter.Images().Image(slot).isNull());
    palette.SetFlossRGB(1, Blue);
    EXPECT_NE(painter.GetPaletteImage(1, palette, 0xFFFFFF), slot) << "another floss";
    const int blue = palette.GetPaletteImage(1);
    EXPECT_NE(painter.GetPaletteImage(1, palette, 0x00FF00), blue) << "another cloth";
    EXPECT_EQ(painter.BuildStitchImage(1, palette, 0xFFFFFF), blue);
}

} // namespace
} // namespace zol
