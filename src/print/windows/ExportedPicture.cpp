// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/ExportedPicture.h"

#include <QPaintEvent>
#include <QPainter>

#include "windowkit/DevicePixels.h"

namespace zol {

ExportedPicture::ExportedPicture(QWidget* parent) : QWidget(parent) {}

void ExportedPicture::SetPicture(const QImage& picture) {
    m_picture = picture;
    const double ratio = devicePixelRatioF();
    setFixedSize(DevicePixels::WindowLength(picture.width(), ratio),
                 DevicePixels::WindowLength(picture.height(), ratio));
    update();
}

void ExportedPicture::paintEvent(QPaintEvent* event) {
    if (m_picture.isNull()) {
        return;
    }
    QPainter painter(this);
    const DevicePixels pixels(painter);
    const QRect shown = pixels.Covering(event->rect()) & m_picture.rect();
    painter.drawImage(shown.topLeft(), m_picture, shown);
}

} // namespace zol
