// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/MappingScreen.h"

#include <QHeaderView>
#include <QLocale>
#include <QScrollBar>
#include <QSortFilterProxyModel>

#include <algorithm>
#include <chrono>
#include <utility>

#include "grid/painting/PaintColors.h"
#include "import/ImportMessages.h"
#include "import/windows/PreviewFlossModel.h"
#include "import/windows/ui_MappingScreen.h"
#include "model/Pattern.h"
#include "model/Rounding.h"
#include "settings/basCommonFunctions.h"
#include "windowkit/EnterTakes.h"
#include "windowkit/JobStatus.h"
#include "windowkit/NumericFilter.h"
#include "windowkit/Spelling.h"

namespace zol {

namespace {

/// Somebody who types a number is given the time for its next figure.
constexpr std::chrono::milliseconds TypingPause{300};
/// Larger pictures are previewed by the button alone.
constexpr qint64 MostLivePixels = 1'000'000;
constexpr int MostFigures = 5;

} // namespace

MappingScreen::MappingScreen(ImportDesk& desk, QWidget* parent)
    : WizardScreen(parent),
      m_desk(desk),
      m_ui(std::make_unique<Ui::MappingScreen>()) {
    m_ui->setupUi(this);
    Spell(*this, m_desk.Context);
    new NumericFilter(m_ui->txtMaxColors, MostFigures, 0);
    SetUpViews();
    SetUpFlosses();
    FillFamilies();
    ConnectControls();
    auto* status = new JobStatus(this);
    status->Follow(m_job, QString::fromUtf8(ImportMessages::ApplyingPalette.data(),
                                            qsizetype(ImportMessages::ApplyingPalette.size())));
    m_soon.setParent(this);
    m_soon.setSingleShot(true);
    m_soon.setInterval(TypingPause);
    connect(&m_soon, &QTimer::timeout, this, &MappingScreen::PreviewQuietly);
}

MappingScreen::~MappingScreen() = default;

void MappingScreen::SetUpViews() {
    for (PictureView* view : {m_ui->lpicMappedImage, m_ui->lpicPreviewPattern}) {
        view->SetCloth(ToQColor(m_desk.Settings.ClothColor));
        m_ui->zoomBox->Attach(*view);
    }
    m_ui->lpicMappedImage->ScrollWith(*m_ui->lpicPreviewPattern);
    m_ui->zoomBox->FollowInTabOrder(*m_ui->lpicPreviewPattern);
}

void MappingScreen::SetUpFlosses() {
    m_flosses = new PreviewFlossModel(this);
    m_flosses->SetSwatch(fontMetrics().height(), devicePixelRatioF());
    auto* sorted = new QSortFilterProxyModel(this);
    sorted->setSourceModel(m_flosses);
    sorted->setSortRole(PreviewFlossModel::SortRole);
    sorted->setSortLocaleAware(true);
    m_ui->lstFlosses->setModel(sorted);
    m_ui->lstFlosses->sortByColumn(PreviewFlossModel::Stitches, Qt::DescendingOrder);
    QHeaderView& header = *m_ui->lstFlosses->header();
    header.setStretchLastSection(false);
    header.setSectionResizeMode(PreviewFlossModel::Floss, QHeaderView::ResizeToContents);
    header.setSectionResizeMode(PreviewFlossModel::Name, QHeaderView::Stretch);
    header.setSectionResizeMode(PreviewFlossModel::Stitches, QHeaderView::ResizeToContents);
}

void MappingScreen::ConnectControls() {
    connect(m_ui->optFlossList, &QRadioButton::toggled, this, &MappingScreen::FillFamilies);
    // A name that is longer than the box can be read in full.
    connect(m_ui->cmbFlossFamily, &QComboBox::currentTextChanged, m_ui->cmbFlossFamily,
            &QWidget::setToolTip);
    connect(m_ui->cmbFlossFamily, &QComboBox::activated, this, &MappingScreen::ChooseFlosses);
    connect(m_ui->txtMaxColors, &QLineEdit::textEdited, this, &MappingScreen::PreviewSoon);
    // Not yet the end, which replaces the design.
    new EnterTakes(*m_ui->txtMaxColors, [this] { m_ui->cmdPreviewPattern->click(); });
    connect(m_ui->cmdPreviewPattern, &QPushButton::clicked, this, &MappingScreen::PreviewPattern);
    connect(&m_job, &LatestJob::Failed, this,
            [this](const QString& text) { Warn(text.toStdString()); });
}

QString MappingScreen::Instruction() const {
    return Spelled(tr("Select your Floss Family or Palette and maximum number of colors to see "
                      "what your pattern will look like."),
                   m_desk.Context);
}

void MappingScreen::DisplayScreen(bool keepPicture) {
    if (!keepPicture) {
        TakeImage();
        if (m_ui->cmbFlossFamily->currentIndex() >= 0) {
            ChooseFlosses();
        }
    }
    ShowPreview();
}

void MappingScreen::TakeImage() {
    ImportWork& work = m_desk.Work;
    work.Session.SetImage(work.TheImage);
    if (work.UseEditBox && work.EditBox) {
        work.Session.UseEditBox(work.EditBox->Left - 1, work.EditBox->Top - 1,
                                m_desk.Design.GetPalette());
    } else {
        work.Session.UseWholePattern();
    }
    for (PictureView* view : {m_ui->lpicMappedImage, m_ui->lpicPreviewPattern}) {
        view->SetRealSize(work.Size.ClothCountX, work.Size.ClothCountY);
    }
    m_ui->lpicMappedImage->ShowPicture(work.TheImage);
    m_ui->zoomBox->SetZoom(100);
}

bool MappingScreen::ValidateScreen() {
    Suspend();
    if (!CheckFields()) {
        return false;
    }
    m_desk.Work.MaxColors = MaxColors();
    // A number that was typed after the preview counts; the import then makes its own.
    m_desk.Work.Session.DropPreviewUnlessOf(MaxColors());
    return true;
}

void MappingScreen::Suspend() {
    m_soon.stop();
    m_job.Cancel();
}

void MappingScreen::Resume() {
    if (m_desk.Work.Session.Preview().IsEmpty()) {
        PreviewSoon();
    }
}

void MappingScreen::FillFamilies() {
    const bool lists = m_ui->optFlossList->isChecked();
    m_choices =
        lists ? FlossChoices::Families(m_desk.Context) : FlossChoices::Palettes(m_desk.Context);
    m_ui->lblFlossType->setText(lists ? tr("Floss Famil&y") : tr("Floss &Palette"));
    m_ui->cmbFlossFamily->clear();
    for (const FlossChoice& line : m_choices) {
        m_ui->cmbFlossFamily->addItem(QString::fromStdString(line.Text));
    }
    m_ui->cmbFlossFamily->setCurrentIndex(-1);
    m_ui->txtMaxColors->setEnabled(lists);
    m_ui->lblMaxColors->setEnabled(lists);
    ChooseFlosses();
}

void MappingScreen::ChooseFlosses() {
    m_job.Cancel();
    const int line = m_ui->cmbFlossFamily->currentIndex();
    if (line < 0) {
        m_desk.Work.Session.ChooseNothing();
    } else if (!LoadChoice(m_choices[static_cast<std::size_t>(line)])) {
        m_ui->cmbFlossFamily->setCurrentIndex(-1);
        Warn("Invalid File Format");
    }
    m_ui->txtMaxColors->setText(QString::number(m_desk.Work.Session.ProposedMaxColors()));
    ShowPreview();
    PreviewSoon();
}

bool MappingScreen::LoadChoice(const FlossChoice& line) {
    ImportSession& session = m_desk.Work.Session;
    return m_ui->optFlossList->isChecked()
               ? FlossChoices::ChooseFamily(session, m_desk.Context, line)
               : FlossChoices::ChoosePalette(session, m_desk.Context, line,
                                             m_desk.Design.GetPalette());
}

int MappingScreen::MaxColors() const {
    constexpr double most = 32767;
    const double value = basCommonFunctions::FieldValue(m_ui->txtMaxColors->text());
    return RoundToInt(std::clamp(value, -most, most));
}

bool MappingScreen::CheckFields() {
    const ImportSession& session = m_desk.Work.Session;
    const int maxColors = MaxColors();
    const auto message = session.ValidateMapping(maxColors, m_ui->optFlossList->isChecked());
    if (!message) {
        return true;
    }
    Warn(*message);
    const int least = session.LeastMaxColors();
    if (m_ui->cmbFlossFamily->currentIndex() < 0 || !m_ui->txtMaxColors->isEnabled()) {
        m_ui->cmbFlossFamily->setFocus();
        return false;
    }
    if (maxColors > 0 && maxColors < least) {
        m_ui->txtMaxColors->setText(QString::number(least));
    }
    m_ui->txtMaxColors->setFocus();
    m_ui->txtMaxColors->selectAll();
    return false;
}

void MappingScreen::PreviewPattern() {
    m_soon.stop();
    if (CheckFields()) {
        StartPreview(true);
    }
}

bool MappingScreen::IsLive() const {
    const Picture& image = m_desk.Work.Session.Image();
    return qint64(image.ImageWidth()) * image.ImageHeight() <= MostLivePixels;
}

void MappingScreen::PreviewSoon() {
    if (IsLive()) {
        m_soon.start();
    }
}

/// What is to be done for a preview to come.
QString MappingScreen::EmptyText() const {
    if (m_ui->cmbFlossFamily->currentIndex() < 0) {
        return tr("Choose the flosses to see the pattern.");
    }
    return IsLive() ? QString() : tr("Preview Pattern shows it stitched.");
}

/// While somebody types, what is wrong goes without saying.
void MappingScreen::PreviewQuietly() {
    const ImportSession& session = m_desk.Work.Session;
    if (!session.Image().IsEmpty() &&
        !session.ValidateMapping(MaxColors(), m_ui->optFlossList->isChecked())) {
        StartPreview(false);
    }
}

void MappingScreen::StartPreview(bool tellFailure) {
    m_job.Start([work = m_desk.Work.Session.PreparePreview(MaxColors())](
                    ProgressDoor& progress) { return work.Run(&progress); },
                [this, tellFailure](ImportPreview preview) {
                    TakePreview(std::move(preview), tellFailure);
                });
}

void MappingScreen::TakePreview(ImportPreview preview, bool tellFailure) {
    if (!preview.Status.IsDone() && tellFailure) {
        Warn(preview.Status.Message);
    }
    if (m_desk.Work.Session.TakePreview(std::move(preview))) {
        ShowPreview();
    }
}

void MappingScreen::ShowPreview() {
    const ImportSession& session = m_desk.Work.Session;
    // A view without a picture lies at its corner and would take the other one there.
    const QPoint corner(m_ui->lpicMappedImage->horizontalScrollBar()->value(),
                        m_ui->lpicMappedImage->verticalScrollBar()->value());
    m_ui->lpicPreviewPattern->SetEmptyText(EmptyText());
    m_ui->lpicPreviewPattern->ShowPicture(session.PreviewPicture());
    for (PictureView* view : {m_ui->lpicMappedImage, m_ui->lpicPreviewPattern}) {
        view->horizontalScrollBar()->setValue(corner.x());
        view->verticalScrollBar()->setValue(corner.y());
    }
    m_flosses->SetFlosses(session.PreviewFlosses());
    qint64 stitches = 0;
    for (const PreviewFloss& floss : m_flosses->Flosses()) {
        stitches += floss.Stitches;
    }
    m_ui->lblFlossesUsed->setText(
        session.Preview().IsEmpty()
            ? tr("No preview yet")
            : tr("Flosses used: %1, stitches: %2")
                  .arg(QLocale().toString(m_flosses->rowCount()), QLocale().toString(stitches)));
}

void MappingScreen::Warn(const std::string& text) {
    m_desk.Messages.Tell(text, MessageIcon::Exclamation, ImportMessages::Title);
}

} // namespace zol
