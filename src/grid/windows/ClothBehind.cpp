// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/ClothBehind.h"

#include <cstddef>
#include <cstring>

namespace zol {

void ClothBehind::CopyTo(QImage& image, QPoint corner, const QRect& shown, const Paint& paint) {
    const QRect wanted(corner, image.size());
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
    CopyRows(wanted, image, {0, 0});
}

void ClothBehind::MoveTo(const QRect& area) {
    QImage moved(area.size(), QImage::Format_RGB32);
    m_true &= area;
    const QRect kept = m_true.boundingRect();
    if (!kept.isEmpty()) {
        CopyRows(kept, moved, kept.topLeft() - area.topLeft());
    }
    m_image = moved;
    m_area = area;
}

void ClothBehind::CopyRows(const QRect& pixels, QImage& to, QPoint at) const {
    const QPoint from = pixels.topLeft() - m_area.topLeft();
    const auto bytes = static_cast<std::size_t>(pixels.width()) * 4;
    for (int y = 0; y < pixels.height(); ++y) {
        std::memcpy(to.scanLine(at.y() + y) + qsizetype{at.x()} * 4,
                    m_image.constScanLine(from.y() + y) + qsizetype{from.x()} * 4, bytes);
    }
}

} // namespace zol
