// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/OverlayPainter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <random>

namespace zol {
namespace {

constexpr QRgb Cloth = 0xFF305070U;
constexpr QRgb Accent = 0xFFB23A48U;
constexpr QRgb Casing = 0xFFFFFFFFU;

class OverlayTest : public ::testing::TestWithParam<double> {
protected:
    /// Squares of 20 window pixels.
    OverlayTest() : pattern(context) {
        pattern.Initialize(24, 18, 12, 12);
        geometry = GridGeometry(pattern, 250, GetParam());
        style.Accent = QColor::fromRgb(Accent);
        style.LineWidth = Pixels(6);
    }

    [[nodiscard]] static int Pixels(double ofTheWindow) {
        return static_cast<int>(std::lround(ofTheWindow * GetParam()));
    }
    [[nodiscard]] QImage Paint(const Overlay& overlay) const {
        QImage image(geometry.GridSize(), QImage::Format_RGB32);
        image.fill(Cloth);
        QPainter painter(&image);
        OverlayPainter(overlay, geometry, style).Paint(painter);
        return image;
    }
    [[nodiscard]] QRegion Covered(const Overlay& overlay) const {
        return OverlayPainter(overlay, geometry, style).Covered();
    }
    static int CountOf(const QImage& image, QRgb colour) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixel(x, y) == colour ? 1 : 0;
            }
        }
        return count;
    }
    static QRect BoundsOf(const QImage& image, QRgb colour) {
        QRect bounds;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) == colour) {
                    bounds |= QRect(x, y, 1, 1);
                }
            }
        }
        return bounds;
    }

    ProgramContext context;
    Pattern pattern;
    GridGeometry geometry;
    OverlayStyle style;
};

TEST_P(OverlayTest, WithoutAnOverlayNothingIsPainted) {
    EXPECT_EQ(CountOf(Paint({}), Cloth),
              geometry.GridSize().width() * geometry.GridSize().height());
    EXPECT_TRUE(Covered({}).isEmpty());
}

TEST_P(OverlayTest, NothingIsPaintedOutsideWhatIsCovered) {
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same places each time
    const auto upTo = [&](int last) {
        return static_cast<int>(random() % static_cast<unsigned>(last)) + 1;
    };
    const auto place = [&] { return LatticePos{upTo(49), upTo(37)}; };
    for (int round = 0; round < 40; ++round) {
        Overlay overlay;
        overlay.RubberBand = OverlayLine{place(), place()};
        overlay.Handles = OverlayLine{place(), place()};
        const int left = upTo(24);
        const int top = upTo(18);
        overlay.Frame = SquareRect{left, top, std::max(left, upTo(24)), std::max(top, upTo(18))};
        overlay.Mirror =
            OverlayAxis{round % 2 == 0 ? MirrorVertical : MirrorHorizontal, {upTo(24), upTo(18)}};
        style.LineWidth = upTo(12);
        const QImage image = Paint(overlay);
        const QRegion covered = Covered(overlay);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) != Cloth) {
                    ASSERT_TRUE(covered.contains(QPoint(x, y))) << x << ", " << y;
                }
            }
        }
    }
}

TEST_P(OverlayTest, PieceByPieceItLooksTheSame) {
    Overlay overlay;
    overlay.RubberBand = OverlayLine{{3, 5}, {46, 30}};
    overlay.Handles = OverlayLine{{3, 5}, {46, 30}};
    overlay.Frame = SquareRect{5, 4, 20, 15};
    overlay.Mirror = OverlayAxis{MirrorVertical, {12, 9}};
    const QImage whole = Paint(overlay);
    QImage image(whole.size(), QImage::Format_RGB32);
    image.fill(Cloth);
    constexpr int side = 37;
    for (int y = 0; y < image.height(); y += side) {
        for (int x = 0; x < image.width(); x += side) {
            QPainter painter(&image);
            painter.setClipRect(x, y, side, side);
            OverlayPainter(overlay, geometry, style).Paint(painter);
        }
    }
    EXPECT_EQ(image, whole);
}

TEST_P(OverlayTest, ASlantingBandCoversAStripAndNotItsWholeRectangle) {
    Overlay overlay;
    overlay.RubberBand = OverlayLine{{1, 1}, {49, 37}};
    int covered = 0;
    for (const QRect& rect : Covered(overlay)) {
        covered += rect.width() * rect.height();
    }
    const QSize grid = geometry.GridSize();
    EXPECT_LT(covered, grid.width() * grid.height() / 3);
}

TEST_P(OverlayTest, ABandHasTheWidthOfALineAndLightBesideIt) {
    Overlay overlay;
    overlay.RubberBand = OverlayLine{LatticeOf(3, 5, 4), LatticeOf(12, 5, 4)};
    const QImage image = Paint(overlay);
    const int x = geometry.PointOf(8, 5, 1).x();
    const int middle = geometry.PointOf(8, 5, 4).y();
    int accents = 0;
    for (int y = middle - Pixels(15); y <= middle + Pixels(15); ++y) {
        accents += image.pixel(x, y) == Accent ? 1 : 0;
    }
    EXPECT_EQ(accents, style.LineWidth);
    EXPECT_EQ(image.pixel(x, middle), Accent);
    EXPECT_EQ(image.pixel(x, middle - style.LineWidth / 2 - 1), Casing);
    EXPECT_EQ(image.pixel(x, middle + Pixels(8)), Cloth);
}

TEST_P(OverlayTest, HandlesAreTenPixelsOfTheWindowOnEachEnd) {
    Overlay overlay;
    overlay.Handles = OverlayLine{LatticeOf(3, 4, 1), LatticeOf(9, 7, 5)};
    const QImage image = Paint(overlay);
    EXPECT_EQ(CountOf(image, Accent), 2 * Pixels(10) * Pixels(10));
    const QRect both = BoundsOf(image, Accent);
    const QPoint start = geometry.PointOf(3, 4, 1);
    const QPoint end = geometry.PointOf(9, 7, 5);
    EXPECT_EQ(both.topLeft(), start - QPoint(Pixels(10) / 2, Pixels(10) / 2));
    EXPECT_EQ(both.bottomRight(), end + QPoint((Pixels(10) - 1) / 2, (Pixels(10) - 1) / 2));
    EXPECT_EQ(image.pixel(both.left() - 1, start.y()), Casing);
}

TEST_P(OverlayTest, AFrameRunsAlongTheEdgesOfItsSquares) {
    Overlay overlay;
    overlay.Frame = SquareRect{4, 3, 9, 8};
    const QImage image = Paint(overlay);
    const QRect box = geometry.PixelsOf({4, 3, 9, 8});
    EXPECT_EQ(BoundsOf(image, Accent), box);
    const int width = std::max(1, Pixels(1));
    EXPECT_EQ(CountOf(image, Accent),
              2 * width * box.width() + 2 * width * (box.height() - 2 * width));
    EXPECT_EQ(image.pixel(box.left() - 1, box.top() + 30), Casing);
    EXPECT_EQ(image.pixel(box.left() + width, box.top() + 30), Casing);
    EXPECT_EQ(image.pixel(box.center()), Cloth);
}

TEST_P(OverlayTest, OfAFrameOnlyWhatLiesOnTheGridShows) {
    Overlay overlay;
    overlay.Frame = SquareRect{20, 15, 40, 40};
    EXPECT_EQ(BoundsOf(Paint(overlay), Accent), geometry.PixelsOf({20, 15, 24, 18}));
    overlay.Frame = SquareRect{30, 1, 31, 4};
    EXPECT_TRUE(Covered(overlay).isEmpty());
    EXPECT_EQ(CountOf(Paint(overlay), Accent), 0);
}

TEST_P(OverlayTest, TheAxisRunsThroughTheMiddleOfItsColumnOrRow) {
    Overlay overlay;
    const int width = std::max(1, Pixels(1));
    overlay.Mirror = OverlayAxis{MirrorVertical, {7, 5}};
    const QSize grid = geometry.GridSize();
    EXPECT_EQ(BoundsOf(Paint(overlay), Accent),
              QRect(geometry.PointOf(7, 5, 5).x() - width / 2, 0, width, grid.height()));
    overlay.Mirror = OverlayAxis{MirrorHorizontal, {7, 5}};
    EXPECT_EQ(BoundsOf(Paint(overlay), Accent),
              QRect(0, geometry.PointOf(7, 5, 5).y() - width / 2, grid.width(), width));
}

TEST_P(OverlayTest, AnAxisThatIsNotSetShowsNothing) {
    Overlay overlay;
    for (const SquarePos centre : {SquarePos{0, 0}, SquarePos{25, 3}, SquarePos{3, 19}}) {
        overlay.Mirror = OverlayAxis{MirrorVertical, centre};
        EXPECT_EQ(CountOf(Paint(overlay), Accent), 0);
        EXPECT_TRUE(Covered(overlay).isEmpty());
    }
}

TEST_P(OverlayTest, ABandFarBeyondTheWindowIsSeenInIt) {
    pattern.Initialize(3000, 3000, 12, 12);
    geometry = GridGeometry(pattern, 1000, GetParam());
    Overlay overlay;
    overlay.RubberBand = OverlayLine{{1, 1}, {6001, 6001}};
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(Cloth);
    QPainter painter(&image);
    const QPoint middle = geometry.PointOf(1500, 1500, 1);
    painter.translate(QPoint(100, 100) - middle);
    OverlayPainter(overlay, geometry, style).Paint(painter);
    EXPECT_EQ(image.pixel(100, 100), Accent);
    EXPECT_EQ(image.pixel(20, 20), Accent);
    EXPECT_EQ(image.pixel(20, 180), Cloth);
    EXPECT_LT(Covered(overlay).rectCount(), 200);
}

TEST_P(OverlayTest, ThePainterIsLeftAsItWas) {
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(Qt::green);
    Overlay overlay;
    overlay.RubberBand = OverlayLine{{1, 1}, {9, 5}};
    OverlayPainter(overlay, geometry, style).Paint(painter);
    EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}

INSTANTIATE_TEST_SUITE_P(PixelRatios, OverlayTest, ::testing::Values(1, 1.25, 1.5, 2));

} // namespace
} // namespace zol
