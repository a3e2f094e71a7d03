// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <dlfcn.h>
#include <gmock/gmock.h>

#include <cstring>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

#include "import/scan/FakeSane.h"
#include "import/scan/SaneScanner.h"
#include "import/scan/ScanWatchers.h"

// What drivers do wrong, and what the device that SANE brings does not show. Errors in the middle
// are among it: that device answers with one before the thread that reads for it is ready, and is
// then told to cancel, which kills the thread. Now and then it dies with the memory locked, and the
// driver never comes back.

using namespace zol;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using zol::test::FakeFrame;
using zol::test::FakeOption;
using zol::test::FakeSane;
using zol::test::KeepingWatcher;

namespace {

using Kind = ScanProblem::Kind;

constexpr const char* Unreadable = "The scanner sent a picture that cannot be read.";
constexpr const char* TooLarge = "The picture would have more than 200 megapixels.";
constexpr SaneScanner::Patience Short{std::chrono::milliseconds(200), std::chrono::milliseconds(50),
                                      std::chrono::milliseconds(100)};

/// Cancels once the driver hangs.
class HangWatcher : public ScanWatcher {
public:
    explicit HangWatcher(FakeSane& fake) : m_fake(fake) {}
    bool MayGoOn() override {
        const std::lock_guard lock(m_fake.Mutex);
        return !m_fake.IsHanging;
    }

private:
    FakeSane& m_fake;
};

class ThrowingWatcher : public ScanWatcher {
public:
    bool MayGoOn() override { return true; }
    void TakeRows(const ScanRows& /*rows*/) override { throw std::runtime_error("out of paper"); }
};

SANE_Parameters FrameOf(int format, int width, int lines, int bytes, int depth = 8,
                        SANE_Bool last = SANE_TRUE) {
    SANE_Parameters parameters{};
    std::memcpy(&parameters.format, &format, sizeof format);
    parameters.last_frame = last;
    parameters.pixels_per_line = width;
    parameters.lines = lines;
    parameters.bytes_per_line = bytes;
    parameters.depth = depth;
    return parameters;
}

FakeFrame GrayFrame(int width, int lines) {
    return {FrameOf(SANE_FRAME_GRAY, width, lines, width),
            std::vector<SANE_Byte>(static_cast<std::size_t>(width * lines), 0x42)};
}

FakeOption Number(const char* name, SANE_Value_Type type, SANE_Range range,
                  SANE_Unit unit = SANE_UNIT_MM) {
    FakeOption option{name, type, unit, range.min, {}};
    option.Range = range;
    return option;
}

class SaneDrivers : public ::testing::Test {
protected:
    SaneDrivers() {
        void* const library = dlopen(KORVANTA_FAKE_SANE, RTLD_NOW | RTLD_LOCAL);
        const auto make = library == nullptr
                              ? nullptr
                              : reinterpret_cast<FakeSane* (*)()>(dlsym(library, "fake_sane"));
        if (make != nullptr) {
            m_fake = make();
            m_fake->Frames = {GrayFrame(4, 3)};
        }
    }
    void SetUp() override { ASSERT_NE(m_fake, nullptr) << dlerror(); }

    ScanResult Scan(const ScanRequest& request = {}) {
        SaneScanner scanner(KORVANTA_FAKE_SANE);
        return scanner.Acquire(request, m_watcher);
    }
    ScanResult ScanFrame(const SANE_Parameters& parameters, std::size_t bytes = 0) {
        m_fake->Frames = {{parameters, std::vector<SANE_Byte>(bytes, 0)}};
        return Scan();
    }
    ScanAbilities Abilities() {
        SaneScanner scanner(KORVANTA_FAKE_SANE);
        return scanner.AskAbilities("fake", m_watcher).Abilities;
    }
    void AddArea(SANE_Unit unit, double mm = 1.0) {
        const SANE_Range across{0, SANE_FIX(200.0 * mm), 0};
        const SANE_Range down{0, SANE_FIX(300.0 * mm), 0};
        for (const auto& [name, range] : {std::pair("tl-x", across), std::pair("br-x", across),
                                          std::pair("tl-y", down), std::pair("br-y", down)}) {
            m_fake->Options.push_back(Number(name, SANE_TYPE_FIXED, range, unit));
        }
    }

    FakeSane* m_fake = nullptr;
    KeepingWatcher m_watcher;
};

} // namespace

TEST_F(SaneDrivers, OneThreadCallsAndAllIsGivenBack) {
    {
        SaneScanner scanner(KORVANTA_FAKE_SANE);
        EXPECT_EQ(m_fake->Inits, 0) << "loaded before anything was asked";
        static_cast<void>(scanner.FindSources(m_watcher));
        std::thread([&scanner] {
            KeepingWatcher watcher;
            static_cast<void>(scanner.AskAbilities("fake", watcher));
            EXPECT_TRUE(scanner.Acquire({}, watcher).IsGood());
        }).join();
        static_cast<void>(scanner.FindSources(m_watcher));
    }
    EXPECT_THAT(m_fake->Threads, SizeIs(1));
    EXPECT_EQ(m_fake->Threads.count(std::this_thread::get_id()), 0U);
    EXPECT_EQ(m_fake->Inits, 2); // anew for each look
    EXPECT_EQ(m_fake->Exits, m_fake->Inits);
    EXPECT_EQ(m_fake->Opens, 2);
    EXPECT_EQ(m_fake->Closes, m_fake->Opens);
    EXPECT_EQ(m_fake->Cancels, 1) << "SANE wants to hear of a scan's end";
}

TEST_F(SaneDrivers, ADeviceThatGoesAwayDuringAScanIsGivenBack) {
    m_fake->Frames = {GrayFrame(4, 3)};
    m_fake->Frames[0].Bytes.resize(5);
    m_fake->Frames[0].End = SANE_STATUS_IO_ERROR;
    const ScanResult result = Scan();
    EXPECT_EQ(result.Problem.Text, "The connection to the scanner was lost.");
    EXPECT_THAT(result.Problem.More, HasSubstr("(SANE: as SANE calls it)"));
    EXPECT_TRUE(result.Image.IsEmpty());
    EXPECT_EQ(m_fake->Closes, 1);
    EXPECT_EQ(m_watcher.rows, 1);
}

TEST_F(SaneDrivers, WhatADeviceReportsIsSaid) {
    const std::pair<SANE_Status, const char*> cases[] = {
        {SANE_STATUS_UNSUPPORTED, "The scanner cannot do what it was asked to."},
        {SANE_STATUS_CANCELLED, "The scanner stopped the scan."},
        {SANE_STATUS_DEVICE_BUSY, "The scanner is busy."},
        {SANE_STATUS_INVAL, "The scanner does not accept these settings."},
        {SANE_STATUS_JAMMED, "Paper is jammed in the scanner."},
        {SANE_STATUS_NO_DOCS, "There is nothing in the document feeder."},
        {SANE_STATUS_COVER_OPEN, "The scanner's cover is open."},
        {SANE_STATUS_IO_ERROR, "The connection to the scanner was lost."},
        {SANE_STATUS_NO_MEM, "There is not enough memory for this scan."},
        {SANE_STATUS_ACCESS_DENIED, "You are not allowed to use this scanner."},
        {SANE_STATUS_EOF, Unreadable},
    };
    for (const auto& [status, text] : cases) {
        m_fake->Frames[0] = {FrameOf(SANE_FRAME_GRAY, 4, 3, 4), {}, status};
        const ScanResult result = Scan();
        EXPECT_EQ(result.Problem.Is, Kind::Failed) << status;
        EXPECT_EQ(result.Problem.Text, text);
        EXPECT_THAT(result.Problem.More, HasSubstr("(SANE: ")) << status;
        EXPECT_TRUE(result.Image.IsEmpty());
    }
}

TEST_F(SaneDrivers, ScansAgainAfterAnError) {
    SaneScanner scanner(KORVANTA_FAKE_SANE);
    m_fake->Frames[0].End = SANE_STATUS_IO_ERROR;
    EXPECT_FALSE(scanner.Acquire({}, m_watcher).IsGood());
    m_fake->Frames[0].End = SANE_STATUS_EOF;
    EXPECT_TRUE(scanner.Acquire({}, m_watcher).IsGood());
}

TEST_F(SaneDrivers, NamesOfMakersComeInEitherCharacterSet) {
    m_fake->Devices = {{"a", "M\xFCller", "Scan", "flatbed"},
                       {"b", "M\xC3\xBCller", "Color", "flatbed"},
                       {"c", "", "", ""},
                       {"d", nullptr, nullptr, nullptr},
                       {nullptr, "x", "y", "z"}};
    SaneScanner scanner(KORVANTA_FAKE_SANE);
    EXPECT_THAT(scanner.FindSources(m_watcher).Sources,
                ElementsAre(ScanSource{"a", "M\xC3\xBCller Scan"},
                            ScanSource{"b", "M\xC3\xBCller Color"}, ScanSource{"c", "c"},
                            ScanSource{"d", "d"}));
}

TEST_F(SaneDrivers, FailuresBeforeAScanAreSaid) {
    m_fake->OfStart = SANE_STATUS_COVER_OPEN;
    EXPECT_EQ(Scan().Problem.Text, "The scanner's cover is open.");
    m_fake->OfOpen = SANE_STATUS_ACCESS_DENIED;
    EXPECT_EQ(Scan().Problem.Text, "You are not allowed to use this scanner.");
    m_fake->OfInit = SANE_STATUS_NO_MEM;
    EXPECT_EQ(Scan().Problem.Text, "There is not enough memory for this scan.");
    m_fake->OfInit = SANE_STATUS_GOOD;
    m_fake->OfGetDevices = SANE_STATUS_IO_ERROR;
    SaneScanner scanner(KORVANTA_FAKE_SANE);
    EXPECT_EQ(scanner.FindSources(m_watcher).Problem.Is, Kind::Failed);
}

TEST_F(SaneDrivers, AnotherMajorVersionIsNotCalled) {
    m_fake->Version = SANE_VERSION_CODE(2, 0, 0);
    EXPECT_EQ(Scan().Problem.Is, Kind::NoScanning);
    EXPECT_EQ(m_fake->Opens, 0);
    EXPECT_EQ(m_fake->Exits, 1);
}

TEST_F(SaneDrivers, FramesThatMakeNoSenseAreRefused) {
    const std::pair<SANE_Parameters, const char*> cases[] = {
        {FrameOf(11, 4, 3, 4), Unreadable},                  // a format of later releases
        {FrameOf(SANE_FRAME_GRAY, 4, 3, 4, 12), Unreadable}, // bits a sample
        {FrameOf(SANE_FRAME_GRAY, 4, 3, 4, 0), Unreadable},
        {FrameOf(SANE_FRAME_GRAY, 4, 3, 4, -8), Unreadable},
        {FrameOf(SANE_FRAME_GRAY, 0, 3, 4), Unreadable}, // no width
        {FrameOf(SANE_FRAME_GRAY, -4, 3, 4), Unreadable},
        {FrameOf(SANE_FRAME_GRAY, 4, 0, 4), Unreadable}, // no height
        {FrameOf(SANE_FRAME_GRAY, 4, -2, 4), Unreadable},
        {FrameOf(SANE_FRAME_GRAY, 4, 3, 3), Unreadable}, // less than a line
        {FrameOf(SANE_FRAME_RGB, 4, 3, 11), Unreadable},
        {FrameOf(SANE_FRAME_RGB, 4, 3, 23, 16), Unreadable},
        {FrameOf(SANE_FRAME_GRAY, 4, 3, -4), Unreadable},
        {FrameOf(SANE_FRAME_GRAY, 4, 3, 2000000000), Unreadable}, // far more than a line
        {FrameOf(SANE_FRAME_RGB, 20000, 10001, 60000), TooLarge},
        {FrameOf(SANE_FRAME_RGB, 2147483647, 2147483647, 2147483647, 16), TooLarge},
        {FrameOf(SANE_FRAME_GRAY, 200000001, -1, 200000001), TooLarge},
        {FrameOf(SANE_FRAME_RED, 4, 3, 4), Unreadable}, // the last one, and no other colors
    };
    for (const auto& [parameters, text] : cases) {
        const ScanResult result = ScanFrame(parameters, 100);
        EXPECT_EQ(result.Problem.Text, text) << result.Problem.More;
        EXPECT_TRUE(result.Image.IsEmpty());
    }
}

TEST_F(SaneDrivers, AnAbsurdSizeIsRefusedBeforeTheDeviceMoves) {
    EXPECT_EQ(ScanFrame(FrameOf(SANE_FRAME_GRAY, 20000, 10001, 20000)).Problem.Text, TooLarge);
    EXPECT_EQ(m_fake->Starts, 0);
}

TEST_F(SaneDrivers, APictureThatEndsEarlyIsRefused) {
    EXPECT_EQ(ScanFrame(FrameOf(SANE_FRAME_GRAY, 4, 3, 4), 11).Problem.Text, Unreadable);
    EXPECT_EQ(ScanFrame(FrameOf(SANE_FRAME_GRAY, 4, 3, 4), 0).Problem.Text, Unreadable);
    EXPECT_EQ(ScanFrame(FrameOf(SANE_FRAME_GRAY, 4, -1, 4), 3).Problem.Text, Unreadable);
}

TEST_F(SaneDrivers, BytesAfterTheLastRowAreDropped) {
    const ScanResult result = ScanFrame(FrameOf(SANE_FRAME_GRAY, 4, 3, 4), 100);
    EXPECT_TRUE(result.IsGood()) << result.Problem.More;
    EXPECT_EQ(result.Image.ImageHeight(), 3);
}

TEST_F(SaneDrivers, LyingAboutWhatWasReadIsNoticed) {
    for (const SANE_Int length : {-1, 40000}) {
        m_fake->ReadLength = length;
        EXPECT_EQ(Scan().Problem.Text, Unreadable);
    }
}

TEST_F(SaneDrivers, ADeviceMayTakeItsTime) {
    m_fake->EmptyReads = 3;
    EXPECT_TRUE(Scan().IsGood());
}

TEST_F(SaneDrivers, FramesOfThreeColorsMustFit) {
    const auto pass = [](SANE_Frame format, int width, int lines, SANE_Bool last) {
        return FakeFrame{FrameOf(format, width, lines, width, 8, last),
                         std::vector<SANE_Byte>(static_cast<std::size_t>(width * lines), 0xFF)};
    };
    m_fake->Frames = {pass(SANE_FRAME_BLUE, 2, 2, SANE_FALSE),
                      pass(SANE_FRAME_RED, 2, 2, SANE_FALSE),
                      pass(SANE_FRAME_GREEN, 2, 2, SANE_TRUE)};
    const ScanResult whole = Scan();
    EXPECT_EQ(whole.Image.Pixels(), std::vector<Colour>(4, 0x00FFFFFF));
    m_fake->Frames[1] = pass(SANE_FRAME_BLUE, 2, 2, SANE_FALSE);
    EXPECT_THAT(Scan().Problem.More, HasSubstr("the same color twice"));
    m_fake->Frames[1] = pass(SANE_FRAME_RED, 3, 2, SANE_FALSE);
    EXPECT_THAT(Scan().Problem.More, HasSubstr("frames of two sizes"));
    m_fake->Frames[1] = pass(SANE_FRAME_RED, 2, 3, SANE_FALSE);
    EXPECT_THAT(Scan().Problem.More, HasSubstr("frames of two sizes"));
    m_fake->Frames[1] = pass(SANE_FRAME_RED, 2, 1, SANE_FALSE);
    EXPECT_THAT(Scan().Problem.More, HasSubstr("frames of two sizes"));
    m_fake->Frames[1] = pass(SANE_FRAME_GRAY, 2, 2, SANE_FALSE);
    EXPECT_THAT(Scan().Problem.More, HasSubstr("the same color twice"));
    m_fake->Frames.resize(1);
    EXPECT_EQ(Scan().Problem.Text, "There is nothing in the document feeder.");
}

TEST_F(SaneDrivers, ColorsOfOneBitLieEightByEight) {
    // Nine pixels: three bytes for the first eight, three for the ninth; a set bit is light.
    m_fake->Frames = {{FrameOf(SANE_FRAME_RGB, 9, 1, 6, 1), {0x80, 0x40, 0x20, 0x80, 0, 0x80}}};
    const ScanResult result = Scan();
    EXPECT_EQ(result.Image.Pixels(),
              (std::vector<Colour>{0xFF, 0xFF00, 0xFF0000, 0, 0, 0, 0, 0, 0xFF00FF}));
}

TEST_F(SaneDrivers, ADriverThatHangsInAScanIsCancelledFromOutside) {
    m_fake->Frames[0].Bytes.resize(4);
    m_fake->HangsIn = FakeSane::Place::Read;
    m_fake->CancelLetsGo = true;
    {
        SaneScanner scanner(KORVANTA_FAKE_SANE, Short);
        HangWatcher watcher(*m_fake);
        EXPECT_EQ(scanner.Acquire({}, watcher).Problem.Is, Kind::Cancelled);
        m_fake->AwaitAllClosed();
        // The device is free again.
        m_fake->Frames = {GrayFrame(4, 3)};
        EXPECT_TRUE(scanner.Acquire({}, m_watcher).IsGood());
    }
    EXPECT_EQ(m_fake->Closes, 2);
}

TEST_F(SaneDrivers, ADriverThatNeverComesBackKeepsNobody) {
    m_fake->Frames[0].Bytes.resize(4);
    m_fake->HangsIn = FakeSane::Place::Read;
    {
        SaneScanner scanner(KORVANTA_FAKE_SANE, Short);
        HangWatcher watcher(*m_fake);
        EXPECT_EQ(scanner.Acquire({}, watcher).Problem.Is, Kind::Cancelled);
        const SourcesFound found = scanner.FindSources(m_watcher);
        EXPECT_EQ(found.Problem.Text, "The scanner does not answer.");
        // And the program may end.
    }
    m_fake->LetGo();
    m_fake->AwaitExit();
}

TEST_F(SaneDrivers, ALookThatTakesLongCanBeLeft) {
    m_fake->HangsIn = FakeSane::Place::GetDevices;
    SaneScanner scanner(KORVANTA_FAKE_SANE, Short);
    HangWatcher watcher(*m_fake);
    EXPECT_EQ(scanner.FindSources(watcher).Problem.Is, Kind::Cancelled);
    m_fake->LetGo();
    EXPECT_EQ(scanner.FindSources(m_watcher).Problem.Is, Kind::None);
}

TEST_F(SaneDrivers, AWatcherThatThrowsStopsTheScan) {
    m_fake->Frames = {GrayFrame(1000, 1000)};
    SaneScanner scanner(KORVANTA_FAKE_SANE);
    ThrowingWatcher watcher;
    EXPECT_THROW(static_cast<void>(scanner.Acquire({}, watcher)), std::runtime_error);
    m_fake->AwaitAllClosed();
    m_fake->Frames = {GrayFrame(4, 3)};
    EXPECT_TRUE(scanner.Acquire({}, m_watcher).IsGood());
}

TEST_F(SaneDrivers, AbilitiesOfADeviceWithoutOptions) {
    const ScanAbilities abilities = Abilities();
    EXPECT_THAT(abilities.Resolutions, IsEmpty());
    EXPECT_THAT(abilities.Modes, IsEmpty());
    EXPECT_FALSE(abilities.Bed.has_value());
    EXPECT_TRUE(Scan({"fake", 300, {}, std::nullopt, true, 8}).IsGood());
    EXPECT_THAT(m_fake->Sets, IsEmpty());
}

TEST_F(SaneDrivers, ResolutionsOfAListAreSortedAndTheNearestIsTaken) {
    FakeOption resolution{"resolution", SANE_TYPE_INT, SANE_UNIT_DPI, 300, {}};
    resolution.Words = {600, 75, 300, 75, 0, -5, 99999};
    m_fake->Options = {resolution};
    EXPECT_THAT(Abilities().Resolutions, ElementsAre(75, 300, 600));
    EXPECT_TRUE(Scan({"fake", 200, {}, std::nullopt, false, 8}).IsGood());
    EXPECT_THAT(m_fake->Sets, ElementsAre("resolution=300"));
}

TEST_F(SaneDrivers, StepsOfARangeAreKept) {
    m_fake->Options = {Number("resolution", SANE_TYPE_FIXED,
                              {SANE_FIX(50.0), SANE_FIX(330.0), SANE_FIX(100.0)}, SANE_UNIT_DPI)};
    for (const auto& [wanted, got] :
         {std::pair(120, 150.0), {199, 150.0}, {201, 250.0}, {9600, 250.0}, {1, 50.0}}) {
        m_fake->Sets.clear();
        EXPECT_TRUE(Scan({"fake", wanted, {}, std::nullopt, false, 8}).IsGood());
        EXPECT_THAT(m_fake->Sets, ElementsAre("resolution=" + std::to_string(SANE_FIX(got))));
    }
}

TEST_F(SaneDrivers, EverythingIsSetInTheOrderInWhichItDepends) {
    FakeOption mode{"mode", SANE_TYPE_STRING, SANE_UNIT_NONE, 0, "Gray"};
    mode.Texts = {"Gray", "Color"};
    mode.Size = 16;
    FakeOption source{"source", SANE_TYPE_STRING, SANE_UNIT_NONE, 0, "ADF"};
    source.Texts = {"ADF", "Flatbed"};
    source.Size = 16;
    FakeOption depth{"depth", SANE_TYPE_INT, SANE_UNIT_BIT, 16, {}};
    depth.Words = {8, 16};
    m_fake->Options = {depth, mode, source, {"preview", SANE_TYPE_BOOL, SANE_UNIT_NONE, 0, {}}};
    AddArea(SANE_UNIT_MM);
    const ScanRequest request{"fake", 0, "Color", ScanArea{10.0, 20.0, 30.0, 40.0}, true, 8};
    EXPECT_TRUE(Scan(request).IsGood());
    const auto fixed = [](const char* name, double value) {
        return name + ("=" + std::to_string(SANE_FIX(value)));
    };
    EXPECT_THAT(m_fake->Sets,
                ElementsAre("source=Flatbed", "mode=Color", "preview=1", "depth=8",
                            fixed("tl-x", 0.0), fixed("br-x", 40.0), fixed("tl-x", 10.0),
                            fixed("tl-y", 0.0), fixed("br-y", 60.0), fixed("tl-y", 20.0)));
}

TEST_F(SaneDrivers, AreasInPixelsGoByTheResolution) {
    FakeOption resolution{"resolution", SANE_TYPE_INT, SANE_UNIT_DPI, 254, {}};
    resolution.Words = {254};
    m_fake->Options = {resolution};
    AddArea(SANE_UNIT_PIXEL, 10.0);
    const ScanAbilities abilities = Abilities();
    ASSERT_TRUE(abilities.Bed.has_value());
    EXPECT_NEAR(abilities.Bed->Width, 200.0, 1e-9);
    EXPECT_NEAR(abilities.Bed->Height, 300.0, 1e-9);
    EXPECT_TRUE(Scan({"fake", 254, {}, ScanArea{10.0, 0.0, 20.0, 30.0}, false, 8}).IsGood());
    EXPECT_EQ(m_fake->Find("tl-x")->Word, SANE_FIX(100.0));
    EXPECT_EQ(m_fake->Find("br-x")->Word, SANE_FIX(300.0));
    EXPECT_EQ(m_fake->Find("br-y")->Word, SANE_FIX(300.0));
}

TEST_F(SaneDrivers, BedsThatMakeNoSenseAreNotOffered) {
    AddArea(SANE_UNIT_MM, 50.0);
    EXPECT_FALSE(Abilities().Bed.has_value()) << "ten meters";
    m_fake->Options.clear();
    AddArea(SANE_UNIT_MM, -1.0);
    EXPECT_FALSE(Abilities().Bed.has_value()) << "less than nothing";
    m_fake->Options.clear();
    AddArea(SANE_UNIT_PIXEL);
    EXPECT_FALSE(Abilities().Bed.has_value()) << "pixels of an unknown size";
    EXPECT_FALSE(Scan({"fake", 0, {}, ScanArea{0.0, 0.0, 9.0, 9.0}, false, 8}).IsGood());
    EXPECT_TRUE(Scan({"fake", 0, {}, std::nullopt, false, 8}).IsGood());
    EXPECT_EQ(m_fake->Find("br-y")->Word, SANE_FIX(300.0)) << "all that it sees";
}

TEST_F(SaneDrivers, OptionsThatAreNotThereNowAreLeftAlone) {
    FakeOption resolution{"resolution", SANE_TYPE_INT, SANE_UNIT_DPI, 300, {}};
    resolution.Words = {300};
    resolution.Cap |= SANE_CAP_INACTIVE;
    FakeOption mode{"mode", SANE_TYPE_STRING, SANE_UNIT_NONE, 0, "Gray"};
    mode.Texts = {"Gray"};
    mode.Cap = SANE_CAP_SOFT_DETECT;
    FakeOption depth{"depth", SANE_TYPE_INT, SANE_UNIT_BIT, 8, {}};
    depth.Size = 400; // an array
    m_fake->Options = {resolution, mode, depth, {"", SANE_TYPE_GROUP, SANE_UNIT_NONE, 0, {}}};
    const ScanAbilities abilities = Abilities();
    EXPECT_THAT(abilities.Resolutions, IsEmpty());
    EXPECT_THAT(abilities.Modes, IsEmpty());
    EXPECT_TRUE(Scan({"fake", 300, {}, std::nullopt, false, 16}).IsGood());
    EXPECT_THAT(m_fake->Sets, IsEmpty());
}
