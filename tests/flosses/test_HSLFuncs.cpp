// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "flosses/HSLFuncs.h"

namespace zol {
namespace {

using namespace HSLFuncs;

TEST(HSLFuncs, TakesColoursApart) {
    EXPECT_EQ(RedOf(0x00332211), 0x11);
    EXPECT_EQ(GreenOf(0x00332211), 0x22);
    EXPECT_EQ(BlueOf(0x00332211), 0x33);
}

TEST(HSLFuncs, GreenKeepsBit24) {
    EXPECT_EQ(GreenOf(0x01002200), 0x10022);
    EXPECT_EQ(GreenOf(0x02002200), 0x22);
}

TEST(HSLFuncs, MaxAndMinOf) {
    EXPECT_EQ(MaxOf(-3, 2), 2);
    EXPECT_EQ(MinOf(-3, 2), -3);
}

TEST(HSLFuncs, PureColoursStandWhereTheyAreExpected) {
    EXPECT_EQ(RGBtoHSL(255, 0, 0), (HSLColor{0, 240, 120}));
    EXPECT_EQ(RGBtoHSL(0, 255, 0), (HSLColor{80, 240, 120}));
    EXPECT_EQ(RGBtoHSL(0, 0, 255), (HSLColor{160, 240, 120}));
}

TEST(HSLFuncs, GreysStandAmongTheBlues) {
    EXPECT_EQ(RGBtoHSL(0, 0, 0), (HSLColor{160, 0, 0}));
    EXPECT_EQ(RGBtoHSL(255, 255, 255), (HSLColor{160, 0, 240}));
    EXPECT_EQ(RGBtoHSL(128, 128, 128), (HSLColor{160, 0, 121}));
    EXPECT_LT(HueKey(0, 255, 0), HueKey(128, 128, 128));
    EXPECT_GT(HueKey(255, 0, 255), HueKey(128, 128, 128));
}

TEST(HSLFuncs, ANegativeHueTurnsRound) {
    // Red over blue over green: ((255 - 100) * 40 + 0.5) / 255 = 24.316, and for green 40.002.
    // 24.316 - 40.002 = -15.686, and 240 more is 224.314.
    EXPECT_EQ(RGBtoHSL(255, 0, 100).Hue, 224);
}

TEST(HSLFuncs, HueKeyOrdersByHueThenSaturationThenLuminosity) {
    EXPECT_EQ(HueKey(255, 0, 0), (0 * 255 + 240) * 255 + 120);
    EXPECT_EQ(HueKey(255, 255, 255), (160 * 255 + 0) * 255 + 240);
}

TEST(HSLFuncs, ChannelsOfADamagedCatalogueAreBroughtIntoRange) {
    EXPECT_EQ(RGBtoHSL(-5, 5, -5), RGBtoHSL(0, 5, 0));
    EXPECT_EQ(RGBtoHSL(32767, -32768, 0), RGBtoHSL(255, 0, 0));
}

TEST(HSLFuncs, TheCurveWeighsBrightDifferencesMore) {
    EXPECT_EQ(MatchCurve()[0], 0);
    EXPECT_EQ(MatchCurve()[128], 64); // 64.25098
    EXPECT_EQ(MatchCurve()[255], 255);
    EXPECT_EQ(MatchCurve()[254], 253); // 253.00392
    EXPECT_EQ(MatchCurve()[11], 0);    // 0.47451
    EXPECT_EQ(MatchCurve()[12], 1);    // 0.56471
}

TEST(HSLFuncs, TheDifferenceIsSymmetricalAndBounded) {
    EXPECT_EQ(WhatsTheDifference1(7, 8, 9, 7, 8, 9), 0);
    EXPECT_EQ(WhatsTheDifference1(0, 0, 0, 255, 255, 255), 765);
    EXPECT_EQ(WhatsTheDifference1(128, 0, 0, 0, 128, 0), 128);
    for (int c = 0; c < 256; c += 5) {
        EXPECT_EQ(WhatsTheDifference1(c, 10, 200, 90, 80, c),
                  WhatsTheDifference1(90, 80, c, c, 10, 200));
    }
}

} // namespace
} // namespace zol
