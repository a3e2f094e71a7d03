// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/IconFamily.h"

#include <memory>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include "windowkit/IconEngine.h"
#include "windowkit/Theme.h"

namespace zol::IconFamily {

namespace {

QString FileOf(const QString& name) {
    return QStringLiteral(":/icons/%1.svg").arg(name);
}

QByteArray Bytes(const QString& name) {
    QFile file(FileOf(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The drawings say the tones as these colours. A tone may become another's name, so all three
/// are replaced in one pass over places that cannot be met twice.
QByteArray Coloured(QByteArray drawing, const Tones& tones) {
    drawing.replace("#000000", "@text");
    drawing.replace("#B23A48", "@accent");
    drawing.replace("#888888", "@cloth");
    drawing.replace("@text", tones.Text.name().toLatin1());
    drawing.replace("@accent", tones.Accent.name().toLatin1());
    drawing.replace("@cloth", tones.Cloth.name().toLatin1());
    return drawing;
}

QImage Rendered(const QByteArray& drawing, int side) {
    QSvgRenderer renderer(drawing);
    if (!renderer.isValid() || side <= 0) {
        return {};
    }
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, side, side));
    return image;
}

QString ProgramName() {
    return QStringLiteral("korvanta");
}

} // namespace

Tones TonesOf(const QPalette& palette, QIcon::Mode mode) {
    if (mode == QIcon::Selected) {
        const QColor text = palette.color(QPalette::Active, QPalette::HighlightedText);
        const QColor ground = palette.color(QPalette::Active, QPalette::Highlight);
        return {text, text, Theme::Mix(text, ground, 0.4)};
    }
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    if (mode == QIcon::Disabled) {
        const QColor faded = Theme::Mix(text, ground, 0.62);
        return {faded, faded, Theme::Mix(text, ground, 0.78)};
    }
    return {text, Theme::Accent(palette), Theme::Mix(text, ground, 0.45)};
}

QIcon Icon(const QString& name) {
    if (!QFile::exists(FileOf(name))) {
        return {};
    }
    return QIcon(std::make_unique<IconEngine>(name).release());
}

QIcon ProgramIcon() {
    return Icon(ProgramName());
}

QStringList Names() {
    QStringList names =
        QDir(QStringLiteral(":/icons")).entryList({QStringLiteral("*.svg")}, QDir::Files);
    for (QString& name : names) {
        name.chop(4);
    }
    names.sort();
    return names;
}

QImage Picture(const QString& name, int side, const Tones& tones) {
    const QByteArray drawing = Bytes(name);
    return Rendered(name == ProgramName() ? drawing : Coloured(drawing, tones), side);
}

} // namespace zol::IconFamily
