// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextEdit>

#include <functional>

#include "gui/RunningProgram.h"
#include "model/PatternInfo.h"
#include "print/RTFFuncs.h"
#include "support/DialogDriver.h"
#include "support/DialogHands.h"

namespace zol::test {

class PropertiesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void NewPatternIsAsChosen();
    void NewPatternBeginsWithTheDefaults();
    void ChangeIsOneStep();
    void ClothCountChangesTheSquares();
    void LookingIsNoStep_data();
    void LookingIsNoStep();
    void ShrinkingTakesAwayAfterYes();
    void ShrinkingIsRefused();
    void FaultKeepsTheDesign();
    void LineUnderWayIsLetGo();
    void FlossesStay();
    void InstructionsAreSavedAsTheyWereTyped();
    void ForeignInstructionsOutliveAChange();
    void CentimetresByTheOptions();

private:
    /// Runs a command that opens the dialog, with somebody there.
    [[nodiscard]] bool WithDialog(const char* command, const DialogDriver::Step& step) {
        DialogDriver driver({[&step](QDialog& dialog) {
            QTRY_COMPARE(QApplication::activeWindow(), &dialog);
            step(dialog);
            if (dialog.isVisible()) { // a check has failed half-way
                dialog.reject();
            }
        }});
        m_program->Choose(command);
        return driver.AllDone();
    }
    [[nodiscard]] Pattern& Design() { return m_program->Design(); }
    [[nodiscard]] QString UndoText() { return m_program->Command("mnuEditUndo").text(); }

    std::unique_ptr<ProgramHome> m_home;
    std::unique_ptr<RunningProgram> m_program;
};

void PropertiesTest::init() {
    m_home = std::make_unique<ProgramHome>();
    m_program = std::make_unique<RunningProgram>(*m_home);
    QVERIFY(m_program->Start());
    m_program->Window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_program->Window()));
}

void PropertiesTest::cleanup() {
    if (m_program) {
        QVERIFY(m_program->User.unanswered.empty());
        m_program->End();
    }
    m_program.reset();
    m_home.reset();
}

void PropertiesTest::NewPatternIsAsChosen() {
    m_program->ClickSquare(3, 3);
    m_program->User.answers = {MessageAnswer::No};
    QVERIFY(WithDialog("mnuFileNew", [](QDialog& dialog) {
        TypeIn(dialog, "txtTitle", QStringLiteral("Tulip"));
        TypeIn(dialog, "txtAuthor", QStringLiteral("Ann"));
        TypeIn(dialog, "txtWidth", QStringLiteral("40"));
        TypeIn(dialog, "txtHeight", QStringLiteral("30"));
        ClickIn(dialog, "chkSquare");
        TypeIn(dialog, "cmbClothCountX", QStringLiteral("18"));
        TypeIn(dialog, "cmbClothCountY", QStringLiteral("16"));
        ClickIn(dialog, "cmdOK");
    }));
    const PatternInfo made = PatternInfo::Of(Design());
    QCOMPARE(made.Width, 40);
    QCOMPARE(made.Height, 30);
    QCOMPARE(made.ClothCountX, 18);
    QCOMPARE(made.ClothCountY, 16);
    QCOMPARE(made.Title, std::string("Tulip"));
    QCOMPARE(made.Author, std::string("Ann"));
    QCOMPARE(made.Instructions, std::string());
    QVERIFY(!Design().IsChanged());
    QVERIFY(!m_program->Command("mnuEditUndo").isEnabled());
    QCOMPARE(m_program->Window().windowTitle(), QStringLiteral("Korvanta - Unsaved Pattern"));
    QCOMPARE(m_program->Area().GetVisibleRange().Right, 40);
    QVERIFY(Design().GetPalette().GetEntriesCount() > 0);
}

void PropertiesTest::NewPatternBeginsWithTheDefaults() {
    Options& settings = m_program->Parts().Settings;
    settings.Author = "Default Designer";
    settings.PatternWidth = 77;
    settings.PatternClothCountX = 16;
    settings.PatternClothCountY = 16;
    Design().Author = "Another";
    Design().Instructions = "of the old one";
    QVERIFY(WithDialog("mnuFileNew", [](QDialog& dialog) {
        QCOMPARE(PartOf<QLineEdit>(dialog, "txtAuthor").text(), QStringLiteral("Default Designer"));
        QCOMPARE(PartOf<QLineEdit>(dialog, "txtWidth").text(), QStringLiteral("77"));
        QCOMPARE(PartOf<QLineEdit>(dialog, "txtHeight").text(), QStringLiteral("100"));
        QCOMPARE(PartOf<QComboBox>(dialog, "cmbClothCountX").currentText(), QStringLiteral("16"));
        QVERIFY(PartOf<QTextEdit>(dialog, "rtxtInstructions").document()->isEmpty());
        ClickIn(dialog, "cmdOK");
    }));
    QCOMPARE(Design().Author, std::string("Default Designer"));
    QCOMPARE(Design().GetPatternWidth(), 77);
    QCOMPARE(Design().Instructions, std::string());
}

void PropertiesTest::ChangeIsOneStep() {
    m_program->ClickSquare(3, 3);
    const PatternInfo before = PatternInfo::Of(Design());
    QVERIFY(WithDialog("mnuPatternInfo", [](QDialog& dialog) {
        TypeIn(dialog, "txtTitle", QStringLiteral("Tulip"));
        TypeIn(dialog, "txtWidth", QStringLiteral("120"));
        ClickIn(dialog, "cmdOK");
    }));
    QCOMPARE(Design().Title, std::string("Tulip"));
    QCOMPARE(Design().GetPatternWidth(), 120);
    QCOMPARE(Design().GetPatternHeight(), 100);
    QCOMPARE(Design().GetStitchCount(3, 3), 1);
    QVERIFY(Design().IsChanged());
    QVERIFY(m_program->User.asked.empty());
    QCOMPARE(UndoText(), QStringLiteral("Undo Change Pattern Info"));
    // The new columns can be drawn in at once.
    m_program->Area().ScrollGrid(100, 1, true);
    m_program->Choose("mnuEditUndo");
    QVERIFY(PatternInfo::Of(Design()) == before);
    QCOMPARE(Design().GetStitchCount(3, 3), 1);
    QCOMPARE(UndoText(), QStringLiteral("Undo"));
    QVERIFY(m_program->Area().GetVisibleRange().Right <= 100);
}

void PropertiesTest::ClothCountChangesTheSquares() {
    const QSizeF before = m_program->Area().SquareSize();
    QVERIFY(WithDialog("mnuPatternInfo", [](QDialog& dialog) {
        TypeIn(dialog, "cmbClothCountX", QStringLiteral("7"));
        ClickIn(dialog, "cmdOK");
    }));
    const QSizeF after = m_program->Area().SquareSize();
    QVERIFY(after.width() > before.width() * 1.8);
    QVERIFY(after.height() > before.height() * 1.8);
}

void PropertiesTest::LookingIsNoStep_data() {
    QTest::addColumn<QString>("button");
    QTest::newRow("cancel") << "cmdCancel";
    QTest::newRow("ok") << "cmdOK";
}

void PropertiesTest::LookingIsNoStep() {
    QFETCH(const QString, button);
    m_program->ClickSquare(3, 3);
    Design().SetChanged(false);
    const QString step = UndoText();
    QVERIFY(WithDialog("mnuPatternInfo", [&button](QDialog& dialog) {
        if (button == QLatin1String("cmdCancel")) {
            TypeIn(dialog, "txtTitle", QStringLiteral("Tulip"));
        }
        ClickIn(dialog, qPrintable(button));
    }));
    QCOMPARE(UndoText(), step);
    QVERIFY(!Design().IsChanged());
    QCOMPARE(Design().Title, std::string());
}

void PropertiesTest::ShrinkingTakesAwayAfterYes() {
    m_program->ClickSquare(3, 3);
    m_program->ClickSquare(3, 30);
    m_program->User.answers = {MessageAnswer::No, MessageAnswer::Yes};
    QVERIFY(WithDialog("mnuPatternInfo", [](QDialog& dialog) {
        TypeIn(dialog, "txtHeight", QStringLiteral("20"));
        ClickIn(dialog, "cmdOK");
        QVERIFY(dialog.isVisible());
        ClickIn(dialog, "cmdOK");
    }));
    QCOMPARE(m_program->User.asked.size(), std::size_t{2});
    QCOMPARE(m_program->User.asked[0].text, std::string(ResizeWarning));
    QCOMPARE(Design().GetPatternHeight(), 20);
    QCOMPARE(Design().GetStitchCount(3, 3), 1);
    m_program->Choose("mnuEditUndo");
    QCOMPARE(Design().GetPatternHeight(), 100);
    QCOMPARE(Design().GetStitchCount(3, 30), 1);
}

void PropertiesTest::ShrinkingIsRefused() {
    m_program->ClickSquare(3, 30);
    const QString step = UndoText();
    m_program->User.answers = {MessageAnswer::No};
    QVERIFY(WithDialog("mnuPatternInfo", [](QDialog& dialog) {
        TypeIn(dialog, "txtHeight", QStringLiteral("20"));
        ClickIn(dialog, "cmdOK");
        ClickIn(dialog, "cmdCancel");
    }));
    QCOMPARE(Design().GetPatternHeight(), 100);
    QCOMPARE(Design().GetStitchCount(3, 30), 1);
    QCOMPARE(UndoText(), step);
}

void PropertiesTest::FaultKeepsTheDesign() {
    const PatternInfo before = PatternInfo::Of(Design());
    QVERIFY(WithDialog("mnuPatternInfo", [](QDialog& dialog) {
        TypeIn(dialog, "txtTitle", QStringLiteral("Tulip"));
        TypeIn(dialog, "txtWidth", QStringLiteral("0"));
        ClickIn(dialog, "cmdOK");
        QVERIFY(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    }));
    QCOMPARE(m_program->User.ToldTexts(),
             std::vector<std::string>{"Your pattern width is invalid."});
    QVERIFY(PatternInfo::Of(Design()) == before);
    QVERIFY(!Design().IsChanged());
}

void PropertiesTest::LineUnderWayIsLetGo() {
    m_program->Click("DRAWMODE_LINES");
    m_program->ClickSquare(5, 5);
    QVERIFY(WithDialog("mnuPatternInfo", [](QDialog& dialog) {
        TypeIn(dialog, "txtWidth", QStringLiteral("110"));
        ClickIn(dialog, "cmdOK");
    }));
    QCOMPARE(m_program->Window().Modes().GetDrawMode(), DrawLines);
    m_program->ClickSquare(9, 9);
    QCOMPARE(Design().GetBackStitchCount(), 0);
}

void PropertiesTest::FlossesStay() {
    const int flosses = Design().GetPalette().GetEntriesCount();
    m_program->ClickSquare(3, 3);
    const int floss = Design().GetStitchPaletteIndex(3, 3);
    QVERIFY(WithDialog("mnuPatternInfo", [](QDialog& dialog) {
        TypeIn(dialog, "txtWidth", QStringLiteral("110"));
        ClickIn(dialog, "cmdOK");
    }));
    QCOMPARE(Design().GetPalette().GetEntriesCount(), flosses);
    m_program->ClickSquare(4, 4);
    QCOMPARE(Design().GetStitchPaletteIndex(4, 4), floss);
}

void PropertiesTest::InstructionsAreSavedAsTheyWereTyped() {
    const auto file = *m_home / "tulip.pat";
    QVERIFY(WithDialog("mnuPatternInfo", [](QDialog& dialog) {
        QTest::keyClick(&dialog, Qt::Key_I, Qt::AltModifier);
        auto& text = PartOf<QTextEdit>(dialog, "rtxtInstructions");
        QVERIFY(text.isVisible());
        text.setFocus();
        ClickIn(dialog, "CENTERJUSTIFY");
        ClickIn(dialog, "BOLD");
        QTest::keyClicks(&text, QStringLiteral("Tulip"));
        ClickIn(dialog, "BOLD");
        QTest::keyClick(&text, Qt::Key_Return);
        ClickIn(dialog, "LEFTJUSTIFY");
        QTest::keyClicks(&text, QStringLiteral("Two strands on "));
        text.insertPlainText(QString::fromLatin1("\xe9tamine."));
        ClickIn(dialog, "cmdOK");
    }));
    const std::string typed = Design().Instructions;
    QVERIFY(RTFFuncs::IsRichText(typed));
    m_program->User.files = {file, file};
    m_program->Choose("mnuFileSave");
    m_program->Choose("mnuFileOpen");
    QCOMPARE(Design().FileName, file.string());
    QCOMPARE(Design().Instructions, typed);
    QTextDocument document;
    RTFFuncs::LoadInstructions(document, Design().Instructions);
    QCOMPARE(document.toPlainText(), QString::fromLatin1("Tulip\nTwo strands on \xe9tamine."));
    const QTextBlock heading = document.begin();
    QVERIFY(heading.blockFormat().alignment().testFlag(Qt::AlignHCenter));
    QCOMPARE(heading.begin().fragment().charFormat().fontWeight(), int{QFont::Bold});
    QVERIFY(!heading.next().blockFormat().alignment().testFlag(Qt::AlignHCenter));
    QVERIFY(heading.next().begin().fragment().charFormat().fontWeight() != int{QFont::Bold});
    // Seen again in the editor, and left as they are.
    QVERIFY(WithDialog("mnuPatternInfo", [](QDialog& dialog) {
        PartOf<QTabWidget>(dialog, "tbsPatternInfo").setCurrentIndex(1);
        QVERIFY(PartOf<QTextEdit>(dialog, "rtxtInstructions").toPlainText().startsWith(u"Tulip"));
        ClickIn(dialog, "cmdOK");
    }));
    QCOMPARE(Design().Instructions, typed);
}

void PropertiesTest::ForeignInstructionsOutliveAChange() {
    const std::string foreign = "{\\rtf1{\\pict\\pngblip 8950}\\unheard {\\b  x}\\par}\n";
    Design().Instructions = foreign;
    QVERIFY(WithDialog("mnuPatternInfo", [](QDialog& dialog) {
        QTest::keyClick(&dialog, Qt::Key_I, Qt::AltModifier);
        QTest::keyClick(&dialog, Qt::Key_P, Qt::AltModifier);
        TypeIn(dialog, "txtTitle", QStringLiteral("Tulip"));
        ClickIn(dialog, "cmdOK");
    }));
    QCOMPARE(Design().Title, std::string("Tulip"));
    QCOMPARE(Design().Instructions, foreign);
}

void PropertiesTest::CentimetresByTheOptions() {
    m_program->Parts().Settings.Units = "centimetres";
    m_program->User.answers = {MessageAnswer::Yes};
    QVERIFY(WithDialog("mnuPatternInfo", [](QDialog& dialog) {
        ClickIn(dialog, "optUnits");
        QCOMPARE(PartOf<QLineEdit>(dialog, "txtWidth").text(), QStringLiteral("18.143"));
        TypeIn(dialog, "txtWidth", QStringLiteral("5.08"));
        ClickIn(dialog, "cmdOK");
    }));
    QCOMPARE(Design().GetPatternWidth(), 28);
    QCOMPARE(Design().GetPatternHeight(), 100);
}

} // namespace zol::test

QTEST_MAIN(zol::test::PropertiesTest)
#include "test_Properties.moc"
