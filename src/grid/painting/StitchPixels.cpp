// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/StitchPixels.h"

#include <QPainter>

#include "model/ZOLTypes.h"

namespace zol::StitchPixels {

namespace {

/// The corners lie in the middles of pixels and the pen is one pixel wide.
void DrawPolygon(QPainter& painter, int kind, const PixelRect& square, const QColor& color,
                 const QBrush& brush) {
    const QPolygonF polygon = StitchShapes::Polygon(kind, square);
    if (square.Width() == 1 || square.Height() == 1) {
        // Nothing of a shape is left in a single pixel's width: it is all of it.
        if (!polygon.isEmpty()) {
            painter.fillRect(square.Area(), color);
        }
        return;
    }
    painter.setPen(QPen(color, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(brush);
    painter.drawPolygon(polygon.translated(0.5, 0.5));
}

QImage Stretched(const QImage& image, int width, int height) {
    return image.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

bool IsQuarter(int kind) {
    return kind >= StitchULQ && kind <= StitchLRQ;
}

QImage QuarterPart(const QImage& image, int kind, int width, int height) {
    const int column = (kind - StitchULQ) % 2;
    const int row = (kind - StitchULQ) / 2;
    const int w = image.width() / 2;
    const int h = image.height() / 2;
    QImage part(width, height, QImage::Format_ARGB32_Premultiplied);
    part.fill(Qt::transparent);
    if (width < 2 || height < 2 || w == 0 || h == 0) {
        return part;
    }
    QPainter painter(&part);
    painter.drawImage(column * (width / 2), row * (height / 2),
                      Stretched(image.copy(column * w, row * h, w, h), width / 2, height / 2));
    return part;
}

} // namespace

void FillShape(QPainter& painter, int kind, const PixelRect& square, const QColor& color) {
    DrawPolygon(painter, kind, square, color, color);
}

void DrawOutline(QPainter& painter, int kind, const PixelRect& square, const QColor& color) {
    DrawPolygon(painter, kind, square, color, Qt::NoBrush);
}

QImage ImagePart(const QImage& image, int kind, int width, int height) {
    if (image.isNull()) {
        QImage nothing(width, height, QImage::Format_ARGB32_Premultiplied);
        nothing.fill(Qt::transparent);
        return nothing;
    }
    if (IsQuarter(kind)) {
        return QuarterPart(image, kind, width, height);
    }
    QImage part =
        Stretched(image, width, height).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (kind == StitchWhole) {
        return part;
    }
    for (int j = 0; j < part.height(); ++j) {
        auto* line = reinterpret_cast<QRgb*>(part.scanLine(j));
        for (int i = 0; i < part.width(); ++i) {
            if (!StitchShapes::ImagePixelBelongs(kind, i, j, width, height)) {
                line[i] = 0;
            }
        }
    }
    return part;
}

} // namespace zol::StitchPixels
