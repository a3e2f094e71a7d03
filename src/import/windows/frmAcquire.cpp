// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/frmAcquire.h"

#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <string>
#include <utility>

#include "import/PictureFiles.h"
#include "import/windows/ScanAreaBand.h"
#include "import/windows/ScanJob.h"
#include "import/windows/ui_frmAcquire.h"
#include "model/Doors.h"
#include "windowkit/DialogSize.h"
#include "windowkit/Spelling.h"

namespace zol {

namespace {

constexpr const char* Section = "Scanner";
constexpr const char* ResolutionName = "Resolution";
constexpr const char* ModeName = "Mode";
// Plenty for a stitched picture: a postcard at this is 900 stitches wide.
constexpr int UsualResolution = 150;
// Enough to see what lies on the bed.
constexpr int PreviewResolution = 75;
constexpr double MmPerInch = 25.4;
constexpr Colour BarePaper = 0x00F7F7F7;
// Larger ones come in without being looked at: a second copy would be as large.
constexpr std::int64_t MaxLivePixels = 20'000'000;
constexpr int ProgressSteps = 1000;

QString QtText(const std::string& text) {
    return QString::fromStdString(text);
}

/// The one of the list that is nearest.
int NearestOf(const std::vector<int>& list, int wanted) {
    return list.empty() ? 0
                        : *std::min_element(list.begin(), list.end(), [wanted](int one, int other) {
                              return std::abs(one - wanted) < std::abs(other - wanted);
                          });
}

/// What a bed looks like before anything was seen of it: two pixels a millimetre.
SharedPicture BarePicture(const ScanArea& bed) {
    auto picture = std::make_shared<Picture>(static_cast<int>(std::lround(bed.Width * 2)),
                                             static_cast<int>(std::lround(bed.Height * 2)));
    std::fill(picture->Pixels().begin(), picture->Pixels().end(), BarePaper);
    return picture;
}

std::array<QDoubleSpinBox*, 4> AreaFields(const Ui::frmAcquire& ui) {
    return {ui.spnLeft, ui.spnTop, ui.spnWidth, ui.spnHeight};
}

} // namespace

frmAcquire::frmAcquire(ScannerDoor& scanners, SettingsDoor& store, const ProgramContext& context,
                       ScanSource source, QWidget* parent)
    : QDialog(parent),
      m_scanners(scanners),
      m_store(store),
      m_source(std::move(source)),
      m_ui(std::make_unique<Ui::frmAcquire>()) {
    m_ui->setupUi(this);
    m_ui->lblSource->setText(QtText(m_source.Words));
    m_ui->picScan->SetEmpty(PictureLevels::Empty::Transparent);
    m_ui->picScan->ZoomToFit();
    m_band = new ScanAreaBand(*m_ui->picScan);
    // The buttons stay where they are when it goes.
    QSizePolicy stays = m_ui->barProgress->sizePolicy();
    stays.setRetainSizeWhenHidden(true);
    m_ui->barProgress->setSizePolicy(stays);
    Spell(*this, context);
    ConnectFields();
    RememberSize(*this, m_store);
    AskAbilities();
}

frmAcquire::~frmAcquire() = default;

void frmAcquire::ConnectFields() {
    connect(m_ui->cmdPreview, &QPushButton::clicked, this, &frmAcquire::Preview);
    connect(m_ui->cmdScan, &QPushButton::clicked, this, &frmAcquire::Scan);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmAcquire::reject);
    connect(m_ui->cmdWholeArea, &QPushButton::clicked, this, [this] {
        m_band->SetArea(*m_abilities.Bed);
        ShowAreaInFields();
    });
    connect(m_band, &ScanAreaBand::AreaChanged, this, &frmAcquire::ShowAreaInFields);
    for (QDoubleSpinBox* const field : AreaFields(*m_ui)) {
        connect(field, &QDoubleSpinBox::valueChanged, this, &frmAcquire::TakeAreaFromFields);
    }
    connect(m_ui->cmbResolution, &QComboBox::currentIndexChanged, this, &frmAcquire::ShowSize);
    connect(this, &frmAcquire::RowsCame, this, &frmAcquire::TakeRows, Qt::QueuedConnection);
    connect(&m_job, &LatestJob::Failed, this, [this](const QString& text) {
        Become(Doing::Nothing);
        ShowProblem({ScanProblem::Kind::Failed, text.toStdString(), {}});
    });
}

void frmAcquire::AskAbilities() {
    Become(Doing::Asking);
    m_job.Start(
        [&scanners = m_scanners, name = m_source.Name](ProgressDoor& progress) {
            ScanJobWatcher watcher(progress);
            return scanners.AskAbilities(name, watcher);
        },
        [this](const AbilitiesFound& found) { TakeAbilities(found); });
}

void frmAcquire::TakeAbilities(const AbilitiesFound& found) {
    m_isKnown = found.Problem.Is == ScanProblem::Kind::None;
    if (m_isKnown) {
        m_abilities = found.Abilities;
        FillResolutions(m_abilities.Resolutions);
        FillModes(m_abilities);
        SetUpArea(m_abilities.Bed);
    }
    Become(Doing::Nothing);
    ShowProblem(found.Problem);
    m_ui->cmdScan->setFocus();
}

void frmAcquire::FillResolutions(const std::vector<int>& resolutions) {
    const QSignalBlocker quiet(m_ui->cmbResolution);
    m_ui->cmbResolution->clear();
    for (const int resolution : resolutions) {
        m_ui->cmbResolution->addItem(QStringLiteral("%1 dpi").arg(resolution), resolution);
    }
    const int stored = std::atoi(
        m_store.ReadSetting(Section, ResolutionName, std::to_string(UsualResolution)).c_str());
    m_ui->cmbResolution->setCurrentIndex(
        m_ui->cmbResolution->findData(NearestOf(resolutions, stored)));
}

void frmAcquire::FillModes(const ScanAbilities& abilities) {
    m_ui->cmbMode->clear();
    for (const std::string& mode : abilities.Modes) {
        m_ui->cmbMode->addItem(QtText(mode));
    }
    const QString stored = QtText(m_store.ReadSetting(Section, ModeName, {}));
    int chosen = m_ui->cmbMode->findText(stored, Qt::MatchFixedString);
    if (chosen < 0) {
        chosen = m_ui->cmbMode->findText(QStringLiteral("color"), Qt::MatchContains);
    }
    if (chosen < 0) {
        chosen = m_ui->cmbMode->findText(QtText(abilities.Mode));
    }
    m_ui->cmbMode->setCurrentIndex(chosen);
}

void frmAcquire::SetUpArea(const std::optional<ScanArea>& bed) {
    m_preview = bed ? BarePicture(*bed) : nullptr;
    m_band->SetBed(bed);
    if (bed) {
        const std::array<double, 4> most{bed->Width, bed->Height, bed->Width, bed->Height};
        for (std::size_t i = 0; i < most.size(); ++i) {
            const QSignalBlocker quiet(AreaFields(*m_ui)[i]);
            AreaFields(*m_ui)[i]->setMaximum(most[i]);
        }
    }
    ShowPreview();
    ShowAreaInFields();
}

ScanRequest frmAcquire::RequestedScan() const {
    ScanRequest request;
    request.Source = m_source.Name;
    request.Resolution = m_ui->cmbResolution->currentData().toInt();
    request.Mode = m_ui->cmbMode->currentText().toStdString();
    if (m_abilities.Bed) {
        request.Area = m_band->Area();
    }
    return request;
}

void frmAcquire::Preview() {
    ScanRequest request = RequestedScan();
    request.Preview = true;
    request.Resolution = NearestOf(m_abilities.Resolutions, PreviewResolution);
    request.Area = m_abilities.Bed;
    Start(Doing::Previewing, request);
}

void frmAcquire::Scan() {
    StoreChoices();
    Start(Doing::Scanning, RequestedScan());
}

void frmAcquire::Start(Doing doing, const ScanRequest& request) {
    Become(doing);
    ShowProblem({});
    m_live.reset();
    m_job.Start(
        [&scanners = m_scanners, request, take = RowsToHere()](ProgressDoor& progress) {
            ScanJobWatcher watcher(progress, take);
            return scanners.Acquire(request, watcher);
        },
        [this, doing](ScanResult result) { TakeResult(doing, result); });
}

void frmAcquire::TakeResult(Doing was, ScanResult& result) {
    Become(Doing::Nothing);
    if (!result.IsGood()) {
        ShowPreview();
        ShowProblem(result.Problem);
        m_ui->cmdScan->setFocus();
        return;
    }
    if (was == Doing::Scanning) {
        m_result = std::move(result.Image);
        accept();
        return;
    }
    m_preview = std::make_shared<const Picture>(std::move(result.Image));
    ShowPreview();
    m_ui->cmdScan->setFocus();
}

void frmAcquire::Stop() {
    m_job.Cancel();
    Become(Doing::Nothing);
    ShowPreview();
}

void frmAcquire::reject() {
    if (m_doing == Doing::Previewing || m_doing == Doing::Scanning) {
        Stop();
    } else {
        QDialog::reject();
    }
}

/// To be called on any thread; what it is given is shown here.
std::function<void(const ScanRows&)> frmAcquire::RowsToHere() {
    const int run = ++m_run;
    return [this, run](const ScanRows& rows) {
        auto received = std::make_shared<Received>();
        *received = {run, rows, {rows.Pixels.begin(), rows.Pixels.end()}};
        received->Rows.Pixels = received->Pixels;
        Q_EMIT RowsCame(received);
    };
}

void frmAcquire::TakeRows(const std::shared_ptr<const Received>& received) {
    if (received->Run == m_run && m_job.IsRunning()) {
        ShowRows(received->Rows);
    }
}

void frmAcquire::ShowRows(const ScanRows& rows) {
    m_ui->barProgress->setMaximum(rows.Share > 0.0 ? ProgressSteps : 0);
    m_ui->barProgress->setValue(static_cast<int>(std::lround(rows.Share * ProgressSteps)));
    if (rows.Height < 1 || std::int64_t{rows.Width} * rows.Height > MaxLivePixels) {
        return;
    }
    if (!m_live || m_live->ImageWidth() != rows.Width || m_live->ImageHeight() != rows.Height) {
        m_live = std::make_shared<Picture>(rows.Width, rows.Height);
        m_band->SetShown(m_doing == Doing::Previewing);
        m_ui->picScan->ShowPicture(m_live);
    }
    const int count = static_cast<int>(rows.Pixels.size()) / rows.Width;
    if (count > 0 && rows.First + count <= rows.Height) {
        std::copy(rows.Pixels.begin(), rows.Pixels.end(), m_live->Row(rows.First));
        m_ui->picScan->PictureChanged({0, rows.First, rows.Width, count});
    }
}

void frmAcquire::ShowPreview() {
    m_live.reset();
    m_ui->picScan->ShowPicture(m_preview);
    m_band->SetShown(true);
}

ScanArea frmAcquire::AreaInFields() const {
    return {m_ui->spnLeft->value(), m_ui->spnTop->value(), m_ui->spnWidth->value(),
            m_ui->spnHeight->value()};
}

void frmAcquire::ShowAreaInFields() {
    const ScanArea area = m_band->Area();
    const std::array<double, 4> values{area.Left, area.Top, area.Width, area.Height};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const QSignalBlocker quiet(AreaFields(*m_ui)[i]);
        AreaFields(*m_ui)[i]->setValue(values[i]);
    }
    ShowSize();
}

void frmAcquire::TakeAreaFromFields() {
    m_band->SetArea(AreaInFields());
    ShowAreaInFields();
}

void frmAcquire::ShowSize() {
    const int resolution = m_ui->cmbResolution->currentData().toInt();
    QString text;
    if (m_abilities.Bed && resolution > 0) {
        const auto pixels = [resolution](double mm) {
            return static_cast<int>(std::lround(mm / MmPerInch * resolution));
        };
        text = QString::fromStdString(
            PictureFiles::SizeWords(pixels(m_band->Area().Width), pixels(m_band->Area().Height)));
    }
    m_ui->lblSize->setText(text);
}

void frmAcquire::ShowProblem(const ScanProblem& problem) {
    m_ui->lblProblem->setText(QtText(problem.Text));
    m_ui->lblProblemMore->setText(QtText(problem.More));
    m_ui->lblProblem->setVisible(!problem.Text.empty());
    m_ui->lblProblemMore->setVisible(!problem.More.empty());
}

void frmAcquire::Become(Doing doing) {
    m_doing = doing;
    const bool free = doing == Doing::Nothing && m_isKnown;
    m_ui->cmdPreview->setEnabled(free);
    m_ui->cmdScan->setEnabled(free);
    m_ui->cmbResolution->setEnabled(free && m_ui->cmbResolution->count() > 0);
    m_ui->cmbMode->setEnabled(free && m_ui->cmbMode->count() > 0);
    m_ui->fraArea->setEnabled(free && m_abilities.Bed.has_value());
    m_ui->picScan->setEnabled(free);
    const std::array<const char*, 4> words{"Asking the scanner what it can do...", "",
                                           "Looking at the whole area...", "Scanning..."};
    m_ui->lblDoing->setText(QLatin1String(words[static_cast<std::size_t>(doing)]));
    m_ui->barProgress->setVisible(doing != Doing::Nothing);
    // Until rows come nobody knows how long a device warms up.
    m_ui->barProgress->setMaximum(0);
    m_ui->barProgress->setValue(0);
    if (doing == Doing::Previewing || doing == Doing::Scanning) {
        m_ui->cmdCancel->setFocus();
    }
}

void frmAcquire::StoreChoices() {
    const ScanRequest request = RequestedScan();
    if (request.Resolution > 0) {
        m_store.WriteSetting(Section, ResolutionName, std::to_string(request.Resolution));
    }
    if (!request.Mode.empty()) {
        m_store.WriteSetting(Section, ModeName, request.Mode);
    }
}

} // namespace zol
