// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// The palette editor by mouse and keys: the two lists and what goes between them.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

#include "flosses/windows/PaletteWindow.h"

namespace zol::test {

class PaletteWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TypedNumberIsFoundAndEnterAdds();
    void DoubleClickAdds();
    void CancelledSymbolAddsNothing();
    void SearchScrollsAndSelects();
    void StylesKeepTheSelectedRow();
    void CatalogueAndOrderAreChosen();
    void ArrowsClicksAndNumbersSelectAnEntry();
    void PaletteIsSortedForTheEyeAlone();
    void UnusedFlossIsRemovedByDelete();
    void RemovalOffersTheClosest();
    void CancelledRemovalLeavesIt();
    void EntryTakesTheStitches();
    void AvailableFlossTakesThePlace();
    void BlendIsMadeAndEnded();
    void FlossDroppedOnACellReplacesIt();
    void FlossDroppedBesideTheCellsIsAdded();
    void CellDraggedOutIsRemoved();
    void EscapeEndsADragAndThenTheWindow();
    void AreaIsOfferedWhereThereIsOne();
    void WordsAreBritishWhereTheProgramIs();
    void LongPaletteScrollsToTheSelection();
    void WindowGoesQuietlyWithWhatIsTyped();
};

void PaletteWindowTest::TypedNumberIsFoundAndEnterAdds() {
    PaletteWindow test;
    QVERIFY(test.Show());
    QVERIFY(test.Available().hasFocus());
    QTest::keyClicks(&test.Available(), QStringLiteral("66"));
    QCOMPARE(test.ShownNumber(), QStringLiteral("666"));
    QCOMPARE(test.FirstChanges, 0);
    AcceptNext("frmSymbols");
    QTest::keyClick(&test.Available(), Qt::Key_Return);
    QCOMPARE(test.Flosses().GetEntriesCount(), 5);
    QCOMPARE(test.Flosses().GetFlossLongDesc(5), std::string("666 - Bright Red"));
    QCOMPARE(test.Window->SelectedFloss(), 5);
    QCOMPARE(test.Find<QLineEdit>("txtFlossID").text(), QStringLiteral("666"));
    QCOMPARE(test.Find<QLabel>("lblManuf").text(), QStringLiteral("DMC:"));
    QVERIFY(test.Window->isVisible());
    QCOMPARE(test.FirstChanges, 1);
    QTest::keyClick(&test.Available(), Qt::Key_Return);
    QCOMPARE(test.User.ToldTexts(),
             std::vector<std::string>{"DMC 666 has already been added to your palette."});
}

void PaletteWindowTest::DoubleClickAdds() {
    PaletteWindow test;
    QVERIFY(test.Show());
    AcceptNext("frmSymbols");
    QTest::mouseClick(test.Available().viewport(), Qt::LeftButton, {}, test.PlaceOfRow(2));
    QTest::mouseDClick(test.Available().viewport(), Qt::LeftButton, {}, test.PlaceOfRow(2));
    QCOMPARE(test.Flosses().GetEntriesCount(), 5);
    QCOMPARE(QString::fromStdString(test.Flosses().GetManufID(5)), test.ShownNumber());
}

void PaletteWindowTest::CancelledSymbolAddsNothing() {
    PaletteWindow test;
    QVERIFY(test.Show());
    InNextWindow("frmSymbols", [](QDialog& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    test.Click("cmdAdd");
    QCOMPARE(test.Flosses().GetEntriesCount(), 4);
    QVERIFY(!test.Window->HasChanged());
}

void PaletteWindowTest::SearchScrollsAndSelects() {
    PaletteWindow test;
    QVERIFY(test.Show());
    auto& field = test.Find<QLineEdit>("txtSearch");
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("b5200"));
    QTest::keyClick(&field, Qt::Key_Return);
    QVERIFY(test.Window->isVisible());
    QCOMPARE(test.ShownNumber(), QStringLiteral("B5200"));
    QTest::keyClicks(&field, QStringLiteral("31"));
    test.Click("cmdSearch");
    QCOMPARE(test.ShownNumber(), QStringLiteral("B5200"));
    QTest::keyClicks(&field, QStringLiteral("321"));
    test.Click("cmdSearch");
    QCOMPARE(test.ShownNumber(), QStringLiteral("321"));
}

void PaletteWindowTest::StylesKeepTheSelectedRow() {
    PaletteWindow test;
    QVERIFY(test.Show());
    QVERIFY(test.Show321());
    for (int style = 1; style <= 2; ++style) {
        test.Choose("cmbListStyle", 1);
        QCoreApplication::processEvents();
        QCOMPARE(test.ShownNumber(), QStringLiteral("321"));
        QTest::mouseClick(test.Available().viewport(), Qt::LeftButton, {}, test.PlaceOfRow(1));
        QCOMPARE(test.Available().currentIndex().row(), 0);
        QVERIFY(test.Show321());
    }
    const QRect alone = test.Available().visualRect(test.Available().model()->index(0, 0));
    QCOMPARE(alone.size(), QSize(20, 20));
    const QImage shown = test.Available().viewport()->grab().toImage();
    const double ratio = shown.devicePixelRatio();
    QCOMPARE(shown.pixelColor((QPointF(test.PlaceOfRow(5)) * ratio).toPoint()),
             QColor(227, 29, 66));
}

void PaletteWindowTest::CatalogueAndOrderAreChosen() {
    PaletteWindow test;
    QVERIFY(test.Show());
    auto& catalogues = test.Find<QComboBox>("cmbCategory");
    QCOMPARE(catalogues.count(), 2);
    QCOMPARE(catalogues.currentText(), QStringLiteral("DMC"));
    test.Choose("cmbSortBy", 2);
    QCOMPARE(test.Available().model()->index(0, 0).data().toString(), QStringLiteral("3")); // Ash
    test.Choose("cmbCategory", 1);
    QCOMPARE(test.Available().model()->rowCount(), 0);
    QVERIFY(!test.Find<QPushButton>("cmdAdd").isEnabled());
    QVERIFY(!test.Find<QPushButton>("cmbBlend").isEnabled());
    test.Choose("cmbCategory", -1);
    QCOMPARE(test.Available().model()->rowCount(), 5);
    QVERIFY(test.Find<QPushButton>("cmdAdd").isEnabled());
}

void PaletteWindowTest::ArrowsClicksAndNumbersSelectAnEntry() {
    PaletteWindow test;
    QVERIFY(test.Show());
    test.ClickEntry(3);
    QVERIFY(test.Grid().hasFocus());
    QCOMPARE(test.Window->SelectedFloss(), 3);
    QCOMPARE(test.Find<QLineEdit>("txtFlossDescription").text(), QStringLiteral("blue"));
    QTest::keyClick(&test.Grid(), Qt::Key_Left);
    QCOMPARE(test.Window->SelectedFloss(), 2);
    QTest::keyClick(&test.Grid(), Qt::Key_End);
    QCOMPARE(test.Window->SelectedFloss(), 4);
    QTest::keyClick(&test.Grid(), Qt::Key_Right);
    QTest::keyClick(&test.Grid(), Qt::Key_Down);
    QCOMPARE(test.Window->SelectedFloss(), 4);
    QTest::keyClicks(&test.Grid(), QStringLiteral("r1"));
    QCOMPARE(test.Window->SelectedFloss(), 1);
    QVERIFY(!test.Window->HasChanged());
}

void PaletteWindowTest::PaletteIsSortedForTheEyeAlone() {
    PaletteWindow test;
    QVERIFY(test.Show());
    test.Choose("cmbSortPaletteBy", 2);
    QCOMPARE(test.Flosses().GetSortOrder(), int(SortDescription));
    // Blue comes first now.
    QTest::mouseClick(&test.Grid(), Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(test.Window->SelectedFloss(), 3);
    QVERIFY(!test.Window->HasChanged());
}

void PaletteWindowTest::UnusedFlossIsRemovedByDelete() {
    PaletteWindow test;
    QVERIFY(test.Show());
    test.ClickEntry(4);
    QTest::keyClick(&test.Grid(), Qt::Key_Delete);
    QCOMPARE(test.Flosses().GetEntriesCount(), 3);
    QCOMPARE(test.Window->SelectedFloss(), 3);
}

void PaletteWindowTest::RemovalOffersTheClosest() {
    PaletteWindow test;
    QVERIFY(test.Show());
    InNextWindow("frmDeleteColor", [](QDialog& window) {
        QCOMPARE(PartOf<QLabel>(window, "lblStitches").text(),
                 QStringLiteral("There are currently 2 stitches of this color in your pattern."));
        QCOMPARE(PartOf<QLabel>(window, "lblDeleteDesc").text(), QStringLiteral("R1 - red"));
        QVERIFY(PartOf<QRadioButton>(window, "optReplaceStitches").isChecked());
        QTest::mouseClick(&PartOf<QRadioButton>(window, "optDeleteStitches"), Qt::LeftButton, {},
                          QPoint(8, 8));
        ClickIn(window, "cmdOK");
    });
    test.Click("cmdRemoveColor");
    QCOMPARE(test.Flosses().GetEntriesCount(), 3);
    QCOMPARE(test.Design->GetStitchCount(1, 1), 0);
    AcceptNext("frmDeleteColor");
    test.Click("cmdRemoveColor");
    QCOMPARE(test.Flosses().GetEntriesCount(), 2);
    QCOMPARE(test.Design->GetStitchCount(2, 2), 1);
}

void PaletteWindowTest::CancelledRemovalLeavesIt() {
    PaletteWindow test;
    QVERIFY(test.Show());
    InNextWindow("frmDeleteColor", [](QDialog& window) { ClickIn(window, "cmdCancel"); });
    test.Click("cmdRemoveColor");
    QCOMPARE(test.Flosses().GetEntriesCount(), 4);
    QVERIFY(!test.Window->HasChanged());
}

void PaletteWindowTest::EntryTakesTheStitches() {
    PaletteWindow test;
    QVERIFY(test.Show());
    test.User.answers = {MessageAnswer::Yes};
    InNextWindow("frmReplaceColor", [](QDialog& window) {
        QCOMPARE(PartOf<QLabel>(window, "lblReplace").text(),
                 QStringLiteral("Replace R1 - red with"));
        auto& list = PartOf<QListWidget>(window, "imgPaletteColors");
        QCOMPARE(list.count(), 3);
        QVERIFY(window.focusWidget() == &list);
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Return);
    });
    test.Click("cmdReplaceColor");
    QCOMPARE(test.Flosses().GetEntriesCount(), 3);
    QCOMPARE(test.Window->SelectedFloss(), 2);
    QCOMPARE(test.Design->GetStitchPaletteIndex(1, 1), 2);
    QCOMPARE(test.Find<QLineEdit>("txtFlossDescription").text(), QStringLiteral("blue"));
}

void PaletteWindowTest::AvailableFlossTakesThePlace() {
    PaletteWindow test;
    QVERIFY(test.Show());
    QTest::keyClicks(&test.Available(), QStringLiteral("321"));
    test.User.answers = {MessageAnswer::Yes};
    InNextWindow("frmReplaceColor", [](QDialog& window) {
        QTest::mouseClick(&PartOf<QRadioButton>(window, "optReplacewith1"), Qt::LeftButton, {},
                          QPoint(8, 8));
        QCOMPARE(PartOf<QLabel>(window, "lblAvailableColor").text(), QStringLiteral("321 - Red"));
        ClickIn(window, "cmdOK");
    });
    test.Click("cmdReplaceColor");
    QCOMPARE(test.Flosses().GetFlossLongDesc(1), std::string("321 - Red"));
    QCOMPARE(test.Find<QLabel>("lblManuf").text(), QStringLiteral("DMC:"));
    QCOMPARE(test.User.asked.size(), std::size_t(1));
}

void PaletteWindowTest::BlendIsMadeAndEnded() {
    PaletteWindow test;
    QVERIFY(test.Show());
    auto& blend = test.Find<QPushButton>("cmbBlend");
    QCOMPARE(blend.text().remove(QLatin1Char('&')), QStringLiteral("Blend Current with Available"));
    QVERIFY(!test.Find<QLineEdit>("txtFlossIDB").isVisible());
    QTest::keyClicks(&test.Available(), QStringLiteral("310"));
    test.User.answers = {MessageAnswer::Yes, MessageAnswer::Yes};
    test.Click("cmbBlend");
    QVERIFY(test.Flosses().IsBlended(1));
    QCOMPARE(blend.text().remove(QLatin1Char('&')), QStringLiteral("Remove Blend"));
    QCOMPARE(test.Find<QLineEdit>("txtFlossDescription").text(),
             QStringLiteral("ABC-R1 & DMC-310"));
    QCOMPARE(test.Find<QLineEdit>("txtFlossIDB").text(), QStringLiteral("310"));
    QVERIFY(test.Find<QLabel>("lblBlendedWith").isVisible());
    test.Click("cmbBlend");
    QVERIFY(!test.Flosses().IsBlended(1));
    QCOMPARE(test.Find<QLineEdit>("txtFlossDescription").text(), QStringLiteral("red"));
}

void PaletteWindowTest::FlossDroppedOnACellReplacesIt() {
    PaletteWindow test;
    QVERIFY(test.Show());
    test.User.answers = {MessageAnswer::Yes};
    PaletteWindow::Drag(*test.Available().viewport(), test.PlaceOfRow(3), test.Grid(),
                        test.Grid().RectOf(2).center());
    QCOMPARE(QString::fromStdString(test.Flosses().GetManufID(2)),
             test.Available().model()->index(2, 0).data().toString());
    QCOMPARE(test.Window->SelectedFloss(), 2);
    QCOMPARE(test.User.asked.size(), std::size_t(1));
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void PaletteWindowTest::FlossDroppedBesideTheCellsIsAdded() {
    PaletteWindow test;
    QVERIFY(test.Show());
    AcceptNext("frmSymbols");
    QWidget* area = test.Find<QScrollArea>("paletteArea").viewport();
    PaletteWindow::Drag(*test.Available().viewport(), test.PlaceOfRow(3), *area,
                        area->rect().bottomRight() - QPoint(5, 5));
    QCOMPARE(test.Flosses().GetEntriesCount(), 5);
}

void PaletteWindowTest::CellDraggedOutIsRemoved() {
    PaletteWindow test;
    QVERIFY(test.Show());
    // Within the palette nothing happens.
    PaletteWindow::Drag(test.Grid(), test.Grid().RectOf(4).center(), test.Grid(),
                        test.Grid().RectOf(1).center());
    QCOMPARE(test.Flosses().GetEntriesCount(), 4);
    PaletteWindow::Drag(test.Grid(), test.Grid().RectOf(4).center(), *test.Available().viewport(),
                        QPoint(40, 40));
    QCOMPARE(test.Flosses().GetEntriesCount(), 3);
    QCOMPARE(test.Flosses().GetFlossShortDesc(3), std::string("blue"));
}

void PaletteWindowTest::EscapeEndsADragAndThenTheWindow() {
    PaletteWindow test;
    QVERIFY(test.Show());
    QWidget& list = *test.Available().viewport();
    QTest::mousePress(&list, Qt::LeftButton, {}, test.PlaceOfRow(2));
    QTest::mouseMove(&list, test.PlaceOfRow(2) + QPoint(60, 0));
    QVERIFY(QGuiApplication::overrideCursor() != nullptr);
    QTest::keyClick(&test.Available(), Qt::Key_Escape);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    QTest::mouseRelease(&list, Qt::LeftButton, {},
                        list.mapFromGlobal(test.Grid().mapToGlobal(QPoint(5, 5))));
    QCOMPARE(test.Flosses().GetManufID(1), std::string("R1"));
    QVERIFY(test.Window->isVisible());
    QTest::keyClick(&test.Available(), Qt::Key_Escape);
    QVERIFY(!test.Window->isVisible());
}

void PaletteWindowTest::AreaIsOfferedWhereThereIsOne() {
    PaletteWindow without;
    QVERIFY(!without.Find<QWidget>("chkEditBoxOnly").isEnabled());
    PaletteWindow test(SquareRect{1, 1, 2, 2});
    QVERIFY(test.Show());
    QTest::mouseClick(&test.Find<QWidget>("chkEditBoxOnly"), Qt::LeftButton, {}, QPoint(8, 8));
    test.User.answers = {MessageAnswer::Yes};
    AcceptNext("frmReplaceColor");
    test.Click("cmdReplaceColor");
    QCOMPARE(test.Flosses().GetEntriesCount(), 4);
    QCOMPARE(test.Design->GetStitchPaletteIndex(1, 1), 2);
    QCOMPARE(test.Design->GetStitchPaletteIndex(5, 5), 1);
}

void PaletteWindowTest::WordsAreBritishWhereTheProgramIs() {
    PaletteWindow test(std::nullopt, true);
    QCOMPARE(test.Find<QLabel>("lblAvailable").text(), QStringLiteral("Available Colours"));
    auto& styles = test.Find<QComboBox>("cmbListStyle");
    QCOMPARE(styles.itemText(1), QStringLiteral("Numbers & Colours"));
    QCOMPARE(styles.itemText(2), QStringLiteral("Colours Only"));
    const auto words = [&](const char* button) {
        return test.Find<QPushButton>(button).text().remove(QLatin1Char('&'));
    };
    QCOMPARE(words("cmdReplaceColor"), QStringLiteral("Replace Colour"));
    QCOMPARE(words("cmdRemoveColor"), QStringLiteral("Remove Colour"));
    QCOMPARE(words("cmdCreate"), QStringLiteral("Create Your Own Floss Colour"));
}

void PaletteWindowTest::LongPaletteScrollsToTheSelection() {
    PaletteWindow test;
    for (int i = 0; i < 196; ++i) {
        test.Flosses().AddPaletteEntry(0, "X", "x", "ABC", "x", 2, 1, 0, 0, 0, "");
    }
    QVERIFY(test.Show());
    test.ClickEntry(1);
    auto& bar = test.Find<QScrollBar>("vsbPalette");
    QTRY_VERIFY(bar.maximum() > 0);
    QTest::keyClick(&test.Grid(), Qt::Key_End);
    QTRY_COMPARE(bar.value(), bar.maximum());
    QCOMPARE(test.Window->SelectedFloss(), 200);
}

void PaletteWindowTest::WindowGoesQuietlyWithWhatIsTyped() {
    for (const char* field : {"txtFlossID", "txtFlossDescription"}) {
        PaletteWindow test;
        QVERIFY(test.Show());
        TypeIn(*test.Window, field, QStringLiteral("half typed"));
        QVERIFY(test.Find<QLineEdit>(field).hasFocus());
        test.Window.reset();
        QCOMPARE(test.Flosses().GetFlossLongDesc(1), std::string("R1 - red"));
        QCOMPARE(test.FirstChanges, 0);
    }
}

} // namespace zol::test

QTEST_MAIN(zol::test::PaletteWindowTest)
#include "test_PaletteWindow.moc"
