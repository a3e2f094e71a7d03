// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

#include "model/windows/PatternInfoKit.h"

namespace zol::test {

namespace {

PatternInfo Rose() {
    PatternInfo info;
    info.Width = 50;
    info.Height = 60;
    info.ClothCountX = 14;
    info.ClothCountY = 18;
    info.Title = "Rose";
    info.Author = "Ann";
    info.Copyright = "2026";
    info.Fabric = "Aida \u00e9cru";
    info.Instructions = "Two strands.";
    return info;
}

PatternInfo SquareRose() {
    PatternInfo info = Rose();
    info.ClothCountY = info.ClothCountX;
    return info;
}

} // namespace

class PatternInfoTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_desk = std::make_unique<PatternInfoDesk>(); }
    void cleanup() { m_desk.reset(); }

    void ShowsThePattern();
    void TabsBringUpThePages();
    void FieldsBecomeThePattern();
    void OkWithoutAnEditChangesNothing();
    void EscapeChangesNothing();
    void WrittenInstructionsAreNotLeftWithoutAQuestion();
    void TabsGoThroughTheKeysOfTheTextToTheText();
    void BadFieldIsToldAndNothingChanges_data();
    void BadFieldIsToldAndNothingChanges();
    void TooLargeAGridIsTold();
    void FaultBringsUpItsPage();
    void EnlargingAsksNothing();
    void ShrinkingAsks_data();
    void ShrinkingAsks();
    void ShrinkingANewPatternAsksNothing();
    void SquareTiesTheClothCounts();
    void UnitsConvertTheSize();
    void CentimetresAreOfTheSameCloth();
    void LengthsAreCountedByTheClothAtTheEnd();
    void UnitsWaitForAClothCount();
    void KeysOfOtherSignsAreSwallowed();
    void FieldsFollowTheLocale();
    void TooLongInstructionsAreTold();
    void LongWordsFitASmallScreen();
    void SizeOfTheWindowIsRemembered();

private:
    std::unique_ptr<PatternInfoDesk> m_desk;
};

void PatternInfoTest::ShowsThePattern() {
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Pattern Properties"));
    QCOMPARE(dialog.TextOf("txtTitle"), QStringLiteral("Rose"));
    QCOMPARE(dialog.TextOf("txtAuthor"), QStringLiteral("Ann"));
    QCOMPARE(dialog.TextOf("txtCopyright"), QStringLiteral("2026"));
    QCOMPARE(dialog.TextOf("txtFabric"), QString::fromUtf8("Aida \u00e9cru"));
    QCOMPARE(dialog.TextOf("txtWidth"), QStringLiteral("50"));
    QCOMPARE(dialog.TextOf("txtHeight"), QStringLiteral("60"));
    QCOMPARE(dialog.TextOf("cmbClothCountX"), QStringLiteral("14"));
    QCOMPARE(dialog.TextOf("cmbClothCountY"), QStringLiteral("18"));
    QVERIFY(dialog.Find<QRadioButton>("optStitches").isChecked());
    QVERIFY(!dialog.Find<QCheckBox>("chkSquare").isChecked());
    QCOMPARE(dialog.Find<QTextEdit>("rtxtInstructions").toPlainText(),
             QStringLiteral("Two strands."));
    auto& counts = dialog.Find<QComboBox>("cmbClothCountX");
    QCOMPARE(counts.count(), 40);
    QCOMPARE(counts.itemText(0), QStringLiteral("1"));
    QCOMPARE(counts.itemText(39), QStringLiteral("40"));
    ShownPatternInfo fresh(*m_desk, PatternInfo(), frmPatternInfo::Uses::New);
    QCOMPARE(fresh.windowTitle(), QStringLiteral("New Pattern"));
    QVERIFY(fresh.Find<QCheckBox>("chkSquare").isChecked());
}

void PatternInfoTest::TabsBringUpThePages() {
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    auto& tabs = dialog.Find<QTabWidget>("tbsPatternInfo");
    QVERIFY(dialog.Find<QWidget>("picInfo0").isVisible());
    QVERIFY(!dialog.Find<QWidget>("picInfo1").isVisible());
    QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(1).center());
    QVERIFY(dialog.Find<QWidget>("picInfo1").isVisible());
    QTest::keyClick(&dialog, Qt::Key_P, Qt::AltModifier);
    QVERIFY(dialog.Find<QWidget>("picInfo0").isVisible());
    QTest::keyClick(&dialog, Qt::Key_I, Qt::AltModifier);
    QVERIFY(dialog.Find<QWidget>("picInfo1").isVisible());
}

void PatternInfoTest::FieldsBecomeThePattern() {
    ShownPatternInfo dialog(*m_desk, SquareRose());
    QVERIFY(dialog.IsActive());
    dialog.Type("txtTitle", QStringLiteral("Tulip"));
    dialog.Type("txtAuthor", QString());
    dialog.Type("txtCopyright", QStringLiteral("free"));
    dialog.Type("txtFabric", QStringLiteral("Linen"));
    dialog.Type("txtWidth", QStringLiteral("70"));
    dialog.Type("txtHeight", QStringLiteral("80"));
    dialog.Type("cmbClothCountX", QStringLiteral("16"));
    QTest::keyClick(&dialog.Field("txtHeight"), Qt::Key_Return);
    QCOMPARE(dialog.result(), int{QDialog::Accepted});
    PatternInfo wanted = SquareRose();
    wanted.Title = "Tulip";
    wanted.Author.clear();
    wanted.Copyright = "free";
    wanted.Fabric = "Linen";
    wanted.Width = 70;
    wanted.Height = 80;
    wanted.ClothCountX = 16;
    wanted.ClothCountY = 16;
    QVERIFY(dialog.Chosen() == wanted);
    QVERIFY(m_desk->User.told.empty());
}

void PatternInfoTest::OkWithoutAnEditChangesNothing() {
    PatternInfo info = Rose();
    // Words that the editor does not know, and a text that it would write otherwise.
    info.Instructions = "{\\rtf1\\ansi\\unheard0 {\\b  Two} strands.\\par}\n ";
    ShownPatternInfo dialog(*m_desk, info);
    QVERIFY(dialog.IsActive());
    QTest::keyClick(&dialog, Qt::Key_I, Qt::AltModifier);
    dialog.Click("rtxtInstructions");
    dialog.Click("optUnits");
    dialog.Ok();
    QCOMPARE(dialog.result(), int{QDialog::Accepted});
    QVERIFY(dialog.Chosen() == info);
}

void PatternInfoTest::EscapeChangesNothing() {
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    dialog.Type("txtTitle", QStringLiteral("Tulip"));
    QTest::keyClick(&dialog.Field("txtTitle"), Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QVERIFY(dialog.Chosen() == Rose());
}

void PatternInfoTest::WrittenInstructionsAreNotLeftWithoutAQuestion() {
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    QTest::keyClick(&dialog, Qt::Key_I, Qt::AltModifier);
    auto& text = dialog.Find<QTextEdit>("rtxtInstructions");
    QVERIFY(text.hasFocus());
    QTest::keyClicks(&text, QStringLiteral("Wash. "));
    m_desk->User.answers = {MessageAnswer::No, MessageAnswer::Cancel, MessageAnswer::Yes};
    QTest::keyClick(&text, Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
    dialog.close();
    QVERIFY(dialog.isVisible());
    QVERIFY(text.toPlainText().contains(QStringLiteral("Wash. ")));
    dialog.Click("cmdCancel");
    QVERIFY(!dialog.isVisible());
    QVERIFY(dialog.Chosen() == Rose());
}

void PatternInfoTest::TabsGoThroughTheKeysOfTheTextToTheText() {
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    QTest::keyClick(&dialog, Qt::Key_I, Qt::AltModifier);
    dialog.Find<QTabWidget>("tbsPatternInfo").tabBar()->setFocus();
    QStringList names;
    do {
        QTest::keyClick(&dialog, Qt::Key_Tab);
        names << QApplication::focusWidget()->objectName();
    } while (names.back() != QStringLiteral("rtxtInstructions") && names.size() < 20);
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral("cmbTBFontName cmbTBFontSize BOLD ITALIC UNDERLINE COLOR LEFTJUSTIFY "
                            "CENTERJUSTIFY RIGHTJUSTIFY BULLETS rtxtInstructions"));
}

void PatternInfoTest::BadFieldIsToldAndNothingChanges_data() {
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    const QString width = QStringLiteral("Your pattern width is invalid.");
    const QString height = QStringLiteral("Your pattern height is invalid.");
    const QString across = QStringLiteral("Your horizontal cloth count is invalid.");
    const QString down = QStringLiteral("Your vertical cloth count is invalid.");
    const QString bad[][2] = {{QStringLiteral("zero"), QStringLiteral("0")},
                              {QStringLiteral("negative"), QStringLiteral("-5")},
                              {QStringLiteral("text"), QStringLiteral("wide")},
                              {QStringLiteral("empty"), QString()}};
    for (const auto& [name, text] : bad) {
        QTest::addRow("width %s", qPrintable(name)) << QStringLiteral("txtWidth") << text << width;
        QTest::addRow("height %s", qPrintable(name))
            << QStringLiteral("txtHeight") << text << height;
        QTest::addRow("across %s", qPrintable(name))
            << QStringLiteral("cmbClothCountX") << text << across;
        QTest::addRow("down %s", qPrintable(name))
            << QStringLiteral("cmbClothCountY") << text << down;
    }
    const QString most = QStringLiteral("32767");
    QTest::newRow("width 32767") << QStringLiteral("txtWidth") << most << width;
    QTest::newRow("height 32767") << QStringLiteral("txtHeight") << most << height;
}

void PatternInfoTest::BadFieldIsToldAndNothingChanges() {
    QFETCH(const QString, field);
    QFETCH(const QString, text);
    QFETCH(const QString, message);
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    const QByteArray name = field.toLatin1();
    dialog.Paste(name.constData(), text);
    if (text.isEmpty()) {
        dialog.Type(name.constData(), text);
    }
    dialog.Ok();
    QCOMPARE(m_desk->User.told.size(), std::size_t{1});
    QCOMPARE(QString::fromStdString(m_desk->User.told[0].text), message);
    QCOMPARE(m_desk->User.told[0].title, std::string("Pattern Information"));
    QVERIFY(m_desk->User.told[0].icon == MessageIcon::Stop);
    QVERIFY(m_desk->User.asked.empty());
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.HasFocus(name.constData()));
    QVERIFY(dialog.Chosen() == Rose());
}

void PatternInfoTest::TooLargeAGridIsTold() {
    ShownPatternInfo dialog(*m_desk, Rose(), frmPatternInfo::Uses::New);
    QVERIFY(dialog.IsActive());
    dialog.Type("txtWidth", QStringLiteral("4001"));
    dialog.Type("txtHeight", QStringLiteral("4000"));
    dialog.Ok();
    QCOMPARE(m_desk->User.ToldTexts(), std::vector<std::string>{"Your pattern is too large."});
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.HasFocus("txtWidth"));
    dialog.Type("txtWidth", QStringLiteral("4000"));
    dialog.Ok();
    QCOMPARE(dialog.Chosen().Width, 4000);
}

void PatternInfoTest::FaultBringsUpItsPage() {
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    dialog.Type("txtHeight", QStringLiteral("0"));
    QTest::keyClick(&dialog, Qt::Key_I, Qt::AltModifier);
    dialog.Ok();
    QVERIFY(dialog.Find<QWidget>("picInfo0").isVisible());
    QVERIFY(dialog.HasFocus("txtHeight"));
    QCOMPARE(dialog.Find<QLineEdit>("txtHeight").selectedText(), QStringLiteral("0"));
}

void PatternInfoTest::EnlargingAsksNothing() {
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    dialog.Type("txtWidth", QStringLiteral("51"));
    dialog.Type("txtHeight", QStringLiteral("600"));
    dialog.Ok();
    QVERIFY(m_desk->User.asked.empty());
    QCOMPARE(dialog.Chosen().Height, 600);
}

void PatternInfoTest::ShrinkingAsks_data() {
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    QTest::newRow("width alone") << "txtWidth"
                                 << "49";
    QTest::newRow("height alone") << "txtHeight"
                                  << "59";
}

void PatternInfoTest::ShrinkingAsks() {
    QFETCH(const QString, field);
    QFETCH(const QString, text);
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    dialog.Type(qPrintable(field), text);
    m_desk->User.answers = {MessageAnswer::No, MessageAnswer::Yes};
    dialog.Ok();
    QCOMPARE(m_desk->User.asked.size(), std::size_t{1});
    QCOMPARE(m_desk->User.asked[0].text,
             std::string("Warning! By resizing your pattern, you will lose any stitches which are "
                         "outside the new pattern area\nAre  you sure you wish to resize the "
                         "pattern?"));
    QVERIFY(m_desk->User.asked[0].buttons == MessageButtons::YesNo);
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.Chosen() == Rose());
    dialog.Ok();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int{QDialog::Accepted});
    QCOMPARE(dialog.Chosen().Width + dialog.Chosen().Height, 109);
}

void PatternInfoTest::ShrinkingANewPatternAsksNothing() {
    ShownPatternInfo dialog(*m_desk, Rose(), frmPatternInfo::Uses::New);
    QVERIFY(dialog.IsActive());
    dialog.Type("txtWidth", QStringLiteral("10"));
    dialog.Ok();
    QVERIFY(m_desk->User.asked.empty());
    QCOMPARE(dialog.Chosen().Width, 10);
}

void PatternInfoTest::SquareTiesTheClothCounts() {
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    QVERIFY(dialog.Field("cmbClothCountY").isEnabled());
    dialog.Click("chkSquare");
    QCOMPARE(dialog.TextOf("cmbClothCountY"), QStringLiteral("14"));
    QVERIFY(!dialog.Field("cmbClothCountY").isEnabled());
    QVERIFY(!dialog.Field("lblVertClothCount").isEnabled());
    dialog.Type("cmbClothCountX", QStringLiteral("22"));
    QCOMPARE(dialog.TextOf("cmbClothCountY"), QStringLiteral("22"));
    QTest::keyClick(&dialog.Field("cmbClothCountX"), Qt::Key_Down);
    QCOMPARE(dialog.TextOf("cmbClothCountX"), QStringLiteral("23"));
    QCOMPARE(dialog.TextOf("cmbClothCountY"), QStringLiteral("23"));
    dialog.Click("chkSquare");
    QVERIFY(dialog.Field("cmbClothCountY").isEnabled());
    QVERIFY(dialog.Field("lblVertClothCount").isEnabled());
    dialog.Type("cmbClothCountX", QStringLiteral("25"));
    QCOMPARE(dialog.TextOf("cmbClothCountY"), QStringLiteral("23"));
}

void PatternInfoTest::UnitsConvertTheSize() {
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    QCOMPARE(dialog.Find<QLabel>("lblOtherSize").text(), QStringLiteral("3.571 x 3.333 inches"));
    dialog.Click("optUnits");
    QCOMPARE(dialog.TextOf("txtWidth"), QStringLiteral("3.571"));
    QCOMPARE(dialog.TextOf("txtHeight"), QStringLiteral("3.333"));
    QCOMPARE(dialog.Find<QLabel>("lblOtherSize").text(), QStringLiteral("50 x 60 stitches"));
    dialog.Type("txtWidth", QStringLiteral("0.5"));
    QTest::keyClick(&dialog.Field("optUnits"), Qt::Key_S, Qt::AltModifier);
    QTRY_COMPARE(dialog.TextOf("txtWidth"), QStringLiteral("7"));
    QCOMPARE(dialog.TextOf("txtHeight"), QStringLiteral("60"));
}

void PatternInfoTest::CentimetresAreOfTheSameCloth() {
    ShownPatternInfo dialog(*m_desk, Rose(), frmPatternInfo::Uses::Present, false);
    QVERIFY(dialog.IsActive());
    QCOMPARE(dialog.Find<QRadioButton>("optUnits").text(), QStringLiteral("Ce&ntimetres"));
    dialog.Click("optUnits");
    QCOMPARE(dialog.TextOf("txtWidth"), QStringLiteral("9.071"));
    dialog.Type("txtWidth", QStringLiteral("25.4"));
    dialog.Ok();
    QCOMPARE(dialog.Chosen().Width, 140);
    QCOMPARE(dialog.Chosen().Height, 60);
}

void PatternInfoTest::LengthsAreCountedByTheClothAtTheEnd() {
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    dialog.Click("optUnits");
    dialog.Type("txtWidth", QStringLiteral("10"));
    dialog.Type("cmbClothCountX", QStringLiteral("20"));
    dialog.Ok();
    QCOMPARE(dialog.Chosen().Width, 200);
    QCOMPARE(dialog.Chosen().ClothCountX, 20);
}

void PatternInfoTest::UnitsWaitForAClothCount() {
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    dialog.Type("cmbClothCountX", QString());
    dialog.Click("optUnits");
    QCOMPARE(m_desk->User.ToldTexts(),
             std::vector<std::string>{"Your horizontal cloth count is invalid."});
    QVERIFY(dialog.Find<QRadioButton>("optStitches").isChecked());
    QCOMPARE(dialog.TextOf("txtWidth"), QStringLiteral("50"));
    QVERIFY(dialog.HasFocus("cmbClothCountX"));
}

void PatternInfoTest::KeysOfOtherSignsAreSwallowed() {
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    dialog.Type("txtWidth", QStringLiteral("-1a2.3x45678"));
    QCOMPARE(dialog.TextOf("txtWidth"), QStringLiteral("12345"));
    dialog.Type("cmbClothCountX", QStringLiteral("1.8b"));
    QCOMPARE(dialog.TextOf("cmbClothCountX"), QStringLiteral("18"));
    dialog.Click("optUnits");
    dialog.Type("txtHeight", QStringLiteral("x2.3.4567"));
    QCOMPARE(dialog.TextOf("txtHeight"), QStringLiteral("2.345"));
}

void PatternInfoTest::FieldsFollowTheLocale() {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    {
        ShownPatternInfo dialog(*m_desk, Rose());
        QVERIFY(dialog.IsActive());
        dialog.Click("optUnits");
        QCOMPARE(dialog.TextOf("txtWidth"), QStringLiteral("3,571"));
        dialog.Type("txtWidth", QStringLiteral("4,5"));
        dialog.Ok();
        QCOMPARE(dialog.Chosen().Width, 63);
    }
    QLocale::setDefault(before);
}

void PatternInfoTest::TooLongInstructionsAreTold() {
    ShownPatternInfo dialog(*m_desk, Rose());
    QVERIFY(dialog.IsActive());
    auto& text = dialog.Find<QTextEdit>("rtxtInstructions");
    text.textCursor().insertText(QString(33000, QLatin1Char('x')));
    dialog.Ok();
    QCOMPARE(m_desk->User.ToldTexts(), std::vector<std::string>{"Your instructions are too long."});
    QVERIFY(dialog.Find<QWidget>("picInfo1").isVisible());
    QVERIFY(text.hasFocus());
    text.selectAll();
    text.textCursor().insertText(QStringLiteral("short"));
    dialog.Ok();
    QCOMPARE(dialog.result(), int{QDialog::Accepted});
}

void PatternInfoTest::LongWordsFitASmallScreen() {
    ShownPatternInfo dialog(*m_desk, Rose(), frmPatternInfo::Uses::Present, false);
    QVERIFY(dialog.IsActive());
    // German is about two fifths longer.
    const auto longer = [](const QString& text) {
        QString wide = text;
        wide += text.left(text.size() * 2 / 5);
        return wide;
    };
    for (auto* label : dialog.findChildren<QLabel*>()) {
        label->setText(longer(label->text()));
    }
    for (auto* button : dialog.findChildren<QAbstractButton*>()) {
        button->setText(longer(button->text()));
    }
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    dialog.adjustSize();
    QVERIFY(dialog.width() <= 1280 && dialog.height() <= 720);
    for (auto* label : dialog.findChildren<QLabel*>()) {
        if (label->isVisible()) {
            QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
        }
    }
}

void PatternInfoTest::SizeOfTheWindowIsRemembered() {
    QSize left;
    {
        ShownPatternInfo dialog(*m_desk, Rose());
        QVERIFY(dialog.IsActive());
        dialog.resize(dialog.size() + QSize(40, 30));
        left = dialog.size();
        dialog.reject();
    }
    ShownPatternInfo dialog(*m_desk, Rose());
    QCOMPARE(dialog.size(), left);
}

} // namespace zol::test

QTEST_MAIN(zol::test::PatternInfoTest)
#include "test_frmPatternInfo.moc"
