// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/ImagePicture.h"

#include <QColorSpace>
#include <QImage>

#include "import/PictureOps.h"

namespace zol {

Picture PictureOf(const QImage& image) {
    QImage plain = image.convertToFormat(QImage::Format_ARGB32);
    if (plain.colorSpace().isValid()) {
        plain.convertToColorSpace(QColorSpace(QColorSpace::SRgb));
    }
    Picture picture(plain.width(), plain.height());
    for (int y = 0; y < plain.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(plain.constScanLine(y));
        Colour* to = picture.Row(y);
        for (int x = 0; x < plain.width(); ++x) {
            const QRgb pixel = from[x];
            const Colour colour =
                MakeColour(static_cast<unsigned>(qRed(pixel)), static_cast<unsigned>(qGreen(pixel)),
                           static_cast<unsigned>(qBlue(pixel)));
            to[x] = OverWhite(colour, static_cast<unsigned>(qAlpha(pixel)));
        }
    }
    return picture;
}

} // namespace zol
