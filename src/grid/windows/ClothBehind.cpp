// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/ClothBehind.h"

#include <cstddef>
#include <cstring>

namespace zol {

const QImage& ClothBehind::Picture(const QRect& wanted, const QRect& shown, const Paint& paint) {
    if (!m_area.contains(wanted)) {
        MoveTo(wanted | shown);
    }
    const QRegion missing = QRegion(wanted) - m_true;
    for (const QRect& rect : missing) {
        const QPoint at = rect.topLeft() - m_area.topLeft();
        QImage part(m_image.scanLine(at.y()) + qsizetype{at.x()} * 4, rect.width(), rect.height(),
                    m_image.bytesPerLine(), m_image.format());
        paint(part, rect.topLeft());
    }
    m_true += missing;
    return m_image;
}

void ClothBehind::MoveTo(const QRect& area) {
    QImage moved(area.size(), QImage::Format_RGB32);
    m_true &= area;
    const QRect kept = m_true.boundingRect();
    const QPoint from = kept.topLeft() - m_area.topLeft();
    const QPoint to = kept.topLeft() - area.topLeft();
    for (int y = 0; y < kept.height(); ++y) {
        std::memcpy(moved.scanLine(to.y() + y) + qsizetype{to.x()} * 4,
                    m_image.constScanLine(from.y() + y) + qsizetype{from.x()} * 4,
                    static_cast<std::size_t>(kept.width()) * 4);
    }
    m_image = moved;
    m_area = area;
}

} // namespace zol
