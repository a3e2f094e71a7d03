// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "import/Imaging.h"
#include "import/Random32.h"
#include "import/SamplePictures.h"
#include "model/RunTimeError.h"
#include "support/TempFolder.h"

using namespace zol;
using test::SavedAs;
using test::VipsPicture;

namespace {

vips::VImage Noise(int width, int height) {
    test::Random32 random(1);
    return VipsPicture(width, height, [&random](int, int) { return random() & 0xFFFFFFU; });
}

ImagingResult Load(const std::vector<std::uint8_t>& bytes) {
    return PictureFile(bytes).LoadImage();
}

void ExpectOneLine(const std::string& text) {
    EXPECT_FALSE(text.empty());
    EXPECT_EQ(text.find('\n'), std::string::npos) << text;
}

class DamagedPicture : public ::testing::TestWithParam<const char*> {};

TEST_P(DamagedPicture, TruncatedAnywhereGivesAMessageAndNoPicture) {
    const std::vector<std::uint8_t> whole = SavedAs(Noise(24, 20), GetParam());
    ASSERT_TRUE(Load(whole).IsGood());
    // What is missing at the very end may be no more than a mark of the end.
    const std::size_t needed = whole.size() * 9 / 10;
    for (std::size_t size = 0; size < whole.size(); size += 1 + size / 40) {
        const std::vector<std::uint8_t> part(whole.begin(),
                                             whole.begin() + static_cast<std::ptrdiff_t>(size));
        const ImagingResult result = Load(part);
        if (size < needed) {
            ASSERT_FALSE(result.IsGood()) << size << " of " << whole.size();
        }
        if (!result.IsGood()) {
            EXPECT_TRUE(result.Image.IsEmpty());
            ExpectOneLine(result.Text);
        }
    }
}

TEST_P(DamagedPicture, SpoiledBytesNeverCrash) {
    const std::vector<std::uint8_t> whole = SavedAs(Noise(24, 20), GetParam());
    test::Random32 random(2);
    for (int round = 0; round < 150; ++round) {
        std::vector<std::uint8_t> spoiled = whole;
        for (int i = 0; i < 1 + round % 5; ++i) {
            // Most of what a reader believes stands near the beginning.
            const std::size_t at =
                random() %
                (round % 2 == 0 ? std::min<std::size_t>(whole.size(), 64) : whole.size());
            spoiled[at] = static_cast<std::uint8_t>(random());
        }
        PictureFile file(spoiled);
        // Bigger sizes are allowed, but would make this test slow.
        if (std::int64_t{file.ImageWidth()} * file.ImageHeight() > 1000000) {
            continue;
        }
        const ImagingResult result = file.LoadImage();
        if (!result.IsGood()) {
            ExpectOneLine(result.Text);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, DamagedPicture,
                         ::testing::Values(".png", ".jpg", ".tif", ".gif", ".webp", ".bmp"));

TEST(ImagingDamage, SomethingElseAltogetherIsSaidSo) {
    const std::string text = "This is a shopping list, not a picture.";
    const ImagingResult result = Load({text.begin(), text.end()});
    EXPECT_EQ(result.Number, ErrInvalidFormat);
    EXPECT_EQ(result.Text, "The file is not a picture of a known format");
    EXPECT_EQ(Load({}).Number, ErrInvalidFormat);
}

TEST(ImagingDamage, FormatsOutsideTheListAreNotRead) {
    const std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>";
    EXPECT_EQ(Load({svg.begin(), svg.end()}).Number, ErrInvalidFormat);
    const std::string ppm = "P3\n1 1\n255\n1 2 3\n";
    EXPECT_EQ(Load({ppm.begin(), ppm.end()}).Number, ErrInvalidFormat);
}

TEST(ImagingDamage, AMissingFileAndAFolderHaveTheirErrors) {
    const test::TempFolder folder;
    EXPECT_EQ(LoadImage(folder / "none.png").Number, ErrFileNotFound);
    EXPECT_EQ(LoadImage(folder / "none.png").Text, "File not found");
    EXPECT_EQ(LoadImage(folder.Path()).Number, ErrPathAccess);
}

/// A PNG whose header names a size that its few bytes of data do not hold.
std::vector<std::uint8_t> PngOfSize(std::uint32_t width, std::uint32_t height) {
    std::vector<std::uint8_t> bytes = SavedAs(Noise(4, 4), ".png");
    const auto put = [&bytes](std::size_t at, std::uint32_t value) {
        for (unsigned i = 0; i < 4; ++i) {
            bytes[at + i] = static_cast<std::uint8_t>(value >> (24U - 8U * i));
        }
    };
    put(16, width);
    put(20, height);
    std::uint32_t crc = 0xFFFFFFFFU;
    for (std::size_t i = 12; i < 29; ++i) {
        crc ^= bytes[i];
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
        }
    }
    put(29, ~crc);
    return bytes;
}

TEST(ImagingDamage, ABombIsRefusedByItsHeader) {
    const std::vector<std::uint8_t> bytes = PngOfSize(20000, 10001);
    const PictureFile file(bytes);
    EXPECT_EQ(file.GetError().Number, ErrOutOfMemory);
    EXPECT_EQ(file.GetError().Text,
              "The picture has 20000 by 10001 pixels; at most 200 million pixels can be read");
    const PictureFile most(PngOfSize(20000, 10000));
    EXPECT_TRUE(most.GetError().IsGood()) << most.GetError().Text;
}

TEST(ImagingDamage, ABombInAFormatOfOurOwnReaderIsRefusedByItsHeader) {
    std::vector<std::uint8_t> bytes = test::SavedAsBmp(Noise(4, 4));
    bytes[20] = 0x7F; // a width of 2 thousand million
    bytes[21] = 0x7F;
    EXPECT_EQ(Load(bytes).Number, ErrOutOfMemory);
}

TEST(ImagingDamage, AHundredMegapixelsWork) {
    // Runs of one colour keep the file small, and a few columns the test fast.
    const std::vector<std::uint8_t> bytes =
        SavedAs(vips::VImage::black(12500, 8000, vips::VImage::option()->set("bands", 3))
                    .copy(vips::VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB)),
                ".jpg");
    PictureFile file(bytes);
    const ImagingResult result = file.LoadForImport({std::nullopt, {125, 80}, true});
    ASSERT_TRUE(result.IsGood()) << result.Text;
    EXPECT_EQ(result.Image.Pixels(), std::vector<Colour>(10000, 0));
}

} // namespace
