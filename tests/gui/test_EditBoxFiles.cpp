// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/EditBox.h"
#include "gui/DrawnProgram.h"

namespace zol::test {

/// The edit box and files: blocks as files of their own, and what becomes of a floating block when
/// the design is saved, left or replaced.
class EditBoxFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void CopyToWritesTheContentWithTheHeader();
    void CopyToThatFailsIsTold();
    void PasteFromLetsAFileFloat();
    void PasteFromThatFailsIsTold();
    void PasteWithoutRoomForItsFlossesIsRefused();
    void CancelledDialogsChangeNothing();
    void SavingWritesWhatFloats();
    void ClosingAsksAboutWhatFloats();
    void AnotherDesignTakesNoBlockAlong();
    void AutoSaveWaitsForTheBlock();

private:
    static void Prepare(DrawnProgram& program) {
        program.Take(30, 24, 200);
        program.Design().SetStitch(4, 4, StitchWhole, 1, 0);
        program.Design().SetStitch(6, 5, StitchTBH, 2, 0);
        program.Choose("mnuViewRefresh");
        program.Tool("DRAWMODE_EDITBOX");
        program.DragOver({{4, 4}, {6, 5}});
    }
    static EditBox& Box(DrawnProgram& program) { return program.Window().Modes().Box(); }
};

void EditBoxFilesTest::CopyToWritesTheContentWithTheHeader() {
    OpenedProgram program;
    Prepare(program);
    PatternHeader header = program.Design().GetHeader();
    header.Reserved3[7] = 0x5A;
    program.Design().Setheader(header);
    program.User.files = {program.Home / "block.pat"};
    program.Choose("mnuEditCopyTo");
    QCOMPARE(program.User.saveDialogs.size(), std::size_t{1});
    ProgramContext context;
    Pattern block(context);
    QCOMPARE(block.Load(program.Home / "block.pat"), 0);
    QCOMPARE(block.GetPatternWidth(), 3);
    QCOMPARE(block.GetPatternHeight(), 2);
    QCOMPARE(block.GetStitchPaletteIndex(1, 1), 1);
    QCOMPARE(block.GetStitchType(3, 2, 0), int{StitchTBH});
    QCOMPARE(int{block.GetHeader().Reserved3[7]}, 0x5A);
    QVERIFY(Box(program).IsActive());
    QVERIFY(program.User.told.empty());
}

void EditBoxFilesTest::CopyToThatFailsIsTold() {
    OpenedProgram program;
    Prepare(program);
    program.User.files = {program.Home / "no folder" / "block.pat"};
    program.Choose("mnuEditCopyTo");
    QCOMPARE(program.User.ToldTexts(), (std::vector<std::string>{"76error saving pattern: "}));
    QVERIFY(Box(program).IsActive());
}

void EditBoxFilesTest::PasteFromLetsAFileFloat() {
    OpenedProgram program;
    program.User.files = {program.Home / "app" / "Patterns" / "robin.pat"};
    program.User.answers = {MessageAnswer::No};
    const Twin empty(program.Design());
    program.Choose("mnuEditPasteFrom");
    QCOMPARE(program.User.openDialogs.size(), std::size_t{1});
    QCOMPARE(program.User.openDialogs[0].Title, std::string("Paste From ..."));
    QCOMPARE(program.User.openDialogs[0].Filter, std::string("Korvanta Pattern Files|*.PAT"));
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawEditBox);
    QVERIFY(Box(program).HasPattern());
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Paste From"));
    COMPARE_TWIN(program, empty);
    const int flosses = program.Design().GetPalette().GetEntriesCount();
    program.Key(Qt::Key_Return);
    QVERIFY(program.Design().IsChanged());
    QVERIFY(program.Design().GetPalette().GetEntriesCount() > flosses);
    QTRY_COMPARE(program.WrongPixels(), 0);
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    COMPARE_TWIN(program, empty);
}

void EditBoxFilesTest::PasteFromThatFailsIsTold() {
    OpenedProgram program;
    Prepare(program);
    WriteFile(program.Home / "broken.pat", "Korvanta 6 Pattern File and no more");
    const std::string name = (program.Home / "broken.pat").string();
    program.User.files = {program.Home / "broken.pat"};
    program.Choose("mnuEditPasteFrom");
    QCOMPARE(program.User.told.size(), std::size_t{1});
    QVERIFY2(program.User.told[0].text.find(" loading " + name) != std::string::npos,
             program.User.told[0].text.c_str());
    QVERIFY(program.User.told[0].text.find_first_not_of("0123456789") ==
            program.User.told[0].text.find(" loading "));
    QVERIFY2(Box(program).IsActive(), "what was selected stays");
    QCOMPARE(program.Design().GetStitchPaletteIndex(4, 4), 1);
}

void EditBoxFilesTest::PasteWithoutRoomForItsFlossesIsRefused() {
    OpenedProgram program;
    Prepare(program);
    Palette& flosses = program.Design().GetPalette();
    while (flosses.GetEntriesCount() < Palette::MostFlosses) {
        flosses.AddPaletteEntry(0x123456U, std::to_string(flosses.GetEntriesCount()), "Own",
                                "CUSTOM", "o", 2, 1, 0, 0, 0, "My Colors");
    }
    program.Choose("mnuFlipHorizontal");
    program.User.files = {program.Home / "app" / "Patterns" / "robin.pat"};
    program.Choose("mnuEditPasteFrom");
    QCOMPARE(program.User.told.size(), std::size_t{1});
    const std::string& told = program.User.told[0].text;
    QVERIFY2(told.starts_with("With these stitches the palette would need ") &&
                 told.ends_with(" flosses. A palette holds at most 254."),
             told.c_str());
    QVERIFY2(Box(program).HasPattern(), "what floats goes on floating");
    QCOMPARE(Box(program).GetEditBoxRect().Left, 4);
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Flip"));
    QCOMPARE(flosses.GetEntriesCount(), int{Palette::MostFlosses});
}

void EditBoxFilesTest::CancelledDialogsChangeNothing() {
    OpenedProgram program;
    program.ClickIn(9, 9);
    program.User.files = {std::nullopt, std::nullopt};
    program.Choose("mnuEditPasteFrom");
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Stitches"));
    program.Tool("DRAWMODE_EDITBOX");
    program.DragOver({{4, 4}, {6, 5}});
    program.Choose("mnuEditCopyTo");
    QVERIFY(Box(program).IsActive());
}

void EditBoxFilesTest::SavingWritesWhatFloats() {
    OpenedProgram program;
    Prepare(program);
    program.Choose("mnuFlipHorizontal");
    QCOMPARE(program.Design().GetStitchCount(6, 4), 0);
    program.User.files = {program.Home / "saved.pat"};
    program.Key(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!Box(program).IsActive());
    QVERIFY(!program.Design().IsChanged());
    ProgramContext context;
    Pattern saved(context);
    QCOMPARE(saved.Load(program.Home / "saved.pat"), 0);
    QCOMPARE(saved.GetStitchPaletteIndex(6, 4), 1);
    QCOMPARE(saved.GetStitchType(4, 5, 0), int{StitchBTH});
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Flip"));
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void EditBoxFilesTest::ClosingAsksAboutWhatFloats() {
    OpenedProgram program;
    Prepare(program);
    program.Tool("Copy");
    program.Key(Qt::Key_Escape);
    program.User.files = {program.Home / "saved.pat"};
    program.Key(Qt::Key_S, Qt::ControlModifier);
    program.Tool("Paste");
    QVERIFY(!program.Design().IsChanged());
    program.User.answers = {MessageAnswer::Yes};
    // What lies in the system's folder for temporary files may vanish, so a name is asked for.
    program.User.files = {program.Home / "again.pat"};
    program.Window().close();
    QCOMPARE(program.User.asked.size(), std::size_t{1});
    ProgramContext context;
    Pattern saved(context);
    QCOMPARE(saved.Load(program.Home / "again.pat"), 0);
    QCOMPARE(saved.GetStitchPaletteIndex(1, 1), 1);
    QCOMPARE(saved.GetStitchPaletteIndex(4, 4), 1);
}

void EditBoxFilesTest::AnotherDesignTakesNoBlockAlong() {
    OpenedProgram program;
    Prepare(program);
    program.Choose("mnuFlipHorizontal");
    program.User.answers = {MessageAnswer::No};
    program.User.files = {program.Home / "app" / "Patterns" / "robin.pat"};
    program.Choose("mnuFileOpen");
    QCOMPARE(program.Design().Title, std::string("Winter Robin"));
    QVERIFY(!Box(program).IsActive());
    QVERIFY(!program.OnTop().Frame.has_value());
    ProgramContext context;
    Pattern robin(context);
    QCOMPARE(robin.Load(program.Home / "app" / "Patterns" / "robin.pat"), 0);
    const std::string difference = DifferenceOf(program.Design(), robin);
    QVERIFY2(difference.empty(), difference.c_str());
    QVERIFY(!program.Design().IsChanged());
}

void EditBoxFilesTest::AutoSaveWaitsForTheBlock() {
    const ProgramHome home;
    auto now = std::chrono::steady_clock::now();
    DrawnProgram program(home.CalledWith(), [&now] { return now; });
    QVERIFY(program.Open());
    Prepare(program);
    basAutoSave& autoSave = program.Parts().AutoSave;
    autoSave.AutoSaveTick(true, true);
    std::filesystem::remove(autoSave.AutoSavePath());
    program.Choose("mnuFlipHorizontal");
    now += std::chrono::minutes(11);
    autoSave.AutoSaveTick(false, true);
    QVERIFY2(!std::filesystem::exists(autoSave.AutoSavePath()), "the design has a hole now");
    program.Key(Qt::Key_Return);
    autoSave.AutoSaveTick(false, true);
    QVERIFY(std::filesystem::exists(autoSave.AutoSavePath()));
    program.End();
}

} // namespace zol::test

QTEST_MAIN(zol::test::EditBoxFilesTest)
#include "test_EditBoxFiles.moc"
