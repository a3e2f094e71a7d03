// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextList>
#include <QToolBar>
#include <QToolButton>

#include <memory>

#include "model/windows/InstructionsEditor.h"
#include "print/RTFFuncs.h"
#include "support/ScriptedUser.h"
#include "windowkit/Theme.h"

namespace zol::test {

class InstructionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void LookingKeepsEveryByte_data();
    void LookingKeepsEveryByte();
    void EditingMakesRichText();
    void NothingLeftIsAnEmptyText();
    void TakingEditsBackKeepsEveryByte();
    void KeysActOnTheSelection_data();
    void KeysActOnTheSelection();
    void KeysActOnWhatIsTypedNext();
    void ShortcutsActInTheText_data();
    void ShortcutsActInTheText();
    void BarShowsTheLooksAtTheCursor();
    void JustifiedTextHasNoAlignmentPressed();
    void SizeIsChosenAndTyped();
    void SizeThatIsNoNumberIsTold_data();
    void SizeThatIsNoNumberIsTold();
    void SizeLeftInItsBoxIsTaken();
    void EscapeTakesBackWhatWasTypedInABox();
    void FontIsTypedAndChosen();
    void ColorsAreChosenAndTakenAway();
    void BulletsComeAndGo();
    void EnterInAnEmptyItemEndsTheList();
    void TabsAndOtherScriptsAreText();
    void PaperIsLightInADarkTheme();
    void PartsThatEditingLosesAreTold();

private:
    [[nodiscard]] QToolButton& Key(const char* name) {
        return *m_editor->findChild<QToolButton*>(QLatin1String(name));
    }
    [[nodiscard]] QComboBox& Box(const char* name) {
        return *m_editor->findChild<QComboBox*>(QLatin1String(name));
    }
    void Click(const char* key) { QTest::mouseClick(&Key(key), Qt::LeftButton); }
    void TypeInBox(const char* name, const QString& text) {
        QComboBox& box = Box(name);
        QTest::mouseClick(box.lineEdit(), Qt::LeftButton);
        QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&box, text);
    }
    void Select(int from, int to) {
        QTextCursor cursor(m_text->document());
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        m_text->setTextCursor(cursor);
    }
    /// What the character before a position looks like.
    [[nodiscard]] QTextCharFormat LooksBefore(int position) {
        QTextCursor cursor(m_text->document());
        cursor.setPosition(position);
        return cursor.charFormat();
    }
    /// The instructions as another program reads them.
    [[nodiscard]] std::unique_ptr<QTextDocument> Stored() const {
        auto document = std::make_unique<QTextDocument>();
        RTFFuncs::LoadInstructions(*document, m_editor->Instructions());
        return document;
    }

    ScriptedUser m_user;
    ProgramContext m_context;
    std::unique_ptr<InstructionsEditor> m_editor;
    QTextEdit* m_text = nullptr;
};

void InstructionsTest::init() {
    m_user = ScriptedUser();
    m_editor = std::make_unique<InstructionsEditor>(QFont(QStringLiteral("DejaVu Sans"), 10),
                                                    m_user, m_context);
    m_text = m_editor->findChild<QTextEdit*>(QStringLiteral("rtxtInstructions"));
    m_editor->resize(900, 400);
    m_editor->show();
    m_editor->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_editor.get()));
    m_text->setFocus();
}

void InstructionsTest::cleanup() {
    m_editor.reset();
}

void InstructionsTest::LookingKeepsEveryByte_data() {
    QTest::addColumn<QByteArray>("instructions");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("plain") << QByteArray("Two strands.\r\nThen \xc3\xa9tamine. ");
    QTest::newRow("rich") << QByteArray("{\\rtf1\\ansi{\\stylesheet{\\s1 h;}}\\s1\\kerning0 {\\b x}"
                                        "{\\pict\\pngblip 89504e47}\\par}\n\n");
    QTest::newRow("damaged") << QByteArray("{\\rtf1 {{{\\u");
}

void InstructionsTest::LookingKeepsEveryByte() {
    QFETCH(const QByteArray, instructions);
    m_editor->SetInstructions(instructions.toStdString());
    Select(0, m_text->document()->characterCount() - 1);
    QTest::keyClick(m_text, Qt::Key_Down);
    QTest::keyClick(m_text, Qt::Key_C, Qt::ControlModifier);
    QVERIFY(m_editor->TakeTypedSize());
    QCOMPARE(QByteArray::fromStdString(m_editor->Instructions()), instructions);
}

void InstructionsTest::EditingMakesRichText() {
    m_editor->SetInstructions("Two strands.");
    QTest::keyClick(m_text, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(m_text, QStringLiteral(" Or three."));
    QVERIFY(RTFFuncs::IsRichText(m_editor->Instructions()));
    QCOMPARE(Stored()->toPlainText(), QStringLiteral("Two strands. Or three."));
}

void InstructionsTest::NothingLeftIsAnEmptyText() {
    m_editor->SetInstructions("Two strands.");
    QTest::keyClick(m_text, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(m_text, Qt::Key_Delete);
    QCOMPARE(m_editor->Instructions(), std::string());
}

void InstructionsTest::TakingEditsBackKeepsEveryByte() {
    const std::string before = "{\\rtf1\\unheard {\\b x}}";
    m_editor->SetInstructions(before);
    QTest::keyClicks(m_text, QStringLiteral("abc"));
    QVERIFY(m_editor->Instructions() != before);
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(m_text, Qt::Key_Z, Qt::ControlModifier);
    }
    QCOMPARE(m_editor->Instructions(), before);
}

void InstructionsTest::KeysActOnTheSelection_data() {
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("words");
    QTest::newRow("bold") << QByteArray("BOLD") << QByteArray("\\b ");
    QTest::newRow("italic") << QByteArray("ITALIC") << QByteArray("\\i ");
    QTest::newRow("underline") << QByteArray("UNDERLINE") << QByteArray("\\ul ");
    QTest::newRow("center") << QByteArray("CENTERJUSTIFY") << QByteArray("\\qc");
    QTest::newRow("right") << QByteArray("RIGHTJUSTIFY") << QByteArray("\\qr");
}

void InstructionsTest::KeysActOnTheSelection() {
    QFETCH(const QByteArray, key);
    QFETCH(const QByteArray, words);
    m_editor->SetInstructions("one two three");
    Select(4, 7);
    Click(key.constData());
    QVERIFY(Key(key.constData()).isChecked());
    const std::string rtf = m_editor->Instructions();
    QVERIFY2(rtf.find(words.toStdString()) != std::string::npos, rtf.c_str());
    QCOMPARE(Stored()->toPlainText(), QStringLiteral("one two three"));
    QVERIFY(LooksBefore(7) != LooksBefore(3) || words.startsWith("\\q"));
    // Once more takes it away; an alignment gives way to another.
    Click(words.startsWith("\\q") ? "LEFTJUSTIFY" : key.constData());
    QVERIFY(!Key(key.constData()).isChecked());
    QVERIFY(m_editor->Instructions().find(words.toStdString()) == std::string::npos);
}

void InstructionsTest::KeysActOnWhatIsTypedNext() {
    Click("BOLD");
    QTest::keyClicks(m_text, QStringLiteral("bold"));
    Click("BOLD");
    Click("ITALIC");
    QTest::keyClicks(m_text, QStringLiteral("slanted"));
    QCOMPARE(LooksBefore(4).fontWeight(), int{QFont::Bold});
    QVERIFY(!LooksBefore(4).fontItalic());
    QCOMPARE(LooksBefore(11).fontWeight(), int{QFont::Normal});
    QVERIFY(LooksBefore(11).fontItalic());
}

void InstructionsTest::ShortcutsActInTheText_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("bold") << int{Qt::Key_B} << QByteArray("BOLD");
    QTest::newRow("italic") << int{Qt::Key_I} << QByteArray("ITALIC");
    QTest::newRow("underline") << int{Qt::Key_U} << QByteArray("UNDERLINE");
    QTest::newRow("center") << int{Qt::Key_E} << QByteArray("CENTERJUSTIFY");
    QTest::newRow("right") << int{Qt::Key_R} << QByteArray("RIGHTJUSTIFY");
}

void InstructionsTest::ShortcutsActInTheText() {
    QFETCH(const int, key);
    QFETCH(const QByteArray, name);
    m_editor->SetInstructions("one two");
    Select(0, 3);
    QTest::keyClick(m_text, static_cast<Qt::Key>(key), Qt::ControlModifier);
    QVERIFY(Key(name.constData()).isChecked());
    QVERIFY(RTFFuncs::IsRichText(m_editor->Instructions()));
    QCOMPARE(m_text->toPlainText(), QStringLiteral("one two"));
}

void InstructionsTest::BarShowsTheLooksAtTheCursor() {
    m_editor->SetInstructions("{\\rtf1{\\fonttbl{\\f0 Times;}{\\f1 Arial;}}\\f0\\fs24 plain "
                              "{\\b\\i\\ul\\f1\\fs21 loud}\\par\\qc middle\\par}");
    Select(2, 2);
    for (const char* key : {"BOLD", "ITALIC", "UNDERLINE", "CENTERJUSTIFY"}) {
        QVERIFY2(!Key(key).isChecked(), key);
    }
    QVERIFY(Key("LEFTJUSTIFY").isChecked());
    QCOMPARE(Box("cmbTBFontName").currentText(), QStringLiteral("Times"));
    QCOMPARE(Box("cmbTBFontSize").currentText(), QStringLiteral("12"));
    Select(8, 8);
    for (const char* key : {"BOLD", "ITALIC", "UNDERLINE"}) {
        QVERIFY2(Key(key).isChecked(), key);
    }
    QCOMPARE(Box("cmbTBFontName").currentText(), QStringLiteral("Arial"));
    QCOMPARE(Box("cmbTBFontSize").currentText(), QStringLiteral("10.5"));
    QTest::keyClick(m_text, Qt::Key_End, Qt::ControlModifier);
    QVERIFY(Key("CENTERJUSTIFY").isChecked());
    QVERIFY(!Key("LEFTJUSTIFY").isChecked());
}

void InstructionsTest::JustifiedTextHasNoAlignmentPressed() {
    m_editor->SetInstructions("{\\rtf1\\qj even\\par}");
    for (const char* key : {"LEFTJUSTIFY", "CENTERJUSTIFY", "RIGHTJUSTIFY"}) {
        QVERIFY2(!Key(key).isChecked(), key);
    }
}

void InstructionsTest::SizeIsChosenAndTyped() {
    m_editor->SetInstructions("one two");
    Select(0, 3);
    TypeInBox("cmbTBFontSize", QStringLiteral("14.5"));
    QTest::keyClick(&Box("cmbTBFontSize"), Qt::Key_Return);
    QVERIFY(m_text->hasFocus());
    QCOMPARE(LooksBefore(3).fontPointSize(), 14.5);
    QVERIFY(LooksBefore(7).fontPointSize() != 14.5);
    QComboBox& box = Box("cmbTBFontSize");
    box.setFocus();
    box.setCurrentIndex(box.findText(QStringLiteral("24")));
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.currentText(), QStringLiteral("26"));
    QTest::keyClick(&box, Qt::Key_Enter);
    QCOMPARE(LooksBefore(3).fontPointSize(), 26.0);
    QVERIFY(m_editor->Instructions().find("\\fs52") != std::string::npos);
    QVERIFY(m_user.told.empty());
}

void InstructionsTest::SizeThatIsNoNumberIsTold_data() {
    QTest::addColumn<QString>("text");
    for (const char* text : {"abc", "12pt", "0", "-3", "1639", ""}) {
        QTest::addRow("'%s'", text) << QString::fromLatin1(text);
    }
}

void InstructionsTest::SizeThatIsNoNumberIsTold() {
    QFETCH(const QString, text);
    m_editor->SetInstructions("one two");
    Select(0, 3);
    TypeInBox("cmbTBFontSize", text);
    QComboBox& box = Box("cmbTBFontSize");
    if (text.isEmpty()) {
        QTest::keyClick(&box, Qt::Key_Delete);
    }
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(m_user.ToldTexts(), std::vector<std::string>{"Invalid Font Size"});
    QVERIFY(QApplication::focusWidget() == &box);
    QVERIFY(!m_editor->TakeTypedSize());
    QCOMPARE(m_user.told.size(), std::size_t{2});
    QCOMPARE(m_editor->Instructions(), std::string("one two"));
}

void InstructionsTest::SizeLeftInItsBoxIsTaken() {
    m_editor->SetInstructions("one two");
    Select(0, 3);
    TypeInBox("cmbTBFontSize", QStringLiteral("30"));
    QTest::keyClick(&Box("cmbTBFontSize"), Qt::Key_Tab);
    QCOMPARE(LooksBefore(3).fontPointSize(), 30.0);
    TypeInBox("cmbTBFontSize", QStringLiteral("31"));
    QVERIFY(m_editor->TakeTypedSize());
    QCOMPARE(LooksBefore(3).fontPointSize(), 31.0);
}

void InstructionsTest::EscapeTakesBackWhatWasTypedInABox() {
    m_editor->SetInstructions("one two");
    Select(0, 3);
    for (const char* name : {"cmbTBFontSize", "cmbTBFontName"}) {
        const QString shown = Box(name).currentText();
        TypeInBox(name, QStringLiteral("30"));
        QTest::keyClick(&Box(name), Qt::Key_Escape);
        QCOMPARE(Box(name).currentText(), shown);
        QVERIFY(m_text->hasFocus());
    }
    QCOMPARE(m_editor->Instructions(), std::string("one two"));
}

void InstructionsTest::FontIsTypedAndChosen() {
    m_editor->SetInstructions("one two");
    Select(0, 3);
    TypeInBox("cmbTBFontName", QStringLiteral("Nowhere Sans"));
    QTest::keyClick(&Box("cmbTBFontName"), Qt::Key_Return);
    QVERIFY(m_text->hasFocus());
    QVERIFY(m_editor->Instructions().find("Nowhere Sans;") != std::string::npos);
    QCOMPARE(Box("cmbTBFontName").currentText(), QStringLiteral("Nowhere Sans"));
    QComboBox& box = Box("cmbTBFontName");
    QVERIFY(box.count() > 0);
    const QString listed = box.itemText(0);
    TypeInBox("cmbTBFontName", listed);
    QTest::keyClick(&box, Qt::Key_Tab);
    QCOMPARE(LooksBefore(3).fontFamilies().toStringList(), QStringList{listed});
}

void InstructionsTest::ColorsAreChosenAndTakenAway() {
    m_editor->SetInstructions("one two");
    Select(0, 3);
    QMenu& menu = *Key("COLOR").menu();
    const auto choose = [&menu](int steps) {
        menu.popup(QPoint(50, 50));
        for (int i = 0; i < steps; ++i) {
            QTest::keyClick(&menu, Qt::Key_Down);
        }
        QTest::keyClick(&menu, Qt::Key_Return);
    };
    choose(3);
    QCOMPARE(menu.actions()[2]->text(), QStringLiteral("Red"));
    QCOMPARE(LooksBefore(3).foreground().color(), QColor(0xC8, 0x10, 0x2E));
    QVERIFY(m_editor->Instructions().find("\\red200\\green16\\blue46;") != std::string::npos);
    QVERIFY(m_text->hasFocus());
    choose(1);
    QVERIFY(m_editor->Instructions().find("\\red") == std::string::npos);
    QCOMPARE(menu.actions().last()->text(), QStringLiteral("&More Colors..."));
}

void InstructionsTest::BulletsComeAndGo() {
    m_editor->SetInstructions("one\ntwo\nthree");
    Select(0, 6);
    Click("BULLETS");
    QVERIFY(m_text->document()->findBlock(0).textList() != nullptr);
    QVERIFY(m_text->document()->findBlock(5).textList() != nullptr);
    QVERIFY(m_text->document()->lastBlock().textList() == nullptr);
    const auto stored = Stored();
    QVERIFY(stored->begin().textList() != nullptr);
    QCOMPARE(stored->begin().textList()->count(), 2);
    QCOMPARE(stored->toPlainText(), QStringLiteral("one\ntwo\nthree"));
    QVERIFY(Key("BULLETS").isChecked());
    Click("BULLETS");
    QVERIFY(m_text->document()->findBlock(0).textList() == nullptr);
    QCOMPARE(m_text->document()->findBlock(5).blockFormat().indent(), 0);
    QVERIFY(m_editor->Instructions().find("\\pn") == std::string::npos);
}

void InstructionsTest::EnterInAnEmptyItemEndsTheList() {
    Click("BULLETS");
    QTest::keyClicks(m_text, QStringLiteral("one"));
    QTest::keyClick(m_text, Qt::Key_Return);
    QVERIFY(Key("BULLETS").isChecked());
    QTest::keyClick(m_text, Qt::Key_Return);
    QVERIFY(!Key("BULLETS").isChecked());
    QTest::keyClicks(m_text, QStringLiteral("end"));
    QCOMPARE(m_text->toPlainText(), QStringLiteral("one\nend"));
    QVERIFY(m_text->document()->begin().textList() != nullptr);
    QVERIFY(m_text->document()->lastBlock().textList() == nullptr);
}

void InstructionsTest::TabsAndOtherScriptsAreText() {
    QTest::keyClicks(m_text, QStringLiteral("a"));
    QTest::keyClick(m_text, Qt::Key_Tab);
    const QString signs =
        QString::fromUtf8("caf\u00e9 \u0416\u0142 \u65e5 \U0001F9F5 \u201cq\u201d");
    m_text->insertPlainText(signs);
    QVERIFY(m_text->hasFocus());
    QString all = QStringLiteral("a\t");
    all += signs;
    QCOMPARE(Stored()->toPlainText(), all);
    for (const char byte : m_editor->Instructions()) {
        QVERIFY(static_cast<unsigned char>(byte) < 128);
    }
}

void InstructionsTest::PaperIsLightInADarkTheme() {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(Theme::Palette(Theme::Look::Dark));
    const QPalette shown = m_text->palette();
    QVERIFY(shown.color(QPalette::Base).lightness() > 200);
    QVERIFY(Theme::Contrast(shown.color(QPalette::Base), shown.color(QPalette::Text)) > 4.5);
    QApplication::setPalette(before);
}

void InstructionsTest::PartsThatEditingLosesAreTold() {
    const QLabel& told = *m_editor->findChild<QLabel*>(QStringLiteral("lblLeftOut"));
    QVERIFY(!told.isVisible());
    const std::string letter = "{\\rtf1\\ansi{\\header From home}Two {\\v three }strands.\\par}";
    m_editor->SetInstructions(letter);
    QVERIFY(told.isVisible());
    QVERIFY(told.wordWrap());
    QCOMPARE(m_editor->Instructions(), letter);
    m_editor->SetInstructions("{\\rtf1\\ansi {\\b Two} strands.\\par}");
    QVERIFY(!told.isVisible());
    m_editor->SetInstructions(letter);
    m_editor->SetInstructions("Two strands.");
    QVERIFY(!told.isVisible());
}

} // namespace zol::test

QTEST_MAIN(zol::test::InstructionsTest)
#include "test_InstructionsEditor.moc"
