// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <utility>
#include <vector>

#include "model/SafeFile.h"
#include "support/DialogDriver.h"
#include "windowkit/QtUserDoor.h"

namespace zol {
namespace {

using test::DialogDriver;

namespace fs = std::filesystem;

/// What a message box showed.
struct Seen {
    QString Text;
    QString More;
    QString Title;
    QMessageBox::Icon Icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons Buttons;
    QString Focused;
    Qt::WindowModality Modality = Qt::NonModal;
    QWidget* Parent = nullptr;
    int Width = 0;
};

Seen See(const QDialog& dialog) {
    const auto& box = dynamic_cast<const QMessageBox&>(dialog);
    return {box.text(),
            box.informativeText(),
            box.windowTitle(),
            box.icon(),
            box.standardButtons(),
            box.defaultButton() != nullptr ? box.defaultButton()->text().remove(QLatin1Char('&'))
                                           : QString(),
            box.windowModality(),
            box.parentWidget(),
            box.width()};
}

DialogDriver::Step Click(QMessageBox::StandardButton button, Seen* seen = nullptr) {
    return [button, seen](QDialog& dialog) {
        if (seen != nullptr) {
            *seen = See(dialog);
        }
        QTest::mouseClick(dynamic_cast<QMessageBox&>(dialog).button(button), Qt::LeftButton);
    };
}

DialogDriver::Step Press(Qt::Key key) {
    return [key](QDialog& dialog) {
        QWidget* target = dialog.focusWidget() != nullptr ? dialog.focusWidget() : &dialog;
        QTest::keyClick(target, key);
    };
}

/// Types a name into the file dialog and presses Enter.
DialogDriver::Step Type(const QString& name, FileChoice* seen = nullptr) {
    return [name, seen](QDialog& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        if (seen != nullptr) {
            seen->Title = files.windowTitle().toStdString();
            seen->Folder = PathOf(files.directory().absolutePath().toStdString());
            seen->Filter = files.nameFilters().join(QLatin1Char('|')).toStdString();
            seen->SuggestedName =
                files.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text().toStdString();
        }
        auto* edit = files.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        edit->selectAll();
        QTest::keyClicks(edit, name);
        QTest::keyClick(edit, Qt::Key_Return);
    };
}

} // namespace

class test_QtUserDoor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        QVERIFY(m_temporary.isValid());
        m_folder = PathOf(m_temporary.path().toStdString());
    }
    void TellsWithIconTitleAndMore();
    void TitleIsTheProgramsWithoutAnother();
    void QuestionGivesTheButtonThatWasClicked_data();
    void QuestionGivesTheButtonThatWasClicked();
    void QuestionThatIsLeftHasNoAnswer_data();
    void QuestionThatIsLeftHasNoAnswer();
    void EnterIsYes();
    void EnterOnAWarningLosesNothing();
    void AmpersandsAndTagsAreSeenAsTheyStand();
    void BoxIsModalToItsParent();
    void WaitCursorStepsAsideForABox();
    void FiltersIgnoreTheCase();
    void OpenDialogStartsInTheFolderAndGivesTheFile();
    void CancelledDialogGivesNothing();
    void SaveDialogAddsTheEnding();
    void ChosenKindGivesTheEnding_data();
    void ChosenKindGivesTheEnding();
    void ChosenKindChangesTheProposedEnding();
    void ChosenKindStaysWhenAFileIsNotReplaced();
    void SaveDialogAsksBeforeReplacingTheFullName();
    void SaveDialogAsksOnceForANameWithItsEnding();

private:
    void MakeFile(const std::string& name) {
        QFile file(QString::fromStdString(PathText(m_folder / name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    [[nodiscard]] FileChoice Choice() const {
        FileChoice choice;
        choice.Title = "Save Korvanta Pattern";
        choice.Filter = "Korvanta Pattern Files|*.pat";
        choice.Folder = m_folder;
        choice.DefaultExtension = "pat";
        return choice;
    }

    QTemporaryDir m_temporary;
    fs::path m_folder;
    QtUserDoor m_user;
};

void test_QtUserDoor::TellsWithIconTitleAndMore() {
    Seen seen;
    DialogDriver driver({Click(QMessageBox::Ok, &seen)});
    m_user.TellMore("error saving pattern: 61", "Your work is still open.",
                    MessageIcon::Exclamation, "Saving");
    QVERIFY(driver.AllDone());
    QCOMPARE(seen.Text, QStringLiteral("error saving pattern: 61"));
    QCOMPARE(seen.More, QStringLiteral("Your work is still open."));
    QVERIFY(seen.Width >= 420); // room for a path
    QCOMPARE(seen.Title, QStringLiteral("Saving"));
    QCOMPARE(seen.Icon, QMessageBox::Warning);
    QCOMPARE(seen.Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
}

void test_QtUserDoor::TitleIsTheProgramsWithoutAnother() {
    Seen seen;
    DialogDriver driver({Click(QMessageBox::Ok, &seen)});
    m_user.Tell("rose.pat Not Found.", MessageIcon::Stop, {});
    QVERIFY(driver.AllDone());
    QCOMPARE(seen.Title, QStringLiteral("Korvanta"));
    QCOMPARE(seen.Icon, QMessageBox::Critical);
    QVERIFY(seen.More.isEmpty());
}

void test_QtUserDoor::QuestionGivesTheButtonThatWasClicked_data() {
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("click");
    QTest::addColumn<int>("answer");
    const auto row = [](const char* name, MessageButtons buttons, QMessageBox::StandardButton click,
                        MessageAnswer answer) {
        QTest::newRow(name) << static_cast<int>(buttons) << static_cast<int>(click)
                            << static_cast<int>(answer);
    };
    row("yes", MessageButtons::YesNo, QMessageBox::Yes, MessageAnswer::Yes);
    row("no", MessageButtons::YesNo, QMessageBox::No, MessageAnswer::No);
    row("yes of three", MessageButtons::YesNoCancel, QMessageBox::Yes, MessageAnswer::Yes);
    row("no of three", MessageButtons::YesNoCancel, QMessageBox::No, MessageAnswer::No);
    row("cancel", MessageButtons::YesNoCancel, QMessageBox::Cancel, MessageAnswer::Cancel);
    row("ok", MessageButtons::Ok, QMessageBox::Ok, MessageAnswer::Ok);
}

void test_QtUserDoor::QuestionGivesTheButtonThatWasClicked() {
    QFETCH(int, buttons);
    QFETCH(int, click);
    QFETCH(int, answer);
    Seen seen;
    DialogDriver driver({Click(static_cast<QMessageBox::StandardButton>(click), &seen)});
    const MessageAnswer given = m_user.Ask("Save <New Pattern> ?", MessageIcon::Question,
                                           static_cast<MessageButtons>(buttons), {});
    QVERIFY(driver.AllDone());
    QCOMPARE(static_cast<int>(given), answer);
    QCOMPARE(seen.Icon, QMessageBox::Question);
}

void test_QtUserDoor::QuestionThatIsLeftHasNoAnswer_data() {
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Escape") << true;
    QTest::newRow("close button") << false;
}

void test_QtUserDoor::QuestionThatIsLeftHasNoAnswer() {
    QFETCH(bool, byKey);
    const auto close = [](QDialog& dialog) { dialog.close(); };
    const DialogDriver::Step leave = byKey ? Press(Qt::Key_Escape) : DialogDriver::Step(close);
    DialogDriver driver({leave, leave, leave});
    const MessageAnswer three =
        m_user.Ask("?", MessageIcon::Question, MessageButtons::YesNoCancel, {});
    const MessageAnswer two = m_user.Ask("?", MessageIcon::Question, MessageButtons::YesNo, {});
    m_user.Tell("!", MessageIcon::Information, {});
    QVERIFY(driver.AllDone());
    QVERIFY(three == MessageAnswer::Cancel);
    QVERIFY(two == MessageAnswer::Cancel);
}

void test_QtUserDoor::EnterIsYes() {
    DialogDriver driver({Press(Qt::Key_Return)});
    const MessageAnswer answer =
        m_user.Ask("?", MessageIcon::Question, MessageButtons::YesNoCancel, {});
    QVERIFY(driver.AllDone());
    QVERIFY(answer == MessageAnswer::Yes);
}

void test_QtUserDoor::EnterOnAWarningLosesNothing() {
    DialogDriver driver({Press(Qt::Key_Return)});
    const MessageAnswer answer =
        m_user.Ask("All goes.", MessageIcon::Exclamation, MessageButtons::YesNo, {});
    QVERIFY(driver.AllDone());
    QVERIFY(answer == MessageAnswer::No);
}

void test_QtUserDoor::AmpersandsAndTagsAreSeenAsTheyStand() {
    QImage plain;
    const auto grab = [](QImage& image) {
        return DialogDriver::Step([&image](QDialog& dialog) {
            auto* label = dialog.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
            QCOMPARE(label->textFormat(), Qt::PlainText);
            QVERIFY(label->buddy() == nullptr);
            image = label->grab().toImage();
            dialog.accept();
        });
    };
    QImage marked;
    DialogDriver driver({grab(marked), grab(plain)});
    m_user.Tell("Save A&B <b>x</b> ?", MessageIcon::None, {});
    m_user.Tell("Save AB x ?", MessageIcon::None, {});
    QVERIFY(driver.AllDone());
    // A swallowed "&" or tag would leave the narrower text.
    QVERIFY(marked.width() > plain.width());
}

void test_QtUserDoor::BoxIsModalToItsParent() {
    QWidget window;
    window.show();
    m_user.SetParent(&window);
    Seen seen;
    DialogDriver driver({Click(QMessageBox::Ok, &seen)});
    m_user.Tell("x", MessageIcon::None, {});
    m_user.SetParent(nullptr);
    QVERIFY(driver.AllDone());
    QCOMPARE(seen.Modality, Qt::WindowModal);
    QCOMPARE(seen.Parent, &window);
}

void test_QtUserDoor::WaitCursorStepsAsideForABox() {
    Qt::CursorShape during = Qt::BlankCursor;
    DialogDriver driver({[&during](QDialog& dialog) {
        during = QApplication::overrideCursor()->shape();
        dialog.accept();
    }});
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_user.Tell("x", MessageIcon::None, {});
    const Qt::CursorShape after = QApplication::overrideCursor()->shape();
    QApplication::restoreOverrideCursor();
    QVERIFY(driver.AllDone());
    QCOMPARE(during, Qt::ArrowCursor);
    QCOMPARE(after, Qt::WaitCursor);
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void test_QtUserDoor::FiltersIgnoreTheCase() {
    const QStringList filters =
        QtUserDoor::NameFilters("Korvanta Pattern Files|*.PAT|Pictures|*.bmp;*.tif2");
    QCOMPARE(
        filters,
        (QStringList{QStringLiteral("Korvanta Pattern Files (*.PAT *.[pP][aA][tT])"),
                     QStringLiteral("Pictures (*.bmp *.[bB][mM][pP] *.tif2 *.[tT][iI][fF]2)")}));
    QVERIFY(QtUserDoor::NameFilters("").isEmpty());
}

void test_QtUserDoor::OpenDialogStartsInTheFolderAndGivesTheFile() {
    MakeFile("rose.PAT");
    FileChoice choice = Choice();
    choice.Title = "Open Korvanta Pattern";
    FileChoice seen;
    DialogDriver driver({Type(QStringLiteral("rose.PAT"), &seen)});
    const std::optional<fs::path> file = m_user.AskOpenFile(choice);
    QVERIFY(driver.AllDone());
    QVERIFY(file == m_folder / "rose.PAT");
    QCOMPARE(QString::fromStdString(seen.Title), QStringLiteral("Open Korvanta Pattern"));
    QVERIFY(seen.Folder == m_folder);
}

void test_QtUserDoor::CancelledDialogGivesNothing() {
    DialogDriver driver({Press(Qt::Key_Escape), Press(Qt::Key_Escape)});
    const std::optional<fs::path> opened = m_user.AskOpenFile(Choice());
    const std::optional<fs::path> saved = m_user.AskSaveFile(Choice());
    QVERIFY(driver.AllDone());
    QVERIFY(!opened);
    QVERIFY(!saved);
}

void test_QtUserDoor::SaveDialogAddsTheEnding() {
    FileChoice choice = Choice();
    choice.SuggestedName = "old.pat";
    FileChoice seen;
    DialogDriver driver({Type(QStringLiteral("lily"), &seen), Type(QStringLiteral("lily.bpt"))});
    const std::optional<fs::path> plain = m_user.AskSaveFile(choice);
    const std::optional<fs::path> ended = m_user.AskSaveFile(choice);
    QVERIFY(driver.AllDone());
    QVERIFY(plain == m_folder / "lily.pat");
    QVERIFY(ended == m_folder / "lily.bpt");
    QCOMPARE(QString::fromStdString(seen.SuggestedName), QStringLiteral("old.pat"));
}

void test_QtUserDoor::ChosenKindGivesTheEnding_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("saved");
    const auto row = [](const char* what, int kind, const char* typed, const char* saved) {
        QTest::newRow(what) << kind << QString::fromLatin1(typed) << QString::fromLatin1(saved);
    };
    row("the first kind's", 0, "rose", "rose.bmp");
    row("another kind's", 1, "rose", "rose.png");
    row("behind an unknown ending", 2, "rose.v2", "rose.v2.svg");
    row("first kind behind an unknown ending", 0, "rose.v2", "rose.v2.bmp");
    row("the name's own of another kind", 0, "rose.SVG", "rose.SVG");
    row("the name's own of a second pattern", 0, "rose.dib", "rose.dib");
}

namespace {

constexpr char Pictures[] = "Bitmap|*.bmp;*.dib|PNG Picture|*.png|Drawing|*.svg";

void ChooseKind(QDialog& dialog, int kind) {
    auto* kinds = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    for (int step = 0; step < kind; ++step) {
        QTest::keyClick(kinds, Qt::Key_Down);
    }
}

DialogDriver::Step TypeAs(int kind, const QString& name) {
    return [kind, name](QDialog& dialog) {
        ChooseKind(dialog, kind);
        Type(name)(dialog);
    };
}

} // namespace

void test_QtUserDoor::ChosenKindGivesTheEnding() {
    QFETCH(const int, kind);
    QFETCH(const QString, typed);
    QFETCH(const QString, saved);
    DialogDriver driver({TypeAs(kind, typed)});
    FileChoice choice = Choice();
    choice.Filter = Pictures;
    choice.DefaultExtension = "bmp";
    const std::optional<fs::path> file = m_user.AskSaveFile(choice);
    QVERIFY(driver.AllDone());
    QVERIFY(file == m_folder / saved.toStdString());
}

void test_QtUserDoor::ChosenKindChangesTheProposedEnding() {
    DialogDriver driver({[](QDialog& dialog) {
        ChooseKind(dialog, 2);
        QTest::keyClick(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")),
                        Qt::Key_Return);
    }});
    FileChoice choice = Choice();
    choice.Filter = Pictures;
    choice.SuggestedName = "rose page 2.png";
    const std::optional<fs::path> file = m_user.AskSaveFile(choice);
    QVERIFY(driver.AllDone());
    QVERIFY(file == m_folder / "rose page 2.svg");
}

void test_QtUserDoor::ChosenKindStaysWhenAFileIsNotReplaced() {
    MakeFile("old.png");
    QString kind;
    QString name;
    DialogDriver driver(
        {TypeAs(1, QStringLiteral("old")), Click(QMessageBox::No), [&](QDialog& dialog) {
             kind = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->currentText();
             name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
             dialog.reject();
         }});
    FileChoice choice = Choice();
    choice.Filter = Pictures;
    choice.DefaultExtension = "bmp";
    const std::optional<fs::path> file = m_user.AskSaveFile(choice);
    QVERIFY(driver.AllDone());
    QVERIFY(!file);
    QCOMPARE(kind, QStringLiteral("PNG Picture"));
    QCOMPARE(name, QStringLiteral("old.png"));
}

void test_QtUserDoor::SaveDialogAsksBeforeReplacingTheFullName() {
    MakeFile("taken.pat");
    Seen seen;
    DialogDriver driver({Type(QStringLiteral("taken")), Click(QMessageBox::No, &seen),
                         Type(QStringLiteral("taken")), Click(QMessageBox::Yes)});
    const std::optional<fs::path> file = m_user.AskSaveFile(Choice());
    QVERIFY(driver.AllDone());
    QVERIFY(file == m_folder / "taken.pat");
    QCOMPARE(seen.Text, QStringLiteral("taken.pat already exists.  Do you want to replace it?"));
}

void test_QtUserDoor::SaveDialogAsksOnceForANameWithItsEnding() {
    MakeFile("whole.pat");
    DialogDriver driver({Type(QStringLiteral("whole.pat")), Click(QMessageBox::No),
                         Type(QStringLiteral("whole.pat")), Click(QMessageBox::Yes)});
    const std::optional<fs::path> file = m_user.AskSaveFile(Choice());
    QVERIFY(driver.AllDone());
    QVERIFY(file == m_folder / "whole.pat");
}

} // namespace zol

QTEST_MAIN(zol::test_QtUserDoor)
#include "test_QtUserDoor.moc"
