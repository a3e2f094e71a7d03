// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/PixelMasks.h"

#include <QPainter>

#include <algorithm>
#include <utility>

#include "grid/painting/KnotShapes.h"
#include "grid/painting/StitchPixels.h"

namespace zol {

namespace {

std::uint64_t KeyOf(unsigned sort, int variant, int symbol, int width, int height, int pen = 0) {
    return (static_cast<std::uint64_t>(sort) << 60U) |
           (static_cast<std::uint64_t>(variant & 0xF) << 56U) |
           (static_cast<std::uint64_t>(symbol & 0xFF) << 48U) |
           (static_cast<std::uint64_t>(pen & 0xFFFF) << 32U) |
           (static_cast<std::uint64_t>(width & 0xFFFF) << 16U) |
           static_cast<std::uint64_t>(height & 0xFFFF);
}

const QRgb* LineOf(const QImage& image, int y) {
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

/// The smallest rectangle that holds everything not transparent; no masks of blank pixels are
/// walked for symbols and part stitches, which leave much of their square bare.
QRect InkedPart(const QImage& image) {
    QRect inked;
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* line = LineOf(image, y);
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) != 0) {
                inked |= QRect(x, y, 1, 1);
            }
        }
    }
    return inked;
}

} // namespace

void BlendMask(const PixelBuffer& target, int x, int y, const PixelMask& mask, QRgb colour) {
    const int left = std::max(0, -x);
    const int right = std::min(mask.Width, target.Width - x);
    const int top = std::max(0, -y);
    const int bottom = std::min(mask.Height, target.Height - y);
    for (int row = top; row < bottom; ++row) {
        const std::uint8_t* cover = mask.Row(row);
        QRgb* pixels = target.Row(y + row) + x;
        for (int i = left; i < right; ++i) {
            BlendPixel(pixels[i], colour, cover[i]);
        }
    }
}

void MaskStore::Clear() {
    m_masks.clear();
    m_bytes = 0;
}

const PixelMask* MaskStore::Find(std::uint64_t key) const {
    const auto found = m_masks.find(key);
    return found == m_masks.end() ? nullptr : &found->second;
}

const PixelMask& MaskStore::Keep(std::uint64_t key, PixelMask mask) {
    m_bytes += mask.Cover.size() + sizeof(PixelMask);
    return m_masks.insert_or_assign(key, std::move(mask)).first->second;
}

const PixelMask& MaskStore::Make(std::uint64_t key, const QRect& area, const Paint& paint) {
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, m_antialias);
        painter.translate(-area.topLeft());
        paint(painter);
    }
    const QRect inked = InkedPart(image);
    PixelMask mask{
        area.left() + inked.left(), area.top() + inked.top(), inked.width(), inked.height(), {}};
    mask.Cover.reserve(static_cast<std::size_t>(mask.Width) *
                       static_cast<std::size_t>(mask.Height));
    for (int y = inked.top(); y <= inked.bottom(); ++y) {
        const QRgb* line = LineOf(image, y) + inked.left();
        std::transform(line, line + mask.Width, std::back_inserter(mask.Cover),
                       [](QRgb pixel) { return static_cast<std::uint8_t>(qAlpha(pixel)); });
    }
    return Keep(key, std::move(mask));
}

const PixelMask& MaskStore::Shape(int kind, int width, int height) {
    const std::uint64_t key = KeyOf(ShapeSort, kind, 0, width, height);
    const PixelMask* known = Find(key);
    return known != nullptr ? *known : Make(key, {0, 0, width, height}, [&](QPainter& painter) {
        StitchPixels::FillShape(painter, kind, {0, 0, width - 1, height - 1}, Qt::black);
    });
}

const PixelMask& MaskStore::Outline(int kind, int width, int height) {
    const std::uint64_t key = KeyOf(OutlineSort, kind, 0, width, height);
    const PixelMask* known = Find(key);
    return known != nullptr ? *known : Make(key, {0, 0, width, height}, [&](QPainter& painter) {
        StitchPixels::DrawOutline(painter, kind, {0, 0, width - 1, height - 1}, Qt::black);
    });
}

const PixelMask& MaskStore::Symbol(int symbol, int kind, int width, int height) {
    const std::uint64_t key = KeyOf(SymbolSort, kind, symbol, width, height);
    const PixelMask* known = Find(key);
    return known != nullptr ? *known : Make(key, {0, 0, width, height}, [&](QPainter& painter) {
        const PixelRect part = StitchShapes::SymbolRect(kind, {0, 0, width - 1, height - 1});
        painter.fillPath(m_symbols.Outline(part.Area(), symbol, m_symbolScale, true), Qt::black);
    });
}

const PixelMask& MaskStore::ImageRegion(int kind, int width, int height) {
    const std::uint64_t key = KeyOf(ImageSort, kind, 0, width, height);
    if (const PixelMask* known = Find(key); known != nullptr) {
        return *known;
    }
    QImage opaque(2, 2, QImage::Format_RGB32);
    opaque.fill(Qt::white);
    const QImage part = StitchPixels::ImagePart(opaque, kind, width, height);
    return Make(key, {0, 0, width, height},
                [&](QPainter& painter) { painter.drawImage(0, 0, part); });
}

const PixelMask& MaskStore::Knot(int orientation, int width, int height, int penWidth,
                                 bool filled) {
    const std::uint64_t key =
        KeyOf(filled ? DiscSort : KnotSort, orientation, 0, width, height, penWidth);
    const PixelMask* known = Find(key);
    const int margin = penWidth + 1;
    // A turned oval reaches beyond a box that is not square.
    const int reach = std::max(width, height);
    return known != nullptr
               ? *known
               : Make(key,
                      QRect(0, 0, width, height)
                          .adjusted(-margin - (reach - width) / 2, -margin - (reach - height) / 2,
                                    margin + (reach - width) / 2, margin + (reach - height) / 2),
                      [&](QPainter& painter) {
                          KnotShapes::Draw(painter, {0, 0, width, height}, orientation, penWidth,
                                           Qt::black, filled);
                      });
}

} // namespace zol
