// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/Adjustments.h"

#include <gtest/gtest.h>

using namespace zol;
using Adjustments::Kind;

namespace {

Picture OfColours(const std::vector<Colour>& colours) {
    Picture picture(static_cast<int>(colours.size()), 1);
    picture.Pixels() = colours;
    return picture;
}

Colour After(void (*change)(Picture&, int), Colour colour, int amount) {
    Picture picture = OfColours({colour});
    change(picture, amount);
    return picture.ImagePixel(0, 0);
}

constexpr Colour Sample = MakeColour(200, 100, 50);

TEST(Adjustments, TheListHasTheWizardsItemsAndSliders) {
    const auto& items = Adjustments::Items();
    EXPECT_EQ(items[4].Text, "Histo Equalize");
    EXPECT_EQ(items[5].Text, "Gray Scale");
    EXPECT_EQ(items[7].Text, "Stretch Intensity");
    EXPECT_EQ(items[0].Minimum, -100);
    EXPECT_EQ(items[3].Maximum, 360);
    EXPECT_EQ(items[8].Minimum, 10);
    EXPECT_EQ(items[8].Maximum, 200);
    EXPECT_EQ(items[8].Start, 100);
    EXPECT_EQ(items[3].Ticks, 20);
    EXPECT_EQ(items[8].Ticks, 20);
    EXPECT_EQ(items[8].SmallStep, 10);
    EXPECT_EQ(items[8].LargeStep, 50);
    for (std::size_t i = 0; i < items.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(items[i].What), i);
        EXPECT_EQ(items[i].HasSlider, i < 4 || i == 8) << items[i].Text;
    }
}

TEST(Adjustments, EverySlidersStartChangesNothing) {
    for (const Adjustments::Item& item : Adjustments::Items()) {
        if (item.HasSlider) {
            Picture picture = OfColours({Sample, 0, EraseColor, WhiteStandIn});
            const Picture before = picture;
            Adjustments::Apply(picture, item.What, item.Start);
            EXPECT_EQ(picture, before) << item.Text;
        }
    }
}

TEST(Adjustments, EveryOneLeavesErasedPixelsAlone) {
    for (const Adjustments::Item& item : Adjustments::Items()) {
        for (const int slider : {item.Minimum, item.Maximum}) {
            Picture picture = OfColours({Sample, EraseColor, MakeColour(10, 20, 30)});
            Adjustments::Apply(picture, item.What, slider);
            EXPECT_EQ(picture.ImagePixel(1, 0), EraseColor) << item.Text;
        }
    }
}

TEST(Adjustments, BrightnessReachesBlackAndWhite) {
    EXPECT_EQ(After(Adjustments::ChangeBrightness, Sample, 100), MakeColour(226, 126, 76));
    EXPECT_EQ(After(Adjustments::ChangeBrightness, Sample, -1000), 0U);
    EXPECT_EQ(After(Adjustments::ChangeBrightness, Sample, 1000), EraseColor);
    EXPECT_EQ(After(Adjustments::ChangeBrightness, Sample, 99999), EraseColor);
}

TEST(Adjustments, ContrastGoesFromGreyToBlackAndWhite) {
    EXPECT_EQ(After(Adjustments::ChangeContrast, Sample, -1000), MakeColour(128, 128, 128));
    EXPECT_EQ(After(Adjustments::ChangeContrast, Sample, 1000), MakeColour(255, 0, 0));
    EXPECT_EQ(After(Adjustments::ChangeContrast, Sample, 500), MakeColour(255, 72, 0));
}

TEST(Adjustments, SaturationGoesFromGreyToTwiceAsFar) {
    const unsigned grey = (200 * 299 + 100 * 587 + 50 * 114 + 500) / 1000; // 124
    EXPECT_EQ(After(Adjustments::ChangeSaturation, Sample, -1000), MakeColour(grey, grey, grey));
    EXPECT_EQ(After(Adjustments::ChangeSaturation, Sample, 1000), MakeColour(255, 76, 0));
}

TEST(Adjustments, HueTurnsTheCircle) {
    const Colour red = MakeColour(240, 0, 0);
    EXPECT_EQ(After(Adjustments::ChangeHue, red, 120), MakeColour(0, 240, 0));
    EXPECT_EQ(After(Adjustments::ChangeHue, red, 240), MakeColour(0, 0, 240));
    EXPECT_EQ(After(Adjustments::ChangeHue, red, 60), MakeColour(240, 240, 0));
    EXPECT_EQ(After(Adjustments::ChangeHue, red, 360), red);
    EXPECT_EQ(After(Adjustments::ChangeHue, Sample, 120), MakeColour(50, 200, 100));
    EXPECT_EQ(After(Adjustments::ChangeHue, MakeColour(9, 9, 9), 77), MakeColour(9, 9, 9));
}

TEST(Adjustments, GammaLeavesBlackAndBrightensTheMiddle) {
    EXPECT_EQ(After(Adjustments::ChangeGamma, MakeColour(0, 64, 250), 200),
              MakeColour(0, 128, 252)); // 255 * sqrt(c / 255)
    EXPECT_EQ(After(Adjustments::ChangeGamma, MakeColour(0, 128, 250), 10), MakeColour(0, 0, 209));
    EXPECT_EQ(After(Adjustments::ChangeGamma, MakeColour(1, 128, 250), 1),
              After(Adjustments::ChangeGamma, MakeColour(1, 128, 250), 10));
}

TEST(Adjustments, EqualizeSpreadsTheLightness) {
    Picture picture = OfColours({MakeColour(100, 100, 100), MakeColour(101, 101, 101),
                                 MakeColour(102, 102, 102), EraseColor});
    Adjustments::EqualizeHistogram(picture);
    EXPECT_EQ(picture.Pixels(),
              (std::vector<Colour>{0, MakeColour(128, 128, 128), EraseColor, EraseColor}));
    Picture one = OfColours({MakeColour(90, 90, 90), MakeColour(90, 90, 90)});
    const Picture before = one;
    Adjustments::EqualizeHistogram(one);
    EXPECT_EQ(one, before);
}

TEST(Adjustments, StretchUsesTheWholeScaleAndIgnoresErasedPixels) {
    Picture picture = OfColours({MakeColour(50, 100, 150), MakeColour(60, 60, 60), EraseColor});
    Adjustments::StretchIntensity(picture);
    EXPECT_EQ(picture.ImagePixel(0, 0), MakeColour(0, 128, 255));
    EXPECT_EQ(picture.ImagePixel(1, 0), MakeColour(26, 26, 26)); // 25.5 goes to the even neighbour
    EXPECT_EQ(picture.ImagePixel(2, 0), EraseColor);
}

TEST(Adjustments, GreyHasEqualChannels) {
    Picture picture = OfColours({Sample, MakeColour(255, 255, 254)});
    Adjustments::ConvertToGrey(picture);
    EXPECT_EQ(picture.ImagePixel(0, 0), MakeColour(124, 124, 124));
}

TEST(Adjustments, EdgesBrightenTheBrightSideOfAnEdgeOnly) {
    Picture picture(3, 3);
    for (Colour& pixel : picture.Pixels()) {
        pixel = MakeColour(90, 90, 90);
    }
    picture.SetImagePixel(1, 1, MakeColour(180, 90, 90));
    Adjustments::Apply(picture, Kind::EdgeEnhance, 0);
    EXPECT_EQ(picture.ImagePixel(1, 1), MakeColour(255, 90, 90)); // 180 + (180 - 100), at most 255
    EXPECT_EQ(picture.ImagePixel(0, 0), MakeColour(90, 90, 90));
}

TEST(Adjustments, ErasedNeighboursMakeNoEdge) {
    Picture picture(3, 1);
    picture.SetImagePixel(1, 0, Sample);
    Adjustments::Apply(picture, Kind::EdgeEnhance, 0);
    EXPECT_EQ(picture.ImagePixel(1, 0), Sample);
}

} // namespace
