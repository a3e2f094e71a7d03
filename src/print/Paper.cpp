// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/Paper.h"

#include <algorithm>

#include "model/Rounding.h"

namespace zol {

namespace {

constexpr double TwipsPerPoint = 20;

QPageLayout::Orientation OrientationOf(bool landscape) {
    return landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
}

/// American imperial and metric systems differ in their paper too.
QPageSize::PageSizeId SizeUsedIn(const QLocale& locale) {
    return locale.measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter
                                                                   : QPageSize::A4;
}

} // namespace

Paper::Paper(const QPageSize& size, bool landscape)
    : m_layout(size, OrientationOf(landscape), QMarginsF()) {}

Paper::Paper(const QLocale& locale) : Paper(QPageSize(SizeUsedIn(locale))) {}

QPageLayout Paper::LayoutOf(const PageDevice& device) {
    const double width = device.Width() / TwipsPerPoint;
    const double height = device.Height() / TwipsPerPoint;
    const QPageSize size(QSizeF(std::min(width, height), std::max(width, height)), QPageSize::Point,
                         QString(), QPageSize::ExactMatch);
    return {size, OrientationOf(width > height), QMarginsF()};
}

int Paper::Width() const {
    return RoundToInt(m_layout.fullRect(QPageLayout::Point).width() * TwipsPerPoint);
}

int Paper::Height() const {
    return RoundToInt(m_layout.fullRect(QPageLayout::Point).height() * TwipsPerPoint);
}

} // namespace zol
