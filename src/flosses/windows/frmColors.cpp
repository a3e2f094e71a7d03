// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/frmColors.h"

#include <QPushButton>

#include <cmath>
#include <vector>

#include "flosses/AvailColors.h"
#include "flosses/ColorMixing.h"
#include "flosses/windows/ui_frmColors.h"
#include "model/Rounding.h"
#include "windowkit/DialogSize.h"
#include "windowkit/NumericFilter.h"
#include "windowkit/Spelling.h"

namespace zol {

namespace {

constexpr int ChannelDigits = 5;

std::vector<Colour> ColorsOf(const AvailColors& threads) {
    std::vector<Colour> colors;
    for (int row = 1; row <= threads.GetFlossCount(); ++row) {
        colors.push_back(threads.GetFlossRGB(row));
    }
    return colors;
}

/// Columns that give about square cells in a field about twice as wide as it is high.
int ColumnsFor(std::size_t count) {
    return static_cast<int>(std::ceil(std::sqrt(2.0 * static_cast<double>(count))));
}

} // namespace

frmColors::frmColors(const QString& title, Colour start, const ColorMixerDesk& desk,
                     QWidget* parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmColors>()),
      m_itself(start) {
    m_ui->setupUi(this);
    if (desk.Context != nullptr) {
        Spell(*this, *desk.Context);
    }
    setWindowTitle(title);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    m_ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    FillFields(desk.Threads);
    m_ui->picOriginal->SetColor(start);
    m_ui->picBrightness->SetColor(start);
    ShowChannels(start);
    ShowColor(nullptr);
    ConnectParts();
    resize(sizeHint());
    if (desk.Store != nullptr) {
        RememberSize(*this, *desk.Store);
    }
}

frmColors::~frmColors() = default;

int frmColors::CreateCustomColor(const QString& title, Colour start, QWidget* parent,
                                 const ColorMixerDesk& desk) {
    frmColors mixer(title, start, desk, parent);
    return mixer.exec() == Accepted ? static_cast<int>(mixer.Chosen()) : -1;
}

void frmColors::FillFields(const AvailColors* threads) {
    m_ui->pic256Color->SetColors(ColorMixing::ColorCube(), ColorMixing::CubeColumns);
    std::vector<Colour> colors = threads != nullptr ? ColorsOf(*threads) : std::vector<Colour>();
    if (colors.empty()) {
        m_ui->tabFields->removeTab(m_ui->tabFields->indexOf(m_ui->pagThreads));
        return;
    }
    const int columns = ColumnsFor(colors.size());
    m_ui->picDMC3->SetColors(std::move(colors), columns);
}

void frmColors::ConnectParts() {
    for (ColorField* field : Fields()) {
        connect(field, &ColorField::ColorPicked, this, [this, field](Colour color) {
            TakeFromField(color);
            ShowColor(field);
        });
    }
    for (QLineEdit* channel : Channels()) {
        new NumericFilter(channel, ChannelDigits, 0);
        connect(channel, &QLineEdit::textEdited, this, &frmColors::TakeTyped);
    }
    connect(m_ui->picBrightness, &BrightnessStrip::PercentChosen, this, &frmColors::TakePercent);
}

std::array<QLineEdit*, 3> frmColors::Channels() const {
    return {m_ui->txtRed, m_ui->txtGreen, m_ui->txtBlue};
}

std::array<ColorField*, 3> frmColors::Fields() const {
    return {m_ui->picColor, m_ui->pic256Color, m_ui->picDMC3};
}

Colour frmColors::Chosen() const {
    const auto channel = [](const QLineEdit* field) {
        return static_cast<unsigned>(
            ColorMixing::Channel(LeadingNumber(field->text().toStdString())));
    };
    return MakeColour(channel(m_ui->txtRed), channel(m_ui->txtGreen), channel(m_ui->txtBlue));
}

void frmColors::TakeTyped() {
    for (QLineEdit* field : Channels()) {
        const double typed = LeadingNumber(field->text().toStdString());
        const int channel = ColorMixing::Channel(typed);
        if (typed > channel) {
            field->setText(QString::number(channel));
        }
    }
    m_itself = Chosen();
    m_ui->picBrightness->SetColor(m_itself);
    m_ui->picBrightness->SetPercent(ColorMixing::ItselfPercent);
    ShowColor(nullptr);
}

void frmColors::TakeFromField(Colour color) {
    m_itself = color;
    m_ui->picBrightness->SetColor(color);
    m_ui->picBrightness->SetPercent(ColorMixing::ItselfPercent);
    ShowChannels(color);
}

void frmColors::TakePercent(int percent) {
    ShowChannels(ColorMixing::Scale(m_itself, percent));
    ShowColor(nullptr);
}

void frmColors::ShowChannels(Colour color) {
    unsigned shift = 0;
    for (QLineEdit* field : Channels()) {
        field->setText(QString::number((color >> shift) & 0xFFU));
        shift += 8;
    }
}

void frmColors::ShowColor(const ColorField* except) {
    const Colour color = Chosen();
    m_ui->picSample->SetColor(color);
    for (ColorField* field : Fields()) {
        if (field != except) {
            field->ShowColor(color);
        }
    }
}

} // namespace zol
