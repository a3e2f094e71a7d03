// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "import/scan/AreaDrag.h"

using namespace zol;

namespace {

constexpr ScanArea Bed{0.0, 0.0, 200.0, 300.0};
constexpr ScanArea Area{50.0, 60.0, 40.0, 30.0};
constexpr double Reach = 2.0;

ScanArea Dragged(double fromX, double fromY, double toX, double toY) {
    return AreaDrag(Bed, Area, fromX, fromY, Reach).To(toX, toY);
}

} // namespace

TEST(AreaDrag, DrawsANewAreaOutsideTheOldOneInAnyDirection) {
    EXPECT_EQ(Dragged(10.0, 10.0, 30.0, 50.0), (ScanArea{10.0, 10.0, 20.0, 40.0}));
    EXPECT_EQ(Dragged(190.0, 290.0, 150.0, 250.0), (ScanArea{150.0, 250.0, 40.0, 40.0}));
}

TEST(AreaDrag, ANewAreaEndsAtTheBed) {
    EXPECT_EQ(Dragged(10.0, 10.0, -30.0, 999.0), (ScanArea{0.0, 10.0, 10.0, 290.0}));
    EXPECT_EQ(Dragged(-20.0, -20.0, 30.0, 30.0), (ScanArea{0.0, 0.0, 30.0, 30.0}));
}

TEST(AreaDrag, MovesByItsInsideAndStaysOnTheBed) {
    EXPECT_EQ(Dragged(70.0, 75.0, 80.0, 70.0), (ScanArea{60.0, 55.0, 40.0, 30.0}));
    EXPECT_EQ(Dragged(70.0, 75.0, 400.0, -400.0), (ScanArea{160.0, 0.0, 40.0, 30.0}));
}

TEST(AreaDrag, StretchesASideOrACorner) {
    EXPECT_EQ(Dragged(91.0, 75.0, 120.0, 20.0), (ScanArea{50.0, 60.0, 70.0, 30.0}));
    EXPECT_EQ(Dragged(50.0, 75.0, 40.0, 20.0), (ScanArea{40.0, 60.0, 50.0, 30.0}));
    EXPECT_EQ(Dragged(70.0, 59.0, 0.0, 50.0), (ScanArea{50.0, 50.0, 40.0, 40.0}));
    EXPECT_EQ(Dragged(90.0, 90.0, 100.0, 110.0), (ScanArea{50.0, 60.0, 50.0, 50.0}));
    EXPECT_TRUE(AreaDrag(Bed, Area, 90.0, 90.0, Reach).HoldsFallingCorner());
    EXPECT_FALSE(AreaDrag(Bed, Area, 90.0, 60.0, Reach).HoldsFallingCorner());
}

TEST(AreaDrag, ASideMayPassTheOther) {
    EXPECT_EQ(Dragged(90.0, 75.0, 20.0, 75.0), (ScanArea{20.0, 60.0, 30.0, 30.0}));
}

TEST(AreaDrag, KeepsAMillimeter) {
    EXPECT_EQ(Dragged(90.0, 75.0, 50.0, 75.0), (ScanArea{50.0, 60.0, 1.0, 30.0}));
    EXPECT_EQ(Dragged(10.0, 10.0, 10.0, 10.0), (ScanArea{10.0, 10.0, 1.0, 1.0}));
}

TEST(AreaDrag, TheWholeBedIsDrawnOverNotMoved) {
    const AreaDrag drag(Bed, Bed, 100.0, 100.0, Reach);
    EXPECT_EQ(drag.Holds(), AreaDrag::Grip::New);
    EXPECT_EQ(drag.To(120.0, 150.0), (ScanArea{100.0, 100.0, 20.0, 50.0}));
}

TEST(AreaDrag, BringsTypedAreasIntoTheBed) {
    EXPECT_EQ(AreaDrag::Within(Bed, {190.0, 295.0, 40.0, 40.0}),
              (ScanArea{190.0, 295.0, 10.0, 5.0}));
    EXPECT_EQ(AreaDrag::Within(Bed, {500.0, -9.0, 0.0, 0.0}), (ScanArea{199.0, 0.0, 1.0, 1.0}));
}
