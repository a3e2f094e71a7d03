// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PagePicture.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "print/PrintScene.h"
#include "support/RecordingDoors.h"
#include "support/TestPaths.h"

namespace zol::test {

namespace {

constexpr int Dots = 100; ///< to the inch

constexpr std::array<int, 5> Styles{PrintColorBlocks, PrintBlackSymbols, PrintColorSymbols,
                                    PrintBlocksAndSymbols, PrintVirtualStitches};

/// Pages of a pattern without margins, ten squares to the inch.
class PagePictureTest : public ::testing::Test {
protected:
    PagePictureTest() {
        options.LeftMargin = options.TopMargin = options.RightMargin = options.BottomMargin = 0;
    }

    /// The first page. With a door that is asked, squares are painted column by column.
    [[nodiscard]] QImage Page(Pattern& pattern, ProgressDoor* progress) {
        MeasuredPaper paper(11906, 16838);
        PrintFuncs job(options, &paper);
        job.SetPattern(pattern);
        EXPECT_GE(job.GetPageCount(), 1);
        return PaintPage(job, 1, Dots, progress).Image;
    }
    /// The inside of a square on such a page, clear of the grid's lines.
    [[nodiscard]] static QRect Inside(int column, int row) {
        constexpr int square = Dots / 10;
        return {(column - 1) * square + 2, (row - 1) * square + 2, square - 3, square - 3};
    }

    PrintScene scene;
    PrintOptions options;
};

/// Lightest less darkest grey of an area.
int GreysApart(const QImage& grey, const QRect& area) {
    int darkest = 255;
    int lightest = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            darkest = std::min(darkest, qGray(grey.pixel(x, y)));
            lightest = std::max(lightest, qGray(grey.pixel(x, y)));
        }
    }
    return lightest - darkest;
}

} // namespace

TEST_F(PagePictureTest, KnotsBetweenColumnsAreWholeWhenColumnsArePaintedOneByOne) {
    const auto pattern = scene.MakePattern(20, 20);
    const int ground = PrintScene::AddFloss(*pattern, MakeColour(180, 200, 240), "1", 1, "a");
    const int knots = PrintScene::AddFloss(*pattern, MakeColour(120, 10, 30), "2", 2, "b");
    for (int x = 1; x <= 18; ++x) {
        for (int y = 1; y <= 18; ++y) {
            pattern->SetStitch(x, y, StitchWhole, ground, 5);
        }
    }
    for (int position = 1; position <= 9; ++position) {
        scene.context.FrenchKnotStyle = static_cast<std::uint8_t>(position % 5);
        pattern->SetStitch(2 * position, 2 * position, StitchFKnot, knots, position);
    }
    for (const int style : Styles) {
        options.StitchSymbol = style;
        RecordingProgress door;
        const QImage byColumns = Page(*pattern, &door);
        EXPECT_EQ(door.updates.size(), std::size_t{20}) << style; // each column by itself
        ASSERT_FALSE(byColumns.isNull());
        EXPECT_TRUE(byColumns == Page(*pattern, nullptr)) << style;
    }
}

TEST_F(PagePictureTest, SymbolsOfEveryFlossAreReadOnAGreyPrint) {
    scene.context.AppPath = BuildDataFolder;
    AvailColors catalogue(scene.context);
    ASSERT_TRUE(catalogue.Initialize("dmc.col"));
    constexpr int across = 20;
    constexpr int atOnce = 200;
    for (int first = 1; first <= catalogue.GetFlossCount(); first += atOnce) {
        const auto pattern = scene.MakePattern(across, atOnce / across);
        pattern->GetPalette().ClearPalette();
        const int last = std::min(first + atOnce - 1, catalogue.GetFlossCount());
        for (int i = first; i <= last; ++i) {
            const int floss =
                PrintScene::AddFloss(*pattern, catalogue.GetFlossRGB(i), std::to_string(i), i, "X");
            pattern->SetStitch((i - first) % across + 1, (i - first) / across + 1, StitchWhole,
                               floss, 5);
        }
        for (const int style : {PrintBlocksAndSymbols, PrintBlackSymbols}) {
            options.StitchSymbol = style;
            const QImage grey = Page(*pattern, nullptr).convertToFormat(QImage::Format_Grayscale8);
            for (int i = first; i <= last; ++i) {
                const int apart =
                    GreysApart(grey, Inside((i - first) % across + 1, (i - first) / across + 1));
                EXPECT_GE(apart, 80) << catalogue.GetFlossManuID(i) << " in style " << style;
            }
        }
    }
}

/// Mean grey of a picture's part in the paper's upper left corner.
double MeanGrey(const QImage& page, int inches, int dots) {
    double sum = 0;
    const int side = inches * dots;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            sum += qGray(page.pixel(x, y));
        }
    }
    return sum / side / side;
}

TEST_F(PagePictureTest, SmallPageOnAScreenWeighsWhatItWeighsOnPaper) {
    const auto pattern = scene.MakePattern(60, 60);
    const int floss = PrintScene::AddFloss(*pattern, MakeColour(40, 40, 40), "1", 1, "a");
    for (int x = 1; x <= 60; ++x) {
        for (int y = 1; y <= 60; ++y) {
            pattern->SetStitch(x, y, StitchLR3Q, floss, 5);
        }
    }
    options.StitchSymbol = PrintBlackSymbols;
    MeasuredPaper paper(11906, 16838);
    PrintFuncs job(options, &paper);
    job.SetPattern(*pattern);
    EXPECT_EQ(job.GetPageCount(), 1);
    const double onPaper = MeanGrey(PaintPage(job, 1, 600, nullptr).Image, 5, 600);
    const QImage plain = PaintPage(job, 1, 45, nullptr).Image;
    const QImage shown = PaintShownPage(job, 1, 45, nullptr).Image;
    EXPECT_NEAR(MeanGrey(shown, 5, 45), onPaper, 25);
    EXPECT_LT(MeanGrey(plain, 5, 45), onPaper - 25); // what lines of a dot's width make of it
    EXPECT_EQ(shown.size(), plain.size());
    EXPECT_EQ(shown.dotsPerMeterX(), plain.dotsPerMeterX());
    // A screen with enough dots shows the page as it is painted.
    EXPECT_EQ(PaintShownPage(job, 1, 100, nullptr).Image, PaintPage(job, 1, 100, nullptr).Image);
}

TEST_F(PagePictureTest, TenthLineIsTheDarkerOneOnAGreyPrint) {
    const auto pattern = scene.MakePattern(25, 25);
    const QImage grey = Page(*pattern, nullptr).convertToFormat(QImage::Format_Grayscale8);
    const int row = 45; // through the middle of squares
    const int normal = qGray(grey.pixel(40, row));
    const int tenth = qGray(grey.pixel(100, row));
    EXPECT_LE(normal, 200); // to be seen on white
    EXPECT_LE(tenth, normal - 100);
    EXPECT_EQ(qGray(grey.pixel(45, row)), 255);
}

} // namespace zol::test
