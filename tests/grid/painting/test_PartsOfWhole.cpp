// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <array>
#include <random>

#include "grid/painting/GridLines.h"
#include "grid/painting/GridTestKit.h"
#include "grid/painting/ViewPass.h"

namespace zol {
namespace {

/// Whatever the system asks to have painted anew lies beside what it did not, so a part must look
/// as it does in the whole, to the pixel: knots, marks and round ends cut by its edges too.
class PartsOfWholeTest : public PaintTest {
protected:
    static constexpr int Side = 40;

    struct Look {
        double TwipsPerPixel;
        int ClothCountX;
        int ClothCountY;
        int Percent;
    };
    static constexpr std::array<Look, 14> looks{{{15, 14, 14, 3},
                                                 {15, 14, 14, 9},
                                                 {15, 14, 18, 17},
                                                 {12, 14, 14, 29},
                                                 {7.5, 11, 11, 37},
                                                 {15, 14, 14, 73},
                                                 {15, 18, 11, 111},
                                                 {10, 14, 18, 133},
                                                 {15, 14, 14, 150},
                                                 {12, 11, 11, 167},
                                                 {15, 14, 14, 233},
                                                 {15, 11, 18, 310},
                                                 {7.5, 14, 14, 350},
                                                 {15, 14, 14, 617}}};

    int Roll(int from, int to) {
        return from + static_cast<int>(m_random() % static_cast<unsigned>(to - from + 1));
    }

    void FillByChance(int knots, int lines) {
        pattern.Resize(Side, Side, 14, 14);
        for (int x = 1; x <= Side; ++x) {
            for (int y = 1; y <= Side; ++y) {
                if (const int kind = Roll(0, 16); kind != StitchFKnot && kind <= StitchLRQ) {
                    pattern.SetStitch(x, y, kind == 0 ? StitchWhole : kind, Roll(1, 4), 5);
                    if (Roll(0, 3) == 0) {
                        pattern.SetStitch(x, y, Roll(0, 1) == 0 ? StitchULQ : StitchLR3Q,
                                          Roll(1, 4), 5);
                    }
                }
            }
        }
        for (int i = 0; i < knots; ++i) {
            context.FrenchKnotStyle = static_cast<std::uint8_t>(Roll(0, 4));
            pattern.SetStitch(Roll(1, Side), Roll(1, Side), StitchFKnot, Roll(1, 4), Roll(1, 9));
        }
        context.FrenchKnotStyle = KnotNormal;
        for (int i = 0; i < lines; ++i) {
            const int reach = i % 5 == 0 ? Side : 5;
            const int x = Roll(1, Side);
            const int y = Roll(1, Side);
            AddLine(x, y, Roll(1, 9), std::clamp(x + Roll(-reach, reach), 1, Side),
                    std::clamp(y + Roll(-reach, reach), 1, Side), Roll(1, 9), i % 6, Roll(1, 4));
        }
    }

    [[nodiscard]] GridView Seen(const Look& look, int style) const {
        GridView view = View(1, style);
        view.Options.Target = TargetGrid;
        view.Options.ClothColor = 12768475;
        view.Scale = GridScale::ForZoom(look.Percent, look.ClothCountX, look.ClothCountY,
                                        look.TwipsPerPixel, look.TwipsPerPixel);
        return view;
    }

    /// A piece of the grid: a square and a pixel more, a thin strip, or anything.
    [[nodiscard]] QRect AnyPart(const GridView& view, const QSize& size) {
        const SquareSpans x = SquareSpans::Columns(view, 1, Side);
        const SquareSpans y = SquareSpans::Rows(view, 1, Side);
        const int column = Roll(1, Side);
        const int row = Roll(1, Side);
        QRect part(QPoint(x.Edge(column), y.Edge(row)),
                   QPoint(x.Edge(column + 1), y.Edge(row + 1)));
        switch (Roll(0, 3)) {
        case 0:
            break;
        case 1:
            part.setSize({Roll(1, 30), Roll(1, size.height())});
            break;
        case 2:
            part.setSize({Roll(1, size.width()), Roll(1, 30)});
            break;
        default:
            part = QRect(Roll(0, size.width() - 1), Roll(0, size.height() - 1), Roll(1, 90),
                         Roll(1, 90));
        }
        return part.intersected(QRect(QPoint(0, 0), size));
    }

    [[nodiscard]] static QImage BareCloth(const GridView& view, const QRect& pixels) {
        QImage image(pixels.size(), QImage::Format_RGB32);
        image.fill(ToRgb(view.Options.ClothColor));
        return image;
    }
    [[nodiscard]] QImage PartOf(const GridView& view, const QRect& pixels) {
        QImage image = BareCloth(view, pixels);
        painter.PaintImage(image, pixels.topLeft(), view, view.Everything());
        return image;
    }

    /// Parts by chance against the whole, in pixels that differ.
    void ExpectPartsOfWhole(const Look& look, int style) {
        const GridView view = Seen(look, style);
        const QSize size(SquareSpans::Columns(view, 1, Side).Edge(Side + 1),
                         SquareSpans::Rows(view, 1, Side).Edge(Side + 1));
        const QImage whole = PartOf(view, QRect(QPoint(0, 0), size));
        const auto pass = painter.BeginImages(view, view.Everything(), QRect(QPoint(0, 0), size));
        for (int i = 0; i < 60; ++i) {
            const QRect part = AnyPart(view, size);
            if (part.isEmpty()) {
                continue;
            }
            const QImage expected = whole.copy(part);
            const QImage painted = PartOf(view, part);
            ASSERT_EQ(painted, expected)
                << look.Percent << " %, " << look.TwipsPerPixel << " twips a pixel, style " << style
                << ": " << DifferingPixels(painted, expected) << " pixels differ in the part at "
                << part.x() << ", " << part.y() << " of " << part.width() << " by "
                << part.height();
            // The last part's own paint has come between two pieces.
            QImage piece = BareCloth(view, part);
            pass->Paint(piece, part.topLeft());
            ASSERT_EQ(piece, expected) << look.Percent << " %, style " << style << ", as a piece";
        }
    }

    static int DifferingPixels(const QImage& a, const QImage& b) {
        int count = 0;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x) {
                count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
            }
        }
        return count;
    }

private:
    std::mt19937 m_random{20260907};
};

TEST_F(PartsOfWholeTest, KnotsAreCutByThePartAndNotChanged) {
    FillByChance(160, 0);
    for (const Look& look : looks) {
        for (const int style : {ShowColorSquares, ShowColorSymbols, ShowColorBlocksSymbols}) {
            ASSERT_NO_FATAL_FAILURE(ExpectPartsOfWhole(look, style));
        }
    }
}

TEST_F(PartsOfWholeTest, LinesOfAllStylesAreCutByThePartAndNotChanged) {
    FillByChance(0, 70);
    for (const Look& look : looks) {
        ASSERT_NO_FATAL_FAILURE(ExpectPartsOfWhole(look, ShowColorSquares));
    }
}

TEST_F(PartsOfWholeTest, EverythingTogetherInEveryStyle) {
    FillByChance(60, 40);
    for (const Look& look : looks) {
        for (int style = ShowColorSquares; style <= ShowVStitches; ++style) {
            ASSERT_NO_FATAL_FAILURE(ExpectPartsOfWhole(look, style));
        }
    }
}

TEST_F(PartsOfWholeTest, BandsOfOnePaintAddUpThoughAnotherComesBetween) {
    FillByChance(60, 400);
    for (const Look& look : looks) {
        const GridView view = Seen(look, ShowColorSquares);
        GridView other = view;
        other.Options.ClothColor = Dark;
        const QSize size(SquareSpans::Columns(view, 1, Side).Edge(Side + 1),
                         SquareSpans::Rows(view, 1, Side).Edge(Side + 1));
        const QImage whole = PartOf(view, QRect(QPoint(0, 0), size));
        const auto pass = painter.BeginImages(view, view.Everything(), QRect(QPoint(0, 0), size));
        for (int top = 0, turn = 0; top < size.height(); top += 23, ++turn) {
            const QRect band(0, top, size.width(), std::min(23, size.height() - top));
            QImage piece = BareCloth(view, band);
            pass->Paint(piece, band.topLeft());
            ASSERT_EQ(piece, whole.copy(band)) << look.Percent << " %, from " << top;
            if (turn % 3 == 2) {
                (void)PartOf(other, QRect(0, 0, 9, 9));
            }
        }
    }
}

TEST_F(PartsOfWholeTest, ManyWorkersPaintWhatOneDoes) {
    // Each painter begins with nothing made yet, so that workers ask for the same things at once.
    FillByChance(60, 200);
    for (int style = ShowColorSquares; style <= ShowVStitches; ++style) {
        const GridView view = Seen(looks[9 + static_cast<std::size_t>(style % 4)], style);
        const QSize size(SquareSpans::Columns(view, 1, Side).Edge(Side + 1),
                         SquareSpans::Rows(view, 1, Side).Edge(Side + 1));
        ASSERT_GT(size.width() * size.height(), 128 * 1024);
        painter.SetWorkers(1);
        const QImage expected = PartOf(view, QRect(QPoint(0, 0), size));
        for (const int workers : {2, 4, 7}) {
            GridPainter fresh;
            fresh.SetWorkers(workers);
            for (const char* turn : {"first", "second"}) {
                QImage image = BareCloth(view, QRect(QPoint(0, 0), size));
                fresh.PaintImage(image, {0, 0}, view, view.Everything());
                ASSERT_EQ(image, expected)
                    << workers << " workers, style " << style << ", the " << turn << " paint";
            }
        }
    }
}

TEST_F(PartsOfWholeTest, LinesThatCrossManyDoNotChangeEachOther) {
    // More lines than are walked one by one.
    FillByChance(20, 400);
    for (const Look& look : looks) {
        ASSERT_NO_FATAL_FAILURE(ExpectPartsOfWhole(look, ShowColorSquares));
    }
}

} // namespace
} // namespace zol
