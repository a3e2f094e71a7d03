// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/GridLines.h"
#include "grid/painting/GridTestKit.h"

namespace zol {
namespace {

class RasterGridTest : public PaintTest {};

TEST_F(RasterGridTest, PixelsAndShapesAgreeInEveryStyle) {
    FillWithEverything();
    for (int style = ShowColorSquares; style <= ShowVStitches; ++style) {
        for (const int pixels : {2, 7, 12, 20, 33, 90}) {
            GridView view = View(pixels, style);
            view.Options.ClothColor = 12768475;
            // Symbols of a few pixels may leak out of their square when they are not cut to it.
            EXPECT_LE(Difference(Paint(view), PaintByShapes(view)), pixels < 6    ? 60
                                                                    : pixels < 10 ? 16
                                                                                  : 4)
                << "style " << style << ", " << pixels << " pixels";
        }
    }
}

TEST_F(RasterGridTest, LinesAgreeButForTheirEdges) {
    for (int style = LineStraight; style <= LinePlus; ++style) {
        AddLine(2 + 3 * style, 2, 1, 4 + 3 * style, 20, 9, style, 1 + style % 4);
    }
    const GridView view = View(20, 1);
    const QImage image = Paint(view);
    const QImage shapes = PaintByShapes(view);
    std::int64_t sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += std::abs(qGray(image.pixel(x, y)) - qGray(shapes.pixel(x, y)));
        }
    }
    EXPECT_LT(static_cast<double>(sum) / (image.width() * image.height()), 0.35);
}

TEST_F(RasterGridTest, StripsAndCornersAddUpToTheWhole) {
    FillWithEverything();
    AddLine(2, 6, 1, 20, 15, 9, LineDashed);
    AddLine(2, 18, 1, 20, 16, 9, LineSquiggle, 2);
    AddLine(22, 2, 1, 22, 22, 9, LinePlus, 3);
    for (const int style : {1, 2, 5, 6}) {
        GridView view = View(13, style);
        const QImage whole = Paint(view);
        QImage pieced(whole.size(), QImage::Format_RGB32);
        for (int y = 0; y < whole.height(); y += 50) {
            for (int x = 0; x < whole.width(); x += 37) {
                QImage piece(37, 50, QImage::Format_RGB32);
                painter.PaintImage(piece, {x, y}, view, view.Everything());
                QPainter(&pieced).drawImage(x, y, piece);
            }
        }
        EXPECT_LE(Difference(pieced, whole), 0) << "style " << style;
    }
}

TEST_F(RasterGridTest, ADashPatternStaysWhenTheViewScrolls) {
    AddLine(1, 3, 4, 24, 20, 6, LineDashed);
    AddLine(1, 13, 4, 24, 13, 6, LineDotted, 2);
    const GridView view = View(17, 1);
    const QImage whole = Paint(view);
    for (const int scrolled : {1, 5, 23, 100, 211}) {
        QImage window(150, 150, QImage::Format_RGB32);
        painter.PaintImage(window, {scrolled, scrolled}, view, view.Everything());
        EXPECT_EQ(window, whole.copy(scrolled, scrolled, 150, 150)) << scrolled;
    }
}

TEST_F(RasterGridTest, OnlyTheRectanglesSquaresArePainted) {
    FillWithEverything();
    const GridView view = View(10, 1);
    QImage image(240, 240, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    painter.PaintImage(image, {0, 0}, view, {3, 4, 6, 8});
    EXPECT_EQ(image.pixel(19, 50), 0xFFFF00FFU);
    EXPECT_NE(image.pixel(20, 50), 0xFFFF00FFU);
    EXPECT_NE(image.pixel(60, 50), 0xFFFF00FFU) << "the closing line";
    EXPECT_EQ(image.pixel(61, 50), 0xFFFF00FFU);
    EXPECT_EQ(image.pixel(30, 29), 0xFFFF00FFU);
    EXPECT_EQ(image.pixel(30, 81), 0xFFFF00FFU);
}

TEST_F(RasterGridTest, ARectangleOutsideTheImageOrThePatternPaintsNothing) {
    QImage image(50, 50, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    const GridView view = View(10, 1);
    painter.PaintImage(image, {1000, 1000}, view, view.Everything());
    painter.PaintImage(image, {-500, 0}, view, view.Everything());
    painter.PaintImage(image, {0, 0}, view, {30, 30, 40, 40});
    painter.PaintImage(image, {0, 0}, view, {9, 9, 3, 3});
    EXPECT_EQ(InkIn(image, image.rect(), 0xFFFF00FFU), 0);
    QImage none;
    painter.PaintImage(none, {0, 0}, view, view.Everything());
}

TEST_F(RasterGridTest, APatternWithoutSquaresPaintsNothing) {
    pattern.Resize(0, 0, 14, 14);
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    const GridView view = View(10, 1);
    painter.PaintImage(image, {0, 0}, view, view.Everything());
    EXPECT_EQ(InkIn(image, image.rect(), 0xFFFF00FFU), 0);
}

TEST_F(RasterGridTest, ChangesOfFlossSymbolClothAndFontAreSeen) {
    FillWithEverything();
    for (int style = ShowColorSquares; style <= ShowVStitches; ++style) {
        GridView view = View(16, style);
        (void)Paint(view);
        pattern.GetPalette().SetFlossRGB(2, 0x00AA00 + static_cast<unsigned>(style));
        pattern.GetPalette().SetFlossSymbol(3, style % 2 == 0 ? "w" : "x");
        view.Options.ClothColor = 0xC0C0C0 + static_cast<unsigned>(style);
        GridPainter fresh;
        QImage expected(24 * 16, 24 * 16, QImage::Format_RGB32);
        fresh.PaintImage(expected, {0, 0}, view, view.Everything());
        EXPECT_EQ(Paint(view), expected) << "style " << style;
    }
    (void)Paint(View(16, ShowBlackSymbols));
    pattern.GetPalette().SetSymbolFont("DejaVu Sans", true, false);
    GridPainter fresh;
    QImage expected(24 * 16, 24 * 16, QImage::Format_RGB32);
    const GridView view = View(16, ShowBlackSymbols);
    fresh.PaintImage(expected, {0, 0}, view, view.Everything());
    EXPECT_EQ(Paint(view), expected);
}

TEST_F(RasterGridTest, UnevenZoomsPaintEverySquareBetweenItsEdges) {
    for (int x = 1; x <= 24; ++x) {
        pattern.SetStitch(x, x, StitchWhole, 1 + x % 4, 5);
    }
    GridView view = View(1, 1);
    for (const int percent : {37, 61, 143}) {
        view.Scale = GridScale::ForZoom(percent, 14, 18);
        QImage image(400, 400, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        painter.PaintImage(image, {0, 0}, view, view.Everything());
        for (int x = 1; x <= 24; ++x) {
            const PixelRect square = SquarePixels(view, x, x);
            const QRgb floss =
                ToRgb(pattern.GetPalette().GetFlossRGB(pattern.GetStitchPaletteIndex(x, x)));
            EXPECT_EQ(
                InkIn(image,
                      QRect(QPoint(square.Left, square.Top), QPoint(square.Right, square.Bottom)),
                      floss),
                0);
        }
    }
}

TEST_F(RasterGridTest, AKnotOfManySquaresIsPaintedOnce) {
    // Blending an edge twice would darken it.
    pattern.SetStitch(5, 5, StitchFKnot, 3, 9);
    QImage once(480, 480, QImage::Format_RGB32);
    once.fill(Qt::white);
    GridView view = View(20, 1);
    view.Options.GridLines = false;
    {
        QPainter qt(&once);
        painter.DrawSquares(qt, view, {6, 6, 6, 6});
    }
    EXPECT_LE(Difference(Paint(view), once), 2);
}

TEST_F(RasterGridTest, KnotsAreFoundAlikeByTableAndBySquare) {
    for (int x = 1; x <= 24; ++x) {
        for (int y = 1; y <= 24; ++y) {
            pattern.SetStitch(x, y, StitchFKnot, 1 + (x * y) % 4, (x * 7 + y) % 9 + 1);
        }
    }
    const GridView view = View(12, 1);
    const QImage whole = Paint(view); // few knots for so many squares: by the table
    QImage one(12, 12, QImage::Format_RGB32);
    painter.PaintImage(one, {60, 60}, view, {6, 6, 6, 6}); // one square: by its points
    // A pixel inside the knot at the square's middle, or the square's own, is the same.
    EXPECT_EQ(one.pixel(6, 6), whole.pixel(66, 66));
}

} // namespace
} // namespace zol
