// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/PictureRows.h"

#include <algorithm>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace zol::PictureRows {

namespace {

/// A pixel that covers its place or leaves it as it is.
inline QRgb Choose(QRgb above, QRgb below) {
    const QRgb covers = 0U - (above >> 31U);
    return above | (below & ~covers);
}

inline QRgb Over(QRgb above, QRgb below) {
    const std::uint32_t rest = 255U - (above >> 24U);
    const auto part = [rest](std::uint32_t two) {
        const std::uint32_t t = two * rest;
        return t + ((t >> 8U) & 0x00FF00FFU) + 0x00800080U;
    };
    const std::uint32_t redBlue = (part(below & 0x00FF00FFU) >> 8U) & 0x00FF00FFU;
    const std::uint32_t green = part((below >> 8U) & 0x00FF00FFU) & 0xFF00FF00U;
    return above + (redBlue | green);
}

#if defined(__SSE2__)
/// The same of four pixels, in lanes of 16 bits.
inline __m128i Over(__m128i above, __m128i below) {
    const __m128i byte = _mm_set1_epi16(255);
    const __m128i alpha = _mm_srli_epi32(above, 24);
    const __m128i rest = _mm_sub_epi16(byte, _mm_or_si128(alpha, _mm_slli_epi32(alpha, 16)));
    const auto part = [rest](__m128i two) {
        const __m128i t = _mm_mullo_epi16(two, rest);
        return _mm_add_epi16(_mm_add_epi16(t, _mm_srli_epi16(t, 8)), _mm_set1_epi16(128));
    };
    const __m128i redBlue = _mm_srli_epi16(part(_mm_and_si128(below, byte)), 8);
    const __m128i green = _mm_andnot_si128(byte, part(_mm_srli_epi16(below, 8)));
    return _mm_add_epi8(above, _mm_or_si128(redBlue, green));
}
#endif

void Mix(const QRgb* above, const QRgb* below, int count, QRgb* to) {
    int x = 0;
#if defined(__SSE2__)
    for (; x + 4 <= count; x += 4) {
        const __m128i four = Over(_mm_loadu_si128(reinterpret_cast<const __m128i*>(above + x)),
                                  _mm_loadu_si128(reinterpret_cast<const __m128i*>(below + x)));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to + x), four);
    }
#endif
    for (; x < count; ++x) {
        to[x] = Over(above[x], below[x]);
    }
}

} // namespace

Kind KindOf(const QRgb* pixels, int count) {
    bool isOpaque = true;
    bool isThrough = true;
    for (int x = 0; x < count; ++x) {
        const bool covers = pixels[x] >> 24U == 255U;
        const bool misses = pixels[x] == 0;
        if (!covers && !misses) {
            return Kind::Mixed;
        }
        isOpaque = isOpaque && covers;
        isThrough = isThrough && misses;
    }
    return isOpaque ? Kind::Opaque : isThrough ? Kind::Through : Kind::Chosen;
}

void Expect(const QRgb* pixels, int count) {
#if defined(__SSE2__)
    constexpr int line = 16; // pixels that come at once
    constexpr int most = 2 * line;
    for (int x = 0; x < std::min(count, most); x += line) {
        _mm_prefetch(reinterpret_cast<const char*>(pixels + x), _MM_HINT_T0);
    }
#else
    static_cast<void>(pixels);
    static_cast<void>(count);
#endif
}

void Lay(Kind kind, const QRgb* above, const QRgb* below, int count, QRgb* to) {
    switch (kind) {
    case Kind::Through:
        if (below != to) {
            std::copy(below, below + count, to);
        }
        break;
    case Kind::Opaque:
        std::copy(above, above + count, to);
        break;
    case Kind::Chosen:
        std::transform(above, above + count, below, to, Choose);
        break;
    case Kind::Mixed:
        Mix(above, below, count, to);
        break;
    }
}

} // namespace zol::PictureRows
