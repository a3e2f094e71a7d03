// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cstring>

#include "grid/painting/LineMasks.h"
#include "grid/painting/TileCopy.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace zol {

namespace {

#if defined(__SSE2__)

/// Two pixels in lanes of 16 bits mixed with a colour; as PixelOf rounds.
inline __m128i Mixed(__m128i ink, __m128i cover, __m128i pixels) {
    const __m128i products =
        _mm_add_epi16(_mm_mullo_epi16(ink, cover),
                      _mm_mullo_epi16(pixels, _mm_sub_epi16(_mm_set1_epi16(255), cover)));
    const __m128i rounded = _mm_add_epi16(products, _mm_set1_epi16(128));
    return _mm_srli_epi16(_mm_add_epi16(rounded, _mm_srli_epi16(rounded, 8)), 8);
}

/// `count` is a multiple of four.
inline void BlendEdge(QRgb* pixels, const std::uint8_t* cover, int count, QRgb colour) {
    const __m128i zero = _mm_setzero_si128();
    const __m128i ink = _mm_unpacklo_epi8(_mm_set1_epi32(static_cast<int>(colour)), zero);
    for (int i = 0; i < count; i += 4) {
        int covers = 0;
        std::memcpy(&covers, cover + i, sizeof covers);
        __m128i four = _mm_cvtsi32_si128(covers);
        four = _mm_unpacklo_epi8(four, four);
        four = _mm_unpacklo_epi16(four, four); // each cover once a channel
        auto* place = reinterpret_cast<__m128i*>(pixels + i);
        const __m128i old = _mm_loadu_si128(place);
        const __m128i low = Mixed(ink, _mm_unpacklo_epi8(four, zero), _mm_unpacklo_epi8(old, zero));
        const __m128i high =
            Mixed(ink, _mm_unpackhi_epi8(four, zero), _mm_unpackhi_epi8(old, zero));
        _mm_storeu_si128(place, _mm_packus_epi16(low, high));
    }
}

#else

inline void BlendEdge(QRgb* pixels, const std::uint8_t* cover, int count, QRgb colour) {
    for (int i = 0; i < count; ++i) {
        BlendPixel(pixels[i], colour, cover[i]);
    }
}

#endif

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
    const bool whole = place.x() + mask.Left >= 0 && place.x() + mask.Right <= target.Width;
    for (int y = from; y <= to; ++y) {
        const auto row = static_cast<std::size_t>(y - first);
        QRgb* line = target.Row(y);
        const SpanMask::Span* end = mask.Spans.data() + mask.Rows[row + 1];
        for (const SpanMask::Span* span = mask.Spans.data() + mask.Rows[row]; span != end; ++span) {
            const std::uint8_t* cover = mask.Cover.data() + span->Cover;
            if (!whole) {
                BlendCutSpan(line, target.Width, place.x() + span->X, *span, cover, colour);
                continue;
            }
            QRgb* pixels = line + place.x() + span->X;
            BlendEdge(pixels, cover, span->Lead, colour);
            if (span->Solid + span->Trail > 0) {
                pixels += span->Lead;
                FillSpan(pixels, span->Solid, colour);
                BlendEdge(pixels + span->Solid, cover + span->Lead, span->Trail, colour);
            }
        }
    }
}

} // namespace zol
