// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/GridLines.h"

#include "grid/painting/GridTestKit.h"

namespace zol {
namespace {

class GridLinesTest : public PaintTest {
protected:
    static constexpr QRgb Normal = 0xFF00FF00U;
    static constexpr QRgb Bold = 0xFF0000FFU;

    [[nodiscard]] GridView LinesView(int pixels) const {
        GridView view = View(pixels, ShowColorSquares);
        view.Options.NormalGLColor = 0x00FF00;
        view.Options.BoldGLColor = 0xFF0000;
        view.Options.ThirdGLColor = 0x0000FF;
        return view;
    }
};

TEST_F(GridLinesTest, WidthsAreSharesOfTheSquare) {
    EXPECT_EQ(GetNormalGridLineWidth(View(20, 1)), 1);
    EXPECT_EQ(GetBoldGridLineWidth(View(20, 1)), 2);
    EXPECT_EQ(GetNormalGridLineWidth(View(40, 1)), 2);
    EXPECT_EQ(GetBoldGridLineWidth(View(40, 1)), 4);
}

TEST_F(GridLinesTest, NormalLinesGoAtFivePixelsAndBoldOnesStay) {
    EXPECT_EQ(GetNormalGridLineWidth(View(6, 1)), 1);
    EXPECT_EQ(GetNormalGridLineWidth(View(5, 1)), 0);
    EXPECT_EQ(GetBoldGridLineWidth(View(5, 1)), 1);
    EXPECT_EQ(GetBoldGridLineWidth(View(1, 1)), 1);
    GridView tiny = View(1, 1);
    tiny.Scale = GridScale::ForZoom(5, 14, 14);
    EXPECT_EQ(GetBoldGridLineWidth(tiny), 0);
}

TEST_F(GridLinesTest, PaperMeasuresLinesWithoutRoundingTwips) {
    GridView view = View(1, 1);
    view.Scale = GridScale::ForPrint(10, 14, 14, 1.2, 1.2);
    view.Options.Target = TargetPrinter;
    EXPECT_EQ(GetNormalGridLineWidth(view), 6); // 7.2 twips
    view.Options.Target = TargetGrid;
    EXPECT_EQ(GetNormalGridLineWidth(view), 5); // 7 twips
}

TEST_F(GridLinesTest, SquaresBeginBehindTheirLineAndEndAtTheNext) {
    const GridView view = LinesView(20);
    EXPECT_EQ(SquarePixels(view, 1, 1), (PixelRect{2, 2, 19, 19}));
    EXPECT_EQ(SquarePixels(view, 2, 11), (PixelRect{21, 202, 39, 219}));
    GridView bare = view;
    bare.Options.GridLines = false;
    EXPECT_EQ(SquarePixels(bare, 2, 11), (PixelRect{20, 200, 39, 219}));
}

TEST_F(GridLinesTest, BoldColumnsLieOverEveryOtherLine) {
    for (const bool shapes : {false, true}) {
        const QImage image = shapes ? PaintByShapes(LinesView(20)) : Paint(LinesView(20));
        EXPECT_EQ(image.pixel(0, 10), Bold);
        EXPECT_EQ(image.pixel(1, 20), Bold) << "bold column, normal row";
        EXPECT_EQ(image.pixel(2, 20), Normal);
        EXPECT_EQ(image.pixel(20, 10), Normal);
        EXPECT_EQ(image.pixel(20, 1), Bold) << "normal column, bold row";
        EXPECT_EQ(image.pixel(20, 201), Bold);
        EXPECT_EQ(image.pixel(21, 21), White);
        EXPECT_EQ(image.pixel(202, 202), White);
        EXPECT_EQ(image.pixel(201, 219), Bold);
    }
}

TEST_F(GridLinesTest, OffsetsMoveTheBoldLines) {
    GridView view = LinesView(20);
    view.Options.NumberOffsetX = 3;
    const QImage image = Paint(view);
    EXPECT_EQ(image.pixel(0, 30), Normal);
    EXPECT_EQ(image.pixel(7 * 20 + 1, 30), Bold); // column 8 is the eleventh of the whole
}

TEST_F(GridLinesTest, TheBaseLineOfAFontHasTheThirdColour) {
    GridView view = LinesView(20);
    view.Options.BoldEveryY = 8;
    view.Options.BaseLineRow = 6;
    for (const bool shapes : {false, true}) {
        const QImage image = shapes ? PaintByShapes(view) : Paint(view);
        EXPECT_EQ(image.pixel(30, 6 * 20), ToRgb(view.Options.ThirdGLColor));
        EXPECT_EQ(image.pixel(30, 14 * 20), ToRgb(view.Options.ThirdGLColor));
        EXPECT_EQ(image.pixel(30, 5 * 20), Normal);
        EXPECT_EQ(image.pixel(30, 8 * 20), Bold);
    }
}

TEST_F(GridLinesTest, NoLinesMeansSquaresWithoutGaps) {
    GridView view = LinesView(7);
    view.Options.GridLines = false;
    for (int x = 1; x <= 24; ++x) {
        for (int y = 1; y <= 24; ++y) {
            pattern.SetStitch(x, y, StitchWhole, 1, 5);
        }
    }
    const QImage image = Paint(view);
    EXPECT_EQ(InkIn(image, image.rect(), ToRgb(Red)), 0);
}

TEST_F(GridLinesTest, CornersOfTheClosingLinesAreWhole) {
    GridView view = LinesView(20);
    QImage image(24 * 20 + 4, 24 * 20 + 4, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter qt(&image);
    painter.DrawGridLines(qt, view, view.Everything());
    EXPECT_EQ(image.pixel(480, 480), Normal);
    EXPECT_EQ(image.pixel(481, 481), White);
}

} // namespace
} // namespace zol
