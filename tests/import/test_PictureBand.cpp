// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/PictureBand.h"

#include <gtest/gtest.h>

#include <string>

namespace zol {

namespace {

constexpr PictureBand::Reach Near{3, 3};

/// A band from 20, 10 to 60, 40 on a picture of 100 by 80.
PictureBand Drawn() {
    PictureBand band;
    band.Start(100, 80);
    band.Press({20, 10}, Near);
    band.MoveTo({60, 40});
    band.Release();
    return band;
}

} // namespace

TEST(PictureBand, ADragDrawsIt) {
    const PictureBand band = Drawn();
    EXPECT_TRUE(band.HasBand());
    EXPECT_EQ(band.Rect(), (PixelRect{20, 10, 40, 30}));
}

TEST(PictureBand, ADragUpAndLeftDrawsItToo) {
    PictureBand band;
    band.Start(100, 80);
    band.Press({60.4, 40.6}, Near);
    band.MoveTo({19.6, 10.4});
    EXPECT_EQ(band.Rect(), (PixelRect{20, 10, 40, 31}));
}

TEST(PictureBand, ItStaysOnThePicture) {
    PictureBand band;
    band.Start(100, 80);
    band.Press({-30, 70}, Near);
    band.MoveTo({500, 900});
    EXPECT_EQ(band.Rect(), (PixelRect{0, 70, 100, 10}));
}

TEST(PictureBand, WithoutSizeItIsDropped) {
    PictureBand band = Drawn();
    band.PressAnew({70, 70});
    band.MoveTo({70.3, 75});
    band.Release();
    EXPECT_FALSE(band.HasBand());
    EXPECT_EQ(band.Rect(), PixelRect{});
}

struct Hold {
    const char* Name;
    PicturePoint At;
    unsigned Part;
    PixelRect Moved; ///< after a drag by 5 and 7
};

class PictureBandHold : public ::testing::TestWithParam<Hold> {};

TEST_P(PictureBandHold, PartsAreTaken) {
    PictureBand band = Drawn();
    const PicturePoint at = GetParam().At;
    EXPECT_EQ(band.PartAt(at, Near), GetParam().Part);
    band.Press(at, Near);
    band.MoveTo({at.X + 2, at.Y + 1});
    band.MoveTo({at.X + 5, at.Y + 7});
    band.Release();
    EXPECT_EQ(band.Rect(), GetParam().Moved);
}

INSTANTIATE_TEST_SUITE_P(
    Parts, PictureBandHold,
    ::testing::Values(
        Hold{"UpperLeft", {21, 9}, PictureBand::LeftSide | PictureBand::TopSide, {25, 17, 35, 23}},
        Hold{"Top", {40, 12}, PictureBand::TopSide, {20, 17, 40, 23}},
        Hold{
            "UpperRight", {62, 8}, PictureBand::RightSide | PictureBand::TopSide, {20, 17, 45, 23}},
        Hold{"Right", {58, 25}, PictureBand::RightSide, {20, 10, 45, 30}},
        Hold{"LowerRight",
             {60, 40},
             PictureBand::RightSide | PictureBand::BottomSide,
             {20, 10, 45, 37}},
        Hold{"Bottom", {40, 42}, PictureBand::BottomSide, {20, 10, 40, 37}},
        Hold{"LowerLeft",
             {18, 42},
             PictureBand::LeftSide | PictureBand::BottomSide,
             {25, 10, 35, 37}},
        Hold{"Left", {20, 25}, PictureBand::LeftSide, {25, 10, 35, 30}},
        Hold{"Middle", {40, 25}, PictureBand::Middle, {25, 17, 40, 30}},
        Hold{"Outside", {80, 60}, PictureBand::Nothing, {80, 60, 5, 7}}),
    [](const auto& hold) { return std::string(hold.param.Name); });

TEST(PictureBand, ASidePulledPastTheOtherOneTurnsRound) {
    PictureBand band = Drawn();
    band.Press({20, 25}, Near);
    band.MoveTo({75, 25});
    band.Release();
    EXPECT_EQ(band.Rect(), (PixelRect{60, 10, 15, 30}));
}

TEST(PictureBand, TheMiddleMovesAsFarAsThePictureGoes) {
    PictureBand band = Drawn();
    band.Press({40, 25}, Near);
    band.MoveTo({400, -400});
    EXPECT_EQ(band.Rect(), (PixelRect{60, 0, 40, 30}));
    // And comes back with the pointer.
    band.MoveTo({41, 26});
    EXPECT_EQ(band.Rect(), (PixelRect{21, 11, 40, 30}));
}

TEST(PictureBand, KeysNudgeAndStretchIt) {
    PictureBand band = Drawn();
    band.Nudge(1, -1);
    EXPECT_EQ(band.Rect(), (PixelRect{21, 9, 40, 30}));
    band.Nudge(-100, 1000);
    EXPECT_EQ(band.Rect(), (PixelRect{0, 50, 40, 30}));
    band.Stretch(1, -1);
    EXPECT_EQ(band.Rect(), (PixelRect{0, 50, 41, 29}));
    band.Stretch(-1000, 1000);
    EXPECT_EQ(band.Rect(), (PixelRect{0, 50, 1, 30}));
}

TEST(PictureBand, WithoutABandKeysDoNothing) {
    PictureBand band;
    band.Start(100, 80);
    band.Nudge(1, 1);
    band.Stretch(5, 5);
    EXPECT_FALSE(band.HasBand());
    EXPECT_EQ(band.PartAt({1, 1}, Near), PictureBand::Nothing);
    band.SelectAll();
    EXPECT_EQ(band.Rect(), (PixelRect{0, 0, 100, 80}));
}

} // namespace zol
