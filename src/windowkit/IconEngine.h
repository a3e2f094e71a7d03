// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIconEngine>
#include <QPalette>
#include <QString>

namespace zol {

/// Paints one drawing of the icon family. It holds no pixels: they are kept in Qt's pixmap cache
/// under the drawing's name, size and colours, so a change of the palette is a new key.
class IconEngine : public QIconEngine {
public:
    explicit IconEngine(QString name) : m_name(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override;
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    /// Any size can be had; these are what a window manager is given to choose from.
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;
    QString key() const override;
    QString iconName() override { return m_name; }

private:
    [[nodiscard]] QPixmap Square(int side, const QPalette& palette, QIcon::Mode mode) const;

    QString m_name;
};

} // namespace zol
