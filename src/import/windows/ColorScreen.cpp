// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/ColorScreen.h"

#include <QSignalBlocker>

#include <utility>

#include "grid/painting/PaintColors.h"
#include "import/ImportMessages.h"
#include "import/windows/WizardProgress.h"
#include "import/windows/ui_ColorScreen.h"
#include "windowkit/EnterTakes.h"
#include "windowkit/JobStatus.h"
#include "windowkit/Spelling.h"

namespace zol {

ColorScreen::ColorScreen(ImportDesk& desk, QWidget* parent)
    : WizardScreen(parent),
      m_desk(desk),
      m_ui(std::make_unique<Ui::ColorScreen>()) {
    m_ui->setupUi(this);
    for (const Adjustments::Item& item : Adjustments::Items()) {
        m_ui->cmbAdjustmentType->addItem(
            QString::fromUtf8(item.Text.data(), static_cast<qsizetype>(item.Text.size())));
    }
    Spell(*this, m_desk.Context);
    SetUpViews();
    ConnectControls();
    m_status = new JobStatus(this);
    m_status->Follow(m_job, Spelled(tr("Adjusting Colors"), m_desk.Context));
    connect(m_status, &JobStatus::CancelClicked, this, &ColorScreen::KeepShown);
    m_adjusting.Start(nullptr);
    StartAgain();
}

ColorScreen::~ColorScreen() = default;

void ColorScreen::SetUpViews() {
    for (PictureView* view : {m_ui->lpicOrigColor, m_ui->lpicNewColor}) {
        view->SetCloth(ToQColor(m_desk.Settings.ClothColor));
        m_ui->zoomBox->Attach(*view);
    }
    m_ui->lpicOrigColor->ScrollWith(*m_ui->lpicNewColor);
    m_ui->zoomBox->FollowInTabOrder(*m_ui->lpicNewColor);
}

void ColorScreen::ConnectControls() {
    // Choosing the same line again does it again, which counts for those without a slider.
    connect(m_ui->cmbAdjustmentType, &QComboBox::activated, this, &ColorScreen::ChooseAdjustment);
    connect(m_ui->sliAdjuster, &QSlider::valueChanged, m_ui->txtAdjuster, &QSpinBox::setValue);
    connect(m_ui->txtAdjuster, &QSpinBox::valueChanged, m_ui->sliAdjuster, &QSlider::setValue);
    connect(m_ui->sliAdjuster, &QSlider::valueChanged, this, &ColorScreen::Adjust);
    // On the way to the next screen what is tried goes.
    new EnterTakes(*m_ui->txtAdjuster, [this] {
        m_ui->txtAdjuster->interpretText();
        m_ui->txtAdjuster->selectAll();
    });
    connect(m_ui->cmdApplyColor, &QPushButton::clicked, this, &ColorScreen::ApplyColor);
    connect(m_ui->cmdUndoColor, &QPushButton::clicked, this, &ColorScreen::UndoColor);
    connect(m_ui->cmdResetColor, &QPushButton::clicked, this, &ColorScreen::ResetColor);
    connect(&m_job, &LatestJob::Failed, this, [this](const QString& text) {
        StartAgain();
        m_desk.Messages.Tell(text.toStdString(), MessageIcon::Exclamation, ImportMessages::Title);
    });
}

QString ColorScreen::Instruction() const {
    return Spelled(tr("You can use this screen to fix the colors in your image before importing."),
                   m_desk.Context);
}

void ColorScreen::DisplayScreen(bool keepPicture) {
    if (!keepPicture) {
        m_adjusting.Start(m_desk.Work.TheImage);
        m_ui->zoomBox->ZoomToFit();
    }
    m_ui->cmbAdjustmentType->setCurrentIndex(0);
    StartAgain();
}

bool ColorScreen::ValidateScreen() {
    StartAgain();
    m_desk.Work.TheImage = m_adjusting.Original();
    return true;
}

void ColorScreen::Suspend() {
    if (m_job.IsRunning()) {
        m_job.Cancel();
        KeepShown();
    }
}

const Adjustments::Item& ColorScreen::Item() const {
    return Adjustments::Items()[static_cast<std::size_t>(m_ui->cmbAdjustmentType->currentIndex())];
}

void ColorScreen::ChooseAdjustment() {
    StartAgain();
    if (!Item().HasSlider) {
        Adjust();
    }
}

/// What was tried goes, and the slider stands where it changes nothing.
void ColorScreen::StartAgain() {
    m_job.Cancel();
    m_adjusting.DropNew();
    const Adjustments::Item& item = Item();
    {
        const QSignalBlocker quietSlider(m_ui->sliAdjuster);
        const QSignalBlocker quietField(m_ui->txtAdjuster);
        m_ui->sliAdjuster->setRange(item.Minimum, item.Maximum);
        m_ui->sliAdjuster->setTickInterval(item.Ticks);
        m_ui->sliAdjuster->setSingleStep(item.SmallStep);
        m_ui->sliAdjuster->setPageStep(item.LargeStep);
        m_ui->txtAdjuster->setRange(item.Minimum, item.Maximum);
    }
    m_ui->sliAdjuster->setVisible(item.HasSlider);
    m_ui->txtAdjuster->setVisible(item.HasSlider);
    m_shownValue = item.Start;
    SetSlider(item.Start);
    ShowPictures();
}

/// Moves the handle without adjusting.
void ColorScreen::SetSlider(int value) {
    const QSignalBlocker quietSlider(m_ui->sliAdjuster);
    const QSignalBlocker quietField(m_ui->txtAdjuster);
    m_ui->sliAdjuster->setValue(value);
    m_ui->txtAdjuster->setValue(value);
}

void ColorScreen::Adjust() {
    const int value = m_ui->sliAdjuster->value();
    m_job.Start(
        [original = m_adjusting.Original(), kind = Item().What, value](ProgressDoor& progress) {
            return ColorAdjusting::Adjusted(original, kind, value, &progress);
        },
        [this, value](SharedPicture adjusted) { TakeAdjusted(std::move(adjusted), value); });
    ShowButtons();
}

void ColorScreen::TakeAdjusted(SharedPicture adjusted, int value) {
    m_adjusting.SetNew(std::move(adjusted));
    m_shownValue = value;
    ShowPictures();
}

void ColorScreen::ApplyColor() {
    // The value counts that stands there now, though its picture may still be to come.
    const SharedPicture before = m_adjusting.New();
    if (m_job.IsRunning()) {
        AwaitJob(m_job, *m_status);
        if (m_adjusting.New() == before) {
            return; // cancelled, or failed
        }
    }
    m_adjusting.Apply();
    StartAgain();
}

void ColorScreen::UndoColor() {
    m_adjusting.Undo();
    StartAgain();
}

void ColorScreen::ResetColor() {
    m_adjusting.Reset(m_desk.Work.TheImage);
    StartAgain();
}

/// After a cancel the slider goes back to what is shown.
void ColorScreen::KeepShown() {
    SetSlider(m_shownValue);
    ShowButtons();
}

void ColorScreen::ShowPictures() {
    m_ui->lpicOrigColor->ShowPicture(m_adjusting.Original());
    m_ui->lpicNewColor->ShowPicture(m_adjusting.New());
    ShowButtons();
}

void ColorScreen::ShowButtons() {
    const bool tried = m_job.IsRunning() || m_adjusting.New() != m_adjusting.Original();
    m_ui->cmdApplyColor->setEnabled(tried);
    m_ui->cmdUndoColor->setEnabled(m_adjusting.CanUndo());
    m_ui->cmdResetColor->setEnabled(tried || m_adjusting.Original() != m_desk.Work.TheImage);
}

} // namespace zol
