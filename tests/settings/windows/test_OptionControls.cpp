// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/windows/OptionsWindowKit.h"

namespace zol::test {

/// Each control writes its own setting, and nothing else.
class OptionControlsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ListsWriteTheirValue_data();
    void ListsWriteTheirValue();
    void TicksWriteTheirValue_data();
    void TicksWriteTheirValue();
    void TextsWriteTheirValue_data();
    void TextsWriteTheirValue();
    void MarginsWriteInches_data();
    void MarginsWriteInches();
    void FlossFamilyWritesNameAndFile();
};

namespace {

using Values = std::map<QString, QString>;

/// A store in which everything has been saved as it is; made once.
const QByteArray& SavedStore() {
    static const QByteArray bytes = [] {
        OptionsWindow window;
        window.Click("chkDefault");
        window.Click("cmdOK");
        return window.StoreBytes();
    }();
    return bytes;
}

/// What stands there, and the tick to save set.
Values SavedAsItIs(OptionsWindow& window) {
    Values saved = window.Stored();
    window.Click("chkDefault");
    return saved;
}

Values SavedBy(OptionsWindow& window) {
    window.Click("cmdOK");
    return window.Stored();
}

void AddRow(const char* control, const char* key) {
    QTest::newRow(control) << QString::fromLatin1(key);
}

} // namespace

void OptionControlsTest::ListsWriteTheirValue_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("value");
    const auto row = [](const char* control, const char* key, int line, const char* value) {
        QTest::newRow(control) << QString::fromLatin1(key) << line << QString::fromLatin1(value);
    };
    row("cmbUnits", "Design Grid Opts/Units", 1, "centimetres");
    row("cmbNormalGLWidth", "Design Grid Opts/GridLineWidthPercentage1", 0, "0");
    row("cmbNormalGLColor", "Design Grid Opts/GridlineColor1Index", 6, "7");
    row("cmbBoldGLWidth", "Design Grid Opts/GridLineWidthPercentage2", 50, "50");
    row("cmbBoldGLColor", "Design Grid Opts/GridlineColor2Index", 0, "1");
    row("cmbBackStitchWidth", "Design Grid Opts/BackStitchLineWidthPercentage", 12, "12");
    row("cmbClothColor", "Design Grid Opts/ClothColorIndex", 2, "3");
    row("cmbSDA", "Design Grid Opts/StitchesDisplayAs", 5, "6");
    row("cmbPNormalGLWidth", "Printer Opts/GridLineWidthPercentage1", 1, "1");
    row("cmbPBoldGLWidth", "Printer Opts/GridLineWidthPercentage2", 2, "2");
    row("cmbPBackStitchWidth", "Printer Opts/BackStitchLineWidthPercentage", 3, "3");
    row("cmbPNormalGLColor", "Printer Opts/GridlineColor1Index", 5, "6");
    row("cmbPBoldGLColor", "Printer Opts/GridlineColor2Index", 1, "2");
    row("cmbPSDA", "Printer Opts/StitchesDisplayAs", 3, "5");
    row("cmbPLDA", "Printer Opts/LinesDisplayAs", 2, "-1");
    row("cmbClothCountX", "Pattern Default Properties/PatternClothCountX", 39, "40");
    row("cmbClothCountY", "Pattern Default Properties/PatternClothCountY", 0, "1");
    row("cmbStitchStrands", "Pattern Default Properties/StitchStrands", 2, "3");
    row("cmbBackStitchStrands", "Pattern Default Properties/BackStitchStrands", 0, "1");
    row("cmbPaletteRows", "Design Grid Opts/PaletteDisplayRows", 4, "5");
    row("cmbPaletteSize", "Design Grid Opts/PaletteDisplaySize", 2, "3");
    row("cmbSortPaletteBy", "Options/PaletteSortOrder", 3, "4");
    row("cmbupdate", "Options/UpdateInterval", 4, "180");
}

void OptionControlsTest::ListsWriteTheirValue() {
    QFETCH(const QString, key);
    QFETCH(const int, line);
    QFETCH(const QString, value);
    OptionsWindow window({}, SavedStore());
    Values expected = SavedAsItIs(window);
    QVERIFY(expected.at(key) != value);
    window.Choose(QTest::currentDataTag(), line);
    expected[key] = value;
    const Values saved = SavedBy(window);
    QCOMPARE(saved.at(key), value);
    QVERIFY(saved == expected);
}

void OptionControlsTest::TicksWriteTheirValue_data() {
    QTest::addColumn<QString>("key");
    AddRow("chkToolbar", "Design Grid Opts/ToolbarVisible");
    AddRow("chkStitchToolbar", "Design Grid Opts/StitchToolbarVisible");
    AddRow("chkRulers", "Design Grid Opts/RulersVisible");
    AddRow("chkStatusBar", "Design Grid Opts/StatusbarVisible");
    AddRow("chkGridLines", "Design Grid Opts/GridlinesVisible");
    AddRow("chkFlexBackstitch", "Design Grid Opts/AnchorBackstitches");
    AddRow("ChksUseSmart3QS", "Options/UseSmart3QS");
    AddRow("ChksUseSmartQS", "Options/UseSmartQS");
    AddRow("chkPrintGridLines", "Printer Opts/PrintGridLines");
    AddRow("chkPrintPageNumbers", "Printer Opts/PrintPageNumbers");
    AddRow("chkFlossUsage", "Pattern Default Properties/PrintFlossUsage");
    AddRow("chkRecolorPatterns", "Design Grid Opts/RecolorPatterns");
    AddRow("chkDisplayPaletteSymbol", "Design Grid Opts/DisplaySymbolInPalette");
    AddRow("ChkPrintManuID", "Options/PrintManuID");
    AddRow("ChkPrintManuDesc", "Options/PrintManuDesc");
    AddRow("Chkstrandcount", "Options/PrintStrands");
    AddRow("Chkshowtips", "Options/ShowTipsAtStartup");
}

void OptionControlsTest::TicksWriteTheirValue() {
    QFETCH(const QString, key);
    OptionsWindow window({}, SavedStore());
    Values expected = SavedAsItIs(window);
    const bool ticked = window.Find<QCheckBox>(QTest::currentDataTag()).isChecked();
    window.Click(QTest::currentDataTag());
    QCOMPARE(window.Find<QCheckBox>(QTest::currentDataTag()).isChecked(), !ticked);
    const bool isWord = key.startsWith(QStringLiteral("Options/")) == false;
    // "Flexible Backstitch" alone stores the opposite.
    const bool stored = (key == QStringLiteral("Design Grid Opts/AnchorBackstitches")) == ticked;
    expected[key] = isWord ? (stored ? QStringLiteral("TRUE") : QStringLiteral("FALSE"))
                           : (stored ? QStringLiteral("1") : QStringLiteral("0"));
    const Values saved = SavedBy(window);
    QCOMPARE(saved.at(key), expected.at(key));
    QVERIFY(saved == expected);
    // And back, from what was stored.
    window.Open();
    QCOMPARE(window.Find<QCheckBox>(QTest::currentDataTag()).isChecked(), !ticked);
}

void OptionControlsTest::TextsWriteTheirValue_data() {
    QTest::addColumn<QString>("key");
    AddRow("txtTitle", "Pattern Default Properties/Title");
    AddRow("txtAuthor", "Pattern Default Properties/Author");
    AddRow("txtCopyright", "Pattern Default Properties/Copyright");
    AddRow("txtFabric", "Pattern Default Properties/Fabric");
}

void OptionControlsTest::TextsWriteTheirValue() {
    QFETCH(const QString, key);
    OptionsWindow window({}, SavedStore());
    Values expected = SavedAsItIs(window);
    window.Type(QTest::currentDataTag(), "Ann, \"A\"; 50% = 1/2");
    expected[key] = QStringLiteral("Ann, \"A\"; 50% = 1/2");
    const Values saved = SavedBy(window);
    QCOMPARE(saved.at(key), expected.at(key));
    QVERIFY(saved == expected);
}

void OptionControlsTest::MarginsWriteInches_data() {
    QTest::addColumn<QString>("key");
    AddRow("txtLeftMargin", "Printer Opts/LeftMargin");
    AddRow("txtRightMargin", "Printer Opts/RightMargin");
    AddRow("txtTopMargin", "Printer Opts/TopMargin");
    AddRow("txtBottomMargin", "Printer Opts/BottomMargin");
}

void OptionControlsTest::MarginsWriteInches() {
    QFETCH(const QString, key);
    OptionsWindow window(StoredValues{{"Design Grid Opts/Units", "centimetres"}}, SavedStore());
    Values expected = SavedAsItIs(window);
    QCOMPARE(expected.at(key), QStringLiteral("0.5"));
    window.Type(QTest::currentDataTag(), "2.54");
    expected[key] = QStringLiteral("1");
    const Values saved = SavedBy(window);
    QCOMPARE(saved.at(key), QStringLiteral("1"));
    QVERIFY(saved == expected);
}

void OptionControlsTest::FlossFamilyWritesNameAndFile() {
    OptionsWindow window({}, SavedStore());
    Values expected = SavedAsItIs(window);
    auto& families = window.Find<QComboBox>("cmbFlossFamily");
    QCOMPARE(families.currentData().toString(), QStringLiteral("dmc.col"));
    QVERIFY(families.count() > 1);
    const int line = families.currentIndex() == 0 ? 1 : 0;
    window.Choose("cmbFlossFamily", line);
    expected[QStringLiteral("Options/FlossFamily")] = families.currentText();
    expected[QStringLiteral("Options/DefaultFlossFile")] = families.currentData().toString();
    const Values saved = SavedBy(window);
    QVERIFY(saved == expected);
    QCOMPARE(saved.at(QStringLiteral("Options/DefaultFlossFile")),
             QString::fromStdString(window.Settings.DefaultFlossFile));
}

} // namespace zol::test

QTEST_MAIN(zol::test::OptionControlsTest)
#include "test_OptionControls.moc"
