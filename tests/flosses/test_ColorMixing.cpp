// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <set>

#include "flosses/ColorMixing.h"

namespace zol {
namespace {

TEST(ColorMixing, ChannelsStayWithinAByte) {
    EXPECT_EQ(ColorMixing::Channel(0), 0);
    EXPECT_EQ(ColorMixing::Channel(255), 255);
    EXPECT_EQ(ColorMixing::Channel(256), 255);
    EXPECT_EQ(ColorMixing::Channel(32767), 255);
    EXPECT_EQ(ColorMixing::Channel(1e300), 255);
}

TEST(ColorMixing, AHundredPercentIsTheColourItself) {
    const Colour color = MakeColour(100, 50, 21);
    EXPECT_EQ(ColorMixing::Scale(color, 100), color);
    EXPECT_EQ(ColorMixing::Scale(color, 0), 0U);
    EXPECT_EQ(ColorMixing::Scale(color, 50), MakeColour(50, 25, 11));
    EXPECT_EQ(ColorMixing::Scale(color, 200), MakeColour(200, 100, 42));
    EXPECT_EQ(ColorMixing::Scale(MakeColour(200, 100, 0), 200), MakeColour(255, 200, 0));
    EXPECT_EQ(ColorMixing::Scale(color, -5), 0U);
    EXPECT_EQ(ColorMixing::Scale(color, 32767), ColorMixing::Scale(color, 200));
}

TEST(ColorMixing, CubeHoldsEveryColourOfEightBitsOnce) {
    const auto cube = ColorMixing::ColorCube();
    EXPECT_EQ(cube.size(), 256U);
    EXPECT_EQ(std::set<Colour>(cube.begin(), cube.end()).size(), 256U);
    EXPECT_EQ(cube.front(), 0U);
    EXPECT_EQ(cube.back(), MakeColour(255, 255, 255));
    EXPECT_EQ(cube.size() % ColorMixing::CubeColumns, 0U);
}

} // namespace
} // namespace zol
