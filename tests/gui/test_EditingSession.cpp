// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolButton>

#include "flosses/AvailColors.h"
#include "grid/basEditBox.h"
#include "gui/DrawnProgram.h"
#include "import/Imaging.h"
#include "import/ImportSession.h"
#include "model/SafeFile.h"
#include "print/ChartPdf.h"
#include "print/RTFFuncs.h"
#include "support/DialogDriver.h"
#include "support/DialogHands.h"

namespace zol::test {

/// A designer's evening: a picture becomes a design of two pages, which is worked over with the
/// palette editor, the edit box and the properties, saved, and opened again. A twin goes the same
/// way through the model's own operations.
class EditingSessionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void PictureBecomesATwoPageDesign();

private:
    void ImportThePicture();
    void CountPages();
    void ReplaceAFloss();
    void BlendAFloss();
    void MoveABlock();
    void TurnABlock();
    void WriteInstructions();
    void SaveAndOpenAgain();
    void InThePaletteEditor(std::vector<DialogDriver::Step> steps);

    [[nodiscard]] std::filesystem::path File() const { return *m_home / "still life.pat"; }

    std::unique_ptr<ProgramHome> m_home;
    std::unique_ptr<DrawnProgram> m_program;
    ProgramContext m_twinContext; ///< the twin outlives a run of the program
    std::unique_ptr<Pattern> m_twin;
    std::string m_instructions;
};

void EditingSessionTest::init() {
    m_home = std::make_unique<ProgramHome>();
    m_program = std::make_unique<DrawnProgram>(*m_home);
    QVERIFY(m_program->Open());
    m_twin = std::make_unique<Pattern>(m_twinContext);
}

void EditingSessionTest::cleanup() {
    m_twin.reset();
    if (m_program) {
        QVERIFY(m_program->User.unanswered.empty());
        m_program->End();
    }
    m_program.reset();
    m_home.reset();
}

void EditingSessionTest::PictureBecomesATwoPageDesign() {
    using Chapter = void (EditingSessionTest::*)();
    for (const Chapter chapter :
         {&EditingSessionTest::ImportThePicture, &EditingSessionTest::CountPages,
          &EditingSessionTest::ReplaceAFloss, &EditingSessionTest::BlendAFloss,
          &EditingSessionTest::MoveABlock, &EditingSessionTest::TurnABlock,
          &EditingSessionTest::WriteInstructions, &EditingSessionTest::SaveAndOpenAgain}) {
        (this->*chapter)();
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

void EditingSessionTest::ImportThePicture() {
    const Workshop parts = m_program->Parts();
    AvailColors catalogue(parts.Context);
    QVERIFY(catalogue.Initialize(PathOf(parts.Settings.DefaultFlossFile)));
    PictureFile picture(std::filesystem::path(SourceFolder) / "data" / "samples" / "pictures" /
                        "still-life.jpg");
    ImportRequest request;
    request.Size = {110, 82};
    ImagingResult decoded = picture.LoadForImport(request);
    QVERIFY2(decoded.IsGood(), decoded.Text.c_str());
    ImportSession session(parts.Context);
    session.ChooseCatalogue(catalogue);
    session.SetImage(std::move(decoded.Image));
    Pattern imported(parts.Context);
    QVERIFY(session.CreateThePattern(imported, 24, 14, 14).IsDone());
    QCOMPARE(imported.Save(File()), 0);
    QCOMPARE(m_twin->Load(File()), 0);
    m_twin->GetPalette().Sort(parts.Settings.PaletteSortOrder);

    m_program->User.files = {File()};
    m_program->Choose("mnuFileOpen");
    // Squares of 7 pixels: the whole design is in the window.
    m_program->Resized(100);
    COMPARE_TWIN(*m_program, *m_twin);
    QCOMPARE(m_program->Design().GetPalette().GetEntriesCount(), 24);
}

void EditingSessionTest::CountPages() {
    ChartPdfOptions chart;
    chart.Print.PrintColorKey = false;
    const ChartPdfResult result =
        WriteChartPdf(m_program->Design(), chart, *m_home / "chart.pdf", nullptr);
    QVERIFY(result.IsWhole());
    QCOMPARE(result.Pages, 2);
}

void EditingSessionTest::InThePaletteEditor(std::vector<DialogDriver::Step> steps) {
    DialogDriver driver(std::move(steps));
    m_program->Choose("mnuOptionsPalette");
    QVERIFY(driver.AllDone());
    m_program->Settle();
}

void EditingSessionTest::ReplaceAFloss() {
    const int stitches = m_twin->GetPaletteStitchCount(2, -1, -1, -1, -1);
    QVERIFY(stitches > 0);
    int chosen = 0;
    m_program->User.answers = {MessageAnswer::Yes};
    m_program->Window().Modes().SetCurrentColor(2);
    InThePaletteEditor({[](QDialog& editor) {
                            ClickIn(editor, "cmdReplaceColor");
                            ClickIn(editor, "cmdOK");
                        },
                        [&chosen](QDialog& replace) {
                            auto& list = PartOf<QListWidget>(replace, "imgPaletteColors");
                            list.setFocus();
                            QTest::keyClick(&list, Qt::Key_End);
                            chosen = list.currentItem()->data(Qt::UserRole).toInt();
                            ClickIn(replace, "cmdOK");
                        }});
    QVERIFY(chosen != 0 && chosen != 2);
    const std::string asked = m_program->User.asked.back().text;
    QVERIFY2(asked.find(std::to_string(stitches) + " stitches") != std::string::npos,
             asked.c_str());
    m_twin->ChangeColor(2, chosen, -1, -1, -1, -1);
    m_twin->RemoveColor(2, -1, -1, -1, -1);
    COMPARE_TWIN(*m_program, *m_twin);
    QCOMPARE(m_program->Command("mnuEditUndo").text(), QStringLiteral("Undo Palette Changes"));
}

void EditingSessionTest::BlendAFloss() {
    m_program->User.answers = {MessageAnswer::Yes};
    m_program->Window().Modes().SetCurrentColor(3);
    InThePaletteEditor({[](QDialog& editor) {
        TypeIn(editor, "txtSearch", QStringLiteral("310"));
        ClickIn(editor, "cmdSearch");
        ClickIn(editor, "cmbBlend");
        ClickIn(editor, "cmdOK");
    }});
    AvailColors catalogue(m_program->Parts().Context);
    QVERIFY(catalogue.Initialize(PathOf(m_program->Parts().Settings.DefaultFlossFile)));
    int row = 1;
    while (catalogue.GetFlossManuID(row) != "310") {
        ++row;
    }
    m_twin->GetPalette().BlendFloss(3, catalogue.GetFlossRGB(row), "310", catalogue.GetShortDesc(),
                                    catalogue.GetFlossDesc(row), catalogue.GetFlossMasterID(row));
    const Palette& flosses = m_program->Design().GetPalette();
    QVERIFY(flosses.IsBlended(3));
    QCOMPARE(flosses.GetFlossLongDesc(3), m_twin->GetPalette().GetFlossLongDesc(3));
    COMPARE_TWIN(*m_program, *m_twin);
}

void EditingSessionTest::MoveABlock() {
    m_program->Tool("DRAWMODE_EDITBOX");
    m_program->DragOver({{10, 10}, {19, 17}});
    m_program->DragOver({{12, 12}, {30, 20}, {52, 27}});
    const Pattern block = basEditBox::PickUpSelection(*m_twin, {10, 10, 19, 17});
    basEditBox::EraseArea(*m_twin, {10, 10, 19, 17});
    basEditBox::WriteBack(block, *m_twin, 50, 25);
    COMPARE_TWIN(*m_program, *m_twin);
}

void EditingSessionTest::TurnABlock() {
    m_program->DragOver({{70, 40}, {77, 43}});
    m_program->Choose("mnuRotate90");
    m_program->Key(Qt::Key_Return);
    basEditBox::TransformArea(*m_twin, {70, 40, 77, 43}, TransformOperation::Rotate90);
    COMPARE_TWIN(*m_program, *m_twin);
    QCOMPARE(m_program->Command("mnuEditUndo").text(), QStringLiteral("Undo Rotate"));
}

void EditingSessionTest::WriteInstructions() {
    DialogDriver driver({[](QDialog& properties) {
        TypeIn(properties, "txtTitle", QStringLiteral("Still Life"));
        auto& tabs = PartOf<QTabWidget>(properties, "tbsPatternInfo");
        auto& text = PartOf<QTextEdit>(properties, "rtxtInstructions");
        for (int tab = 0; tab < tabs.count() && !text.isVisible(); ++tab) {
            QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {},
                              tabs.tabBar()->tabRect(tab).center());
        }
        QVERIFY(text.isVisible());
        text.setFocus();
        ClickIn(properties, "BOLD");
        QTest::keyClicks(&text, QStringLiteral("Begin in the middle."));
        ClickIn(properties, "cmdOK");
    }});
    m_program->Choose("mnuPatternInfo");
    QVERIFY(driver.AllDone());
    m_instructions = m_program->Design().Instructions;
    QTextDocument document;
    RTFFuncs::LoadRichText(document, m_instructions);
    QCOMPARE(document.toPlainText(), QStringLiteral("Begin in the middle."));
    QCOMPARE(document.begin().begin().fragment().charFormat().fontWeight(), int{QFont::Bold});
}

void EditingSessionTest::SaveAndOpenAgain() {
    m_program->Choose("mnuFileSave");
    QVERIFY(!m_program->Design().IsChanged());
    const std::string saved = BytesOf(m_program->Parts().Open.Get());
    m_program->End();
    m_program = std::make_unique<DrawnProgram>(*m_home, File().string());
    QVERIFY(m_program->Open());
    QCOMPARE(m_program->Window().windowTitle(),
             QStringLiteral("Korvanta - ") + QString::fromStdString(PathText(File())));
    m_program->Resized(100);
    COMPARE_TWIN(*m_program, *m_twin);
    QVERIFY(BytesOf(m_program->Parts().Open.Get()) == saved);
    QCOMPARE(m_program->Design().Title, std::string("Still Life"));
    QCOMPARE(m_program->Design().Instructions, m_instructions);
    const Palette& flosses = m_program->Design().GetPalette();
    QCOMPARE(flosses.GetEntriesCount(), m_twin->GetPalette().GetEntriesCount());
    for (int entry = 1; entry <= flosses.GetEntriesCount(); ++entry) {
        QCOMPARE(flosses.GetFlossRGB(entry), m_twin->GetPalette().GetFlossRGB(entry));
        QCOMPARE(flosses.GetFlossLongDesc(entry), m_twin->GetPalette().GetFlossLongDesc(entry));
    }
}

} // namespace zol::test

QTEST_MAIN(zol::test::EditingSessionTest)
#include "test_EditingSession.moc"
