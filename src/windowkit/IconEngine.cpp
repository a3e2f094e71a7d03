// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/IconEngine.h"

#include <algorithm>
#include <memory>

#include <QGuiApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QWidget>

#include "windowkit/IconFamily.h"

namespace zol {

namespace {

/// Painted straight onto a widget, an icon takes that widget's colours; a picture that is handed
/// out knows of no widget and takes the application's.
QPalette PaletteFor(const QPainter& painter) {
    const auto* widget = dynamic_cast<const QWidget*>(painter.device());
    return widget == nullptr ? QGuiApplication::palette() : widget->palette();
}

} // namespace

void IconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                       QIcon::State /*state*/) {
    const int side = std::min(rect.width(), rect.height());
    const qreal ratio = painter->device()->devicePixelRatio();
    QPixmap pixmap = Square(qRound(side * ratio), PaletteFor(*painter), mode);
    pixmap.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2,
                        pixmap);
}

QPixmap IconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) {
    return Square(std::min(size.width(), size.height()), QGuiApplication::palette(), mode);
}

QPixmap IconEngine::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                                 qreal /*scale*/) {
    // The size is in device pixels already.
    return pixmap(size, mode, state);
}

QSize IconEngine::actualSize(const QSize& size, QIcon::Mode /*mode*/, QIcon::State /*state*/) {
    const int side = std::min(size.width(), size.height());
    return {side, side};
}

QList<QSize> IconEngine::availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) {
    QList<QSize> sizes;
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        sizes.append(QSize(side, side));
    }
    return sizes;
}

QIconEngine* IconEngine::clone() const {
    return std::make_unique<IconEngine>(m_name).release();
}

QString IconEngine::key() const {
    return QStringLiteral("KorvantaIcon");
}

QPixmap IconEngine::Square(int side, const QPalette& palette, QIcon::Mode mode) const {
    const IconFamily::Tones tones = IconFamily::TonesOf(palette, mode);
    const QString cacheKey = QStringLiteral("korvanta-icon/%1/%2/%3%4%5")
                                 .arg(m_name, QString::number(side), tones.Text.name(),
                                      tones.Accent.name(), tones.Cloth.name());
    QPixmap pixmap;
    if (!QPixmapCache::find(cacheKey, &pixmap)) {
        pixmap = QPixmap::fromImage(IconFamily::Picture(m_name, side, tones));
        QPixmapCache::insert(cacheKey, pixmap);
    }
    return pixmap;
}

} // namespace zol
