// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/PreviewZoom.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QCoreApplication>

#include "model/Rounding.h"
#include "print/PageDevice.h"

namespace zol {

namespace {

constexpr double ScreenDots = 96; ///< of an inch at 100 percent and a pixel ratio of 1
constexpr double StepFactor = 1.25;
constexpr double MostPixels = 48e6; ///< 192 MB of picture

QString FitPageText() {
    return QCoreApplication::translate("zol::frmPreview", "Fit Page");
}

QString FitWidthText() {
    return QCoreApplication::translate("zol::frmPreview", "Fit Width");
}

QString PercentText(double percent) {
    return QString::number(RoundToInt(percent)) + QLatin1Char('%');
}

} // namespace

QStringList PreviewZoom::Choices() {
    QStringList choices{FitPageText(), FitWidthText()};
    for (const int percent : {25, 50, 75, 100, 150, 200, 300, 400}) {
        choices.append(PercentText(percent));
    }
    return choices;
}

bool PreviewZoom::Take(const QString& text) {
    if (text == FitPageText() || text == FitWidthText()) {
        m_mode = text == FitPageText() ? Mode::FitPage : Mode::FitWidth;
        return true;
    }
    QString number = text.trimmed();
    if (number.endsWith(QLatin1Char('%'))) {
        number.chop(1);
    }
    bool isNumber = false;
    const double percent = number.toDouble(&isNumber);
    if (!isNumber || !(percent > 0)) {
        return false;
    }
    m_mode = Mode::Percent;
    m_percent = std::clamp<double>(percent, LeastPercent, MostPercent);
    return true;
}

void PreviewZoom::Step(double steps, int shownPercent) {
    m_mode = Mode::Percent;
    m_percent =
        std::clamp<double>(shownPercent * std::pow(StepFactor, steps), LeastPercent, MostPercent);
}

int PreviewZoom::DotsPerInch(const QSize& paper, const QSize& room, double ratio) const {
    constexpr double Twips = PageDevice::TwipsPerInch;
    const double width = std::max(1, paper.width()) / Twips;
    const double height = std::max(1, paper.height()) / Twips;
    double dots = m_percent / 100 * ScreenDots * ratio;
    if (m_mode != Mode::Percent) {
        dots = room.width() / width;
        if (m_mode == Mode::FitPage) {
            dots = std::min(dots, room.height() / height);
        }
        dots = std::floor(dots);
    }
    const double least = LeastPercent / 100.0 * ScreenDots * ratio;
    const double most = std::min(MostPercent / 100.0 * ScreenDots * ratio,
                                 std::sqrt(MostPixels / (width * height)));
    return std::max(1, RoundToInt(std::min(std::max(dots, least), most)));
}

int PreviewZoom::PercentOf(int dotsPerInch, double ratio) {
    return RoundToInt(dotsPerInch / (ScreenDots * ratio) * 100);
}

QString PreviewZoom::Text() const {
    switch (m_mode) {
    case Mode::FitPage:
        return FitPageText();
    case Mode::FitWidth:
        return FitWidthText();
    case Mode::Percent:
        break;
    }
    return PercentText(m_percent);
}

} // namespace zol
