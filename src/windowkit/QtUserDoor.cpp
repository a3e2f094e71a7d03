// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/QtUserDoor.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

#include <memory>
#include <system_error>

#include "model/SafeFile.h"
#include "windowkit/FilePreviewPane.h"

namespace zol {

namespace fs = std::filesystem;

namespace {

/// A question must not stand under the wait cursor of the work that asks it.
class NormalCursor {
public:
    NormalCursor() : m_covered(QApplication::overrideCursor() != nullptr) {
        if (m_covered) {
            QApplication::setOverrideCursor(Qt::ArrowCursor);
        }
    }
    ~NormalCursor() {
        if (m_covered) {
            QApplication::restoreOverrideCursor();
        }
    }
    NormalCursor(const NormalCursor&) = delete;
    NormalCursor& operator=(const NormalCursor&) = delete;

private:
    bool m_covered;
};

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Stop:
        return QMessageBox::Critical;
    default:
        return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButtons ButtonsOf(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    default:
        return QMessageBox::Ok;
    }
}

MessageAnswer AnswerOf(int button) {
    switch (button) {
    case QMessageBox::Yes:
        return MessageAnswer::Yes;
    case QMessageBox::No:
        return MessageAnswer::No;
    case QMessageBox::Ok:
        return MessageAnswer::Ok;
    default:
        return MessageAnswer::Cancel;
    }
}

void SetModality(QDialog& dialog) {
    dialog.setWindowModality(dialog.parentWidget() != nullptr ? Qt::WindowModal
                                                              : Qt::ApplicationModal);
}

/// What a message box shows.
struct BoxContent {
    QString Text;
    QString More;
    MessageIcon Icon = MessageIcon::None;
    MessageButtons Buttons = MessageButtons::Ok;
    QString Title;
};

/// A box is as wide as its message, which would break the paths in the text below into many lines.
void LeaveRoomToRead(QMessageBox& box) {
    constexpr int width = 420;
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        auto room = std::make_unique<QSpacerItem>(width, 0);
        grid->addItem(room.release(), grid->rowCount(), 0, 1, grid->columnCount());
    }
}

/// A box of two answers that can be left without one: Qt would take the Escape key and the close
/// button for No, which may be the answer that throws something away.
class QuestionBox : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Cancel)) {
            done(QMessageBox::Cancel);
        } else {
            QMessageBox::keyPressEvent(event);
        }
    }
    void closeEvent(QCloseEvent* event) override {
        event->accept();
        done(QMessageBox::Cancel);
    }
};

/// What Enter answers: where something may be lost, not what loses it.
QMessageBox::StandardButton UsualAnswer(const BoxContent& content) {
    if (content.Buttons == MessageButtons::Ok) {
        return QMessageBox::Ok;
    }
    return content.Buttons == MessageButtons::YesNo && content.Icon == MessageIcon::Exclamation
               ? QMessageBox::No
               : QMessageBox::Yes;
}

MessageAnswer ShowBox(QWidget* parent, const BoxContent& content) {
    const NormalCursor cursor;
    QuestionBox box(IconOf(content.Icon),
                    content.Title.isEmpty() ? QStringLiteral("Korvanta") : content.Title,
                    content.Text, ButtonsOf(content.Buttons), parent);
    // File names may hold "<" and "&", which are to be seen as they stand.
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(content.More);
    box.setDefaultButton(UsualAnswer(content));
    if (!content.More.isEmpty()) {
        LeaveRoomToRead(box);
    }
    SetModality(box);
    return AnswerOf(box.exec());
}

/// "*.pat" as "*.[pP][aA][tT]", since not every platform's dialog ignores the case.
QString AnyCase(const QString& pattern) {
    QString result;
    for (const QChar letter : pattern) {
        if (letter.toLower() != letter.toUpper()) {
            result += QLatin1Char('[');
            result += letter.toLower();
            result += letter.toUpper();
            result += QLatin1Char(']');
        } else {
            result += letter;
        }
    }
    return result;
}

QString QtText(const std::string& text) {
    return QString::fromStdString(text);
}

QString QtPath(const fs::path& path) {
    return QString::fromStdString(PathText(path));
}

/// The place in the filter of what stands chosen, from 0; some dialogs give it without its
/// patterns.
qsizetype ChosenKind(const QFileDialog& dialog) {
    const QString chosen = dialog.selectedNameFilter();
    const QStringList kinds = dialog.nameFilters();
    qsizetype kind = kinds.size() - 1;
    while (kind > 0 && kinds[kind] != chosen &&
           !kinds[kind].startsWith(chosen + QStringLiteral(" ("))) {
        --kind;
    }
    return kind;
}

/// What has to be put behind a name: the ending of the kind that stood chosen in the dialog, if the
/// name has none that says its kind. Where all files are of one kind, any ending is the user's own.
std::string MissingEnding(const fs::path& file, const FileChoice& choice, qsizetype kind) {
    const QStringList parts = QtText(choice.Filter).split(QLatin1Char('|'));
    const qsizetype kinds = parts.size() / 2;
    QStringList known;
    for (qsizetype i = 0; i < kinds; ++i) {
        known << parts[2 * i + 1].split(QLatin1Char(';'));
    }
    const QString own = QLatin1Char('*') + QtPath(file.extension());
    if (file.has_extension() && (kinds < 2 || known.contains(own, Qt::CaseInsensitive))) {
        return {};
    }
    return kind <= 0 ? choice.DefaultExtension
                     : parts[2 * kind + 1].section(QLatin1Char(';'), 0, 0).mid(2).toStdString();
}

/// The file that was chosen; nothing if the user cancelled.
std::optional<fs::path> RunDialog(QFileDialog& dialog) {
    const NormalCursor cursor;
    SetModality(dialog);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return PathOf(dialog.selectedFiles().constFirst().toStdString());
}

/// `kind` is the place of what stands chosen in the filter, from 0.
void SetUp(QFileDialog& dialog, const FileChoice& choice, qsizetype kind = 0) {
    // The patterns spell both cases of every letter, which nobody wants to read.
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    const QStringList kinds = QtUserDoor::NameFilters(choice.Filter);
    dialog.setNameFilters(kinds);
    if (kind > 0) {
        dialog.selectNameFilter(kinds.value(kind));
    }
    if (!choice.SuggestedName.empty()) {
        dialog.selectFile(QtText(choice.SuggestedName));
    }
}

} // namespace

void QtUserDoor::Tell(const std::string& text, MessageIcon icon, const std::string& title) {
    TellMore(text, {}, icon, title);
}

void QtUserDoor::TellMore(const std::string& text, const std::string& more, MessageIcon icon,
                          const std::string& title) {
    (void)ShowBox(m_parent, {QtText(text), QtText(more), icon, MessageButtons::Ok, QtText(title)});
}

MessageAnswer QtUserDoor::Ask(const std::string& text, MessageIcon icon, MessageButtons buttons,
                              const std::string& title) {
    return ShowBox(m_parent, {QtText(text), {}, icon, buttons, QtText(title)});
}

std::optional<fs::path> QtUserDoor::AskOpenFile(const FileChoice& choice) {
    QFileDialog dialog(m_parent, QtText(choice.Title), QtPath(choice.Folder));
    dialog.setFileMode(QFileDialog::ExistingFile);
    SetUp(dialog, choice);
    if (choice.Preview) {
        FilePreviewPane::AddTo(dialog, choice.Preview);
    }
    return RunDialog(dialog);
}

std::optional<fs::path> QtUserDoor::AskSaveFile(const FileChoice& choice) {
    FileChoice present = choice;
    qsizetype kind = 0;
    for (;;) {
        QFileDialog dialog(m_parent, QtText(choice.Title), QtPath(present.Folder));
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        SetUp(dialog, present, kind);
        std::optional<fs::path> file = RunDialog(dialog);
        if (!file) {
            return file;
        }
        kind = ChosenKind(dialog);
        const std::string ending = MissingEnding(*file, choice, kind);
        if (ending.empty()) {
            return file;
        }
        // The ending is put on here and not by the dialog, because some platforms' dialogs ask
        // about the name as it was typed: the file that would be lost goes by the longer name.
        *file += PathOf("." + ending);
        std::error_code error;
        if (!fs::exists(*file, error) ||
            Ask(PathText(file->filename()) + " already exists.  Do you want to replace it?",
                MessageIcon::Exclamation, MessageButtons::YesNo,
                choice.Title) == MessageAnswer::Yes) {
            return file;
        }
        present.Folder = file->parent_path();
        present.SuggestedName = PathText(file->filename());
    }
}

QStringList QtUserDoor::NameFilters(const std::string& filter) {
    const QStringList parts = QtText(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns;
        for (const QString& pattern : parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            // As it stands first, since the dialog takes the ending of a name from there.
            patterns << pattern.trimmed() << AnyCase(pattern.trimmed());
        }
        filters << QStringLiteral("%1 (%2)").arg(parts[i], patterns.join(QLatin1Char(' ')));
    }
    return filters;
}

} // namespace zol
