// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/ZoomPanel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <cmath>

namespace zol {

namespace {

/// Steps of the slider from one power of ten to the next.
constexpr int StepsPerDecade = 100;
/// As near as this to 100 percent a place means it.
constexpr int Catch = 3;
constexpr int SliderWidth = 150;
constexpr int KeyStep = 5;
constexpr int PageStep = 30; ///< doubles the zoom

} // namespace

ZoomPanel::ZoomPanel(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("zoomPanel"));
    m_text = new QLabel(this);
    m_text->setObjectName(QStringLiteral("zoomText"));
    m_text->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_text->setMinimumWidth(m_text->fontMetrics().horizontalAdvance(QStringLiteral("1000%")) + 2);
    m_slider = new QSlider(Qt::Horizontal, this);
    m_slider->setObjectName(QStringLiteral("zoomSlider"));
    m_slider->setRange(0, MostPlace);
    m_slider->setSingleStep(KeyStep);
    m_slider->setPageStep(PageStep);
    m_slider->setFixedWidth(SliderWidth);
    m_slider->setFocusPolicy(Qt::TabFocus);
    m_slider->setToolTip(QStringLiteral("Zoom"));
    m_slider->setAccessibleName(QStringLiteral("Zoom"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 6, 0);
    row->setSpacing(6);
    row->addWidget(m_text);
    row->addWidget(m_slider);
    ShowZoom(m_zoom);
    WriteZoom(m_zoom);
    connect(m_slider, &QSlider::valueChanged, this, &ZoomPanel::TakeSlider);
}

int ZoomPanel::ZoomAt(int place) {
    if (std::abs(place - PlaceOf(100)) <= Catch) {
        return 100;
    }
    const double zoom = std::pow(10.0, static_cast<double>(place) / StepsPerDecade);
    return std::clamp(static_cast<int>(std::lround(zoom)), LeastZoom, MostZoom);
}

int ZoomPanel::PlaceOf(int percent) {
    const int zoom = std::clamp(percent, LeastZoom, MostZoom);
    return static_cast<int>(std::lround(std::log10(zoom) * StepsPerDecade));
}

void ZoomPanel::ShowZoom(int percent) {
    if (percent != m_zoom) {
        WriteZoom(percent);
    }
    // Under the hand the slider stays where it was put.
    if (!m_slider->isSliderDown() && ZoomAt(m_slider->value()) != percent) {
        const QSignalBlocker quiet(m_slider);
        m_slider->setValue(PlaceOf(percent));
    }
}

void ZoomPanel::WriteZoom(int percent) {
    m_zoom = percent;
    m_text->setText(QString::number(percent) + QLatin1Char('%'));
    m_slider->setAccessibleDescription(m_text->text());
}

void ZoomPanel::TakeSlider(int place) {
    const int zoom = ZoomAt(place);
    if (zoom != m_zoom) {
        WriteZoom(zoom);
        Q_EMIT ZoomChosen(zoom);
    }
}

} // namespace zol
