// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>

#include "grid/painting/LineMasks.h"
#include "grid/painting/TileCopy.h"

namespace zol {

namespace {

inline void BlendEdge(QRgb* pixels, const std::uint8_t* cover, int count, std::uint64_t lanes) {
    for (int i = 0; i < count; ++i) {
        pixels[i] =
            PixelOf(lanes * cover[i] + LanesOf(pixels[i]) * (255U - cover[i])) | 0xFF000000U;
    }
}

/// A span that lies only partly between the pixels 0 and `width` of a scan line.
void BlendCutSpan(QRgb* line, int width, int x, const SpanMask::Span& span,
                  const std::uint8_t* cover, QRgb colour) {
    const int solid = x + span.Lead;
    const int trail = solid + span.Solid;
    const auto blend = [&](int first, int from, int to) {
        for (int i = std::max(from, 0); i < std::min(to, width); ++i) {
            BlendPixel(line[i], colour, cover[i - first]);
        }
    };
    blend(x, x, solid);
    for (int i = std::max(solid, 0); i < std::min(trail, width); ++i) {
        line[i] = colour;
    }
    // The cover leaves out the solid pixels.
    blend(x + span.Solid, trail, trail + span.Trail);
}

} // namespace

void BlendSpans(const PixelBuffer& target, int top, int bottom, QPoint place, const SpanMask& mask,
                QRgb colour) {
    const int first = place.y() + mask.Top;
    const int from = std::max({top, 0, first});
    const int to = std::min({bottom, target.Height - 1, first + mask.Height() - 1});
    const std::uint64_t lanes = LanesOf(colour);
    for (int y = from; y <= to; ++y) {
        const auto row = static_cast<std::size_t>(y - first);
        QRgb* line = target.Row(y);
        for (std::uint32_t i = mask.Rows[row]; i < mask.Rows[row + 1]; ++i) {
            const SpanMask::Span& span = mask.Spans[i];
            const std::uint8_t* cover = mask.Cover.data() + span.Cover;
            const int x = place.x() + span.X;
            if (x < 0 || x + span.Lead + span.Solid + span.Trail > target.Width) {
                BlendCutSpan(line, target.Width, x, span, cover, colour);
                continue;
            }
            QRgb* pixels = line + x;
            BlendEdge(pixels, cover, span.Lead, lanes);
            FillSpan(pixels + span.Lead, span.Solid, colour);
            BlendEdge(pixels + span.Lead + span.Solid, cover + span.Lead, span.Trail, lanes);
        }
    }
}

} // namespace zol
