// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <filesystem>
#include <fstream>
#include <sstream>

#include "model/ModelTestKit.h"
#include "model/PatternBytes.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"
#include "support/TempFolder.h"

namespace zol {
namespace {

using test::ModelTest;
using test::PatternBytes;
using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

class PatternFile : public ModelTest {
protected:
    std::string OnlyMessage() {
        if (messages.told.size() != 1) {
            return std::to_string(messages.told.size()) + " messages";
        }
        return messages.told[0].text;
    }
    std::size_t FilesInFolder() const {
        namespace fs = std::filesystem;
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()));
    }

    TempFolder folder;
    Pattern pattern = Make(5, 4);
};

TEST_F(PatternFile, SavesAndLoadsAFileOfItsOwn) {
    pattern.SetStitch(2, 3, StitchWhole, 4, 0);
    ASSERT_EQ(pattern.Save(folder / "a.pat"), 0);
    EXPECT_FALSE(pattern.IsChanged());
    EXPECT_EQ(pattern.FileName, PathText(folder / "a.pat"));
    Pattern other = Make(1, 1);
    ASSERT_EQ(other.Load(folder / "a.pat"), 0);
    EXPECT_EQ(test::Dump(other), test::Dump(pattern));
    EXPECT_EQ(other.FileName, PathText(folder / "a.pat"));
    EXPECT_EQ(FilesInFolder(), 1U);
    EXPECT_TRUE(messages.told.empty());
}

TEST_F(PatternFile, EmptyNameSavesUnderTheNameOfTheLastFile) {
    ASSERT_EQ(pattern.Save(folder / "a.pat"), 0);
    pattern.SetStitch(2, 3, StitchWhole, 4, 0);
    ASSERT_EQ(pattern.Save({}), 0);
    Pattern other = Make(1, 1);
    ASSERT_EQ(other.Load(folder / "a.pat"), 0);
    EXPECT_EQ(other.GetStitchCount(2, 3), 1);
}

TEST_F(PatternFile, SaveWithoutAnyNameFailsAndTells) {
    EXPECT_EQ(pattern.Save({}), ErrPathAccess);
    EXPECT_EQ(OnlyMessage(), "Path/File access error");
    EXPECT_EQ(messages.told[0].icon, MessageIcon::Exclamation);
}

TEST_F(PatternFile, FailedSaveKeepsTheNameOfTheLastFile) {
    ASSERT_EQ(pattern.Save(folder / "a.pat"), 0);
    EXPECT_EQ(pattern.Save(folder / "none" / "b.pat"), ErrPathNotFound);
    EXPECT_EQ(pattern.FileName, PathText(folder / "a.pat"));
}

TEST_F(PatternFile, BackupKeepsTheOldFile) {
    ASSERT_EQ(pattern.Save(folder / "a.pat"), 0);
    const std::string old = ReadFile(folder / "a.pat");
    pattern.SetStitch(2, 3, StitchWhole, 4, 0);
    ASSERT_EQ(pattern.Save({}, folder / "a.bpt"), 0);
    EXPECT_EQ(ReadFile(folder / "a.bpt"), old);
    EXPECT_NE(ReadFile(folder / "a.pat"), old);
}

TEST_F(PatternFile, ShorterSaveLeavesNoOldTail) {
    std::mt19937 random(1);
    test::Scatter(pattern, random, 100, 20, 20, 5);
    ASSERT_EQ(pattern.Save(folder / "a.pat"), 0);
    Pattern fresh = Make(5, 4);
    ASSERT_EQ(fresh.Save(folder / "a.pat"), 0);
    ByteWriter stream;
    ASSERT_EQ(fresh.Save("", stream, 0), 0);
    EXPECT_EQ(ReadFile(folder / "a.pat").size(), stream.Bytes().size());
}

TEST_F(PatternFile, MissingFileIsTold) {
    pattern.SetStitch(1, 1, StitchWhole, 1, 0);
    const std::string name = PathText(folder / "none.pat");
    EXPECT_EQ(pattern.Load(folder / "none.pat"), -10);
    EXPECT_EQ(OnlyMessage(), "The file " + name + " does not exist. Open Failed.");
    EXPECT_EQ(messages.told[0].icon, MessageIcon::Stop);
    EXPECT_EQ(pattern.GetStitchCount(1, 1), 1);
}

TEST_F(PatternFile, ForeignFileGives321AndShowsNothing) {
    WriteFile(folder / "a.pat", "something else altogether");
    WriteFile(folder / "empty.pat", "");
    WriteFile(folder / "5.pat", "Korvanta 5 Pattern File" + std::string(300, ' '));
    for (const char* name : {"a.pat", "empty.pat", "5.pat"}) {
        EXPECT_EQ(pattern.Load(folder / name), ErrInvalidFormat);
    }
    EXPECT_TRUE(messages.told.empty());
    EXPECT_EQ(pattern.GetPatternWidth(), 5);
}

TEST_F(PatternFile, FolderAndPipeAreRefused) {
    EXPECT_EQ(pattern.Load(folder.Path()), ErrPathAccess);
    EXPECT_EQ(pattern.Load("/dev/zero"), ErrPathAccess);
    EXPECT_EQ(messages.told.size(), 2U);
}

TEST_F(PatternFile, DamageIsToldWithTheErrorsText) {
    PatternBytes file;
    file.width = 0;
    const std::vector<std::uint8_t> bytes = file.All();
    WriteFile(folder / "a.pat", std::string(bytes.begin(), bytes.end()));
    pattern.SetStitch(1, 1, StitchWhole, 1, 0);
    pattern.FileName = "before";
    EXPECT_EQ(pattern.Load(folder / "a.pat"), ErrSubscript);
    EXPECT_EQ(OnlyMessage(), "Subscript out of range");
    EXPECT_EQ(messages.told[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(pattern.GetStitchCount(1, 1), 1) << "the old content stays";
    EXPECT_EQ(pattern.FileName, "before");
}

TEST_F(PatternFile, LoadKeepsRecorderAndContext) {
    ASSERT_EQ(pattern.Save(folder / "a.pat"), 0);
    test::RecordingUndo undo;
    pattern.SetUndoRecorder(&undo);
    pattern.SetRecording(false);
    ASSERT_EQ(pattern.Load(folder / "a.pat"), 0);
    EXPECT_FALSE(pattern.IsRecording());
    EXPECT_EQ(&pattern.Context(), &context);
    EXPECT_EQ(&pattern.GetPalette().Context(), &context);
    EXPECT_TRUE(undo.squares.empty());
    pattern.SetRecording(true);
    pattern.SetStitch(1, 1, StitchWhole, 1, 0);
    EXPECT_EQ(undo.squares.size(), 1U);
}

TEST_F(PatternFile, PatternWithoutSquaresIsNotSaved) {
    WriteFile(folder / "a.pat", "old");
    pattern.Resize(5, 0, 14, 14);
    EXPECT_EQ(pattern.Save(folder / "a.pat"), ErrInvalidCall);
    EXPECT_EQ(OnlyMessage(), "A pattern without squares cannot be saved");
    EXPECT_EQ(ReadFile(folder / "a.pat"), "old");
    ByteWriter stream;
    EXPECT_EQ(pattern.Save("x", stream, 0), ErrInvalidCall);
    EXPECT_TRUE(stream.Bytes().empty());
}

TEST_F(PatternFile, TextThatIsTooLongFailsBeforeAnythingIsWritten) {
    WriteFile(folder / "a.pat", "old");
    pattern.Instructions = std::string(32768, 'x');
    EXPECT_EQ(pattern.Save(folder / "a.pat"), ErrOverflow);
    EXPECT_EQ(OnlyMessage(), "Overflow");
    EXPECT_EQ(ReadFile(folder / "a.pat"), "old");
    EXPECT_EQ(FilesInFolder(), 1U);
    ByteWriter stream;
    stream.WriteRaw("front");
    EXPECT_EQ(pattern.Save("x", stream, 0), ErrOverflow);
    EXPECT_EQ(stream.Bytes().size(), 5U);
    EXPECT_EQ(stream.Position(), 6U);
}

TEST_F(PatternFile, FullDiskLeavesNoHalfFileAndThePatternChanged) {
    pattern.SetStitch(1, 1, StitchWhole, 1, 0);
    EXPECT_EQ(pattern.Save("/dev/full"), ErrDiskFull);
    EXPECT_EQ(OnlyMessage(), "Disk full");
    EXPECT_TRUE(pattern.IsChanged());
}

TEST_F(PatternFile, FailedSaveForgetsNoChangeOfThePalette) {
    pattern.GetPalette().SetChanged(true);
    EXPECT_EQ(pattern.Save("/dev/full"), ErrDiskFull);
    EXPECT_TRUE(pattern.IsChanged());
    ASSERT_EQ(pattern.Save(folder / "a.pat"), 0);
    EXPECT_FALSE(pattern.IsChanged());
}

TEST_F(PatternFile, UnwritableFolderLeavesTheOldFile) {
    WriteFile(folder / "file", "old");
    EXPECT_EQ(pattern.Save(folder / "file" / "a.pat"), ErrPathNotFound);
    EXPECT_EQ(OnlyMessage(), "Path not found");
    EXPECT_EQ(ReadFile(folder / "file"), "old");
    EXPECT_EQ(FilesInFolder(), 1U);
}

TEST_F(PatternFile, NullDoorsAreQuiet) {
    context.Messages = nullptr;
    EXPECT_EQ(pattern.Load(folder / "none.pat"), ErrNoSuchFile);
    EXPECT_EQ(pattern.Save("/dev/full"), ErrDiskFull);
}

TEST_F(PatternFile, EmbeddedSaveLeavesTheFileBehindTheChecksumField) {
    ByteWriter stream;
    stream.WriteRaw("library header");
    EXPECT_EQ(pattern.Save("inside.plb", stream, 0), 0);
    EXPECT_EQ(stream.Position(), 14U + 264 + 1);
    EXPECT_EQ(pattern.FileName, "inside.plb");
    EXPECT_FALSE(pattern.IsChanged());
    EXPECT_EQ(pattern.Save("", stream, 15), 0);
    EXPECT_EQ(pattern.FileName, "");
}

TEST_F(PatternFile, EmbeddedStreamsAreReadFromTheirOffset) {
    pattern.SetStitch(2, 3, StitchWhole, 4, 0);
    Pattern second = Make(7, 7);
    second.SetStitch(7, 7, StitchTBH, 2, 0);
    for (Pattern* each : {&pattern, &second}) {
        PatternHeader header = each->GetHeader();
        header.PatternFlags = 4; // so that the checksum is tested
        each->Setheader(header);
    }
    ByteWriter stream;
    stream.WriteRaw("some bytes before");
    const std::uint64_t firstAt = stream.Position();
    ASSERT_EQ(pattern.Save("lib", stream, 0), 0);
    const std::uint64_t secondAt = stream.Bytes().size() + 1;
    ASSERT_EQ(second.Save("lib", stream, secondAt), 0);
    const std::uint64_t end = stream.Bytes().size();
    stream.Seek(end + 1);
    stream.WriteRaw("bytes behind");

    ByteReader reader(stream.Bytes());
    Pattern loaded = Make(1, 1);
    ASSERT_EQ(loaded.Load("first", reader, firstAt, secondAt - 1), 0);
    EXPECT_EQ(test::Dump(loaded), test::Dump(pattern));
    EXPECT_EQ(loaded.FileName, "first");
    EXPECT_EQ(reader.Position(), secondAt) << "the open file stands behind the stream";
    ASSERT_EQ(loaded.Load("second", reader, 0, end), 0) << "from where the file stands";
    EXPECT_EQ(test::Dump(loaded), test::Dump(second));
    EXPECT_EQ(loaded.Load("second", reader, secondAt, 0), ErrChecksumMismatch)
        << "without an end the sum runs to the end of the file";

    std::istringstream file(std::string(stream.Bytes().begin(), stream.Bytes().end()));
    ByteReader fromFile(file);
    ASSERT_EQ(loaded.Load("second", fromFile, secondAt, end), 0);
    EXPECT_EQ(test::Dump(loaded), test::Dump(second));
    EXPECT_TRUE(messages.told.empty());
}

TEST_F(PatternFile, EmbeddedStreamWithoutTheMagicGives321AndTells) {
    PatternBytes bytes;
    bytes.magic = "Korvanta 5 Pattern File";
    const std::vector<std::uint8_t> all = bytes.All();
    ByteReader reader(all);
    EXPECT_EQ(pattern.Load("x", reader, 0, 0), ErrInvalidFormat);
    EXPECT_EQ(OnlyMessage(), "Invalid file format");
    EXPECT_EQ(pattern.GetPatternWidth(), 5);
}

} // namespace
} // namespace zol
