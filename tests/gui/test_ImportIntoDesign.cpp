// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QComboBox>

#include <filesystem>
#include <string>
#include <vector>

#include "flosses/Palette.h"
#include "grid/tools/EditBox.h"
#include "gui/DrawnProgram.h"
#include "gui/ImportHands.h"
#include "import/windows/frmImportWizard.h"

namespace zol::test {

namespace fs = std::filesystem;

/// What an import does to a design that is there already.
class ImportIntoDesignTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void APasteThatFloatsLandsBeforeTheImport_data();
    void APasteThatFloatsLandsBeforeTheImport();
    void AnotherDesignEndsTheImportThatWasLeft_data();
    void AnotherDesignEndsTheImportThatWasLeft();
    void AnImportOfAWholeDesignIsResumedOverAnother();
    void AResumedImportTakesTheCurrentPaletteAsItIsNow();
    void ThePaletteStaysSortedAndUndoLeavesItSo();

private:
    QTemporaryDir m_folder;
};

namespace {

constexpr Colour Foreign = MakeColour(1, 203, 77);

Palette PaletteOf(DrawnProgram& program, const std::vector<Colour>& colours) {
    Palette palette = Palette::Empty(program.Parts().Context);
    for (std::size_t i = 0; i < colours.size(); ++i) {
        const auto symbol = static_cast<char>('A' + i);
        palette.AddPaletteEntry(colours[i], std::to_string(i + 1), "thread", "Mill",
                                std::string(1, symbol), 2, 1, 0, 0, 0, "The Mill");
    }
    return palette;
}

/// A block floats over the design; its stitch and its line have a floss that the design lacks.
void LetAForeignBlockFloat(DrawnProgram& program) {
    Pattern& design = program.Design();
    program.Take(20, 12, 300);
    design.GetPalette() = PaletteOf(program, {MakeColour(200, 0, 0), Foreign});
    design.SetStitch(2, 2, StitchWhole, 2, 5);
    BackStitchLine line{1, 1, 1, 4, 3, 9, 2, 1};
    design.AddBackStitchLine(line);
    program.Choose("mnuViewRefresh");
    program.Choose("mnuDrawModeEditBox");
    program.DragOver({{1, 1}, {6, 5}});
    program.Choose("mnuEditCut");
    design.GetPalette() = PaletteOf(program, {MakeColour(200, 0, 0)});
    program.Choose("mnuViewRefresh");
    program.Choose("mnuEditPaste");
    QVERIFY(program.Window().Modes().Box().HasPattern());
    QCOMPARE(design.GetBackStitchCount(), 0);
}

} // namespace

void ImportIntoDesignTest::init() {
    qputenv("TMPDIR", m_folder.path().toUtf8());
}

void ImportIntoDesignTest::APasteThatFloatsLandsBeforeTheImport_data() {
    QTest::addColumn<bool>("dropped");
    QTest::newRow("by the command") << false;
    QTest::newRow("by a dropped picture") << true;
}

void ImportIntoDesignTest::APasteThatFloatsLandsBeforeTheImport() {
    QFETCH(const bool, dropped);
    OpenedProgram program;
    LetAForeignBlockFloat(program);
    const auto work = [&program, dropped](frmImportWizard& wizard) {
        QVERIFY(!program.Window().Modes().Box().IsActive());
        QCOMPARE(program.Design().GetBackStitchCount(), 1);
        QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Paste"));
        if (dropped) {
            QTRY_VERIFY(PartOf<PictureView>(wizard, "LPicPreview").Shown() != nullptr);
            Next(wizard);
            Next(wizard);
            Next(wizard);
        } else {
            TakeFile(program, wizard, "still-life.jpg");
        }
        ClickIn(wizard, "chkUseEditBox");
        GoToMapping(wizard);
        ChooseFamily(wizard, QStringLiteral("150"));
        Next(wizard);
        QVERIFY(!wizard.isVisible());
    };
    if (dropped) {
        DialogDriver driver({[&work](QDialog& dialog) {
            work(dynamic_cast<frmImportWizard&>(dialog));
            dialog.reject();
        }});
        Q_EMIT program.Window().FileDropped(
            QString::fromStdString(Sample("still-life.jpg").string()));
        QTRY_VERIFY(driver.AllDone());
    } else {
        Import(program, work);
    }
    Pattern& design = program.Design();
    const auto lineIsForeign = [&design] {
        return design.GetBackStitchCount() == 1 &&
               design.GetPalette().GetFlossRGB(design.GetBackStitchLine(1).PaletteIndex) == Foreign;
    };
    QVERIFY(lineIsForeign());
    // The picture fills the squares that the block floated over.
    QCOMPARE(design.GetStitchCount(6, 5), 1);
    QCOMPARE(design.GetStitchCount(7, 5), 0);
    QVERIFY(design.GetPalette().GetEntriesCount() > 2);
    program.Choose("mnuEditUndo");
    QVERIFY(lineIsForeign());
    QCOMPARE(design.GetPalette().GetEntriesCount(), 2);
    QCOMPARE(design.GetStitchCount(2, 2), 1);
    QCOMPARE(design.GetStitchCount(6, 5), 0);
}

void ImportIntoDesignTest::AnotherDesignEndsTheImportThatWasLeft_data() {
    QTest::addColumn<bool>("opened");
    QTest::newRow("New") << false;
    QTest::newRow("Open") << true;
}

void ImportIntoDesignTest::AnotherDesignEndsTheImportThatWasLeft() {
    QFETCH(const bool, opened);
    OpenedProgram program;
    program.Take(20, 12, 300);
    const fs::path file = program.Home / "other.pat";
    QCOMPARE(program.Design().Save(file), 0);
    program.Choose("mnuDrawModeEditBox");
    program.DragOver({{4, 3}, {11, 8}});
    Import(program, [&program](frmImportWizard& wizard) {
        TakeFile(program, wizard, "still-life.jpg");
        ClickIn(wizard, "chkUseEditBox");
        GoToMapping(wizard);
        ChooseFamily(wizard, QStringLiteral("150"));
        wizard.reject();
    });
    program.Design().SetChanged(false);
    if (opened) {
        program.User.files = {file};
        program.Choose("mnuFileOpen");
        program.Settle();
        QCOMPARE(program.Design().FileName, file);
    } else {
        program.NewPatternByMenu();
    }
    const std::string before = BytesOf(program.Parts().Open.Get());
    Import(program, [](frmImportWizard& wizard) {
        QCOMPARE(wizard.CurrentScreen(), 0);
        QVERIFY(PartOf<PictureView>(wizard, "LPicPreview").Shown() == nullptr);
    });
    QVERIFY(program.User.asked.empty());
    QCOMPARE(BytesOf(program.Parts().Open.Get()), before);
}

void ImportIntoDesignTest::AnImportOfAWholeDesignIsResumedOverAnother() {
    OpenedProgram program;
    program.Take(20, 12, 300);
    Import(program, [&program](frmImportWizard& wizard) {
        TakeFile(program, wizard, "cat.png");
        SetWidth(wizard, QStringLiteral("10"));
        wizard.reject();
    });
    program.Design().SetChanged(false);
    program.NewPatternByMenu();
    program.User.answers = {MessageAnswer::Yes};
    Import(program, [](frmImportWizard& wizard) {
        GoToMapping(wizard);
        ChooseFamily(wizard, QStringLiteral("150"));
        Next(wizard);
        QVERIFY(!wizard.isVisible());
    });
    QCOMPARE(program.Design().GetPatternWidth(), 10);
}

void ImportIntoDesignTest::AResumedImportTakesTheCurrentPaletteAsItIsNow() {
    OpenedProgram program;
    Pattern& design = program.Design();
    program.Take(20, 12, 300);
    design.GetPalette() = PaletteOf(program, {MakeColour(200, 0, 0), MakeColour(0, 0, 200)});
    Import(program, [&program](frmImportWizard& wizard) {
        TakeFile(program, wizard, "cat.png");
        SetWidth(wizard, QStringLiteral("10"));
        GoToMapping(wizard);
        ClickIn(wizard, "optPalette");
        auto& palettes = PartOf<QComboBox>(wizard, "cmbFlossFamily");
        palettes.setFocus();
        QTest::keyClick(&palettes, Qt::Key_Home);
        wizard.reject();
    });
    // No colour and no number of flosses has changed.
    design.GetPalette().SetFlossSymbol(1, "Q");
    design.GetPalette().SetFlossManuIDs(2, "4711");
    program.User.answers = {MessageAnswer::Yes};
    Import(program, [](frmImportWizard& wizard) {
        QCOMPARE(wizard.CurrentScreen(), 5);
        QCOMPARE(PartOf<QComboBox>(wizard, "cmbFlossFamily").currentIndex(), 0);
        Next(wizard);
        QVERIFY(!wizard.isVisible());
    });
    QCOMPARE(design.GetPatternWidth(), 10);
    QCOMPARE(design.GetPalette().GetFlossSymbol(1), int('Q'));
    QCOMPARE(design.GetPalette().GetManufID(2), std::string("4711"));
}

void ImportIntoDesignTest::ThePaletteStaysSortedAndUndoLeavesItSo() {
    OpenedProgram program;
    Palette& palette = program.Design().GetPalette();
    palette =
        PaletteOf(program, {MakeColour(200, 0, 0), MakeColour(0, 0, 200), MakeColour(0, 250, 0)});
    palette.Sort(SortColor);
    const auto order = [&palette] {
        std::vector<int> places;
        for (int place = 1; place <= palette.GetEntriesCount(); ++place) {
            places.push_back(palette.GetSortIndex(place));
        }
        return places;
    };
    const std::vector<int> before = order();
    QVERIFY(before != (std::vector<int>{1, 2, 3}));
    Import(program, [&program](frmImportWizard& wizard) {
        TakeFile(program, wizard, "cat.png");
        SetWidth(wizard, QStringLiteral("24"));
        GoToMapping(wizard);
        ChooseFamily(wizard, QStringLiteral("9"));
        Next(wizard);
        QVERIFY(!wizard.isVisible());
    });
    QCOMPARE(palette.GetSortOrder(), int(SortColor));
    program.Choose("mnuEditUndo");
    QCOMPARE(palette.GetSortOrder(), int(SortColor));
    QCOMPARE(order(), before);
}

} // namespace zol::test

QTEST_MAIN(zol::test::ImportIntoDesignTest)
#include "test_ImportIntoDesign.moc"
