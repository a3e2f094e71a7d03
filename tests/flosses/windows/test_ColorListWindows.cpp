// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QColorDialog>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "flosses/windows/ColorSample.h"
#include "flosses/windows/NonRepColors.h"
#include "flosses/windows/frmClothColors.h"
#include "flosses/windows/frmColorList.h"
#include "model/ProgramContext.h"
#include "settings/INIFuncs.h"
#include "support/DialogDriver.h"
#include "support/DialogHands.h"
#include "support/ScriptedUser.h"

namespace zol::test {

namespace {

using ColorLists::NamedColor;

void Click(QDialog& dialog, const char* button) {
    QTest::mouseClick(&PartOf<QPushButton>(dialog, button), Qt::LeftButton);
}

/// What a user does in the platform's dialog for colours.
DialogDriver::Step ChoosesColor(const QColor& color) {
    return [color](QDialog& dialog) {
        dynamic_cast<QColorDialog&>(dialog).setCurrentColor(color);
        dialog.accept();
    };
}

} // namespace

/// The windows that keep lists of colours, driven by mouse and keys.
class ColorListWindowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void AnEmptyListHasNothingToDelete();
    void AddedLinesAreWrittenWhenTheWindowCloses();
    void ALineWithoutADescriptionIsRefused();
    void AChangedLineShowsWhatItWas();
    void DeletedLinesAreGone();
    void BlackEndsTheListAndIsNotStored();
    void AColourThatIsGoneSelectsTheLastLine();
    void WithoutFillingTheLinesStay();
    void ClothColoursAreSevenWithTextAndColour();
    void EditsOfALineAreWrittenBack();
    void EachListHasItsCaption();
    void WordsAreBritishAndNamesStay();

private:
    [[nodiscard]] std::string Stored(const char* section, const char* name) const {
        return m_store->ReadSetting(section, name, "-");
    }

    QTemporaryDir m_folder;
    std::unique_ptr<INIFuncs> m_store;
    ScriptedUser m_user;
    ProgramContext m_context;
};

void ColorListWindowsTest::init() {
    const std::filesystem::path file = m_folder.filePath(QStringLiteral("s.ini")).toStdString();
    m_store.reset();
    std::filesystem::remove(file);
    m_store = std::make_unique<INIFuncs>(file);
    m_user = {};
}

void ColorListWindowsTest::AnEmptyListHasNothingToDelete() {
    frmColorList list(*m_store, m_user, m_context);
    list.show();
    QCOMPARE(list.windowTitle(), QStringLiteral("Non-Representative Floss Colors"));
    QCOMPARE(PartOf<QListWidget>(list, "picList").count(), 0);
    QVERIFY(!PartOf<QPushButton>(list, "cmdDelete").isEnabled());
    Click(list, "cmdClose");
    QCOMPARE(Stored("NonRepColors", "Count"), std::string("0"));
}

void ColorListWindowsTest::AddedLinesAreWrittenWhenTheWindowCloses() {
    frmColorList list(*m_store, m_user, m_context);
    list.show();
    DialogDriver user({[](QDialog& item) {
                           QVERIFY(PartOf<QLineEdit>(item, "txtDesc").text().isEmpty());
                           QVERIFY(!PartOf<ColorSample>(item, "picColor").Color());
                           QTest::keyClicks(&PartOf<QLineEdit>(item, "txtDesc"),
                                            QStringLiteral("Neon"));
                           Click(item, "cmdColor");
                           Click(item, "cmdOK");
                       },
                       ChoosesColor(QColor(1, 255, 2))});
    Click(list, "cmdAdd");
    QVERIFY(user.AllDone());
    QCOMPARE(PartOf<QListWidget>(list, "picList").item(0)->text(), QStringLiteral("Neon"));
    QVERIFY(PartOf<QPushButton>(list, "cmdDelete").isEnabled());
    QCOMPARE(Stored("NonRepColors", "Count"), std::string("-"));
    Click(list, "cmdClose");
    QCOMPARE(ColorLists::LoadNonRepColors(*m_store).size(), std::size_t{1});
    QVERIFY(ColorLists::LoadNonRepColors(*m_store)[0] ==
            (NamedColor{"Neon", MakeColour(1, 255, 2)}));
}

void ColorListWindowsTest::ALineWithoutADescriptionIsRefused() {
    frmColorList list(*m_store, m_user, m_context);
    list.show();
    DialogDriver user({[this](QDialog& item) {
        for (const char* text : {"", "   "}) {
            PartOf<QLineEdit>(item, "txtDesc").clear();
            QTest::keyClicks(&PartOf<QLineEdit>(item, "txtDesc"), QLatin1String(text));
            PartOf<QPushButton>(item, "cmdOK").setFocus();
            Click(item, "cmdOK");
            QVERIFY(item.isVisible());
            QVERIFY(item.focusWidget() == &PartOf<QLineEdit>(item, "txtDesc"));
        }
        QCOMPARE(m_user.told.size(), std::size_t{2});
        Click(item, "cmdCancel");
    }});
    Click(list, "cmdAdd");
    QVERIFY(user.AllDone());
    QCOMPARE(m_user.told[0].text, std::string("You must provide a description."));
    QCOMPARE(m_user.told[0].title, std::string("Colors"));
    QCOMPARE(PartOf<QListWidget>(list, "picList").count(), 0);
}

void ColorListWindowsTest::AChangedLineShowsWhatItWas() {
    ColorLists::SaveNonRepColors(*m_store, {{"One", 1}, {"Two", 0x0000FF}});
    frmColorList list(*m_store, m_user, m_context);
    list.show();
    auto& lines = PartOf<QListWidget>(list, "picList");
    QTest::keyClick(&lines, Qt::Key_Down);
    DialogDriver user({[](QDialog& item) {
        QCOMPARE(PartOf<QLineEdit>(item, "txtDesc").text(), QStringLiteral("Two"));
        QVERIFY(PartOf<ColorSample>(item, "picColor").Color() == Colour{0x0000FF});
        QTest::keyClicks(&PartOf<QLineEdit>(item, "txtDesc"), QStringLiteral("nd"));
        QTest::keyClick(&item, Qt::Key_Return);
    }});
    Click(list, "cmdChange");
    QVERIFY(user.AllDone());
    QTest::keyClick(&list, Qt::Key_Escape);
    const std::vector<NamedColor> expected{{"One", 1}, {"Twond", 0x0000FF}};
    QVERIFY(ColorLists::LoadNonRepColors(*m_store) == expected);
}

void ColorListWindowsTest::DeletedLinesAreGone() {
    ColorLists::SaveNonRepColors(*m_store, {{"One", 1}, {"Two", 2}, {"Three", 3}});
    frmColorList list(*m_store, m_user, m_context);
    list.show();
    auto& lines = PartOf<QListWidget>(list, "picList");
    QTest::keyClick(&lines, Qt::Key_Down);
    Click(list, "cmdDelete");
    QCOMPARE(lines.currentItem()->text(), QStringLiteral("Three"));
    Click(list, "cmdDelete");
    Click(list, "cmdClose");
    const std::vector<NamedColor> expected{{"One", 1}};
    QVERIFY(ColorLists::LoadNonRepColors(*m_store) == expected);
}

void ColorListWindowsTest::BlackEndsTheListAndIsNotStored() {
    QComboBox combo;
    LoadNonRepColors(combo, *m_store, true, 0x123456);
    QCOMPARE(combo.count(), 1);
    QCOMPARE(combo.currentText(), QStringLiteral("Black"));
    QCOMPARE(combo.currentData().toUInt(), 0U);
    frmColorList list(*m_store, m_user, m_context);
    QCOMPARE(PartOf<QListWidget>(list, "picList").count(), 0);
}

void ColorListWindowsTest::AColourThatIsGoneSelectsTheLastLine() {
    ColorLists::SaveNonRepColors(*m_store, {{"One", 0x10}, {"Two", 0x20}});
    QComboBox combo;
    LoadNonRepColors(combo, *m_store, true, 0x20);
    QCOMPARE(combo.currentText(), QStringLiteral("Two"));
    ColorLists::SaveNonRepColors(*m_store, {{"One", 0x10}});
    LoadNonRepColors(combo, *m_store, true, 0x20);
    QCOMPARE(combo.count(), 2);
    QCOMPARE(combo.currentIndex(), 1);
    QCOMPARE(combo.currentText(), QStringLiteral("Black"));
}

void ColorListWindowsTest::WithoutFillingTheLinesStay() {
    ColorLists::SaveNonRepColors(*m_store, {{"One", 0x10}, {"Two", 0x20}});
    QComboBox combo;
    LoadNonRepColors(combo, *m_store, true, 0);
    ColorLists::SaveNonRepColors(*m_store, {});
    LoadNonRepColors(combo, *m_store, false, 0x10);
    QCOMPARE(combo.count(), 3);
    QCOMPARE(combo.currentText(), QStringLiteral("One"));
}

void ColorListWindowsTest::ClothColoursAreSevenWithTextAndColour() {
    frmClothColors colors(ColorLists::ClothList, *m_store, ProgramContext());
    colors.show();
    auto& lines = PartOf<QListWidget>(colors, "picList");
    QCOMPARE(lines.count(), 7);
    QCOMPARE(PartOf<QLineEdit>(colors, "txtDescription").text(), QStringLiteral("Bright White"));
    QTest::keyClick(&lines, Qt::Key_End);
    QCOMPARE(PartOf<QLineEdit>(colors, "txtDescription").text(), QStringLiteral("Navy Blue"));
    QVERIFY(PartOf<ColorSample>(colors, "picSelected").Color() == Colour{10758197});
}

void ColorListWindowsTest::EditsOfALineAreWrittenBack() {
    ColorLists::SaveGridColor(*m_store, ColorLists::BoldLines, 8, {"Moss", 0x112233});
    frmClothColors colors(ColorLists::BoldList, *m_store, ProgramContext());
    colors.show();
    auto& lines = PartOf<QListWidget>(colors, "picList");
    QTest::keyClick(&lines, Qt::Key_Down);
    auto& text = PartOf<QLineEdit>(colors, "txtDescription");
    text.selectAll();
    QTest::keyClicks(&text, QStringLiteral("Mist"));
    QCOMPARE(lines.item(1)->text(), QStringLiteral("Mist"));
    DialogDriver user({ChoosesColor(QColor(0xAA, 0xBB, 0xCC))});
    Click(colors, "cmdReMix");
    QVERIFY(user.AllDone());
    QVERIFY(PartOf<ColorSample>(colors, "picSelected").Color() == MakeColour(0xAA, 0xBB, 0xCC));
    QCOMPARE(Stored("BoldGLColor", "Desc2"), std::string("-"));
    Click(colors, "cmdClose");
    QVERIFY(ColorLists::GetGridColor(*m_store, ColorLists::BoldLines, 2) ==
            (NamedColor{"Mist", MakeColour(0xAA, 0xBB, 0xCC)}));
    QCOMPARE(Stored("BoldGLColor", "Desc7"), std::string("Blue"));
    QCOMPARE(Stored("BoldGLColor", "Desc8"), std::string("Moss"));
}

void ColorListWindowsTest::EachListHasItsCaption() {
    const frmClothColors american(ColorLists::PrintBoldList, *m_store, ProgramContext());
    QCOMPARE(american.windowTitle(), QStringLiteral("Customize Bold Printed Grid Line Colors"));
    ProgramContext inBritain;
    inBritain.BritishSpelling = true;
    frmClothColors british(ColorLists::ClothList, *m_store, inBritain);
    QCOMPARE(british.windowTitle(), QStringLiteral("Customise Cloth Colours"));
    QCOMPARE(PartOf<QPushButton>(british, "cmdReMix").text().remove(QLatin1Char('&')),
             QStringLiteral("Change Colour"));
}

void ColorListWindowsTest::WordsAreBritishAndNamesStay() {
    ColorLists::SaveNonRepColors(*m_store, {{"Color of the sea", 1}});
    ProgramContext inBritain;
    inBritain.BritishSpelling = true;
    frmColorList list(*m_store, m_user, inBritain);
    list.show();
    QCOMPARE(list.windowTitle(), QStringLiteral("Non-Representative Floss Colours"));
    QCOMPARE(PartOf<QListWidget>(list, "picList").item(0)->text(),
             QStringLiteral("Color of the sea"));
    DialogDriver user({[](QDialog& item) {
        QCOMPARE(item.windowTitle(), QStringLiteral("Colour"));
        QCOMPARE(PartOf<QLineEdit>(item, "txtDesc").text(), QStringLiteral("Color of the sea"));
        Click(item, "cmdCancel");
    }});
    Click(list, "cmdChange");
    QVERIFY(user.AllDone());
}

} // namespace zol::test

QTEST_MAIN(zol::test::ColorListWindowsTest)
#include "test_ColorListWindows.moc"
