// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "data/SymbolMeasure.h"

#include <QTransform>

#include <gtest/gtest.h>

namespace zol {
namespace {

QPainterPath Disc(double radius) {
    QPainterPath path;
    path.addEllipse(QPointF(0.5, 0.5), radius, radius);
    return path;
}

QPainterPath Square(double half) {
    QPainterPath path;
    path.addRect(0.5 - half, 0.5 - half, 2 * half, 2 * half);
    return path;
}

double Distance(const QPainterPath& one, const QPainterPath& two, int size) {
    return SymbolBlot(ShapeInCell(one, size)).Distance(SymbolBlot(ShapeInCell(two, size)));
}

TEST(SymbolMeasure, AShapeAndItselfAreTheSame) {
    EXPECT_EQ(Distance(Disc(0.4), Disc(0.4), 8), 0.0);
}

TEST(SymbolMeasure, AWholePixelAsideMakesNoDifferenceInAnyDirection) {
    for (int dx = -1; dx <= 1; ++dx) {
        for (int dy = -1; dy <= 1; ++dy) {
            const auto moved = Disc(0.3).translated(dx / 14.0, dy / 14.0);
            EXPECT_EQ(Distance(Disc(0.3), moved, 14), 0.0) << dx << ", " << dy;
        }
    }
}

TEST(SymbolMeasure, TwoPixelsAsideMakeADifference) {
    EXPECT_GT(Distance(Disc(0.3), Disc(0.3).translated(2.0 / 14.0, 0.0), 14), 0.0);
}

TEST(SymbolMeasure, CountsPixelsAsAShareOfTheCell) {
    // Eight by eight pixels (a corner keeps 9/16 of its black, so it stays dark) and eight by
    // four, both on whole pixels of a cell of 16.
    QPainterPath narrow;
    narrow.addRect(0.25, 0.25, 0.5, 0.25);
    const SymbolBlot wide(ShapeInCell(Square(0.25), 16));
    const SymbolBlot flat(ShapeInCell(narrow, 16));
    EXPECT_EQ(wide.DarkPixels(), 64);
    EXPECT_EQ(flat.DarkPixels(), 32);
    EXPECT_DOUBLE_EQ(wide.Distance(flat), 32.0 / 256.0);
}

TEST(SymbolMeasure, IsTheSameBothWaysRound) {
    EXPECT_EQ(Distance(Disc(0.4), Square(0.38), 10), Distance(Square(0.38), Disc(0.4), 10));
}

TEST(SymbolMeasure, ALineThinnerThanTheBlurLeavesNothing) {
    QPainterPath hair;
    hair.addRect(0.1, 0.48, 0.8, 0.04);
    EXPECT_EQ(SymbolBlot(ShapeInCell(hair, 14)).DarkPixels(), 0);
}

TEST(SymbolMeasure, TwoDetailsSmallerThanTheBlurAreTakenForOne) {
    const auto pierced = Disc(0.4).subtracted(Disc(0.04));
    const auto slit = Disc(0.4).subtracted(Square(0.03));
    EXPECT_EQ(Distance(pierced, slit, 14), 0.0);
}

} // namespace
} // namespace zol
