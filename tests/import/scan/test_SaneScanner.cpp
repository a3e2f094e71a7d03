// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <functional>
#include <string>

#include "import/PictureOps.h"
#include "import/scan/SaneScanner.h"
#include "import/scan/SaneTestDevice.h"
#include "import/scan/ScanWatchers.h"

using namespace zol;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using zol::test::KeepingWatcher;
using zol::test::SaneTestDevice;

namespace {

using Kind = ScanProblem::Kind;

constexpr Colour Black = 0;
constexpr Colour White = 0x00FFFFFF;

/// 25.4 millimetres at 100 dots an inch are 100 pixels.
ScanRequest HundredPixels(const char* mode, int depth = 8) {
    ScanRequest request;
    request.Source = SaneTestDevice::Name;
    request.Mode = mode;
    request.Resolution = 100;
    request.Depth = depth;
    request.Area = ScanArea{0.0, 0.0, 25.0, 25.0};
    return request;
}

/// The first pixel that is not as told, in words; empty if there is none.
std::string FirstDifference(const Picture& image, const std::function<Colour(int, int)>& expected) {
    if (image.IsEmpty()) {
        return "there is no picture";
    }
    for (int y = 0; y < image.ImageHeight(); ++y) {
        for (int x = 0; x < image.ImageWidth(); ++x) {
            if (image.ImagePixel(x, y) != expected(x, y)) {
                return "at " + std::to_string(x) + ", " + std::to_string(y) + ": " +
                       std::to_string(image.ImagePixel(x, y)) + " instead of " +
                       std::to_string(expected(x, y));
            }
        }
    }
    return {};
}

Colour GrayOf(unsigned level) {
    return MakeColour(level, level, level);
}

Colour ReducedTo16Bits(Colour colour) {
    return MakeColour(DepthOf16Bits(colour & 255U), DepthOf16Bits((colour >> 8U) & 255U),
                      DepthOf16Bits((colour >> 16U) & 255U));
}

// The device's color pattern: cells of five pixels whose first row and column is a gray line. From
// cell to cell the level rises along one row of cells and falls along the next.

constexpr unsigned LineLevel = 0x55;

bool IsOnLine(int x, int y) {
    return x % 5 == 0 || y % 5 == 0;
}

unsigned LevelAt(int x, int y) {
    const auto step = static_cast<unsigned>(x / 5) % 256U;
    return y / 5 % 2 == 0 ? step : 255U - step;
}

Colour GrayPattern(int x, int y) {
    return GrayOf(IsOnLine(x, y) ? LineLevel : LevelAt(x, y));
}

/// In color two rows of cells each are red, green and blue.
Colour ColourPattern(int x, int y) {
    if (IsOnLine(x, y)) {
        return GrayOf(LineLevel);
    }
    const int channel = y / 10 % 3;
    return LevelAt(x, y) << (8U * static_cast<unsigned>(channel));
}

ScanResult Scan(const ScanRequest& request) {
    SaneScanner scanner;
    KeepingWatcher watcher;
    return scanner.Acquire(request, watcher);
}

} // namespace

TEST(SaneScanner, FindsTheDevice) {
    const SaneTestDevice device;
    SaneScanner scanner;
    KeepingWatcher watcher;
    const SourcesFound found = scanner.FindSources(watcher);
    EXPECT_EQ(found.Problem.Is, Kind::None) << found.Problem.Text;
    ASSERT_EQ(found.Sources.size(), 1U);
    EXPECT_EQ(found.Sources[0].Name, SaneTestDevice::Name);
    EXPECT_EQ(found.Sources[0].Words, "Noname frontend-tester");
}

TEST(SaneScanner, LooksAnewEachTimeAndTellsTwinsApart) {
    const SaneTestDevice one;
    SaneScanner scanner;
    KeepingWatcher watcher;
    EXPECT_EQ(scanner.FindSources(watcher).Sources.size(), 1U);
    const SaneTestDevice two({{"number_of_devices", "2"}});
    EXPECT_THAT(scanner.FindSources(watcher).Sources,
                ElementsAre(ScanSource{"test:0", "Noname frontend-tester (test:0)"},
                            ScanSource{"test:1", "Noname frontend-tester (test:1)"}));
}

TEST(SaneScanner, TellsWhatTheDeviceCanDo) {
    const SaneTestDevice device({{"mode", "Color"}});
    SaneScanner scanner;
    KeepingWatcher watcher;
    const AbilitiesFound found = scanner.AskAbilities(SaneTestDevice::Name, watcher);
    ASSERT_EQ(found.Problem.Is, Kind::None) << found.Problem.Text;
    EXPECT_THAT(found.Abilities.Modes, ElementsAre("Gray", "Color"));
    EXPECT_EQ(found.Abilities.Mode, "Color");
    EXPECT_THAT(found.Abilities.Resolutions, ElementsAre(75, 100, 150, 200, 300, 400, 600, 1200));
    ASSERT_TRUE(found.Abilities.Bed.has_value());
    EXPECT_EQ(*found.Abilities.Bed, (ScanArea{0.0, 0.0, 200.0, 200.0}));
}

TEST(SaneScanner, OffersTheOneResolutionOfADeviceThatHasNoUsualOne) {
    const SaneTestDevice device({{"resolution_min", "31.0"}, {"resolution_max", "60.0"}});
    SaneScanner scanner;
    KeepingWatcher watcher;
    EXPECT_THAT(scanner.AskAbilities(SaneTestDevice::Name, watcher).Abilities.Resolutions,
                ElementsAre(31));
}

TEST(SaneScanner, ScansGray) {
    const SaneTestDevice device({{"test-picture", "\"Color pattern\""}});
    ScanRequest request = HundredPixels("Gray");
    request.Preview = true;
    const ScanResult result = Scan(request);
    EXPECT_TRUE(result.IsGood()) << result.Problem.Text;
    EXPECT_EQ(result.Image.ImageWidth(), 98); // 25 mm
    EXPECT_EQ(result.Image.ImageHeight(), 98);
    EXPECT_EQ(FirstDifference(result.Image, GrayPattern), "");
}

TEST(SaneScanner, ScansColor) {
    const SaneTestDevice device({{"test-picture", "\"Color pattern\""}});
    ScanRequest request = HundredPixels("Color");
    request.Preview = true;
    EXPECT_EQ(FirstDifference(Scan(request).Image, ColourPattern), "");
}

TEST(SaneScanner, BringsAPictureToTheDepthOfAnImportedFile) {
    const SaneTestDevice device({{"test-picture", "\"Color pattern\""}});
    EXPECT_EQ(FirstDifference(Scan(HundredPixels("Color")).Image,
                              [](int x, int y) { return ReducedTo16Bits(ColourPattern(x, y)); }),
              "");
}

TEST(SaneScanner, ScansBlackAndWhite) {
    const SaneTestDevice device({{"test-picture", "\"Color pattern\""}});
    // Squares of 16 pixels, white first.
    EXPECT_EQ(
        FirstDifference(Scan(HundredPixels("Gray", 1)).Image,
                        [](int x, int y) { return (x / 16 + y / 16) % 2 == 0 ? White : Black; }),
        "");
}

TEST(SaneScanner, ScansGrayOf16Bits) {
    const SaneTestDevice device({{"test-picture", "\"Color pattern\""}});
    ScanRequest request = HundredPixels("Gray", 16);
    request.Preview = true;
    // Behind lines of four pixels each pixel is 256 above its left neighbor, so one level of 8
    // bits.
    EXPECT_EQ(FirstDifference(Scan(request).Image,
                              [](int x, int y) {
                                  return GrayOf(x < 4 || y < 4 ? LineLevel
                                                               : static_cast<unsigned>(x - 4));
                              }),
              "");
}

TEST(SaneScanner, ScansThreePassesInAnyOrder) {
    for (const char* const order : {"RGB", "BGR", "GBR"}) {
        const SaneTestDevice device({{"test-picture", "\"Color pattern\""},
                                     {"mode", "Color"},
                                     {"three-pass", "true"},
                                     {"three-pass-order", order}});
        ScanRequest request = HundredPixels("Color");
        request.Preview = true;
        SaneScanner scanner;
        KeepingWatcher watcher;
        const ScanResult result = scanner.Acquire(request, watcher);
        EXPECT_EQ(FirstDifference(result.Image, ColourPattern), "") << order;
        EXPECT_EQ(watcher.pixels, result.Image.Pixels());
        EXPECT_LT(watcher.shares.front(), 0.34);
        EXPECT_EQ(watcher.shares.back(), 1.0);
    }
}

TEST(SaneScanner, ScansSolidPictures) {
    const SaneTestDevice black({{"test-picture", "\"Solid black\""}});
    for (const int depth : {1, 8, 16}) {
        for (const char* const mode : {"Gray", "Color"}) {
            EXPECT_EQ(FirstDifference(Scan(HundredPixels(mode, depth)).Image,
                                      [](int, int) { return Black; }),
                      "")
                << mode << depth;
        }
    }
    const SaneTestDevice white({{"test-picture", "\"Solid white\""}});
    for (const int depth : {1, 8, 16}) {
        for (const char* const mode : {"Gray", "Color"}) {
            EXPECT_EQ(FirstDifference(Scan(HundredPixels(mode, depth)).Image,
                                      [](int, int) { return White; }),
                      "")
                << mode << depth;
        }
    }
}

TEST(SaneScanner, KeepsResolutionAndSizeOfTheArea) {
    const SaneTestDevice device({{"test-picture", "\"Grid\""}});
    // Squares of 10 mm from the picture's corner, white first. At this resolution no square ends
    // where a pixel does.
    ScanRequest request = HundredPixels("Gray");
    request.Resolution = 250;
    request.Area = ScanArea{30.0, 20.0, 40.0, 30.0};
    const ScanResult result = Scan(request);
    EXPECT_EQ(result.Image.ImageWidth(), 393);
    EXPECT_EQ(result.Image.ImageHeight(), 295);
    const auto squareOf = [](int pixel) { return static_cast<int>(pixel * 2.54 / 250.0); };
    EXPECT_EQ(FirstDifference(result.Image,
                              [&squareOf](int x, int y) {
                                  return (squareOf(x) + squareOf(y)) % 2 == 0 ? White : Black;
                              }),
              "");
}

TEST(SaneScanner, ScansAllThatTheDeviceSeesWithoutAnArea) {
    const SaneTestDevice device;
    ScanRequest request;
    request.Source = SaneTestDevice::Name;
    request.Resolution = 127;
    const ScanResult result = Scan(request);
    EXPECT_EQ(result.Image.ImageWidth(), 1000); // 200 mm
    EXPECT_EQ(result.Image.ImageHeight(), 1000);
}

TEST(SaneScanner, TakesAPictureWhoseHeightIsNotKnown) {
    const SaneTestDevice device({{"hand-scanner", "true"}, {"test-picture", "\"Color pattern\""}});
    ScanRequest request = HundredPixels("Gray");
    request.Area.reset();
    request.Preview = true;
    SaneScanner scanner;
    KeepingWatcher watcher;
    const ScanResult result = scanner.Acquire(request, watcher);
    EXPECT_EQ(result.Image.ImageWidth(), 433); // 11 cm
    EXPECT_GT(result.Image.ImageHeight(), 100);
    EXPECT_EQ(FirstDifference(result.Image, GrayPattern), "");
    EXPECT_EQ(watcher.heights.front(), 0);
    EXPECT_EQ(watcher.shares.back(), 0.0);
}

TEST(SaneScanner, IgnoresWhatLinesAreFilledUpWith) {
    const SaneTestDevice device(
        {{"test-picture", "\"Color pattern\""}, {"ppl-loss", "7"}, {"fuzzy-parameters", "true"}});
    ScanRequest request = HundredPixels("Color");
    request.Preview = true;
    const ScanResult result = Scan(request);
    EXPECT_EQ(result.Image.ImageWidth(), 91);
    EXPECT_EQ(FirstDifference(result.Image, ColourPattern), "");
}

TEST(SaneScanner, TakesRowsThatComeByteByByte) {
    const SaneTestDevice device({{"test-picture", "\"Color pattern\""},
                                 {"read-limit", "true"},
                                 {"read-limit-size", "5"},
                                 {"read-delay", "true"},
                                 {"read-delay-duration", "1000"}});
    ScanRequest request = HundredPixels("Color", 16);
    request.Area = ScanArea{0.0, 0.0, 5.0, 5.0};
    SaneScanner scanner;
    KeepingWatcher watcher;
    const ScanResult result = scanner.Acquire(request, watcher);
    EXPECT_TRUE(result.IsGood()) << result.Problem.Text;
    EXPECT_EQ(watcher.rows, result.Image.ImageHeight());
    EXPECT_GT(watcher.calls, 1);
}

TEST(SaneScanner, DeliversRowsWhileItScans) {
    const SaneTestDevice device({{"test-picture", "\"Color pattern\""}});
    ScanRequest request = HundredPixels("Color");
    request.Area.reset();
    request.Preview = true;
    SaneScanner scanner;
    KeepingWatcher watcher;
    const ScanResult result = scanner.Acquire(request, watcher);
    EXPECT_GT(watcher.calls, 3);
    EXPECT_EQ(watcher.heights.front(), result.Image.ImageHeight());
    EXPECT_TRUE(std::is_sorted(watcher.shares.begin(), watcher.shares.end()));
    EXPECT_EQ(watcher.shares.back(), 1.0);
    EXPECT_EQ(watcher.pixels, result.Image.Pixels());
}

TEST(SaneScanner, StopsInTheMiddleAndScansAgain) {
    const SaneTestDevice device({{"test-picture", "\"Color pattern\""},
                                 {"read-limit", "true"},
                                 {"read-limit-size", "300"}});
    SaneScanner scanner;
    KeepingWatcher impatient(10);
    const ScanResult stopped = scanner.Acquire(HundredPixels("Color"), impatient);
    EXPECT_EQ(stopped.Problem.Is, Kind::Cancelled);
    EXPECT_TRUE(stopped.Image.IsEmpty());
    KeepingWatcher patient;
    const ScanResult whole = scanner.Acquire(HundredPixels("Color"), patient);
    EXPECT_TRUE(whole.IsGood()) << whole.Problem.Text;
    EXPECT_EQ(whole.Image.ImageHeight(), 98);
}

TEST(SaneScanner, SaysThatADeviceIsGone) {
    const SaneTestDevice device;
    ScanRequest request = HundredPixels("Gray");
    request.Source = "test:7";
    const ScanResult result = Scan(request);
    EXPECT_EQ(result.Problem.Is, Kind::Failed);
    EXPECT_EQ(result.Problem.Text, "The scanner is not there any more.");
}

TEST(SaneScanner, RefusesAModeThatTheDeviceDoesNotHave) {
    const SaneTestDevice device;
    const ScanResult result = Scan(HundredPixels("Infrared"));
    EXPECT_EQ(result.Problem.Text, "The scanner does not accept these settings.");
}

TEST(SaneScanner, RefusesMoreThan200MegapixelsBeforeItScans) {
    const SaneTestDevice device({{"resolution_max", "3000.0"}, {"geometry_max", "300.0"}});
    ScanRequest request = HundredPixels("Gray");
    request.Resolution = 3000;
    request.Area.reset();
    SaneScanner scanner;
    KeepingWatcher watcher;
    const ScanResult result = scanner.Acquire(request, watcher);
    EXPECT_EQ(result.Problem.Text, "The picture would have more than 200 megapixels.");
    EXPECT_EQ(watcher.calls, 0);
}

TEST(SaneScanner, HasAClearWordWithoutSane) {
    SaneScanner scanner("libsane-that-nobody-has.so.9");
    KeepingWatcher watcher;
    const SourcesFound found = scanner.FindSources(watcher);
    EXPECT_EQ(found.Problem.Is, Kind::NoScanning);
    EXPECT_EQ(found.Problem.Text, "This computer has no software for scanners.");
    EXPECT_THAT(found.Problem.More, HasSubstr("libsane1"));
    EXPECT_THAT(found.Problem.More, HasSubstr("libsane-that-nobody-has.so.9"));
    EXPECT_THAT(found.Sources, IsEmpty());
    EXPECT_EQ(scanner.AskAbilities("test:0", watcher).Problem.Is, Kind::NoScanning);
    EXPECT_EQ(scanner.Acquire(HundredPixels("Gray"), watcher).Problem.Is, Kind::NoScanning);
}

TEST(SaneScanner, HasAClearWordForALibraryThatIsNotSane) {
    SaneScanner scanner("libc.so.6");
    KeepingWatcher watcher;
    EXPECT_EQ(scanner.FindSources(watcher).Problem.Is, Kind::NoScanning);
}
