// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QFontDatabase>
#include <QFontDialog>
#include <QLabel>
#include <QSet>
#include <QTabBar>

#include "flosses/windows/frmClothColors.h"
#include "settings/ColorLists.h"
#include "settings/windows/OptionsWindowKit.h"
#include "support/DialogDriver.h"

namespace zol::test {

/// Apply, OK and Cancel; units and margins; lists, fonts and the mapping list.
class frmOptionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PagesStandUnderTheirTabs();
    void ApplyAndCancelKeepTheRunAndTheStore();
    void CancelAloneChangesNothing();
    void OkWithoutTheTickWritesNothing();
    void ApplyReadsTheStoreFirst();
    void OkHoldsPaintingWhileItApplies();
    void FlexibleBackstitchIsStoredAsNotAnchored();
    void UnitsTurnTheMarginsAndBack();
    void MarginFieldsTakeOneFigureAndTwoBehind();
    void TabsGoThroughAPageToTheButtons();
    void MarginFieldsAreSelectedAndPutInForm();
    void ListsKeepAValueThatTheyDoNotOffer();
    void TheListFollowsTheColoursThatWereCustomized();
    void MappingListIsWithoutTheOwnFamily();
    void MappingListIsRebuiltFromTheTicks();
    void AnotherFamilyChangesPlacesInTheMappingList();
    void FontsComeFromTheFontDialog();
    void BritishSpellingReachesListsAndLabels();
    void EveryPageFitsASmallScreen();
};

void frmOptionsTest::PagesStandUnderTheirTabs() {
    OptionsWindow window;
    const auto& tabs = window.Find<QTabWidget>("tbsOptions");
    QStringList titles;
    for (int page = 0; page < tabs.count(); ++page) {
        titles << tabs.tabText(page);
    }
    QCOMPARE(titles, QStringList({QStringLiteral("Design Grid"), QStringLiteral("Printouts"),
                                  QStringLiteral("Pattern Properties"),
                                  QStringLiteral("Floss Palette"), QStringLiteral("General")}));
    QCOMPARE(tabs.currentIndex(), 0);
    QCOMPARE(tabs.tabToolTip(0), QStringLiteral("Options for the Screen Design Grid"));
    QCOMPARE(tabs.tabToolTip(1), QStringLiteral("Options for your pattern print outs"));
    for (int page = 0; page < OptionsWindow::Pages; ++page) {
        QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(page).center());
        for (int other = 0; other < OptionsWindow::Pages; ++other) {
            const QByteArray frame = "fraOptions" + QByteArray::number(other);
            QCOMPARE(window.Find<QWidget>(frame.constData()).isVisible(), other == page);
        }
    }
}

void frmOptionsTest::ApplyAndCancelKeepTheRunAndTheStore() {
    OptionsWindow window;
    const auto before = window.Stored();
    window.Click("chkRulers");
    window.Choose("cmbSDA", 3);
    window.Click("cmdApply");
    QCOMPARE(window.Applied, 1);
    QVERIFY(window.Dialog->isVisible());
    window.Click("cmdCancel");
    QVERIFY(!window.Dialog->isVisible());
    QVERIFY(!window.Settings.RulersVisible);
    QCOMPARE(window.Settings.StitchesDisplayAs, 4);
    QVERIFY(window.Stored() == before);
    // Only lost at the next start.
    QVERIFY(basOptions::LoadOptions(*window.Store, window.Context()).RulersVisible);
}

void frmOptionsTest::CancelAloneChangesNothing() {
    OptionsWindow window;
    const auto before = window.Stored();
    window.Click("chkRulers");
    window.Click("chkDefault");
    QTest::keyClick(window.Dialog.get(), Qt::Key_Escape);
    QVERIFY(!window.Dialog->isVisible());
    QVERIFY(window.Settings.RulersVisible);
    QCOMPARE(window.Applied, 0);
    QVERIFY(window.Stored() == before);
}

void frmOptionsTest::OkWithoutTheTickWritesNothing() {
    OptionsWindow window;
    const auto before = window.Stored();
    window.Click("chkRulers");
    window.Click("cmdOK");
    QVERIFY(!window.Dialog->isVisible());
    QVERIFY(!window.Settings.RulersVisible);
    QVERIFY(window.Applied > 0);
    QVERIFY(window.Stored() == before);
}

void frmOptionsTest::ApplyReadsTheStoreFirst() {
    OptionsWindow window;
    // Something that no control shows was written meanwhile.
    window.Store->WriteSetting("Options", "LastPatSaveLoc", "/patterns");
    window.Click("chkRulers");
    window.Click("cmdApply");
    QCOMPARE(window.Settings.LastPatSaveLoc, std::string("/patterns"));
    // And what a control shows lies over it.
    window.Store->WriteSetting("Design Grid Opts", "StitchesDisplayAs", "5");
    window.Click("cmdApply");
    QCOMPARE(window.Settings.StitchesDisplayAs, 1);
    QVERIFY(!window.Settings.RulersVisible);
}

void frmOptionsTest::OkHoldsPaintingWhileItApplies() {
    for (const bool keeps : {false, true}) {
        OptionsWindow window;
        if (keeps) {
            window.Click("chkDefault");
        }
        window.Click("cmdOK");
        QCOMPARE(window.HeldAtApply, std::vector<int>(keeps ? 2 : 1, 1));
        QCOMPARE(window.Held, 0);
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }
}

void frmOptionsTest::FlexibleBackstitchIsStoredAsNotAnchored() {
    OptionsWindow window(StoredValues{{"Design Grid Opts/AnchorBackstitches", "TRUE"}});
    QVERIFY(!window.Find<QCheckBox>("chkFlexBackstitch").isChecked());
    window.Click("chkFlexBackstitch");
    window.Click("chkDefault");
    window.Click("cmdOK");
    QCOMPARE(window.Store->ReadSetting("Design Grid Opts", "AnchorBackstitches", ""),
             std::string("FALSE"));
    QVERIFY(!window.Settings.AnchorBackstitches);
}

void frmOptionsTest::UnitsTurnTheMarginsAndBack() {
    OptionsWindow window(
        StoredValues{{"Printer Opts/LeftMargin", "0.51"}, {"Printer Opts/TopMargin", "3.99"}});
    QCOMPARE(window.Text("txtLeftMargin"), QStringLiteral("0.51"));
    QCOMPARE(window.Find<QLabel>("lblMargins").text(), QStringLiteral("Printer Margins (Inches):"));
    window.Choose("cmbUnits", 1);
    QCOMPARE(window.Text("txtLeftMargin"), QStringLiteral("1.30"));
    QCOMPARE(window.Text("txtTopMargin"), QStringLiteral("10.13"));
    QCOMPARE(window.Find<QLabel>("lblMargins").text(),
             QStringLiteral("Printer Margins (Centimetres):"));
    window.Choose("cmbUnits", 0);
    QCOMPARE(window.Text("txtLeftMargin"), QStringLiteral("0.51"));
    QCOMPARE(window.Text("txtTopMargin"), QStringLiteral("3.99"));
    window.Click("cmdApply");
    QCOMPARE(window.Settings.LeftMargin, 0.51);
}

void frmOptionsTest::MarginFieldsTakeOneFigureAndTwoBehind() {
    OptionsWindow window;
    for (const auto& [keys, text] :
         {std::pair("1.255", "1.25"), std::pair("32767", "3"), std::pair("0", "0"),
          std::pair("a-2x.b5", "2.5"), std::pair("9..9.9", "9.99")}) {
        window.Type("txtLeftMargin", keys);
        QCOMPARE(window.Text("txtLeftMargin"), QLatin1String(text));
    }
    window.Type("txtLeftMargin", "0");
    window.Click("cmdApply");
    QCOMPARE(window.Settings.LeftMargin, 0.0);
}

void frmOptionsTest::TabsGoThroughAPageToTheButtons() {
    OptionsWindow window;
    QVERIFY(QTest::qWaitForWindowActive(window.Dialog.get()));
    auto& tabs = window.Find<QTabWidget>("tbsOptions");
    for (int page = 0; page < OptionsWindow::Pages; ++page) {
        tabs.setCurrentIndex(page);
        tabs.tabBar()->setFocus();
        QStringList names;
        do {
            QTest::keyClick(window.Dialog.get(), Qt::Key_Tab);
            names << QApplication::focusWidget()->objectName();
        } while (tabs.isAncestorOf(QApplication::focusWidget()) && names.size() < 60);
        QVERIFY2(names.size() > 3, qPrintable(names.join(QLatin1Char(' '))));
        QCOMPARE(names.back(), QStringLiteral("chkDefault"));
        QSet<QString> buttons;
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(window.Dialog.get(), Qt::Key_Tab);
            buttons << QApplication::focusWidget()->objectName();
        }
        QCOMPARE(buttons, QSet<QString>({QStringLiteral("cmdOK"), QStringLiteral("cmdCancel"),
                                         QStringLiteral("cmdApply")}));
    }
}

void frmOptionsTest::MarginFieldsAreSelectedAndPutInForm() {
    OptionsWindow window;
    QVERIFY(QTest::qWaitForWindowActive(window.Dialog.get()));
    auto& left = window.Show<QLineEdit>("txtLeftMargin");
    QTest::mouseClick(&left, Qt::LeftButton);
    QTRY_COMPARE(left.selectedText(), QStringLiteral("0.50"));
    QTest::keyClicks(&left, QStringLiteral("2"));
    QTest::keyClick(&left, Qt::Key_Tab);
    QCOMPARE(left.text(), QStringLiteral("2.00"));
    auto& right = window.Find<QLineEdit>("txtRightMargin");
    QVERIFY(right.hasFocus());
    QTRY_COMPARE(right.selectedText(), QStringLiteral("0.50"));
    QTest::keyClick(&right, Qt::Key_Delete);
    QTest::keyClick(&right, Qt::Key_Tab);
    QCOMPARE(right.text(), QStringLiteral("0.00"));
}

void frmOptionsTest::ListsKeepAValueThatTheyDoNotOffer() {
    OptionsWindow window(StoredValues{{"Design Grid Opts/ClothColorIndex", "8"},
                                      {"Design Grid Opts/GridLineWidthPercentage2", "75"}});
    QCOMPARE(window.Find<QComboBox>("cmbClothColor").count(), 7);
    QCOMPARE(window.Find<QComboBox>("cmbClothColor").currentIndex(), -1);
    window.Click("chkDefault");
    window.Click("cmdOK");
    QCOMPARE(window.Settings.ClothColorIndex, 8);
    QCOMPARE(window.Settings.ClothColor, Colour{6052956});
    QCOMPARE(window.Settings.GridLineWidthPercentage2, 75);
    QCOMPARE(window.Store->ReadSetting("Design Grid Opts", "ClothColorIndex", ""),
             std::string("8"));
}

void frmOptionsTest::TheListFollowsTheColoursThatWereCustomized() {
    const std::pair<const char*, const char*> lists[] = {
        {"cmdClothColorCust", "cmbClothColor"},
        {"cmdNormalGLColorCust", "cmbNormalGLColor"},
        {"cmdBoldGLColorCust", "cmbBoldGLColor"},
        {"cmdPNormalGLCust", "cmbPNormalGLColor"},
        {"cmdPBoldGLCust", "cmbPBoldGLColor"}};
    OptionsWindow window;
    int list = ColorLists::ClothList;
    for (const auto& [button, combo] : lists) {
        const int line = window.Find<QComboBox>(combo).currentIndex();
        const std::string caption = ColorLists::CaptionOf(list++, false);
        DialogDriver user({[&caption](QDialog& editor) {
            QCOMPARE(editor.windowTitle().toStdString(), caption);
            auto* text = editor.findChild<QLineEdit*>(QStringLiteral("txtDescription"));
            text->selectAll();
            QTest::keyClicks(text, QStringLiteral("Chalk"));
            QTest::keyClick(&editor, Qt::Key_Escape);
        }});
        auto& customize = window.Show<QPushButton>(button);
        QTest::mouseClick(&customize, Qt::LeftButton);
        QVERIFY(user.AllDone());
        QCOMPARE(window.Find<QComboBox>(combo).itemText(0), QStringLiteral("Chalk"));
        QCOMPARE(window.Find<QComboBox>(combo).currentIndex(), line);
    }
}

void frmOptionsTest::MappingListIsWithoutTheOwnFamily() {
    OptionsWindow window(StoredValues{{"Options/MapFlosses", "dmc.col|anchor.col"}});
    const auto& list = window.Find<QListWidget>("lvMapFlosses");
    const int families = window.Find<QComboBox>("cmbFlossFamily").count();
    QCOMPARE(list.count(), families - 1);
    for (int row = 0; row < list.count(); ++row) {
        QVERIFY(list.item(row)->data(Qt::UserRole).toString() != QStringLiteral("dmc.col"));
    }
}

void frmOptionsTest::MappingListIsRebuiltFromTheTicks() {
    OptionsWindow window;
    auto& list = window.Show<QListWidget>("lvMapFlosses");
    QVERIFY(list.count() >= 1);
    const auto name = [&list](int row) {
        return list.item(row)->data(Qt::UserRole).toString().toStdString();
    };
    std::string all;
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Home);
    for (int row = 0; row < list.count(); ++row) {
        QTest::keyClick(&list, Qt::Key_Space);
        QTest::keyClick(&list, Qt::Key_Down);
        all += (row == 0 ? "" : "|") + name(row);
    }
    window.Click("cmdApply");
    QCOMPARE(window.Settings.MapFlosses, all);
    window.Show<QListWidget>("lvMapFlosses").setFocus();
    QTest::keyClick(&list, Qt::Key_Home);
    QTest::keyClick(&list, Qt::Key_Space);
    window.Click("cmdApply");
    const std::size_t bar = all.find('|');
    QCOMPARE(window.Settings.MapFlosses, bar == std::string::npos ? "" : all.substr(bar + 1));
    window.Open();
    QCOMPARE(window.Find<QListWidget>("lvMapFlosses").item(0)->checkState(), Qt::Unchecked);
}

void frmOptionsTest::AnotherFamilyChangesPlacesInTheMappingList() {
    OptionsWindow window(StoredValues{{"Options/MapFlosses", "dmc.col"}});
    auto& families = window.Find<QComboBox>("cmbFlossFamily");
    const int own = families.currentIndex();
    window.Choose("cmbFlossFamily", own == 0 ? 1 : 0);
    const auto& list = window.Find<QListWidget>("lvMapFlosses");
    QListWidgetItem* dmc = nullptr;
    for (int row = 0; row < list.count(); ++row) {
        QVERIFY(list.item(row)->data(Qt::UserRole) != families.currentData());
        if (list.item(row)->data(Qt::UserRole).toString() == QStringLiteral("dmc.col")) {
            dmc = list.item(row);
        }
    }
    QVERIFY(dmc != nullptr);
    QCOMPARE(dmc->checkState(), Qt::Checked);
    window.Click("cmdApply");
    QCOMPARE(window.Settings.MapFlosses, std::string("dmc.col"));
    QCOMPARE(window.Settings.DefaultFlossFile, families.currentData().toString().toStdString());
    QVERIFY(window.Context().CurrentCatalogue->GetFlossCount() > 0);
}

void frmOptionsTest::FontsComeFromTheFontDialog() {
    OptionsWindow window;
    QCOMPARE(window.Find<QLabel>("lblPatInfoFont").text(), QStringLiteral("Arial 10"));
    QCOMPARE(window.Find<QLabel>("lblSymbolFont").text(), QStringLiteral("Korvanta Symbols"));
    const auto choose = [](const QString& name, int size) {
        return [name, size](QDialog& dialog) {
            QFont font(name, size);
            font.setBold(true);
            dynamic_cast<QFontDialog&>(dialog).setCurrentFont(font);
            dialog.accept();
        };
    };
    const QString family = QFontDatabase::families().value(0);
    DialogDriver user({choose(family, 14), choose(family, 9),
                       [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }});
    window.Click("cmdPatInfofont");
    window.Click("cmdSymbolFont");
    QCOMPARE(window.Find<QLabel>("lblPatInfoFont").text(), family + QStringLiteral(" 14"));
    QCOMPARE(window.Find<QLabel>("lblSymbolFont").text(), family);
    window.Click("cmdSymbolFont");
    QVERIFY(user.AllDone());
    QCOMPARE(window.Find<QLabel>("lblSymbolFont").text(), family);
    window.Click("chkDefault");
    window.Click("cmdOK");
    const auto stored = window.Stored();
    QCOMPARE(stored.at(QStringLiteral("Printer Opts/TextInfoFontName")), family);
    QCOMPARE(stored.at(QStringLiteral("Printer Opts/TextInfoFontSize")), QStringLiteral("14"));
    QCOMPARE(stored.at(QStringLiteral("Printer Opts/TextInfoFontBold")), QStringLiteral("TRUE"));
    QCOMPARE(stored.at(QStringLiteral("Printer Opts/TextInfoFontItalic")), QStringLiteral("FALSE"));
    QCOMPARE(stored.at(QStringLiteral("Printer Opts/SymbolFontSize")), QStringLiteral("9"));
}

void frmOptionsTest::BritishSpellingReachesListsAndLabels() {
    OptionsWindow window(StoredValues{{"Options/Spelling", "British"}});
    QCOMPARE(window.Find<QComboBox>("cmbSDA").itemText(0), QStringLiteral("Coloured Squares"));
    QCOMPARE(window.Find<QComboBox>("cmbPLDA").itemText(1), QStringLiteral("Colour Lines"));
    QVERIFY(
        window.Find<QCheckBox>("chkRecolorPatterns").text().contains(QStringLiteral("Colours")));
    QCOMPARE(window.Find<QPushButton>("cmdClothColorCust").text(), QStringLiteral("Customise..."));
}

void frmOptionsTest::EveryPageFitsASmallScreen() {
    OptionsWindow window;
    QVERIFY(window.Dialog->width() <= 1280);
    QVERIFY(window.Dialog->height() <= 680);
    const auto& tabs = window.Find<QTabWidget>("tbsOptions");
    for (int page = 0; page < tabs.count(); ++page) {
        const QByteArray name = "fraOptions" + QByteArray::number(page);
        const auto& frame = window.Show<QWidget>(name.constData());
        const QSize room = frame.parentWidget()->size();
        QVERIFY2(frame.minimumSizeHint().width() <= room.width(), name.constData());
        QVERIFY2(frame.minimumSizeHint().height() <= room.height(), name.constData());
    }
}

} // namespace zol::test

QTEST_MAIN(zol::test::frmOptionsTest)
#include "test_frmOptions.moc"
