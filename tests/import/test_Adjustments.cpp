// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/Adjustments.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

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

/// Every sort of colour, and erased pixels between them.
Picture Mixture() {
    Picture picture(97, 61);
    unsigned state = 12345;
    for (Colour& pixel : picture.Pixels()) {
        state = state * 1664525U + 1013904223U;
        pixel = (state >> 8U) % 7 == 0 ? EraseColor : state >> 8U;
    }
    return picture;
}

int ChannelOf(Colour colour, int channel) {
    return static_cast<int>((colour >> (8U * static_cast<unsigned>(channel))) & 255U);
}

/// The level of a channel after a turn, in plain arithmetic.
double PlainHue(Colour colour, int channel, int degrees) {
    const int red = ChannelOf(colour, 0);
    const int green = ChannelOf(colour, 1);
    const int blue = ChannelOf(colour, 2);
    const auto [low, high] = std::minmax({red, green, blue});
    const double span = high - low;
    if (high == low) {
        return low;
    }
    double hue = 4 + (red - green) / span;
    if (red == high) {
        hue = (green - blue) / span;
    } else if (green == high) {
        hue = 2 + (blue - red) / span;
    }
    const double away = std::fabs(std::fmod(hue + degrees / 60.0 - 2 * channel + 15, 6.0) - 3);
    return low + span * std::clamp(2 - away, 0.0, 1.0);
}

TEST(Adjustments, HueAgreesWithPlainArithmetic) {
    const Picture before = Mixture();
    for (const int degrees : {1, 29, 60, 61, 150, 179, 240, 359}) {
        Picture after = before;
        Adjustments::ChangeHue(after, degrees);
        for (std::size_t i = 0; i < before.Pixels().size(); ++i) {
            for (int channel = 0; channel < 3; ++channel) {
                ASSERT_NEAR(ChannelOf(after.Pixels()[i], channel),
                            PlainHue(before.Pixels()[i], channel, degrees), 0.5001)
                    << degrees << " degrees, pixel " << i;
            }
        }
    }
}

TEST(Adjustments, SaturationAgreesWithPlainArithmetic) {
    const Picture before = Mixture();
    for (const int amount : {-1000, -990, -500, -10, 0, 10, 370, 1000}) {
        Picture after = before;
        Adjustments::ChangeSaturation(after, amount);
        Picture greys = before;
        Adjustments::ConvertToGrey(greys);
        for (std::size_t i = 0; i < before.Pixels().size(); ++i) {
            const Colour colour = before.Pixels()[i];
            const double light = 0.299 * ChannelOf(colour, 0) + 0.587 * ChannelOf(colour, 1) +
                                 0.114 * ChannelOf(colour, 2);
            const int grey = ChannelOf(greys.Pixels()[i], 0);
            ASSERT_NEAR(grey, light, 1);
            for (int channel = 0; channel < 3; ++channel) {
                const double wanted =
                    grey + (ChannelOf(colour, channel) - grey) * (1 + amount / 1000.0);
                ASSERT_NEAR(ChannelOf(after.Pixels()[i], channel), std::clamp(wanted, 0.0, 255.0),
                            0.5001)
                    << amount << ", pixel " << i;
            }
        }
    }
}

TEST(Adjustments, EdgesAgreeWithPlainArithmetic) {
    const Picture before = Mixture();
    Picture after = before;
    Adjustments::EnhanceEdges(after);
    for (int y = 0; y < before.ImageHeight(); ++y) {
        for (int x = 0; x < before.ImageWidth(); ++x) {
            if (before.ImagePixel(x, y) == EraseColor) {
                ASSERT_EQ(after.ImagePixel(x, y), EraseColor);
                continue;
            }
            for (int channel = 0; channel < 3; ++channel) {
                int sum = 0;
                int count = 0;
                for (int v = std::max(y - 1, 0); v <= std::min(y + 1, 60); ++v) {
                    for (int u = std::max(x - 1, 0); u <= std::min(x + 1, 96); ++u) {
                        const bool erased = before.ImagePixel(u, v) == EraseColor;
                        sum += erased ? 0 : ChannelOf(before.ImagePixel(u, v), channel);
                        count += erased ? 0 : 1;
                    }
                }
                const int own = ChannelOf(before.ImagePixel(x, y), channel);
                ASSERT_EQ(ChannelOf(after.ImagePixel(x, y), channel),
                          std::max(own - sum / count, 0))
                    << x << ", " << y;
            }
        }
    }
}

} // namespace
