// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// What the export wizard gives out; its settings and its picture stand in frmExportWizard.cpp.

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTextDocument>

#include <memory>

#include "model/RunTimeError.h"
#include "model/SafeFile.h"
#include "print/RTFFuncs.h"
#include "print/RtfLegend.h"
#include "print/windows/frmExportWizard.h"
#include "print/windows/ui_frmExportWizard.h"

namespace zol {

namespace {

struct Written {
    WholeFileResult Result;
    bool IsTooLarge = false;
};

} // namespace

std::optional<std::filesystem::path> frmExportWizard::AskFile(FileChoice choice) {
    const std::filesystem::path pattern = PathOf(m_desk.Open.Get().FileName());
    choice.Folder = m_chosen.Folder.empty() ? pattern.parent_path() : m_chosen.Folder;
    choice.SuggestedName = ExportProposal(pattern);
    auto file = m_desk.Files.AskSaveFile(choice);
    if (file) {
        m_chosen.Folder = file->parent_path();
    }
    return file;
}

void frmExportWizard::TellFailure(int number) {
    m_desk.Messages.TellMore(RunTimeErrorText(number),
                             "Nothing was saved, and a file of that name is as it was. Choose "
                             "another place, or make room there.",
                             MessageIcon::Exclamation, windowTitle().toStdString());
}

void frmExportWizard::SaveImage() {
    ReadSettings();
    if (m_chosen.ExportToClipboard) {
        QGuiApplication::clipboard()->setImage(m_ui->picPattern->Picture());
        m_desk.Messages.Tell("Picture Saved to ClipBoard", MessageIcon::Information,
                             windowTitle().toStdString());
        return;
    }
    FileChoice choice;
    choice.Title = "Export a Korvanta Pattern";
    choice.Filter = PictureFilter;
    choice.DefaultExtension = "bmp";
    if (const auto file = AskFile(choice)) {
        WriteImage(*file);
    }
}

void frmExportWizard::WriteImage(const std::filesystem::path& file) {
    m_isSaving = true;
    m_job.Start(
        [picture = *m_shown, image = m_ui->picPattern->Picture(),
         file](ProgressDoor& progress) -> Written {
            try {
                return {SavePicture(picture, image, file, &progress), false};
            } catch (const RunTimeError&) {
                return {{}, true};
            }
        },
        [this](const Written& written) {
            if (written.IsTooLarge) {
                TellNoMemory();
            } else if (!written.Result.IsWritten) {
                // A writer that refuses without a word of the system's.
                TellFailure(written.Result.Number != ErrNone ? written.Result.Number : ErrDeviceIO);
            }
        });
}

void frmExportWizard::SaveInfo() {
    ReadSettings();
    if (m_chosen.ExportToClipboard) {
        CopyInfo();
        m_desk.Messages.Tell("Pattern Info Saved to Clipboard", MessageIcon::Information,
                             windowTitle().toStdString());
        return;
    }
    FileChoice choice;
    choice.Title = "Export Korvanta Pattern Legend";
    choice.Filter = "Rich Text File|*.rtf";
    choice.DefaultExtension = "rtf";
    const auto file = AskFile(choice);
    if (!file) {
        return;
    }
    const std::string legend = RtfLegend::Write(m_desk.Open.Design(), m_desk.OptionsNow());
    const int number = SafeFile::Replace(
        *file, {reinterpret_cast<const std::uint8_t*>(legend.data()), legend.size()});
    if (number != ErrNone) {
        TellFailure(number);
    }
}

/// As rich text by each of the names it goes by, and as words.
void frmExportWizard::CopyInfo() {
    QTextDocument legend;
    RtfLegend::BuildRtfLegend(m_desk.Open.Design(), m_desk.OptionsNow(), legend);
    const QByteArray rtf = QByteArray::fromStdString(RTFFuncs::SaveRichText(legend));
    auto content = std::make_unique<QMimeData>();
    content->setText(legend.toPlainText());
    for (const char* type : {"text/rtf", "application/rtf", "text/richtext"}) {
        content->setData(QLatin1String(type), rtf);
    }
    QGuiApplication::clipboard()->setMimeData(content.release());
}

} // namespace zol
