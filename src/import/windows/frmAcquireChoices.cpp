// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// What can be chosen for a scan, and what was.

#include "import/windows/frmAcquire.h"

#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <string>

#include "import/PictureFiles.h"
#include "import/windows/ScanAreaBand.h"
#include "import/windows/ui_frmAcquire.h"
#include "model/Doors.h"

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

void frmAcquire::ConnectChoices() {
    connect(m_ui->cmdWholeArea, &QPushButton::clicked, this, [this] {
        m_band->SetArea(*m_abilities.Bed);
        ShowAreaInFields();
    });
    connect(m_band, &ScanAreaBand::AreaChanged, this, &frmAcquire::ShowAreaInFields);
    for (QDoubleSpinBox* const field : AreaFields(*m_ui)) {
        connect(field, &QDoubleSpinBox::valueChanged, this, &frmAcquire::TakeAreaFromFields);
    }
    connect(m_ui->cmbResolution, &QComboBox::currentIndexChanged, this, &frmAcquire::ShowSize);
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
        m_ui->cmbMode->addItem(QString::fromStdString(mode));
    }
    const QString stored = QString::fromStdString(m_store.ReadSetting(Section, ModeName, {}));
    int chosen = m_ui->cmbMode->findText(stored, Qt::MatchFixedString);
    if (chosen < 0) {
        chosen = m_ui->cmbMode->findText(QStringLiteral("color"), Qt::MatchContains);
    }
    if (chosen < 0) {
        chosen = m_ui->cmbMode->findText(QString::fromStdString(abilities.Mode));
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

ScanRequest frmAcquire::PreviewRequest() const {
    ScanRequest request = RequestedScan();
    request.Preview = true;
    request.Resolution = NearestOf(m_abilities.Resolutions, PreviewResolution);
    request.Area = m_abilities.Bed;
    return request;
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
