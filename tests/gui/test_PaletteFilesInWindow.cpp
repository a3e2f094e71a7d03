// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/Palette.h"
#include "gui/DrawnProgram.h"

namespace zol::test {

/// The palette file commands in the whole program.
class PaletteFilesInWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void APaletteIsLoadedDrawnWithAndUndone();
    void StitchesRefuseTheLoad();
    void TheDefaultPaletteIsTheNextRunsToo();
};

namespace {

/// A palette of one red floss.
std::filesystem::path RedPalette(DrawnProgram& program, const ProgramHome& home) {
    Palette palette = Palette::Empty(program.Parts().Context);
    palette.AddPaletteEntry(MakeColour(200, 0, 10), "666", "red", "DMC", "R", 2, 1, 0, 0, 0, "DMC");
    std::filesystem::path file = home / "red.fls";
    return palette.SaveToDisk(file) == 0 ? file : std::filesystem::path();
}

} // namespace

void PaletteFilesInWindowTest::APaletteIsLoadedDrawnWithAndUndone() {
    const ProgramHome home;
    DrawnProgram program(home);
    QVERIFY(program.Open());
    program.Take(10, 10, 300);
    const int before = program.Design().GetPalette().GetEntriesCount();
    auto* strip = program.Find<QWidget>("picPalette");
    // A floss that the palette to come does not have.
    program.Window().Modes().SetCurrentColor(before);
    const QImage flosses = strip->grab().toImage();
    program.User.files = {RedPalette(program, home)};
    program.Choose("mnuLoadPalette");
    program.Settle();
    QCOMPARE(program.Design().GetPalette().GetEntriesCount(), 1);
    QVERIFY(strip->grab().toImage() != flosses);
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Load Palette"));
    program.ClickIn(2, 2);
    QCOMPARE(program.Design().GetStitchPaletteIndex(2, 2), 1);
    QTRY_COMPARE(program.WrongPixels(), 0);
    // The stitch first, which is a step of its own; with it gone the palette can be another.
    program.Choose("mnuEditUndo");
    program.Design().Initialize(10, 10, 14, 14);
    program.User.files = {home / "red.fls"};
    program.Choose("mnuLoadPalette");
    QCOMPARE(program.Design().GetPalette().GetEntriesCount(), 1);
    program.Choose("mnuEditUndo");
    QCOMPARE(program.Design().GetPalette().GetEntriesCount(), before);
    QVERIFY(program.User.unanswered.empty());
    QVERIFY(program.User.told.empty());
    program.End();
}

void PaletteFilesInWindowTest::StitchesRefuseTheLoad() {
    OpenedProgram program;
    program.ClickIn(2, 2);
    const int before = program.Design().GetPalette().GetEntriesCount();
    program.Choose("mnuLoadPalette");
    QCOMPARE(program.User.told.size(), std::size_t{1});
    QCOMPARE(program.User.told[0].text,
             std::string("You cannot load a new palette unless there are no stitches set."));
    QVERIFY(program.User.openDialogs.empty());
    QCOMPARE(program.Design().GetPalette().GetEntriesCount(), before);
}

void PaletteFilesInWindowTest::TheDefaultPaletteIsTheNextRunsToo() {
    const ProgramHome home;
    {
        DrawnProgram program(home);
        QVERIFY(program.Open());
        program.User.files = {RedPalette(program, home), home / "saved.fls"};
        program.Choose("mnuLoadPalette");
        program.Choose("mnuSavePalette");
        QVERIFY(std::filesystem::exists(home / "saved.fls"));
        program.Choose("mnuSaveDefaultpalette");
        QVERIFY(program.User.told.empty());
        program.End();
    }
    DrawnProgram next(home);
    QVERIFY(next.Open());
    QCOMPARE(next.Design().GetPalette().GetEntriesCount(), 1);
    QCOMPARE(next.Design().GetPalette().GetManufID(1), std::string("666"));
    next.End();
}

} // namespace zol::test

QTEST_MAIN(zol::test::PaletteFilesInWindowTest)
#include "test_PaletteFilesInWindow.moc"
