// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/frmExportWizard.h"

#include <QLocale>

#include <utility>

#include "model/Rounding.h"
#include "model/RunTimeError.h"
#include "print/windows/ui_frmExportWizard.h"
#include "windowkit/ComboItems.h"
#include "windowkit/DialogSize.h"
#include "windowkit/JobStatus.h"
#include "windowkit/NumericFilter.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

constexpr int ZoomFigures = 4;

struct Painted {
    QImage Image;
    bool IsTooLarge = false;
};

QString SizeText(const PatternPicture& picture) {
    const QLocale locale;
    return QStringLiteral("%1 x %2 pixels")
        .arg(locale.toString(static_cast<qlonglong>(picture.Width())),
             locale.toString(static_cast<qlonglong>(picture.Height())));
}

} // namespace

frmExportWizard::frmExportWizard(PrintDesk desk, basExport& chosen, QWidget* parent)
    : QDialog(parent),
      m_desk(std::move(desk)),
      m_chosen(chosen),
      m_selection(m_desk.Selection ? m_desk.Selection() : std::nullopt),
      m_ui(std::make_unique<Ui::frmExportWizard>()) {
    m_ui->setupUi(this);
    SetUpControls();
    ConnectControls();
    ConnectJob();
    ShowSize();
    ShowState();
    RememberSize(*this, m_desk.Store);
}

frmExportWizard::~frmExportWizard() {
    m_job.Cancel();
}

void frmExportWizard::SetUpControls() {
    FillCombo(*m_ui->cmbSDA, ExportStyles(m_desk.Context.ColorWord()));
    SetCombo(*m_ui->cmbSDA, m_chosen.ExportDisplayAs);
    new NumericFilter(m_ui->txtPixelsPerSquare, ZoomFigures, 0);
    m_ui->txtPixelsPerSquare->setText(QString::number(m_chosen.ExportZoom));
    m_ui->chkDisplayGridlines->setChecked(m_chosen.ExportGridlines);
    m_ui->chkSelectedOnly->setEnabled(m_selection.has_value());
    m_ui->chkSelectedOnly->setChecked(m_selection.has_value() && m_chosen.ExportSelected);
    m_ui->chkClipboard->setChecked(m_chosen.ExportToClipboard);
    QPalette colors = m_ui->picHolder->palette();
    colors.setColor(QPalette::Window, Theme::Desk(colors));
    m_ui->picHolder->setPalette(colors); // white cloth has an edge on it
}

void frmExportWizard::ConnectControls() {
    connect(m_ui->cmbSDA, &QComboBox::currentIndexChanged, this, &frmExportWizard::Follow);
    connect(m_ui->txtPixelsPerSquare, &QLineEdit::textChanged, this, &frmExportWizard::Follow);
    connect(m_ui->chkDisplayGridlines, &QCheckBox::toggled, this, &frmExportWizard::Follow);
    connect(m_ui->chkSelectedOnly, &QCheckBox::toggled, this, &frmExportWizard::Follow);
    connect(m_ui->chkClipboard, &QCheckBox::toggled, this, &frmExportWizard::ReadSettings);
    connect(m_ui->cmdExport, &QPushButton::clicked, this, &frmExportWizard::Export);
    connect(m_ui->cmdSaveImage, &QPushButton::clicked, this, &frmExportWizard::SaveImage);
    connect(m_ui->cmdSaveInfo, &QPushButton::clicked, this, &frmExportWizard::SaveInfo);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &frmExportWizard::reject);
}

void frmExportWizard::ConnectJob() {
    connect(&m_job, &LatestJob::Began, this, [this] { SetBusy(true); });
    connect(&m_job, &LatestJob::Ended, this, [this] { SetBusy(false); });
    auto* status = new JobStatus(m_ui->pages);
    status->Follow(m_job, QStringLiteral("Painting Picture"));
    connect(&m_job, &LatestJob::Failed, this, [this] { TellNoMemory(); });
}

void frmExportWizard::ReadSettings() {
    m_chosen.ExportDisplayAs = m_ui->cmbSDA->currentData().toInt();
    m_chosen.ExportZoom = TruncToInt(LeadingNumber(m_ui->txtPixelsPerSquare->text().toStdString()));
    m_chosen.ExportGridlines = m_ui->chkDisplayGridlines->isChecked();
    m_chosen.ExportSelected = m_ui->chkSelectedOnly->isChecked();
    m_chosen.ExportToClipboard = m_ui->chkClipboard->isChecked();
}

PatternPicture frmExportWizard::Wanted() const {
    const bool isPart = m_chosen.ExportSelected && m_selection.has_value();
    const Pattern& source = isPart ? *m_selection->Content : m_desk.Open.Design();
    PatternPicture picture = m_chosen.PictureOf(
        source, {1, 1, source.GetPatternWidth(), source.GetPatternHeight()}, m_desk.Settings);
    if (isPart) {
        // The bold lines stay where they are on the whole.
        picture.Paint.NumberOffsetX = m_selection->Corner.X - 1;
        picture.Paint.NumberOffsetY = m_selection->Corner.Y - 1;
    }
    return picture;
}

void frmExportWizard::Follow() {
    ReadSettings();
    ShowSize();
    if (!m_shown) {
        return;
    }
    m_isOutdated = true;
    const PatternPicture wanted = Wanted();
    if (wanted.IsPossible()) {
        PaintPicture(wanted);
    } else {
        m_job.Cancel();
    }
    ShowState();
}

void frmExportWizard::Export() {
    ReadSettings();
    const PatternPicture wanted = Wanted();
    if (wanted.IsPossible()) {
        PaintPicture(wanted);
    } else {
        TellNoMemory();
    }
}

void frmExportWizard::PaintPicture(const PatternPicture& wanted) {
    m_job.Start(
        [wanted](ProgressDoor& progress) -> Painted {
            try {
                return {wanted.Raster(&progress), false};
            } catch (const RunTimeError&) {
                return {{}, true};
            }
        },
        [this, wanted](const Painted& painted) {
            if (painted.IsTooLarge) {
                TellNoMemory();
            } else if (!painted.Image.isNull()) {
                ShowPicture(wanted, painted.Image);
            }
        });
}

void frmExportWizard::ShowPicture(const PatternPicture& picture, const QImage& image) {
    m_shown = picture;
    m_isOutdated = false;
    m_ui->pages->setCurrentWidget(m_ui->picHolder);
    m_ui->picPattern->SetPicture(image);
    SetBusy(false);
}

void frmExportWizard::TellNoMemory() {
    m_desk.Messages.Tell(ExportMemoryText, MessageIcon::Exclamation, windowTitle().toStdString());
    m_ui->txtPixelsPerSquare->setFocus();
    m_ui->txtPixelsPerSquare->selectAll();
}

void frmExportWizard::ShowSize() {
    const PatternPicture wanted = Wanted();
    const bool hasZoom = m_chosen.ExportZoom > 0;
    m_ui->lblSize->setText(!hasZoom              ? QStringLiteral("Pixels for a square, 1 or more")
                           : wanted.IsPossible() ? SizeText(wanted)
                           : wanted.Width() == 0 ? QStringLiteral("There are no squares to show")
                                                 : QStringLiteral("Too large for the memory"));
    m_ui->cmdExport->setEnabled(!m_isSaving && hasZoom && wanted.Width() > 0);
}

void frmExportWizard::ShowState() {
    QString state;
    if (m_shown && m_isOutdated && !m_job.IsRunning()) {
        state = QStringLiteral("The picture shows earlier settings. Export paints it anew.");
    }
    m_ui->lblState->setText(state);
}

/// Called as well when a busy time goes on with something else.
void frmExportWizard::SetBusy(bool busy) {
    if (!busy) {
        m_isSaving = false;
    }
    m_ui->picSettings->setEnabled(!m_isSaving);
    m_ui->cmdSaveImage->setEnabled(!busy && m_shown.has_value());
    m_ui->cmdSaveInfo->setEnabled(!busy && m_shown.has_value());
    ShowSize();
    ShowState();
}

void frmExportWizard::reject() {
    if (m_isSaving) {
        m_job.Cancel();
        return;
    }
    m_job.Cancel();
    QDialog::reject();
}

} // namespace zol
