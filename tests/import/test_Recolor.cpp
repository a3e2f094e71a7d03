// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/Recolor.h"

#include <gtest/gtest.h>

#include "flosses/Palette.h"
#include "import/PlainRecolor.h"
#include "model/ProgramContext.h"
#include "support/RecordingDoors.h"

using namespace zol;

namespace {

constexpr ImportStatus::Outcome Done = ImportStatus::Outcome::Done;
constexpr Colour Red = MakeColour(200, 0, 0);
constexpr Colour DarkRed = MakeColour(190, 0, 0);
constexpr Colour Blue = MakeColour(0, 0, 200);
constexpr Colour White = 0x00FFFFFF;

class Recolor : public ::testing::Test {
protected:
    Palette PaletteOf(const std::vector<Colour>& colours) {
        Palette palette = Palette::Empty(context);
        for (const Colour colour : colours) {
            palette.AddPaletteEntry(colour, "1", "floss", "DMC", "!", 2, 2, 0, 0, 0, "DMC");
        }
        return palette;
    }

    void Candidates(const std::vector<Colour>& locked, const std::vector<Colour>& others) {
        candidates.Clear();
        candidates.AddLocked(PaletteOf(locked));
        candidates.AddPalette(PaletteOf(others));
    }

    ImportStatus Run(const Picture& image, int maxColors) {
        return RecolorPicture(image, candidates, maxColors, "Color", &progress, preview);
    }

    static Picture OfColours(const std::vector<Colour>& colours) {
        Picture picture(static_cast<int>(colours.size()), 1);
        picture.Pixels() = colours;
        return picture;
    }

    ProgramContext context;
    ImportCandidates candidates;
    test::RecordingProgress progress;
    Picture preview;
};

TEST_F(Recolor, EveryPixelTakesTheNearestFlossItsExactColour) {
    Candidates({}, {Red, Blue});
    ASSERT_EQ(Run(OfColours({MakeColour(150, 20, 20), MakeColour(20, 0, 180)}), 5).Result, Done);
    EXPECT_EQ(preview.Pixels(), (std::vector<Colour>{Red, Blue}));
    EXPECT_EQ(candidates.ColorPixels, (std::vector<std::int32_t>{0, 1, 1}));
}

TEST_F(Recolor, APictureAllErasedWinsNoFloss) {
    Candidates({}, {Red, White});
    ASSERT_EQ(Run(Picture(20, 20), 5).Result, Done);
    EXPECT_EQ(preview, Picture(20, 20));
    EXPECT_EQ(candidates.ColorsLeft(), 0);
}

TEST_F(Recolor, TheStandInIsMatchedAsWhiteAndWhiteFlossIsShownAsTheStandIn) {
    // Without the stand-in's meaning the grey would be nearer.
    Candidates({}, {MakeColour(247, 247, 247), White});
    ASSERT_EQ(Run(OfColours({WhiteStandIn, EraseColor}), 5).Result, Done);
    EXPECT_EQ(candidates.ColorPixels, (std::vector<std::int32_t>{0, 0, 1}));
    EXPECT_EQ(preview.Pixels(), (std::vector<Colour>{WhiteStandIn, EraseColor}));
}

TEST_F(Recolor, OfEqualFlossesTheLowestNumberWins) {
    Candidates({}, {Blue, Red, Red});
    ASSERT_EQ(Run(OfColours({Red}), 5).Result, Done);
    EXPECT_EQ(candidates.ColorUsed, (std::vector<std::int16_t>{0, 0, -1, 0}));
}

TEST_F(Recolor, EnoughColoursMeansNoReduction) {
    Candidates({}, {Red, DarkRed, Blue});
    ASSERT_EQ(Run(OfColours({Red, DarkRed, Blue}), 3).Result, Done);
    EXPECT_EQ(candidates.ColorsLeft(), 3);
    EXPECT_EQ(candidates.ColorPixels, (std::vector<std::int32_t>{0, 1, 1, 1}));
}

TEST_F(Recolor, PixelsOfAFlossThatWentAreMatchedAgainAmongTheSurvivors) {
    Candidates({}, {Red, DarkRed, Blue});
    ASSERT_EQ(Run(OfColours({Red, Red, DarkRed, Blue}), 2).Result, Done);
    EXPECT_EQ(candidates.ColorUsed, (std::vector<std::int16_t>{0, -1, 0, -1}));
    EXPECT_EQ(preview.Pixels(), (std::vector<Colour>{Red, Red, Red, Blue}));
}

TEST_F(Recolor, WithOneColourAndOneLockedFlossOnlyTheLockedOneIsLeft) {
    Candidates({MakeColour(0, 90, 0)}, {Red, DarkRed, Blue});
    ASSERT_EQ(Run(OfColours({Red, DarkRed, Blue, Blue}), 1).Result, Done);
    EXPECT_EQ(candidates.ColorUsed, (std::vector<std::int16_t>{0, -1, 0, 0, 0}));
    EXPECT_EQ(preview.Pixels(), std::vector<Colour>(4, MakeColour(0, 90, 0)));
}

TEST_F(Recolor, FewerColoursThanLockedFlossesFaultWithTheErrorsText) {
    Candidates({Red, Blue}, {White});
    preview = Picture(7, 7);
    const ImportStatus status = Run(OfColours({Red, WhiteStandIn}), 1);
    EXPECT_EQ(status.Result, ImportStatus::Outcome::Failed);
    EXPECT_EQ(status.Message, "Subscript out of range");
    EXPECT_EQ(preview, Picture(7, 7));
    EXPECT_EQ(progress.stopped, 1);
}

TEST_F(Recolor, NoFlossAtAllIsRefusedInWords) {
    Candidates({}, {});
    const ImportStatus status = Run(OfColours({Red}), 30);
    EXPECT_EQ(status.Result, ImportStatus::Outcome::Invalid);
    EXPECT_EQ(status.Message, "Pattern must contain at least one color");
}

TEST_F(Recolor, ASecondRunStartsAfresh) {
    Candidates({}, {Red, Blue});
    ASSERT_EQ(Run(OfColours({Red, Red}), 5).Result, Done);
    ASSERT_EQ(Run(OfColours({Blue}), 5).Result, Done);
    EXPECT_EQ(candidates.ColorUsed, (std::vector<std::int16_t>{0, 0, -1}));
    EXPECT_EQ(candidates.ColorPixels, (std::vector<std::int32_t>{0, 0, 1}));
}

TEST_F(Recolor, TheBarMovesOnceAHundredthInBothWalks) {
    Candidates({}, {Red, Blue});
    Picture picture(50, 24); // 1200 pixels: a step every 12
    std::fill(picture.Pixels().begin(), picture.Pixels().end(), Red);
    progress.cancelAfter = 1000000;
    ASSERT_EQ(Run(picture, 5).Result, Done);
    EXPECT_EQ(progress.started, (std::vector<std::pair<std::string, int>>{
                                    {"Applying Floss Palette", 100}, {"Reducing Colors", 100}}));
    ASSERT_EQ(progress.updates.size(), 200U);
    EXPECT_EQ(progress.updates.front(), 1);
    EXPECT_EQ(progress.updates[99], 100);
    EXPECT_EQ(progress.updates[100], 1);
    EXPECT_EQ(progress.asked, 202); // once a step, and when each bar comes up
    EXPECT_EQ(progress.stopped, 1);
}

TEST_F(Recolor, TheBarStopsAtItsEndWhenHundredthsAreRoundedDown) {
    Candidates({}, {Red});
    Picture picture(199, 1); // a step every pixel
    std::fill(picture.Pixels().begin(), picture.Pixels().end(), Red);
    ASSERT_EQ(Run(picture, 5).Result, Done);
    EXPECT_EQ(progress.updates.size(), 200U);
    EXPECT_EQ(progress.updates.back(), 100);
}

TEST_F(Recolor, ErasedPixelsDoNotCountInTheFirstWalk) {
    Candidates({}, {Red});
    Picture picture(200, 1);
    for (int x = 0; x < 100; ++x) {
        picture.SetImagePixel(x, 0, Red);
    }
    ASSERT_EQ(Run(picture, 5).Result, Done);
    EXPECT_EQ(progress.updates.size(), 50U + 100U);
}

TEST_F(Recolor, UnderAHundredPixelsTheBarStaysStill) {
    Candidates({}, {Red});
    Picture picture(33, 3);
    std::fill(picture.Pixels().begin(), picture.Pixels().end(), Red);
    ASSERT_EQ(Run(picture, 5).Result, Done);
    EXPECT_TRUE(progress.updates.empty());
}

TEST_F(Recolor, ACancelAtAnyPointLeavesThePreviewAsItWas) {
    Candidates({}, {Red, Blue});
    Picture picture(20, 20);
    std::fill(picture.Pixels().begin(), picture.Pixels().end(), Red);
    preview = Picture(3, 3);
    for (const int asked : {0, 1, 50, 100, 101, 150, 201}) {
        progress = {};
        progress.cancelAfter = asked;
        EXPECT_EQ(Run(picture, 5).Result, ImportStatus::Outcome::Cancelled) << asked;
        EXPECT_EQ(preview, Picture(3, 3));
        EXPECT_EQ(progress.stopped, 1);
    }
}

TEST_F(Recolor, AgreesWithPlainLoopsOnRandomPictures) {
    test::Random32 random(11);
    for (int round = 0; round < 40; ++round) {
        std::vector<Colour> locked(round % 3 == 0 ? random() % 5 : 0);
        std::vector<Colour> others(1 + random() % 50);
        for (Colour& colour : locked) {
            colour = test::RandomColour(random);
        }
        for (Colour& colour : others) {
            colour = random() % 10 == 0 ? White : test::RandomColour(random);
        }
        const Picture image =
            test::RandomPicture(random, 1 + static_cast<int>(random() % 40),
                                1 + static_cast<int>(random() % 40), 1 + random() % 80);
        const int maxColors = static_cast<int>(locked.size() + 1 + random() % 20);
        Candidates(locked, others);
        test::PlainRecolor plain(locked, others);
        const Picture expected = plain.Recolor(image, maxColors);
        ASSERT_EQ(Run(image, maxColors).Result, Done);
        ASSERT_EQ(candidates.ColorUsed, plain.colorUsed) << round;
        ASSERT_EQ(candidates.ColorPixels, plain.colorPixels) << round;
        ASSERT_EQ(preview, expected) << round;
    }
}

} // namespace
