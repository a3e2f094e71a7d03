// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/frmAcquire.h"

#include <QAbstractSpinBox>

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <string>
#include <utility>

#include "import/windows/ScanAreaBand.h"
#include "import/windows/ScanJob.h"
#include "import/windows/ui_frmAcquire.h"
#include "windowkit/DialogSize.h"
#include "windowkit/EnterTakes.h"
#include "windowkit/Spelling.h"

namespace zol {

namespace {

// Larger ones come in without being looked at: a second copy would be as large.
constexpr std::int64_t MaxLivePixels = 20'000'000;
constexpr int ProgressSteps = 1000;

QString QtText(const std::string& text) {
    return QString::fromStdString(text);
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
    Spell(*this, context); // before the scanner's name stands there
    m_ui->lblSource->setText(QtText(m_source.Words));
    m_ui->picScan->SetEmpty(PictureLevels::Empty::Transparent);
    m_ui->picScan->ZoomToFit();
    m_band = new ScanAreaBand(*m_ui->picScan);
    // The buttons stay where they are when it goes.
    QSizePolicy stays = m_ui->barProgress->sizePolicy();
    stays.setRetainSizeWhenHidden(true);
    m_ui->barProgress->setSizePolicy(stays);
    ConnectFields();
    RememberSize(*this, m_store);
    AskAbilities();
}

frmAcquire::~frmAcquire() = default;

void frmAcquire::ConnectFields() {
    connect(m_ui->cmdPreview, &QPushButton::clicked, this, &frmAcquire::Preview);
    connect(m_ui->cmdScan, &QPushButton::clicked, this, &frmAcquire::Scan);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmAcquire::reject);
    ConnectChoices();
    for (QAbstractSpinBox* field : std::initializer_list<QAbstractSpinBox*>{
             m_ui->spnLeft, m_ui->spnTop, m_ui->spnWidth, m_ui->spnHeight}) {
        // Not yet the scan.
        new EnterTakes(*field, [field] {
            field->interpretText();
            field->selectAll();
        });
    }
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

void frmAcquire::Preview() {
    Start(Doing::Previewing, PreviewRequest());
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

} // namespace zol
