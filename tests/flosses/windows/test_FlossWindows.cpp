// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// The selected floss of the palette editor, and the windows that it asks with.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>

#include "flosses/editing/MyColors.h"
#include "flosses/windows/ColorSample.h"
#include "flosses/windows/PaletteWindow.h"
#include "flosses/windows/SymbolGrid.h"
#include "flosses/windows/frmAddPalette.h"
#include "flosses/windows/frmSymbols.h"
#include "settings/ColorLists.h"

namespace zol::test {

namespace {

int PlaceOf(int code) {
    int place = 1;
    while (SymbolChoice::CodeAt(place) != code) {
        ++place;
    }
    return place;
}

void ClickSymbol(QWidget& window, int code) {
    auto& grid = PartOf<SymbolGrid>(window, "picGrid");
    QTest::mouseClick(&grid, Qt::LeftButton, {}, grid.RectOf(PlaceOf(code)).center());
}

} // namespace

class FlossWindowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TextsAreTakenOnLeavingTheField();
    void EnterTakesATextAndLeavesTheWindowOpen();
    void StrandsAreChosen();
    void LineStyleAsksForAllLines();
    void SymbolIsChanged();
    void TakenSymbolIsTold();
    void SymbolsAreChosenByKeys();
    void ProgramsOwnDoorAsksForASymbol();
    void NonRepresentativeColorIsChosen();
    void FlossIsCreatedAndSaved();
    void SavingIsHiddenWhereItCannotBe();
    void WindowComesBackInItsSize();
    void NamesStayAsTheyAreSpelled();
    void QuestionsNameFlossesAsTheyAreSpelled();
    void MyColorsIsAName();
    void AmpersandOfAMakerIsShown();

private:
    static void ShowTab(PaletteWindow& test, int tab) {
        test.Find<QTabWidget>("tbFlossInfo").setCurrentIndex(tab);
    }
};

void FlossWindowsTest::TextsAreTakenOnLeavingTheField() {
    PaletteWindow test;
    QVERIFY(test.Show());
    auto& number = test.Find<QLineEdit>("txtFlossID");
    number.setFocus();
    number.selectAll();
    QTest::keyClicks(&number, QStringLiteral("R77"));
    QCOMPARE(test.Flosses().GetManufID(1), std::string("R1"));
    // Selecting another floss leaves the field first.
    test.ClickEntry(2);
    QCOMPARE(test.Flosses().GetManufID(1), std::string("R77"));
    QCOMPARE(test.Flosses().GetManufID(2), std::string("G1"));
    QCOMPARE(number.text(), QStringLiteral("G1"));
}

void FlossWindowsTest::EnterTakesATextAndLeavesTheWindowOpen() {
    PaletteWindow test;
    QVERIFY(test.Show());
    auto& name = test.Find<QLineEdit>("txtFlossDescription");
    name.setFocus();
    name.selectAll();
    QTest::keyClicks(&name, QStringLiteral("poppy"));
    QTest::keyClick(&name, Qt::Key_Return);
    QVERIFY(test.Window->isVisible());
    QCOMPARE(test.Flosses().GetFlossShortDesc(1), std::string("poppy"));
    QCOMPARE(name.maxLength(), 30);
}

void FlossWindowsTest::StrandsAreChosen() {
    PaletteWindow test;
    QVERIFY(test.Show());
    ShowTab(test, 1);
    test.Choose("cmbStitchStrands", 2);
    test.Choose("cmbBackStitchStrands", 1);
    QCOMPARE(test.Flosses().GetFlossStitchStrands(1), 4);
    QCOMPARE(test.Flosses().GetFlossBackStitchStrands(1), 2);
    test.Flosses().SetFlossStrands(2, 40, 1);
    test.ClickEntry(2);
    QCOMPARE(test.Find<QComboBox>("cmbStitchStrands").currentText(), QStringLiteral("40"));
}

void FlossWindowsTest::LineStyleAsksForAllLines() {
    PaletteWindow test;
    BackStitchLine line;
    line.StartX = 1;
    line.StartY = 1;
    line.StartPos = 1;
    line.EndX = 3;
    line.EndY = 1;
    line.EndPos = 1;
    line.PaletteIndex = 1;
    test.Design->SetBackstitchLine(line);
    QVERIFY(test.Show());
    ShowTab(test, 1);
    QCOMPARE(test.Find<QComboBox>("cmbBSSymbol").count(), 6);
    QCOMPARE(test.Find<QComboBox>("cmbBSSymbol").itemData(5).toString(), QStringLiteral("TRACKS"));
    test.User.answers = {MessageAnswer::No, MessageAnswer::Yes};
    test.Choose("cmbBSSymbol", 1);
    QCOMPARE(test.Flosses().GetDefaultBSType(1), int(LineSquiggle));
    QCOMPARE(int(test.Design->GetBackStitchLine(1).LineStyle), int(LineStraight));
    test.Choose("cmbBSSymbol", 1);
    QCOMPARE(int(test.Design->GetBackStitchLine(1).LineStyle), int(LineDashed));
    QCOMPARE(test.User.asked.size(), std::size_t(2));
}

void FlossWindowsTest::SymbolIsChanged() {
    PaletteWindow test;
    QVERIFY(test.Show());
    ShowTab(test, 1);
    QCOMPARE(test.Find<QLineEdit>("txtSymbol").text(), QStringLiteral("R"));
    InNextWindow("frmSymbols", [](QDialog& window) {
        QCOMPARE(window.windowTitle(), QStringLiteral("Select a Symbol"));
        QCOMPARE(PartOf<QLabel>(window, "lblFlossDesc").text(), QStringLiteral("R1 - red"));
        QCOMPARE(*PartOf<ColorSample>(window, "picFlossColor").Color(), MakeColour(200, 0, 0));
        ClickSymbol(window, '#');
        ClickIn(window, "cmdOK");
    });
    test.Click("cmdChangeSymbol");
    QCOMPARE(test.Flosses().GetFlossSymbol(1), int('#'));
    QCOMPARE(test.Find<QLineEdit>("txtSymbol").text(), QStringLiteral("#"));
}

void FlossWindowsTest::TakenSymbolIsTold() {
    PaletteWindow test;
    QVERIFY(test.Show());
    ShowTab(test, 1);
    InNextWindow("frmSymbols", [](QDialog& window) {
        ClickSymbol(window, 'G');
        ClickIn(window, "cmdOK");
    });
    test.Click("cmdChangeSymbol");
    QCOMPARE(test.User.ToldTexts(),
             std::vector<std::string>{"This symbol is already being used by another floss."});
    QCOMPARE(test.Flosses().GetFlossSymbol(1), int('R'));
    QVERIFY(!test.Window->HasChanged());
}

void FlossWindowsTest::SymbolsAreChosenByKeys() {
    PaletteWindow test;
    frmSymbols window(test.Flosses(), 2, std::nullopt, test.User, test.Store);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto& grid = PartOf<SymbolGrid>(window, "picGrid");
    QVERIFY(grid.hasFocus());
    QTest::keyClick(&grid, Qt::Key_Right);
    QCOMPARE(window.Symbol(), std::string("H"));
    QTest::keyClick(&grid, Qt::Key_Down);
    QCOMPARE(int(Palette::SymbolCodeOf(window.Symbol())), 'H' + 20);
    QTest::keyClick(&grid, Qt::Key_Home);
    QCOMPARE(window.Symbol(), std::string("!"));
    QTest::keyClick(&grid, Qt::Key_Return);
    QVERIFY(!window.isVisible());
    QCOMPARE(window.result(), int(QDialog::Accepted));
    QVERIFY(test.User.told.empty());
}

void FlossWindowsTest::ProgramsOwnDoorAsksForASymbol() {
    PaletteWindow test;
    SymbolWindow door(test.User, test.Store);
    test.Context.Symbols = &door;
    AcceptNext("frmSymbols");
    QCOMPARE(test.Flosses().AddPaletteEntry(0, "1", "x", "ABC", "", 2, 1, 0, 0, 0, ""),
             PaletteAdded);
    QCOMPARE(test.Flosses().GetFlossSymbol(5), int('!'));
    InNextWindow("frmSymbols", [](QDialog& window) { ClickIn(window, "cmdCancel"); });
    QCOMPARE(test.Flosses().AddPaletteEntry(0, "2", "y", "ABC", "", 2, 1, 0, 0, 0, ""),
             PaletteAddCancelled);
    QCOMPARE(test.Flosses().GetEntriesCount(), 5);
}

void FlossWindowsTest::NonRepresentativeColorIsChosen() {
    PaletteWindow test;
    ColorLists::SaveNonRepColors(test.Store, {{"Gold", MakeColour(212, 175, 55)}});
    PaletteDesk desk{*test.Design, test.User, test.Store, "dmc.col", 1};
    test.Window = std::make_unique<frmPalette>(desk);
    QVERIFY(test.Show());
    ShowTab(test, 2);
    auto& list = test.Find<QComboBox>("cmbNonRepColors");
    QCOMPARE(list.currentText(), QStringLiteral("Black"));
    test.Choose("cmbNonRepColors", -1);
    QCOMPARE(test.Flosses().GetNonRepColor(1), MakeColour(212, 175, 55));
    QCOMPARE(test.Flosses().GetNonRepDesc(1), std::string("Gold"));
    // The line goes; what is stored in the entry stays, and the last line stands for it.
    InNextWindow("frmColorList", [](QDialog& window) {
        ClickIn(window, "cmdDelete");
        ClickIn(window, "cmdClose");
    });
    test.Click("cmdCustNonRepColor");
    QCOMPARE(list.count(), 1);
    QCOMPARE(list.currentText(), QStringLiteral("Black"));
    QCOMPARE(test.Flosses().GetNonRepColor(1), MakeColour(212, 175, 55));
}

void FlossWindowsTest::FlossIsCreatedAndSaved() {
    PaletteWindow test;
    QVERIFY(test.Show());
    InNextWindow("frmColors", [](QDialog& mixer) {
        QCOMPARE(mixer.windowTitle(), QStringLiteral("Create Custom Color"));
        InNextWindow("frmAddPalette", [](QDialog& window) {
            QVERIFY(PartOf<QLineEdit>(window, "txtID").text().isEmpty());
            auto& name = PartOf<QLineEdit>(window, "txtDescription");
            QCOMPARE(name.text(), QStringLiteral("<Enter Description>"));
            QTest::keyClicks(&PartOf<QLineEdit>(window, "txtID"), QStringLiteral("M1"));
            name.setFocus();
            name.selectAll();
            QTest::keyClicks(&name, QStringLiteral("My Teal"));
            AcceptNext("frmSymbols");
            QTest::mouseClick(&PartOf<QCheckBox>(window, "chkMyColors"), Qt::LeftButton, {},
                              QPoint(8, 8));
            ClickIn(window, "cmdOK");
        });
        mixer.accept();
    });
    test.Click("cmdCreate");
    QCOMPARE(test.Flosses().GetEntriesCount(), 5);
    QCOMPARE(test.Flosses().GetFlossLongDesc(5), std::string("M1 - My Teal"));
    QCOMPARE(test.Find<QComboBox>("cmbCategory").currentText(), QStringLiteral("My Colors"));
    QCOMPARE(test.ShownNumber(), QStringLiteral("M1"));
    QVERIFY(std::filesystem::exists(test.Path() / "Flosses" / "My Colors.col"));
}

void FlossWindowsTest::SavingIsHiddenWhereItCannotBe() {
    PaletteWindow test;
    frmAddPalette may(0, true, test.Context, test.Store);
    may.show();
    QVERIFY(PartOf<QCheckBox>(may, "chkMyColors").isVisible());
    QVERIFY(!may.Floss().SaveToMyColors);
    may.close();
    frmAddPalette mayNot(0, false, test.Context, test.Store);
    mayNot.show();
    QVERIFY(!PartOf<QCheckBox>(mayNot, "chkMyColors").isVisible());
    QVERIFY(!mayNot.Floss().SaveToMyColors);
}

void FlossWindowsTest::WindowComesBackInItsSize() {
    PaletteWindow test;
    QVERIFY(test.Show());
    test.Window->resize(760, 590);
    const QSize left = test.Window->size();
    test.Click("cmdOK");
    QVERIFY(!test.Window->isVisible());
    PaletteDesk desk{*test.Design, test.User, test.Store, "dmc.col", 1};
    test.Window = std::make_unique<frmPalette>(desk);
    QCOMPARE(test.Window->size(), left.boundedTo(test.Window->screen()->availableSize()));
}

void FlossWindowsTest::NamesStayAsTheyAreSpelled() {
    PaletteWindow test(std::nullopt, true);
    QVERIFY(MyColors::Save(test.Context, {0, "M1", "True Color", true}, {}));
    ColorLists::SaveNonRepColors(test.Store, {{"Color of the sea", MakeColour(1, 2, 3)}});
    PaletteDesk desk{*test.Design, test.User, test.Store, "my colors.col", 1};
    test.Window = std::make_unique<frmPalette>(desk);
    QVERIFY(test.Show());
    QCOMPARE(test.Find<QComboBox>("cmbCategory").currentText(), QStringLiteral("My Colors"));
    ShowTab(test, 2);
    test.Choose("cmbNonRepColors", -1);
    QCOMPARE(test.Find<QComboBox>("cmbNonRepColors").currentText(),
             QStringLiteral("Color of the sea"));
    QCOMPARE(test.Flosses().GetNonRepDesc(1), std::string("Color of the sea"));
}

void FlossWindowsTest::QuestionsNameFlossesAsTheyAreSpelled() {
    PaletteWindow test(std::nullopt, true);
    const QString name = QStringLiteral("R1 - True Color");
    test.Flosses().SetFlossDesc(1, "True Color");
    QVERIFY(test.Show());
    InNextWindow("frmReplaceColor", [&](QDialog& window) {
        QCOMPARE(PartOf<QLabel>(window, "lblReplace").text(),
                 QStringLiteral("Replace ") + name + QStringLiteral(" with"));
        QCOMPARE(window.windowTitle(), QStringLiteral("Replace Colour"));
        ClickIn(window, "cmdCancel");
    });
    test.Click("cmdReplaceColor");
    InNextWindow("frmDeleteColor", [&](QDialog& window) {
        QCOMPARE(PartOf<QLabel>(window, "lblDeleteDesc").text(), name);
        QCOMPARE(PartOf<QLabel>(window, "lblStitches").text(),
                 QStringLiteral("There are currently 2 stitches of this colour in your pattern."));
        ClickIn(window, "cmdCancel");
    });
    test.Click("cmdRemoveColor");
    ShowTab(test, 1);
    InNextWindow("frmSymbols", [&](QDialog& window) {
        QCOMPARE(PartOf<QLabel>(window, "lblFlossDesc").text(), name);
        ClickIn(window, "cmdCancel");
    });
    test.Click("cmdChangeSymbol");
}

void FlossWindowsTest::MyColorsIsAName() {
    PaletteWindow test(std::nullopt, true);
    frmAddPalette window(0, true, test.Context, test.Store);
    QCOMPARE(PartOf<QCheckBox>(window, "chkMyColors").text().remove(QLatin1Char('&')),
             QStringLiteral("Save to \"My Colors\""));
}

void FlossWindowsTest::AmpersandOfAMakerIsShown() {
    PaletteWindow test;
    test.Flosses().ChangePaletteEntry(1, MakeColour(9, 9, 9), "8", "Fawn", "J&P Coats", 0,
                                      Palette::KeepStrands, Palette::KeepStrands);
    test.Flosses().BlendFloss(1, 0, "9", "J&P Coats", "Sable", 0);
    QVERIFY(test.Show());
    test.ClickEntry(2);
    test.ClickEntry(1);
    // A label with a field of its own takes a single ampersand for a mnemonic.
    const auto& maker = test.Find<QLabel>("lblManuf");
    QVERIFY(maker.buddy() != nullptr);
    QCOMPARE(maker.text(), QStringLiteral("J&&P Coats:"));
    const auto& second = test.Find<QLabel>("lblManufB");
    QVERIFY(second.buddy() == nullptr);
    QCOMPARE(second.text(), QStringLiteral("J&P Coats:"));
}

} // namespace zol::test

QTEST_MAIN(zol::test::FlossWindowsTest)
#include "test_FlossWindows.moc"
