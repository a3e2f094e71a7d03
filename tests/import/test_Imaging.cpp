// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/Imaging.h"

#include <gtest/gtest.h>

#include "import/PictureOps.h"
#include "import/Random32.h"
#include "import/SamplePictures.h"
#include "support/RecordingDoors.h"
#include "support/TempFolder.h"
#include "support/TestFiles.h"
#include "support/TestPaths.h"

using namespace zol;
using test::RecordingProgress;
using test::SavedAs;
using test::SavedLying;
using test::VipsPicture;
using vips::VImage;

namespace {

constexpr Colour Red = MakeColour(255, 0, 0);

/// A picture of four quarters: red, green, blue, grey.
VImage Quarters(int width = 32, int height = 24) {
    return VipsPicture(width, height, [width, height](int x, int y) {
        const bool right = x >= width / 2;
        const bool lower = y >= height / 2;
        return lower ? (right ? MakeColour(90, 90, 90) : MakeColour(0, 0, 255))
                     : (right ? MakeColour(0, 255, 0) : Red);
    });
}

Picture Loaded(const std::vector<std::uint8_t>& bytes) {
    PictureFile file(bytes);
    const ImagingResult result = file.LoadImage();
    EXPECT_TRUE(result.IsGood()) << result.Text;
    EXPECT_EQ(result.Image.ImageWidth(), file.ImageWidth());
    EXPECT_EQ(result.Image.ImageHeight(), file.ImageHeight());
    return result.Image;
}

void ExpectNear(Colour actual, Colour expected, int tolerance) {
    for (unsigned shift = 0; shift < 24; shift += 8) {
        EXPECT_NEAR(static_cast<int>((actual >> shift) & 255U),
                    static_cast<int>((expected >> shift) & 255U), tolerance)
            << std::hex << actual << " for " << expected;
    }
}

void ExpectQuarters(const Picture& picture, int tolerance) {
    ASSERT_EQ(picture.ImageWidth(), 32);
    ASSERT_EQ(picture.ImageHeight(), 24);
    ExpectNear(picture.ImagePixel(4, 4), Red, tolerance);
    ExpectNear(picture.ImagePixel(28, 4), MakeColour(0, 255, 0), tolerance);
    ExpectNear(picture.ImagePixel(4, 20), MakeColour(0, 0, 255), tolerance);
    ExpectNear(picture.ImagePixel(28, 20), MakeColour(90, 90, 90), tolerance);
}

TEST(Imaging, EveryFormatIsDecodedByItsContent) {
    for (const char* format : {".png", ".tif", ".gif", ".webp[lossless]", ".bmp"}) {
        SCOPED_TRACE(format);
        ExpectQuarters(Loaded(SavedAs(Quarters(), format)), 1);
    }
    ExpectQuarters(Loaded(SavedAs(Quarters(), ".jpg[Q=98]")), 10);
}

TEST(Imaging, ProgressIsToldAndStopsTheWork) {
    const VImage large = VipsPicture(1500, 1200, [](int x, int y) {
        return MakeColour(static_cast<unsigned>(x) % 256U, static_cast<unsigned>(y) % 256U, 7);
    });
    for (const int orientation : {1, 6}) {
        const auto bytes = SavedLying(large, orientation, ".png");
        RecordingProgress patient;
        EXPECT_TRUE(PictureFile(bytes).LoadImage(&patient).IsGood());
        EXPECT_FALSE(patient.updates.empty());
        RecordingProgress hasty;
        hasty.cancelAfter = 0;
        const ImagingResult stopped = PictureFile(bytes).LoadImage(&hasty);
        EXPECT_FALSE(stopped.IsGood());
        EXPECT_TRUE(stopped.Image.IsEmpty());
        EXPECT_TRUE(hasty.updates.empty());
    }
}

TEST(Imaging, HeicIsDecoded) {
    // The quarters as heif-enc saved them once: the encoder is not clean under the sanitizers.
    const ImagingResult result =
        LoadImage(std::filesystem::path(test::SourceFolder) / "tests/import/quarters.heic");
    ASSERT_TRUE(result.IsGood()) << result.Text;
    ExpectQuarters(result.Image, 12);
}

TEST(Imaging, TruncatedHeicGivesAMessageAndNoPicture) {
    const std::string whole =
        test::ReadFile(std::filesystem::path(test::SourceFolder) / "tests/import/quarters.heic");
    ASSERT_FALSE(whole.empty());
    for (std::size_t size = 0; size < whole.size() * 9 / 10; size += 9) {
        const std::vector<std::uint8_t> part(whole.begin(),
                                             whole.begin() + static_cast<std::ptrdiff_t>(size));
        const ImagingResult result = PictureFile(part).LoadImage();
        ASSERT_FALSE(result.IsGood()) << size;
        EXPECT_FALSE(result.Text.empty());
    }
}

TEST(Imaging, AFileIsReadLikeItsBytesWhateverItsName) {
    const test::TempFolder folder;
    const std::vector<std::uint8_t> bytes = SavedAs(Quarters(), ".png");
    test::WriteFile(folder / "picture.jpg", {bytes.begin(), bytes.end()});
    const ImagingResult result = LoadImage(folder / "picture.jpg");
    ASSERT_TRUE(result.IsGood()) << result.Text;
    EXPECT_EQ(result.Image, Loaded(bytes));
}

TEST(Imaging, DepthIsFiveBitsAChannel) {
    const VImage image = VipsPicture(256, 1, [](int x, int) {
        const auto c = static_cast<unsigned>(x);
        return MakeColour(c, 255 - c, c / 2);
    });
    const Picture picture = Loaded(SavedAs(image, ".png"));
    for (unsigned c = 0; c < 256; ++c) {
        EXPECT_EQ(picture.ImagePixel(static_cast<int>(c), 0),
                  MakeColour(DepthOf16Bits(c), DepthOf16Bits(255 - c), DepthOf16Bits(c / 2)));
    }
}

TEST(Imaging, OrientationTurnsThePictureUpright) {
    // The picture that stands upright: red, green over blue, grey. Orientation 6 is stored lying on
    // its left side.
    for (const int orientation : {1, 2, 3, 4, 5, 6, 7, 8}) {
        SCOPED_TRACE(orientation);
        ExpectQuarters(Loaded(test::SavedLying(Quarters(), orientation, ".tif")), 1);
        ExpectQuarters(Loaded(test::SavedLying(Quarters(), orientation, ".jpg[Q=98]")), 10);
    }
}

TEST(Imaging, SizeAndCropAreThoseOfTheUprightPicture) {
    const auto bytes = test::SavedLying(Quarters(), 6, ".tif");
    PictureFile file(bytes);
    EXPECT_EQ(file.ImageWidth(), 32);
    EXPECT_EQ(file.ImageHeight(), 24);
    const ImagingResult part = file.LoadForImport({PixelRect{16, 0, 16, 12}, {4, 3}, true});
    ASSERT_TRUE(part.IsGood()) << part.Text;
    EXPECT_EQ(part.Image.Pixels(), std::vector<Colour>(12, MakeColour(0, 255, 0)));
}

TEST(Imaging, AnEmbeddedProfileIsHonoured) {
    // The same numbers mean a stronger green in the wider space.
    const VImage image = VipsPicture(8, 8, [](int, int) { return MakeColour(100, 200, 100); });
    const VImage wide = image.icc_transform("p3", VImage::option()->set("input_profile", "srgb"));
    const Picture plain = Loaded(SavedAs(image, ".png"));
    const Picture honoured = Loaded(SavedAs(wide, ".png"));
    ExpectNear(honoured.ImagePixel(3, 3), plain.ImagePixel(3, 3), 8);
    const VImage bare = wide.copy();
    bare.remove(VIPS_META_ICC_NAME);
    const Picture ignored = Loaded(SavedAs(bare, ".png"));
    EXPECT_GT(static_cast<int>(ignored.ImagePixel(3, 3) & 255U),
              static_cast<int>(honoured.ImagePixel(3, 3) & 255U) + 8);
}

TEST(Imaging, AProfileThatDoesNotFitIsPassedOver) {
    VImage image = Quarters();
    const std::string nonsense = "this is not a profile";
    vips_image_set_blob_copy(image.get_image(), VIPS_META_ICC_NAME, nonsense.data(),
                             nonsense.size());
    ExpectQuarters(Loaded(SavedAs(image, ".tif")), 1);
}

TEST(Imaging, CmykBecomesColours) {
    const VImage cmyk =
        Quarters().icc_transform("cmyk", VImage::option()->set("input_profile", "srgb"));
    ASSERT_EQ(cmyk.bands(), 4);
    const Picture picture = Loaded(SavedAs(cmyk, ".jpg[Q=98]"));
    ExpectNear(picture.ImagePixel(4, 4), MakeColour(240, 30, 35), 45);
    ExpectNear(picture.ImagePixel(28, 20), MakeColour(90, 90, 90), 24);
}

TEST(Imaging, SixteenBitsAChannelAndGreyAndOneBitAreRead) {
    const VImage image = Quarters();
    ExpectQuarters(Loaded(SavedAs(image.colourspace(VIPS_INTERPRETATION_RGB16), ".png")), 1);
    const VImage grey = VipsPicture(32, 24,
                                    [](int x, int) {
                                        const unsigned level = x < 16 ? 0 : 200;
                                        return MakeColour(level, level, level);
                                    })
                            .extract_band(0)
                            .copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_B_W));
    for (const char* format : {".png", ".jpg[Q=98]", ".tif"}) {
        const Picture picture = Loaded(SavedAs(grey, format));
        ExpectNear(picture.ImagePixel(28, 4), MakeColour(200, 200, 200), 8);
        ExpectNear(picture.ImagePixel(4, 4), 0, 8);
    }
    const Picture bilevel =
        Loaded(SavedAs(grey.linear(255.0 / 200, 0).cast(VIPS_FORMAT_UCHAR), ".tif[bitdepth=1]"));
    EXPECT_EQ(bilevel.ImagePixel(28, 4), 0x00FFFFFFU);
    EXPECT_EQ(bilevel.ImagePixel(4, 4), 0U);
}

TEST(Imaging, FullyTransparentPixelsCountAsErasedAndOthersShowOverWhite) {
    const VImage opacity = VipsPicture(4, 1, [](int x, int) {
                               return static_cast<Colour>(x == 0 ? 0 : (x == 1 ? 128 : 255));
                           }).extract_band(0);
    const VImage black = VipsPicture(4, 1, [](int x, int) { return x == 3 ? 0x00FFFFFFU : 0U; });
    for (const char* format : {".png", ".webp[lossless]", ".tif"}) {
        SCOPED_TRACE(format);
        Picture picture = Loaded(SavedAs(black.bandjoin(opacity), format));
        EXPECT_EQ(picture.ImagePixel(0, 0), TransparentPixel);
        ExpectNear(picture.ImagePixel(1, 0), MakeColour(123, 123, 123), 4);
        EXPECT_EQ(picture.ImagePixel(2, 0), 0U);
        RemapWhite(picture);
        EXPECT_EQ(picture.ImagePixel(0, 0), EraseColor);
        EXPECT_EQ(picture.ImagePixel(3, 0), WhiteStandIn);
    }
}

TEST(Imaging, TheFirstPictureOfAnAnimationIsRead) {
    VImage frames =
        Quarters().join(VipsPicture(32, 24, [](int, int) { return 0U; }), VIPS_DIRECTION_VERTICAL);
    frames = frames.copy();
    frames.set("page-height", 24);
    ExpectQuarters(Loaded(SavedAs(frames, ".gif")), 1);
    ExpectQuarters(Loaded(SavedAs(frames, ".webp[lossless]")), 1);
}

TEST(Imaging, APictureOfOnePixelWorks) {
    const VImage one = VipsPicture(1, 1, [](int, int) { return Red; });
    for (const char* format : {".png", ".tif", ".gif", ".webp[lossless]", ".bmp", ".jpg"}) {
        const auto bytes = SavedAs(one, format);
        ASSERT_EQ(Loaded(bytes).Pixels().size(), 1U);
        PictureFile file(bytes);
        const ImagingResult result = file.LoadForImport({std::nullopt, {5, 7}, true});
        ASSERT_TRUE(result.IsGood()) << format << result.Text;
        for (const Colour pixel : result.Image.Pixels()) {
            ExpectNear(pixel, Red, 8);
        }
    }
}

TEST(Imaging, WithoutSmoothingAndAtEqualSizePixelsReachTheMatchingUnchanged) {
    test::Random32 random(3);
    const VImage image = VipsPicture(37, 23, [&random](int, int) { return random() & 0xFFFFFFU; });
    const auto bytes = SavedAs(image, ".png");
    PictureFile file(bytes);
    const ImagingResult result = file.LoadForImport({std::nullopt, {37, 23}, false});
    Picture expected = Loaded(bytes);
    RemapWhite(expected);
    EXPECT_EQ(result.Image, expected);
}

/// One step after the other, as the wizard's screens do it.
Picture InSteps(const std::vector<std::uint8_t>& bytes, const ImportRequest& request) {
    Picture picture = Loaded(bytes);
    if (request.Crop) {
        picture = CropPicture(picture, *request.Crop);
    }
    RemapWhite(picture);
    return ResampleBitmap(picture, request.Size.Width, request.Size.Height,
                          request.SmoothColors ? ResampleFlag::Smooth : ResampleFlag::Nearest)
        .Image;
}

TEST(Imaging, TheOnePipelineGivesTheSamePixelsAsTheSteps) {
    test::Random32 random(5);
    const VImage noise = VipsPicture(90, 61, [&random](int, int) {
        return random() % 3 == 0 ? 0xFFFFFFU : random() & 0xFFFFFFU;
    });
    const VImage opacity = VipsPicture(90, 61, [&random](int, int) {
                               return static_cast<Colour>(random() % 2 * 255);
                           }).extract_band(0);
    const std::vector<ImportRequest> requests{{std::nullopt, {30, 20}, true},
                                              {std::nullopt, {89, 61}, true},
                                              {std::nullopt, {90, 61}, true},
                                              {std::nullopt, {200, 10}, true},
                                              {PixelRect{7, 11, 40, 33}, {13, 9}, true},
                                              {std::nullopt, {1, 1}, true},
                                              {std::nullopt, {31, 17}, false},
                                              {PixelRect{7, 11, 40, 33}, {80, 99}, false}};
    for (const VImage& image : {noise, noise.bandjoin(opacity)}) {
        const auto bytes = SavedAs(image, ".png");
        for (const ImportRequest& request : requests) {
            PictureFile file(bytes);
            const ImagingResult result = file.LoadForImport(request);
            ASSERT_TRUE(result.IsGood()) << result.Text;
            EXPECT_EQ(result.Image, InSteps(bytes, request))
                << request.Size.Width << " x " << request.Size.Height;
        }
    }
}

TEST(Imaging, SmoothingMixesLightAndNotValues) {
    Picture picture(64, 64);
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            picture.SetImagePixel(x, y, (x + y) % 2 == 0 ? 0U : MakeColour(247, 0, 247));
        }
    }
    const ImagingResult result = ResampleBitmap(picture, 4, 4, ResampleFlag::Smooth);
    ASSERT_TRUE(result.IsGood());
    ExpectNear(result.Image.ImagePixel(2, 2), MakeColour(182, 0, 182), 2); // values would give 124
}

TEST(Imaging, SmoothingNeverMakesAnEmptySquareOfARealWhite) {
    test::Random32 random(9);
    Picture picture(120, 90);
    for (Colour& pixel : picture.Pixels()) {
        // Next to white, and hard edges to black, where a kernel with lobes would overshoot.
        const Colour near[] = {0x00FFFFF7, 0x00FFF7FF, 0x00F7FFFF, WhiteStandIn, 0};
        pixel = near[random() % 5];
    }
    for (const StitchSize size :
         {StitchSize{40, 30}, StitchSize{119, 89}, StitchSize{301, 200}, StitchSize{7, 5}}) {
        const ImagingResult result =
            ResampleBitmap(picture, size.Width, size.Height, ResampleFlag::Smooth);
        ASSERT_TRUE(result.IsGood());
        for (const Colour pixel : result.Image.Pixels()) {
            ASSERT_NE(pixel, EraseColor);
        }
    }
}

TEST(Imaging, ErasedPixelsGiveNoneOfTheirWhiteToTheirNeighbours) {
    Picture picture(60, 60);
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 31; ++x) {
            picture.SetImagePixel(x, y, Red);
        }
    }
    for (const StitchSize size : {StitchSize{7, 7}, StitchSize{59, 59}, StitchSize{95, 80}}) {
        const ImagingResult result =
            ResampleBitmap(picture, size.Width, size.Height, ResampleFlag::Smooth);
        ASSERT_TRUE(result.IsGood());
        ASSERT_EQ(result.Image.ImageWidth(), size.Width);
        for (const Colour pixel : result.Image.Pixels()) {
            ASSERT_TRUE(pixel == Red || pixel == EraseColor) << std::hex << pixel;
        }
        EXPECT_EQ(result.Image.ImagePixel(0, 0), Red);
        EXPECT_EQ(result.Image.ImagePixel(size.Width - 1, 0), EraseColor);
    }
}

TEST(Imaging, EveryResultHasExactlyTheSizeAskedFor) {
    const Picture picture(97, 61);
    for (int width = 1; width < 240; width += 7) {
        for (int height = 1; height < 150; height += 11) {
            const Picture result =
                ResampleBitmap(picture, width, height, ResampleFlag::Smooth).Image;
            ASSERT_EQ(result.ImageWidth(), width);
            ASSERT_EQ(result.ImageHeight(), height);
        }
    }
    const Picture none = ResampleBitmap(picture, 0, -4, ResampleFlag::Smooth).Image;
    EXPECT_EQ(none.Pixels().size(), 1U);
}

TEST(Imaging, ASavedPictureComesBackAsJpeg) {
    const test::TempFolder folder;
    Picture picture(16, 16);
    for (Colour& pixel : picture.Pixels()) {
        pixel = MakeColour(80, 160, 40);
    }
    ASSERT_EQ(SaveImage(picture, folder / "LastImport.jpg"), 0);
    EXPECT_EQ(test::ReadFile(folder / "LastImport.jpg").substr(0, 3), "\xFF\xD8\xFF");
    const ImagingResult result = LoadImage(folder / "LastImport.jpg");
    ASSERT_TRUE(result.IsGood()) << result.Text;
    ExpectNear(result.Image.ImagePixel(8, 8), MakeColour(80, 160, 40), 10);
    EXPECT_NE(SaveImage(picture, folder / "missing/x.jpg"), 0);
}

TEST(Imaging, ASaveThatIsStoppedAtAnyPointLeavesTheOldFile) {
    const test::TempFolder folder;
    const auto file = folder / "LastImport.jpg";
    test::WriteFile(file, "old");
    const Picture picture(64, 2000);
    // While it is encoded it is asked now and then; before it is written, once in any case.
    int granted = 0;
    for (;; ++granted) {
        test::RecordingProgress progress;
        progress.cancelAfter = granted;
        if (SaveImage(picture, file, &progress) == 0) {
            EXPECT_LE(progress.asked, granted);
            break;
        }
        ASSERT_GT(progress.asked, granted);
        ASSERT_EQ(test::ReadFile(file), "old") << granted;
    }
    EXPECT_GE(granted, 1);
    EXPECT_NE(test::ReadFile(file), "old");
}

} // namespace
