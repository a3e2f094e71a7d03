// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/PrintWindow.h"

namespace zol::test {

/// What the print options show, how they follow each other, and what is checked.
class frmPrintOptionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OpensOnTheWholePattern();
    void KeyFormOffersTheKeyAlone();
    void KeyFormIsSpelledAsTheUserSpells();
    void RangeIsFilledWhenItIsChosen();
    void FittedPatternIsOnePageAndTheKey();
    void UntickingTheKeyLowersTheRangeAtOnce();
    void TypedSquaresShowTheirPagesAtOnce();
    void CentimetresAreTurnedIntoInches();
    void CentimetresAloneMoveNothing();
    void BoxesSelectTheirTextAndTakeDigits();
    void RangeIsCheckedInOrder_data();
    void RangeIsCheckedInOrder();
    void ZeroSquaresAreRefused();
    void PaperWithoutASquareIsRefused();
    void SelectedAreaNeedsAnEditBox();
    void SelectedAreaIsAPatternOfItsOwn();
    void StylesAndGridLinesAreTheSettings();
    void AdvancedSetupIsTakenOver();
    void AnotherPrinterIsShownAndRemembered();
    void CancelledPrinterDialogChangesNothing();
    void EveryFormFitsASmallScreen();
    void FieldsBeginInOneColumn_data();
    void FieldsBeginInOneColumn();
};

void frmPrintOptionsTest::OpensOnTheWholePattern() {
    PrintWindow window;
    window.Open();
    QCOMPARE(window.Dialog->windowTitle(), QStringLiteral("Print Pattern"));
    QCOMPARE(window.Find<QLabel>("lblPrinter").text(), QStringLiteral("Loom "));
    QCOMPARE(window.Text("txtGSPI"), QStringLiteral("10.0"));
    QVERIFY(window.Find<QCheckBox>("chkPrintColorKey").isChecked());
    QVERIFY(window.Find<QRadioButton>("optPages0").isChecked());
    QVERIFY(!window.Find("txtFromPage").isEnabled());
    QVERIFY(!window.Find("txtToPage").isEnabled());
    QVERIFY(!window.Find("chkSelectedOnly").isEnabled());
    const QString last = window.Text("txtToPage");
    QVERIFY(last.toInt() > 2);
    QCOMPARE(window.AllPages(), QStringLiteral("All:   (") + last + QStringLiteral(" Pages)"));
    QVERIFY(window.Find<QPushButton>("cmdPrint").isDefault());
    const auto& stitches = window.Find<QComboBox>("cmbStitchesAs");
    QStringList styles;
    for (int i = 0; i < stitches.count(); ++i) {
        styles << stitches.itemText(i) + QLatin1Char(' ') + stitches.itemData(i).toString();
    }
    QCOMPARE(styles.join(QLatin1Char('|')),
             QStringLiteral("Black Symbols 2|Color Symbols 3|Color Blocks 1|Color Stitches 5|"
                            "Color Blocks and Symbols 4|None -1"));
    QCOMPARE(stitches.currentIndex(), 0);
}

void frmPrintOptionsTest::KeyFormOffersTheKeyAlone() {
    PrintWindow window;
    window.Open(PrintPlan::Form::ColorKey);
    QCOMPARE(window.Dialog->windowTitle(), QStringLiteral("Print Color Key"));
    for (const char* frame : {"fraPageRange", "fraSize", "fraOptions"}) {
        QVERIFY(!window.Find(frame).isVisible());
    }
    QVERIFY(window.Find("cmdPrint").isVisible());
    window.Click("cmdPrint");
    QCOMPARE(window.PagesPrinted(), std::size_t{1});
    QVERIFY(!window.Dialog->isVisible());
}

void frmPrintOptionsTest::KeyFormIsSpelledAsTheUserSpells() {
    PrintWindow window;
    window.Scene.context.BritishSpelling = true;
    window.Open(PrintPlan::Form::ColorKey);
    QCOMPARE(window.Dialog->windowTitle(), QStringLiteral("Print Colour Key"));
    QCOMPARE(window.Find<QCheckBox>("chkPrintColorKey").text().remove(QLatin1Char('&')),
             QStringLiteral("Print Colour Key"));
    QCOMPARE(window.Find<QComboBox>("cmbBackStitchesAs").itemText(1),
             QStringLiteral("Colour Lines"));
}

void frmPrintOptionsTest::RangeIsFilledWhenItIsChosen() {
    PrintWindow window;
    window.Open();
    const QString last = window.Text("txtToPage");
    window.Click("optPages1");
    QVERIFY(window.Find("txtFromPage").isEnabled());
    window.Type("txtFromPage", "2");
    window.Type("txtToPage", "2");
    window.Click("optPages0");
    QVERIFY(!window.Find("txtFromPage").isEnabled());
    window.Click("optPages1");
    QCOMPARE(window.Text("txtFromPage"), QStringLiteral("1"));
    QCOMPARE(window.Text("txtToPage"), last);
}

void frmPrintOptionsTest::FittedPatternIsOnePageAndTheKey() {
    PrintWindow window;
    window.Open();
    window.Click("chkFitPage");
    QVERIFY(!window.Find("txtGSPI").isVisible());
    QVERIFY(!window.Find("lblGSPI").isVisible());
    QCOMPARE(window.AllPages(), QStringLiteral("All:   (2 Pages)"));
    window.Click("chkPrintColorKey");
    QCOMPARE(window.AllPages(), QStringLiteral("All:   (1 Page)"));
    QVERIFY(window.GSPI > 10);
    window.Click("chkFitPage");
    QVERIFY(window.Find("txtGSPI").isVisible());
    QCOMPARE(window.Text("txtGSPI").toDouble(), window.GSPI);
    window.Click("cmdPrint");
    QCOMPARE(window.PagesPrinted(), std::size_t{1});
}

void frmPrintOptionsTest::UntickingTheKeyLowersTheRangeAtOnce() {
    PrintWindow window;
    window.Open();
    const int all = window.Text("txtToPage").toInt();
    window.Click("chkPrintColorKey");
    QCOMPARE(window.Text("txtToPage").toInt(), all - 1);
    window.Click("chkPrintColorKey");
    QCOMPARE(window.Text("txtToPage").toInt(), all);
}

void frmPrintOptionsTest::TypedSquaresShowTheirPagesAtOnce() {
    PrintWindow window;
    window.Open();
    const int before = window.Text("txtToPage").toInt();
    window.Type("txtGSPI", "20");
    QCOMPARE(window.GSPI, 20.0);
    QVERIFY(window.Text("txtToPage").toInt() < before);
    QCOMPARE(window.AllPages(), QStringLiteral("All:   (2 Pages)"));
    // Kept for the run.
    window.Open();
    QCOMPARE(window.Text("txtGSPI"), QStringLiteral("20.0"));
    QVERIFY(window.Store.values.find({"Printer Opts", "GSPI"}) == window.Store.values.end());
}

void frmPrintOptionsTest::CentimetresAreTurnedIntoInches() {
    PrintWindow window;
    window.Settings.Units = "centimetres";
    window.Open();
    QCOMPARE(window.Find<QLabel>("lblGSPI").text().remove(QLatin1Char('&')),
             QStringLiteral("Grid Squares Per CM"));
    QCOMPARE(window.Text("txtGSPI"), QStringLiteral("3.9"));
    window.Type("txtGSPI", "4");
    QCOMPARE(window.GSPI, 10.16);
}

void frmPrintOptionsTest::CentimetresAloneMoveNothing() {
    PrintWindow window;
    window.Settings.Units = "centimetres";
    window.Open();
    window.Click("cmdPrint");
    QCOMPARE(window.GSPI, 10.0);
    QVERIFY(window.PagesPrinted() > 0);
}

void frmPrintOptionsTest::BoxesSelectTheirTextAndTakeDigits() {
    PrintWindow window;
    window.Open();
    window.Click("optPages1");
    for (const char* name : {"txtToPage", "txtGSPI", "txtFromPage"}) {
        auto& field = window.Find<QLineEdit>(name);
        QTest::mouseClick(&field, Qt::LeftButton, {}, QPoint(4, field.height() / 2));
        QVERIFY(field.hasFocus());
        QCOMPARE(field.selectedText(), field.text());
    }
    auto& from = window.Find<QLineEdit>("txtFromPage");
    QTest::keyClicks(&from, QStringLiteral("a2.x,b"));
    QCOMPARE(from.text(), QStringLiteral("2"));
    auto& squares = window.Find<QLineEdit>("txtGSPI");
    squares.setFocus();
    QTest::keyClicks(&squares, QStringLiteral("1q2.5z"));
    QCOMPARE(squares.text(), QStringLiteral("12.5"));
}

void frmPrintOptionsTest::RangeIsCheckedInOrder_data() {
    QTest::addColumn<QString>("squares");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* squares, const char* from, const char* to,
                        const char* field, const char* text) {
        QTest::newRow(name) << QString::fromLatin1(squares) << QString::fromLatin1(from)
                            << QString::fromLatin1(to) << QString::fromLatin1(field)
                            << QString::fromLatin1(text);
    };
    row("all are wrong", "0", "0", "0", "txtGSPI",
        "Stitches per inch can not be 0.  Please enter a valid entry here.");
    row("no squares", "", "1", "1", "txtGSPI",
        "Stitches per inch can not be 0.  Please enter a valid entry here.");
    row("from and to", "10", "0", "0", "txtFromPage",
        "The starting print page can not be 0.  Please enter a valid entry here.");
    row("to", "10", "1", "0", "txtToPage",
        "The Ending print page can not be 0.  Please enter a valid entry here.");
    row("backwards", "10", "3", "2", "txtToPage",
        "The ending print page must be greater then the starting print page.  Please enter a "
        "valid entry here.");
    row("too far", "20", "1", "3", "txtToPage", "The ending page can not be larger 2.");
}

void frmPrintOptionsTest::RangeIsCheckedInOrder() {
    QFETCH(QString, squares);
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QString, field);
    QFETCH(QString, text);
    PrintWindow window;
    window.Open();
    window.Click("optPages1");
    TypeIn(*window.Dialog, "txtGSPI", squares);
    TypeIn(*window.Dialog, "txtFromPage", from);
    TypeIn(*window.Dialog, "txtToPage", to);
    window.Click("cmdPrint");
    QCOMPARE(QString::fromStdString(window.Told()), text);
    QCOMPARE(window.User.told.back().title, std::string("Print"));
    QCOMPARE(window.User.told.back().icon, MessageIcon::Exclamation);
    QVERIFY(window.Find<QLineEdit>(field.toLatin1().constData()).hasFocus());
    QVERIFY(window.Dialog->isVisible());
    QCOMPARE(window.Printers.device.ended, 0);
}

void frmPrintOptionsTest::ZeroSquaresAreRefused() {
    PrintWindow window;
    window.Open();
    window.Type("txtGSPI", "0");
    window.Click("cmdPrint");
    QCOMPARE(window.User.told.size(), std::size_t{1});
    QVERIFY(window.Find<QLineEdit>("txtGSPI").hasFocus());
    QCOMPARE(window.PagesPrinted(), std::size_t{0});
}

void frmPrintOptionsTest::PaperWithoutASquareIsRefused() {
    PrintWindow window;
    window.Settings.LeftMargin = 5;
    window.Settings.RightMargin = 5;
    window.Open();
    QCOMPARE(window.AllPages(), QStringLiteral("All:   (999 Pages)"));
    window.Click("cmdPrint");
    QCOMPARE(window.Told(), std::string(NoSquareText));
    QCOMPARE(window.Printers.device.ended, 0);
    // A square of no size does no harm either.
    window.Settings.LeftMargin = window.Settings.RightMargin = 0.5;
    window.Open();
    window.Type("txtGSPI", "4000");
    QCOMPARE(window.AllPages(), QStringLiteral("All:   (999 Pages)"));
    window.Click("cmdPrint");
    QCOMPARE(window.Told(), std::string(NoSquareText));
    QVERIFY(window.Find<QLineEdit>("txtGSPI").hasFocus());
}

void frmPrintOptionsTest::SelectedAreaNeedsAnEditBox() {
    PrintWindow window;
    window.Open();
    QVERIFY(!window.Find("chkSelectedOnly").isEnabled());
    const auto part = window.Scene.MakePattern(10, 10);
    window.Selected = SelectedArea{part.get(), {31, 41}};
    window.Open();
    QVERIFY(window.Find("chkSelectedOnly").isEnabled());
    QVERIFY(!window.Find<QCheckBox>("chkSelectedOnly").isChecked());
}

void frmPrintOptionsTest::SelectedAreaIsAPatternOfItsOwn() {
    PrintWindow window;
    const auto part = window.Scene.MakePattern(10, 10);
    window.Selected = SelectedArea{part.get(), {31, 41}};
    window.Open();
    const QString whole = window.AllPages();
    window.Click("chkSelectedOnly");
    QCOMPARE(window.AllPages(), QStringLiteral("All:   (2 Pages)"));
    window.Click("chkSelectedOnly");
    QCOMPARE(window.AllPages(), whole);
    window.Click("chkSelectedOnly");
    window.Click("cmdPrint");
    QCOMPARE(window.PagesPrinted(), std::size_t{2});
}

void frmPrintOptionsTest::StylesAndGridLinesAreTheSettings() {
    PrintWindow window;
    window.Open();
    auto& stitches = window.Find<QComboBox>("cmbStitchesAs");
    stitches.setFocus();
    QTest::keyClick(&stitches, Qt::Key_End);
    QCOMPARE(window.Settings.StitchSymbol, int(PrintNone));
    auto& lines = window.Find<QComboBox>("cmbBackStitchesAs");
    lines.setFocus();
    QTest::keyClick(&lines, Qt::Key_Down);
    QCOMPARE(window.Settings.BackStitchSymbol, int(PrintColorLines));
    window.Click("chkPrintGridLines");
    QVERIFY(!window.Settings.PrintGridLines);
    const auto stored = [&](const char* name) {
        return window.Store.ReadSetting("Printer Opts", name, "none");
    };
    QCOMPARE(stored("StitchesDisplayAs"), std::string("-1"));
    QCOMPARE(stored("LinesDisplayAs"), std::string("1"));
    QCOMPARE(stored("PrintGridLines"), std::string("FALSE"));
    window.Open();
    QCOMPARE(window.Find<QComboBox>("cmbStitchesAs").currentText(), QStringLiteral("None"));
    QVERIFY(!window.Find<QCheckBox>("chkPrintGridLines").isChecked());
}

void frmPrintOptionsTest::AdvancedSetupIsTakenOver() {
    PrintWindow window;
    window.Open();
    const int before = window.Text("txtToPage").toInt();
    window.InOptions = [&](QWidget* parent) {
        QCOMPARE(parent, static_cast<QWidget*>(window.Dialog.get()));
        window.Settings.LeftMargin = 3;
        window.Settings.Units = "centimetres";
        window.Settings.StitchSymbol = PrintColorBlocks;
    };
    window.Click("cmdAdvanced");
    QCOMPARE(window.OptionsOpened, 1);
    QVERIFY(window.Text("txtToPage").toInt() > before);
    QCOMPARE(window.Text("txtGSPI"), QStringLiteral("3.9"));
    QCOMPARE(window.Find<QComboBox>("cmbStitchesAs").currentText(), QStringLiteral("Color Blocks"));
}

void frmPrintOptionsTest::AnotherPrinterIsShownAndRemembered() {
    PrintWindow window;
    window.Open();
    const int before = window.Text("txtToPage").toInt();
    window.Printers.choices.push_back({QStringLiteral("Frame")});
    window.Printers.device.width = 7000;
    window.Click("cmdPrinterSetup");
    QCOMPARE(window.Find<QLabel>("lblPrinter").text(), QStringLiteral("Frame "));
    QVERIFY(window.Text("txtToPage").toInt() > before);
    QCOMPARE(window.Store.ReadSetting("Printer Opts", "PrinterName", ""), std::string("Frame"));
}

void frmPrintOptionsTest::CancelledPrinterDialogChangesNothing() {
    PrintWindow window;
    window.Open();
    window.Printers.choices.push_back({QStringLiteral("Frame"), false});
    window.Click("cmdPrinterSetup");
    QCOMPARE(window.Printers.choosers, 1);
    QCOMPARE(window.Find<QLabel>("lblPrinter").text(), QStringLiteral("Loom "));
    QVERIFY(window.Store.values.empty() ||
            window.Store.values.find({"Printer Opts", "PrinterName"}) == window.Store.values.end());
}

void frmPrintOptionsTest::EveryFormFitsASmallScreen() {
    for (const auto form : {PrintPlan::Form::Pattern, PrintPlan::Form::ColorKey}) {
        PrintWindow window;
        window.Open(form);
        QVERIFY(window.Dialog->minimumSizeHint().width() <= 1280);
        QVERIFY(window.Dialog->minimumSizeHint().height() <= 720);
        for (const auto* button : window.Dialog->findChildren<QPushButton*>()) {
            QVERIFY2(button->width() >= button->sizeHint().width() || !button->isVisible(),
                     qPrintable(button->objectName()));
        }
    }
}

void frmPrintOptionsTest::FieldsBeginInOneColumn_data() {
    QTest::addColumn<QByteArray>("units");
    QTest::newRow("inches") << QByteArray("inches");
    QTest::newRow("centimetres") << QByteArray("centimetres");
}

void frmPrintOptionsTest::FieldsBeginInOneColumn() {
    QFETCH(const QByteArray, units);
    PrintWindow window;
    window.Settings.Units = units.toStdString();
    window.Open();
    const auto left = [&](const char* field) {
        return window.Find(field).mapTo(window.Dialog.get(), QPoint()).x();
    };
    const int column = left("cmbStitchesAs");
    QCOMPARE(left("cmbBackStitchesAs"), column);
    QCOMPARE(left("txtGSPI"), column);
    QCOMPARE(left("txtFromPage"), column);
}

} // namespace zol::test

QTEST_MAIN(zol::test::frmPrintOptionsTest)
#include "test_frmPrintOptions.moc"
