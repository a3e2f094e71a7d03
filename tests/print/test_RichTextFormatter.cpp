// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/RichTextFormatter.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/Rounding.h"
#include "model/RunTimeError.h"
#include "print/ChartPdf.h"
#include "print/PdfReading.h"
#include "print/PrintScene.h"

namespace zol::test {

namespace {

constexpr double RoomWidth = 8000;
constexpr int PaperWidth = 11900;
constexpr int PaperHeight = 16840;

std::string Rtf(const std::string& body) {
    return "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}{\\f1 Courier New;}}"
           "{\\colortbl ;\\red200\\green0\\blue0;}\\fs20 " +
           body + "}";
}

/// `count` paragraphs of several lines each that nothing else is like.
std::string ManyParagraphs(int count) {
    std::string body;
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        body.append("{\\b Row ").append(number).append("} begins here and {\\i goes} on ");
        body.append("with many words, so that it takes two lines or three of the page, word ");
        body.append("by word, until its own end").append(number).append(".\\par ");
    }
    return Rtf(body);
}

RichTextFormatter Formatter(const std::string& text, const QSizeF& largest = {8000, 12000}) {
    return {text, PageFont::TextInfo(PrintOptions()), largest};
}

/// A text painted in a picture of 96 dots to the inch.
QImage Painted(const RichTextFormatter& text, double width = RoomWidth, double height = 12000) {
    ImagePageDevice page(RoundToInt(width), RoundToInt(height), 96);
    text.FormatRange(PageCanvas(page), {0, 0, width, height}, 0);
    page.EndDoc();
    return page.Image();
}

/// The sum of what is darker than paper.
double Ink(const QImage& image, const QRect& part) {
    double ink = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            ink += 255 - qGray(image.pixel(x, y));
        }
    }
    return ink;
}
double Ink(const QImage& image) {
    return Ink(image, image.rect());
}

/// Columns of pixels between the first and the last with ink.
std::pair<int, int> InkColumns(const QImage& image) {
    std::pair<int, int> columns{image.width(), -1};
    for (int x = 0; x < image.width(); ++x) {
        if (Ink(image, {x, 0, 1, image.height()}) > 0) {
            columns = {std::min(columns.first, x), x};
        }
    }
    return columns;
}

class RichInstructionsTest : public ::testing::Test {
protected:
    int Count(const PrintOptions& options = {}) {
        MeasuredPaper paper(PaperWidth, PaperHeight);
        PrintFuncs job(options, &paper);
        job.SetPattern(*pattern);
        job.CountKeyPages();
        return job.KeyPages();
    }
    std::filesystem::path Print() {
        auto path = scene.Path("key.pdf");
        const ChartPdfResult result = WriteChartPdf(*pattern, {}, path, nullptr);
        EXPECT_TRUE(result.IsWhole()) << result.ErrorText;
        return path;
    }

    PrintScene scene;
    std::unique_ptr<Pattern> pattern = scene.MakePattern(20, 20);
};

} // namespace

TEST(RichTextFormatterTest, BoldIsDarkerAndWider) {
    const QImage plain = Painted(Formatter(Rtf("Middle")));
    const QImage bold = Painted(Formatter(Rtf("{\\b Middle}")));
    ASSERT_GT(Ink(plain), 0);
    EXPECT_GT(Ink(bold), 1.2 * Ink(plain));
    EXPECT_GT(InkColumns(bold).second, InkColumns(plain).second);
}

TEST(RichTextFormatterTest, ItalicLooksOtherwise) {
    EXPECT_NE(Painted(Formatter(Rtf("{\\i Middle}"))), Painted(Formatter(Rtf("Middle"))));
}

TEST(RichTextFormatterTest, UnderlineRunsBelowBlanksToo) {
    const QImage lined = Painted(Formatter(Rtf("{\\ul a          b}")));
    const auto [left, right] = InkColumns(lined);
    for (int x = left + 3; x <= right - 3; ++x) {
        EXPECT_GT(Ink(lined, {x, 0, 1, lined.height()}), 0) << x;
    }
}

TEST(RichTextFormatterTest, ColourIsThatOfTheText) {
    const QImage red = Painted(Formatter(Rtf("{\\cf1\\fs72 M}")));
    int reds = 0;
    for (int y = 0; y < red.height(); ++y) {
        for (int x = 0; x < red.width(); ++x) {
            reds += red.pixelColor(x, y) == QColor(200, 0, 0) ? 1 : 0;
        }
    }
    EXPECT_GT(reds, 50);
}

TEST(RichTextFormatterTest, SizesAreInPointsOfThePaper) {
    const auto text = Formatter(Rtf("{\\fs144 H}")); // 72 points, a line of an inch and some air
    const double height = text.FormatRange({}, {0, 0, RoomWidth, 12000}, 0).Height;
    EXPECT_GT(height, 1440 * 1.1);
    EXPECT_LT(height, 1440 * 1.4);
    EXPECT_EQ(text.FirstLineHeight(RoomWidth), height);
}

TEST(RichTextFormatterTest, AlignmentMovesTheText) {
    const int width = RoundToInt(RoomWidth / 15);
    const auto left = InkColumns(Painted(Formatter(Rtf("Hem"))));
    const auto centre = InkColumns(Painted(Formatter(Rtf("\\pard\\qc Hem\\par"))));
    const auto right = InkColumns(Painted(Formatter(Rtf("\\pard\\qr Hem\\par"))));
    EXPECT_LT(left.first, 5);
    EXPECT_NEAR((centre.first + centre.second) / 2.0, width / 2.0, 2);
    EXPECT_GT(right.second, width - 5);
}

TEST(RichTextFormatterTest, TabsStandAtTheirStops) {
    // A stop two inches from the edge: 192 pixels.
    EXPECT_NEAR(InkColumns(Painted(Formatter(Rtf("\\pard\\tx2880\\tab H\\par")))).first, 192, 3);
    EXPECT_NEAR(InkColumns(Painted(Formatter(Rtf("\\pard\\li1440\\tx2880\\tab H\\par")))).first,
                192, 3);
}

TEST(RichTextFormatterTest, ItemsStandBehindTheirBullets) {
    const QImage item =
        Painted(Formatter(Rtf("\\pard{\\pntext\\'b7\\tab}{\\*\\pn\\pnlvlblt}\\li720 H\\par")));
    const auto [bullet, end] = InkColumns(item);
    EXPECT_GT(bullet, 48 - 20); // left of the text, which is moved in by half an inch
    EXPECT_LT(bullet, 48);
    EXPECT_GT(end, 48);
}

TEST(RichTextFormatterTest, PiecesNeverSplitALineAndLoseNothing) {
    const auto text = Formatter(ManyParagraphs(40));
    const double whole = text.FormatRange({}, {0, 0, RoomWidth, 1e9}, 0).Height;
    const double line = text.FirstLineHeight(RoomWidth);
    double sum = 0;
    int position = 0;
    while (position < text.Length()) {
        // No whole number of lines fits, so that a split one would be seen in the sum.
        const auto piece = text.FormatRange({}, {0, 0, RoomWidth, 7.4 * line}, position);
        ASSERT_GT(piece.Next, position);
        ASSERT_LE(piece.Height, 7.4 * line);
        ASSERT_NEAR(std::remainder(piece.Height, line), 0, 1);
        sum += piece.Height;
        position = piece.Next;
    }
    EXPECT_NEAR(sum, whole, 1);
    EXPECT_EQ(position, text.Length());
}

TEST(RichTextFormatterTest, APieceIsPaintedWithinItsHeight) {
    const auto text = Formatter(ManyParagraphs(40));
    ImagePageDevice page(8000, 6000, 96);
    const auto piece = text.FormatRange(PageCanvas(page), {0, 0, RoomWidth, 4000}, 0);
    page.EndDoc();
    const int below = RoundToInt(piece.Height / 15) + 1;
    EXPECT_EQ(Ink(page.Image(), {0, below, page.Image().width(), page.Image().height() - below}),
              0);
    EXPECT_GT(Ink(page.Image()), 0);
}

TEST(RichTextFormatterTest, AlwaysMovesOn) {
    const auto text = Formatter(Rtf("\\par\\par MMMM"), {1, 1});
    int position = 0;
    int pieces = 0;
    while (position < text.Length()) {
        const int next = text.FormatRange({}, {0, 0, 1, 1}, position).Next;
        ASSERT_GT(next, position);
        position = next;
        ASSERT_LT(++pieces, 10);
    }
}

TEST(RichTextFormatterTest, LettersLargerThanAPageAreAsLargeAsItHolds) {
    const auto text = Formatter(Rtf("{\\fs3276 M}"), {4000, 3000});
    const double height = text.FirstLineHeight(4000);
    EXPECT_LE(height, 3000);
    EXPECT_GT(height, 2900);
}

TEST(RichTextFormatterTest, EmptyParagraphsAtTheEndDoNotCount) {
    EXPECT_EQ(Formatter(Rtf("\\par  \\par")).Length(), 0);
    EXPECT_EQ(Formatter(Rtf("a\\par\\par\\par")).Length(), 2);
}

TEST(RichTextFormatterTest, IndentsWiderThanTheRoomLeaveSomeOfIt) {
    const auto text = Formatter(Rtf("\\pard\\li31680\\ri31680 some words\\par"));
    EXPECT_GT(Ink(Painted(text)), 0);
    EXPECT_EQ(text.FormatRange({}, {0, 0, RoomWidth, 12000}, 0).Next, text.Length());
}

TEST(RichTextFormatterTest, PlainTextKeepsItsFormatter) {
    const PageFont font = PageFont::TextInfo(PrintOptions());
    const auto text = MakeFormatter("one {\\b two}\nthree", font, {8000, 12000});
    EXPECT_EQ(text->FormatRange({}, {0, 0, RoomWidth, 12000}, 0).Height, 2.0 * font.TextHeight());
}

TEST_F(RichInstructionsTest, PagesOfThePdfHoldEveryWordOnce) {
    pattern->Instructions = ManyParagraphs(200);
    const auto path = Print();
    const int pages = PdfPageCount(path);
    ASSERT_GT(pages, 4);
    EXPECT_EQ(pages, 1 + Count());
    std::vector<int> seen(200, 0);
    for (const PdfWord& word : PdfWords(path)) {
        if (word.Page > 1 && word.Text.startsWith(QStringLiteral("end"))) {
            const int number = word.Text.mid(3).chopped(1).toInt();
            ++seen[static_cast<std::size_t>(number)];
        }
    }
    EXPECT_EQ(seen, std::vector<int>(200, 1));
    EXPECT_TRUE(OutputOf(QStringLiteral("pdffonts"), {QString::fromStdString(path.string())})
                    .contains(QStringLiteral("Bold")));
}

TEST_F(RichInstructionsTest, APageIsTheSameWithAndWithoutACountBefore) {
    pattern->Instructions = ManyParagraphs(120);
    const auto paint = [&](bool counted, int page) {
        MeasuredPaper paper(PaperWidth, PaperHeight);
        PrintFuncs job({}, &paper);
        job.SetPattern(*pattern);
        (void)job.GetPageCount();
        if (counted) {
            job.CountKeyPages();
        }
        job.SetPrintPage(job.PatternPages() + page);
        ImagePageDevice picture(PaperWidth, PaperHeight, 40);
        EXPECT_TRUE(job.PrintPatternPage(picture, nullptr, true, true));
        picture.EndDoc();
        return picture.Image();
    };
    const int pages = Count();
    ASSERT_GT(pages, 2);
    for (int page = 1; page <= pages; ++page) {
        EXPECT_EQ(paint(true, page), paint(false, page)) << page;
        EXPECT_GT(Ink(paint(true, page)), 0);
    }
}

TEST_F(RichInstructionsTest, MoreThanAHundredPagesFail) {
    std::string body;
    for (int i = 0; i < 210; ++i) {
        body += "{\\fs800 M}\\par ";
    }
    pattern->Instructions = Rtf(body);
    EXPECT_THROW((void)Count(), RunTimeError);
    pattern->Instructions = Rtf(body.substr(0, body.size() / 4));
    EXPECT_LT(Count(), 101);
}

TEST_F(RichInstructionsTest, TheHeadingStandsOnThePageOfItsFirstLine) {
    // A first line nearly as high as a page does not fit below the cover.
    pattern->Instructions = Rtf("{\\fs1100 M}\\par tail");
    const auto path = Print();
    ASSERT_EQ(PdfPageCount(path), 3);
    EXPECT_FALSE(PdfText(path, 2).contains(QStringLiteral("Instructions:")));
    EXPECT_TRUE(PdfText(path, 3).contains(QStringLiteral("Instructions:")));
    EXPECT_TRUE(PdfText(path, 3).contains(QStringLiteral("tail")));
}

} // namespace zol::test
