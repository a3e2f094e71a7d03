// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/basAutoSave.h"

#include <sys/stat.h>

#include "model/ModelTestKit.h"
#include "model/PlainDesign.h"
#include "model/RunTimeError.h"
#include "settings/OtherRun.h"
#include "support/TempFolder.h"

namespace zol {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using test::OtherRun;
using test::PlainDesign;
using test::ReadFile;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RecordingView : public AutoSaveView {
public:
    bool IsInLongMode() const override { return longMode; }
    void SetBusy(bool busy) override { calls.push_back(busy); }

    bool longMode = false;
    std::vector<bool> calls;
};

/// Answers the questions one after the other.
class Answers : public test::RecordingMessages {
public:
    MessageAnswer Ask(const std::string& text, MessageIcon icon, MessageButtons buttons,
                      const std::string& title) override {
        answer = answers.at(told.size());
        EXPECT_EQ(buttons, MessageButtons::YesNo);
        return RecordingMessages::Ask(text, icon, buttons, title);
    }
    std::vector<MessageAnswer> answers;
};

class AutoSaveTest : public test::ModelTest {
protected:
    AutoSaveTest() {
        save.SetView(&view);
        Design().FileName = "/patterns/rose.pat";
        makers['P'] = [this](const std::string& name, ByteReader& stream) {
            return MakeDesign('P', name, stream);
        };
    }

    Pattern& Design() { return open.Design(); }
    std::unique_ptr<OpenDesign> MakeDesign(char kind, const std::string& name, ByteReader& stream) {
        Pattern pattern(context);
        if (pattern.Load(name, stream, 0, 0) != ErrNone) {
            return nullptr;
        }
        return std::make_unique<PlainDesign>(std::move(pattern), kind);
    }
    std::string PatternBytes() {
        ByteWriter stream;
        EXPECT_EQ(open.Get().WriteTo(stream), ErrNone);
        return {stream.Bytes().begin(), stream.Bytes().end()};
    }
    /// A recovery file that a killed run has left.
    fs::path Leave(const std::string& name, const std::string& bytes, int minutesAgo = 1) {
        fs::path file = base / ("run-" + name) / basAutoSave::FileName;
        fs::create_directory(file.parent_path());
        test::WriteFile(file, bytes);
        fs::last_write_time(file,
                            fs::file_time_type::clock::now() - std::chrono::minutes(minutesAgo));
        return file;
    }
    /// The file of a design with that title, by the format's own bytes.
    std::string FileOf(const std::string& title) {
        const std::string old = std::exchange(Design().Title, title);
        std::string bytes = std::string("\x05\x00"
                                        "a.patP",
                                        8) +
                            PatternBytes();
        Design().Title = old;
        return bytes;
    }

    test::TempFolder base;
    RunFolder run{base.Path()};
    DesignHolder open{std::make_unique<PlainDesign>(Make(6, 4))};
    std::chrono::steady_clock::time_point now{1000h};
    basAutoSave save{open, run, [this] { return now; }};
    RecordingView view;
    DesignMakers makers;
    Answers answers;
};

TEST_F(AutoSaveTest, TheFileIsAsTold) {
    Design().FileName = "K\u00E4fer.pat";
    save.AutoSaveTick(false, false);
    EXPECT_EQ(ReadFile(save.AutoSavePath()), std::string("\x09\x00"
                                                         "K\xE4"
                                                         "fer.pat"
                                                         "P",
                                                         12) +
                                                 PatternBytes());
    EXPECT_EQ(save.AutoSavePath(), run.Path() / "ASAVEDATA.$$$");
}

TEST_F(AutoSaveTest, AFontHasItsOwnLetter) {
    open.Put(std::make_unique<PlainDesign>(Make(3, 3), 'F'));
    save.AutoSaveTick(false, false);
    EXPECT_EQ(ReadFile(save.AutoSavePath()), std::string("\0\0F", 3) + PatternBytes());
}

TEST_F(AutoSaveTest, ANameThatTheFileCannotHoldIsLeftOut) {
    Design().FileName = "\u4E2D.pat";
    save.AutoSaveTick(false, false);
    EXPECT_EQ(ReadFile(save.AutoSavePath()).substr(0, 3), std::string("\0\0P", 3));
    EXPECT_EQ(Design().FileName, "\u4E2D.pat");
}

TEST_F(AutoSaveTest, TheFirstTickSavesAndThenEveryTenMinutes) {
    save.AutoSaveTick(false, false);
    ASSERT_TRUE(fs::exists(save.AutoSavePath()));
    save.ClearAutoSave();
    EXPECT_FALSE(fs::exists(save.AutoSavePath()));
    now += 9min + 59s;
    save.AutoSaveTick(false, false);
    EXPECT_FALSE(fs::exists(save.AutoSavePath()));
    now += 1s;
    save.AutoSaveTick(false, false);
    EXPECT_TRUE(fs::exists(save.AutoSavePath()));
}

TEST_F(AutoSaveTest, ForcedItSavesAtOnceAndInALongMode) {
    view.longMode = true;
    save.AutoSaveTick(false, false);
    EXPECT_FALSE(fs::exists(save.AutoSavePath()));
    save.AutoSaveTick(true, false);
    ASSERT_TRUE(fs::exists(save.AutoSavePath()));
    save.ClearAutoSave();
    save.AutoSaveTick(true, false);
    EXPECT_TRUE(fs::exists(save.AutoSavePath()));
}

TEST_F(AutoSaveTest, ALongModeOnlyPutsTheSaveOff) {
    view.longMode = true;
    save.AutoSaveTick(false, false);
    view.longMode = false;
    save.AutoSaveTick(false, false);
    EXPECT_TRUE(fs::exists(save.AutoSavePath()));
}

TEST_F(AutoSaveTest, TheHourglassShowsUnlessQuiet) {
    save.AutoSaveTick(true, true);
    EXPECT_THAT(view.calls, IsEmpty());
    save.AutoSaveTick(true, false);
    EXPECT_THAT(view.calls, ElementsAre(true, false));
}

TEST_F(AutoSaveTest, TheChangedFlagStaysAsItWas) {
    for (const bool changed : {false, true}) {
        Design().SetChanged(changed);
        save.AutoSaveTick(true, false);
        EXPECT_EQ(Design().IsChanged(), changed);
        EXPECT_EQ(Design().FileName, "/patterns/rose.pat");
    }
}

TEST_F(AutoSaveTest, AFailedWriteIsIgnoredAndLeavesTheLastGoodFile) {
    save.AutoSaveTick(true, false);
    const std::string good = ReadFile(save.AutoSavePath());
    Design().Instructions.assign(40000, 'x'); // more than the format holds
    Design().SetChanged(true);
    save.AutoSaveTick(true, false);
    EXPECT_EQ(ReadFile(save.AutoSavePath()), good);
    EXPECT_TRUE(Design().IsChanged());
    EXPECT_THAT(messages.told, IsEmpty());
    EXPECT_EQ(context.Messages, &messages);
    EXPECT_THAT(view.calls, ElementsAre(true, false, true, false));
}

TEST_F(AutoSaveTest, AFolderThatIsGoneIsIgnored) {
    fs::remove_all(run.Path());
    save.AutoSaveTick(true, false);
    EXPECT_FALSE(fs::exists(save.AutoSavePath()));
    EXPECT_THAT(messages.told, IsEmpty());
}

TEST_F(AutoSaveTest, NoHalfWrittenFileStays) {
    save.AutoSaveTick(true, false);
    save.AutoSaveTick(true, false);
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(run.Path())) {
        names.push_back(entry.path().filename().string());
    }
    EXPECT_THAT(names, ::testing::UnorderedElementsAre("lock", "ASAVEDATA.$$$"));
}

TEST_F(AutoSaveTest, APatternWithoutSquaresIsSkipped) {
    save.AutoSaveTick(true, false);
    const std::string good = ReadFile(save.AutoSavePath());
    Design().Resize(6, 0, 14, 14);
    save.AutoSaveTick(true, false);
    EXPECT_EQ(ReadFile(save.AutoSavePath()), good);
    EXPECT_THAT(messages.told, IsEmpty());
}

TEST_F(AutoSaveTest, ClearIgnoresAMissingFileAndAnEndedRun) {
    save.ClearAutoSave();
    run.Remove();
    save.ClearAutoSave();
    save.AutoSaveTick(true, false);
    EXPECT_FALSE(fs::exists(basAutoSave::FileName)) << "nothing in the present folder";
}

TEST_F(AutoSaveTest, WithNothingToRecoverNothingIsAsked) {
    EXPECT_EQ(save.CheckForRecovery(answers, makers), nullptr);
    EXPECT_THAT(answers.told, IsEmpty());
}

TEST_F(AutoSaveTest, ARecoveredPatternIsWholeNamedAndChanged) {
    Design().SetStitch(2, 2, StitchWhole, 3, 0);
    const fs::path left = Leave("a", FileOf("Rose"));
    answers.answers = {MessageAnswer::Yes};
    const std::unique_ptr<OpenDesign> design = save.CheckForRecovery(answers, makers);
    ASSERT_NE(design, nullptr);
    EXPECT_EQ(answers.told[0].text, "Auto Save has detected a pattern for recovery. Do you wish to "
                                    "recover previous pattern?");
    EXPECT_EQ(answers.told[0].title, "Auto Recovery Alert");
    EXPECT_TRUE(design->GetPattern().IsChanged());
    EXPECT_EQ(design->FileName(), "a.pat");
    EXPECT_EQ(design->GetPattern().Title, "Rose");
    EXPECT_EQ(design->GetPattern().GetStitchColorIndex(2, 2, 0), 3);
    // Until the next save or a clean end the file stays, as this run's.
    EXPECT_EQ(ReadFile(save.AutoSavePath()), FileOf("Rose"));
    EXPECT_FALSE(fs::exists(left.parent_path()));
}

TEST_F(AutoSaveTest, TheNameIsTrimmed) {
    Leave("a", std::string("\x09\x00"
                           "  a.pat  P",
                           12) +
                   PatternBytes());
    answers.answers = {MessageAnswer::Yes};
    const std::unique_ptr<OpenDesign> design = save.CheckForRecovery(answers, makers);
    ASSERT_NE(design, nullptr);
    EXPECT_EQ(design->FileName(), "a.pat");
}

TEST_F(AutoSaveTest, ANoDeletesThatFileAlone) {
    const fs::path newer = Leave("a", FileOf("Newer"), 5);
    const fs::path older = Leave("b", FileOf("Older"), 50);
    const fs::path oldest = Leave("c", FileOf("Oldest"), 500);
    answers.answers = {MessageAnswer::No, MessageAnswer::Yes};
    const std::unique_ptr<OpenDesign> design = save.CheckForRecovery(answers, makers);
    ASSERT_NE(design, nullptr);
    EXPECT_EQ(design->GetPattern().Title, "Older");
    EXPECT_EQ(answers.told.size(), 2U);
    EXPECT_FALSE(fs::exists(newer));
    EXPECT_FALSE(fs::exists(older));
    EXPECT_TRUE(fs::exists(oldest)) << "the next start offers it";
}

TEST_F(AutoSaveTest, AnAnswerThatIsNeitherKeepsTheFile) {
    const fs::path left = Leave("a", FileOf("Rose"));
    answers.answers = {MessageAnswer::Cancel};
    EXPECT_EQ(save.CheckForRecovery(answers, makers), nullptr);
    EXPECT_TRUE(fs::exists(left));
}

TEST_F(AutoSaveTest, AnUnknownKindIsClosedAndNothingHappens) {
    std::string bytes = FileOf("Rose");
    bytes[7] = 'X';
    const fs::path left = Leave("a", bytes);
    answers.answers = {MessageAnswer::Yes};
    EXPECT_EQ(save.CheckForRecovery(answers, makers), nullptr);
    EXPECT_EQ(ReadFile(left), bytes);
    EXPECT_THAT(messages.told, IsEmpty());
    EXPECT_FALSE(fs::exists(save.AutoSavePath()));
}

TEST_F(AutoSaveTest, AFontIsMadeByItsOwnMaker) {
    std::string bytes = FileOf("Letters");
    bytes[7] = 'F';
    const fs::path left = Leave("a", bytes);
    makers['F'] = [this](const std::string& name, ByteReader& stream) {
        return MakeDesign('F', name, stream);
    };
    const auto design = basAutoSave::RecoverAutoSave(left, makers);
    ASSERT_NE(design, nullptr);
    EXPECT_EQ(design->RecoveryKind(), 'F');
    EXPECT_TRUE(design->GetPattern().IsChanged());
}

TEST_F(AutoSaveTest, ADamagedFileStaysAndTheNextIsOffered) {
    const std::string whole = FileOf("Rose");
    const fs::path damaged = Leave("a", whole.substr(0, 200), 1);
    Leave("b", whole, 50);
    answers.answers = {MessageAnswer::Yes, MessageAnswer::Yes};
    const std::unique_ptr<OpenDesign> design = save.CheckForRecovery(answers, makers);
    ASSERT_NE(design, nullptr);
    EXPECT_EQ(design->GetPattern().Title, "Rose");
    EXPECT_TRUE(fs::exists(damaged));
    EXPECT_EQ(messages.told.size(), 1U) << "the failed load has told why";
}

TEST_F(AutoSaveTest, FilesCutAnywhereAreHarmless) {
    Design().SetStitch(2, 2, StitchWhole, 3, 0);
    const std::string whole = FileOf("Rose");
    const std::size_t headersEnd = 8 + PatternHeader::Size;
    for (std::size_t length = 0; length < whole.size();
         length += length < 400 || length + 400 > whole.size() ? 1U : 97U) {
        const fs::path file = base / "cut";
        test::WriteFile(file, whole.substr(0, length));
        const auto design = basAutoSave::RecoverAutoSave(file, makers);
        // A pattern that ends before its later blocks loads with those blocks empty.
        ASSERT_TRUE(design == nullptr || length > headersEnd) << length;
        if (design != nullptr) {
            ASSERT_EQ(design->GetPattern().GetStitchColorIndex(2, 2, 0), 3) << length;
        }
    }
    test::WriteFile(base / "cut", std::string("\xFF\xFFP", 3));
    EXPECT_EQ(basAutoSave::RecoverAutoSave(base / "cut", makers), nullptr);
    EXPECT_EQ(basAutoSave::RecoverAutoSave(base / "missing", makers), nullptr);
}

TEST_F(AutoSaveTest, AKilledRunsWorkIsOffered) {
    OtherRun other(base.Path(), "/patterns/oak.pat", "Oak");
    ASSERT_FALSE(other.Folder().empty());
    EXPECT_EQ(save.CheckForRecovery(answers, makers), nullptr) << "it lives";
    EXPECT_THAT(answers.told, IsEmpty());
    other.Kill();
    answers.answers = {MessageAnswer::Yes};
    const std::unique_ptr<OpenDesign> design = save.CheckForRecovery(answers, makers);
    ASSERT_NE(design, nullptr);
    EXPECT_EQ(design->FileName(), "/patterns/oak.pat");
    EXPECT_EQ(design->GetPattern().Title, "Oak");
    EXPECT_EQ(design->GetPattern().GetStitchType(3, 4, 0), StitchWhole);
    EXPECT_TRUE(design->GetPattern().IsChanged());
}

TEST_F(AutoSaveTest, ARunThatEndedCleanlyOffersNothing) {
    OtherRun other(base.Path(), "/patterns/oak.pat", "Oak", true);
    other.Wait();
    ASSERT_FALSE(other.Folder().empty());
    EXPECT_EQ(save.CheckForRecovery(answers, makers), nullptr);
    EXPECT_THAT(answers.told, IsEmpty());
    EXPECT_FALSE(fs::exists(other.Folder()));
}

TEST_F(AutoSaveTest, TwoRunsKeepToTheirOwnFiles) {
    RunFolder otherRun(base.Path());
    DesignHolder otherOpen(std::make_unique<PlainDesign>(Make(3, 3)));
    const basAutoSave::Clock clock = [this] { return now; };
    basAutoSave other(otherOpen, otherRun, clock);
    save.AutoSaveTick(false, false);
    other.AutoSaveTick(false, false);
    ASSERT_NE(save.AutoSavePath(), other.AutoSavePath());
    EXPECT_EQ(other.CheckForRecovery(answers, makers), nullptr);
    save.ClearAutoSave();
    EXPECT_TRUE(fs::exists(other.AutoSavePath()));
    EXPECT_THAT(answers.told, IsEmpty());
}

TEST_F(AutoSaveTest, ARecoveredPatternOutlivesAnotherCrash) {
    Leave("a", FileOf("Rose"));
    answers.answers = {MessageAnswer::Yes, MessageAnswer::Yes};
    {
        RunFolder crashing(base.Path());
        basAutoSave first(open, crashing);
        ASSERT_NE(first.CheckForRecovery(answers, makers), nullptr);
    }
    const std::unique_ptr<OpenDesign> design = save.CheckForRecovery(answers, makers);
    ASSERT_NE(design, nullptr);
    EXPECT_EQ(design->GetPattern().Title, "Rose");
}

} // namespace
} // namespace zol
