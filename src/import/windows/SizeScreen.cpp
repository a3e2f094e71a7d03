// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/SizeScreen.h"

#include <utility>

#include "grid/painting/PaintColors.h"
#include "import/ImportMessages.h"
#include "import/PictureFiles.h"
#include "import/windows/WizardProgress.h"
#include "import/windows/ui_SizeScreen.h"
#include "model/Pattern.h"
#include "settings/basCommonFunctions.h"
#include "windowkit/JobStatus.h"
#include "windowkit/NumericFilter.h"
#include "windowkit/Spelling.h"

namespace zol {

namespace {

using basCommonFunctions::FieldText;
using basCommonFunctions::FieldValue;

constexpr int SizeFigures = 5;
constexpr int LengthPlaces = 3;
constexpr int ClothFigures = 3;
constexpr int FirstListedCount = 10;
constexpr int LastListedCount = 24;

QString Labelled(const char* label, int number, const char* behind = "") {
    return QLatin1String(label) + QString::number(number) + QLatin1String(behind);
}

} // namespace

SizeScreen::SizeScreen(ImportDesk& desk, QWidget* parent)
    : WizardScreen(parent),
      m_desk(desk),
      m_ui(std::make_unique<Ui::SizeScreen>()),
      m_fields(desk.Work.Size, {desk.Design.GetPatternWidth(), desk.Design.GetPatternHeight()}) {
    m_ui->setupUi(this);
    m_ui->lpicResized->SetCloth(ToQColor(m_desk.Settings.ClothColor));
    m_ui->zoomBox->Attach(*m_ui->lpicResized);
    m_ui->zoomBox->FollowInTabOrder(*m_ui->lpicResized);
    m_ui->zoomBox->SetZoom(100);
    m_status = new JobStatus(this);
    m_status->Follow(m_job, QString::fromUtf8(ImportMessages::ResizingPicture.data()));
    connect(&m_job, &LatestJob::Failed, this, [this](const QString& text) {
        m_desk.Messages.Tell(text.toStdString(), MessageIcon::Exclamation, ImportMessages::Title);
    });
    SetUpFields();
    ConnectFields();
    ConnectChoices();
    Spell(*this, desk.Context);
}

SizeScreen::~SizeScreen() = default;

void SizeScreen::SetUpFields() {
    if (!m_desk.Settings.UsesInches()) {
        m_ui->optUnits->setText(QStringLiteral("&Centimetres"));
    }
    m_widthFilter = new NumericFilter(m_ui->txtWidth, SizeFigures, LengthPlaces);
    m_heightFilter = new NumericFilter(m_ui->txtHeight, SizeFigures, LengthPlaces);
    new NumericFilter(m_ui->cmbClothCount->lineEdit(), ClothFigures, 0);
    for (int count = FirstListedCount; count <= LastListedCount; count += 2) {
        m_ui->cmbClothCount->addItem(QString::number(count));
    }
    const auto editBox = m_desk.Work.EditBoxSize();
    m_fields.SetEditBox(editBox);
    m_ui->chkUseEditBox->setEnabled(editBox.has_value());
    m_ui->lblEditBoxWidth->setVisible(editBox.has_value());
    m_ui->lblEditBoxHeight->setVisible(editBox.has_value());
    if (editBox) {
        m_ui->lblEditBoxWidth->setText(Labelled("Edit Box Width: ", editBox->Width));
        m_ui->lblEditBoxHeight->setText(Labelled("Edit Box Height: ", editBox->Height));
    }
}

void SizeScreen::ConnectFields() {
    connect(m_ui->txtWidth, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_fields.ChangeWidth(FieldValue(text));
        Follow(m_ui->txtWidth);
    });
    connect(m_ui->txtHeight, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_fields.ChangeHeight(FieldValue(text));
        Follow(m_ui->txtHeight);
    });
    connect(m_ui->cmbClothCount, &QComboBox::currentTextChanged, this, [this](const QString& text) {
        if (!m_showing) {
            m_fields.ChangeClothCount(static_cast<int>(FieldValue(text)));
            Follow(m_ui->cmbClothCount);
        }
    });
}

void SizeScreen::ConnectChoices() {
    connect(m_ui->optUnits, &QRadioButton::toggled, this, [this](bool units) {
        m_fields.UseUnits(units);
        Follow();
    });
    connect(m_ui->chkAspect, &QCheckBox::toggled, this, [this](bool keep) {
        m_fields.KeepAspect(keep);
        Follow();
    });
    connect(m_ui->chkUseEditBox, &QCheckBox::toggled, this, [this](bool use) {
        m_fields.UseEditBox(use);
        Follow();
    });
    connect(m_ui->chkSmoothColors, &QCheckBox::toggled, this, &SizeScreen::ResizeImage);
}

QString SizeScreen::Instruction() const {
    return QStringLiteral(
        "This screen shows what the acual size of your stitched pattern will be when completed.");
}

void SizeScreen::DisplayScreen(bool keepPicture) {
    if (!keepPicture || m_source == nullptr) {
        m_source = m_desk.Work.TheImage;
        m_fields.SetImage(m_source->ImageWidth(), m_source->ImageHeight());
        m_ui->lblImageWidth->setText(Labelled("Image Width: ", m_source->ImageWidth(), " pixels"));
        m_ui->lblImageHeight->setText(
            Labelled("Image Height: ", m_source->ImageHeight(), " pixels"));
    }
    m_fields.FollowAspect();
    Follow();
    if (m_ui->txtWidth->isEnabled()) {
        m_ui->txtWidth->setFocus();
        m_ui->txtWidth->selectAll();
    }
}

void SizeScreen::Follow(const QWidget* typedIn) {
    ShowFields(typedIn);
    ResizeImage();
}

void SizeScreen::ShowFields(const QWidget* typedIn) {
    m_showing = true;
    const auto isFree = [typedIn](const QWidget& field) { return typedIn != &field; };
    if (isFree(*m_ui->txtWidth)) {
        m_ui->txtWidth->setText(FieldText(m_fields.FieldText(m_fields.Width())));
    }
    if (isFree(*m_ui->txtHeight)) {
        m_ui->txtHeight->setText(FieldText(m_fields.FieldText(m_fields.Height())));
    }
    if (isFree(*m_ui->cmbClothCount)) {
        m_ui->cmbClothCount->setCurrentText(QString::number(m_fields.Size().ClothCountX));
    }
    m_showing = false;
    const int places = m_fields.Size().UseUnits ? LengthPlaces : 0;
    m_widthFilter->SetLimits(SizeFigures, places);
    m_heightFilter->SetLimits(SizeFigures, places);
    m_ui->txtWidth->setEnabled(m_fields.IsWidthEnabled());
    m_ui->lblImportWidth->setEnabled(m_fields.IsWidthEnabled());
    m_ui->txtHeight->setEnabled(m_fields.IsHeightEnabled());
    m_ui->lblImportHeight->setEnabled(m_fields.IsHeightEnabled());
    m_ui->cmbClothCount->setEnabled(!m_fields.UsesEditBox());
    m_ui->lblClothCount->setEnabled(!m_fields.UsesEditBox());
}

void SizeScreen::ResizeImage() {
    const auto size = m_fields.Stitches();
    if (!size || m_source == nullptr) {
        m_job.Cancel();
        m_resized.reset();
        m_ui->lblStitches->clear();
        return;
    }
    m_ui->lblStitches->setText(
        QStringLiteral("%1 × %2 stitches").arg(size->Width).arg(size->Height));
    ShowAtRealSize();
    Wanted wanted{m_source, *size, m_ui->chkSmoothColors->isChecked()};
    if (wanted == m_wanted && (m_resized != nullptr || m_job.IsRunning())) {
        return;
    }
    m_wanted = std::move(wanted);
    m_resized.reset();
    m_job.Start(
        [wanted = m_wanted](ProgressDoor& progress) {
            progress.StartStatus(std::string(ImportMessages::ResizingPicture), 100);
            return ResampleBitmap(
                *wanted.Source, wanted.Size.Width, wanted.Size.Height,
                wanted.SmoothColors ? ResampleFlag::Smooth : ResampleFlag::Nearest, &progress);
        },
        [this](ImagingResult result) { TakeResized(result); });
}

void SizeScreen::TakeResized(ImagingResult& result) {
    if (!result.IsGood()) {
        m_desk.Messages.Tell(PictureFiles::LoadFailure(result), MessageIcon::Exclamation,
                             ImportMessages::Title);
        return;
    }
    m_resized = std::make_shared<const Picture>(std::move(result.Image));
    m_ui->lpicResized->ShowPicture(m_resized);
}

void SizeScreen::ShowAtRealSize() {
    m_ui->lpicResized->SetRealSize(m_fields.Size().ClothCountX, m_fields.Size().ClothCountY);
}

bool SizeScreen::ValidateScreen() {
    if (const auto fault = m_fields.FindFault()) {
        TellFault(*fault);
        return false;
    }
    // A resize that was cancelled is begun again: without it there is nothing to go on with.
    ResizeImage();
    AwaitJob(m_job, *m_status);
    if (m_resized == nullptr) {
        return false;
    }
    HandOn();
    return true;
}

void SizeScreen::TellFault(const SizeFields::Fault& fault) {
    m_desk.Messages.TellMore(fault.Text, fault.More, MessageIcon::Exclamation,
                             ImportMessages::Title);
    switch (fault.Where) {
    case SizeFields::Field::Width:
        m_ui->txtWidth->setFocus();
        m_ui->txtWidth->selectAll();
        break;
    case SizeFields::Field::Height:
        m_ui->txtHeight->setFocus();
        m_ui->txtHeight->selectAll();
        break;
    case SizeFields::Field::ClothCount:
        m_ui->cmbClothCount->setFocus();
        m_ui->cmbClothCount->lineEdit()->selectAll();
        break;
    }
}

void SizeScreen::HandOn() {
    ImportWork& work = m_desk.Work;
    work.TheImage = m_resized;
    work.Size = m_fields.Size();
    work.UseEditBox = m_fields.UsesEditBox();
}

} // namespace zol
