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
    // For all 16 bits of a lane, 257 / 65536 of it are what a shift, a sum and a shift come to.
    return _mm_mulhi_epu16(_mm_add_epi16(products, _mm_set1_epi16(128)), _mm_set1_epi16(257));
}

class FourBlender {
public:
    explicit FourBlender(QRgb colour)
        : m_ink(_mm_unpacklo_epi8(_mm_set1_epi32(static_cast<int>(colour)), _mm_setzero_si128())) {}

    void Blend(QRgb* pixels, const std::array<std::uint8_t, 4>& cover) const {
        const __m128i zero = _mm_setzero_si128();
        int covers = 0;
        std::memcpy(&covers, cover.data(), sizeof covers);
        __m128i four = _mm_cvtsi32_si128(covers);
        four = _mm_unpacklo_epi8(four, four);
        four = _mm_unpacklo_epi16(four, four); // each cover once a channel
        auto* place = reinterpret_cast<__m128i*>(pixels);
        const __m128i old = _mm_loadu_si128(place);
        const __m128i low =
            Mixed(m_ink, _mm_unpacklo_epi8(four, zero), _mm_unpacklo_epi8(old, zero));
        const __m128i high =
            Mixed(m_ink, _mm_unpackhi_epi8(four, zero), _mm_unpackhi_epi8(old, zero));
        _mm_storeu_si128(place, _mm_packus_epi16(low, high));
    }

private:
    __m128i m_ink;
};

#else

class FourBlender {
public:
    explicit FourBlender(QRgb colour) : m_colour(colour) {}

    void Blend(QRgb* pixels, const std::array<std::uint8_t, 4>& cover) const {
        for (std::size_t i = 0; i < cover.size(); ++i) {
            BlendPixel(pixels[i], m_colour, cover[i]);
        }
    }

private:
    QRgb m_colour;
};

#endif

/// Those of a list that lie on the scan lines `top` to `bottom`.
template<typename Piece>
class Within {
public:
    Within(const std::vector<Piece>& pieces, int top, int bottom)
        : m_first(pieces.data()),
          m_last(pieces.data() + pieces.size()) {
        // Most often all of them do, and a search waits for one piece after the other.
        if (!pieces.empty() && pieces.front().Y < top) {
            m_first = std::partition_point(m_first, m_last,
                                           [top](const Piece& piece) { return piece.Y < top; });
        }
        if (!pieces.empty() && pieces.back().Y > bottom) {
            m_last = std::partition_point(
                m_first, m_last, [bottom](const Piece& piece) { return piece.Y <= bottom; });
        }
    }
    [[nodiscard]] const Piece* begin() const { return m_first; }
    [[nodiscard]] const Piece* end() const { return m_last; }

private:
    const Piece* m_first;
    const Piece* m_last;
};

/// Pixels of a scan line that lie between the pixels 0 and `width`.
void BlendCut(QRgb* line, int width, int x, const std::array<std::uint8_t, 4>& cover, QRgb colour) {
    for (const std::uint8_t share : cover) {
        if (x >= 0 && x < width) {
            BlendPixel(line[x], colour, share);
        }
        ++x;
    }
}

} // namespace

void BlendCover(const PixelBuffer& target, int top, int bottom, QPoint place, const CoverMask& mask,
                QRgb colour) {
    const int from = std::max(top, 0) - place.y();
    const int to = std::min(bottom, target.Height - 1) - place.y();
    const Within fours(mask.Fours, from, to);
    const Within stretches(mask.Stretches, from, to);
    if (place.x() + mask.Bounds.left() >= 0 && place.x() + mask.Bounds.right() < target.Width) {
        const FourBlender blender(colour);
        const std::ptrdiff_t start = place.y() * target.Stride + place.x();
        for (const CoverMask::Four& four : fours) {
            blender.Blend(target.Pixels + (start + four.Y * target.Stride + four.X), four.Cover);
        }
        for (const CoverMask::Stretch& stretch : stretches) {
            FillSpan(target.Pixels + (start + stretch.Y * target.Stride + stretch.X),
                     stretch.Length, colour);
        }
        return;
    }
    for (const CoverMask::Four& four : fours) {
        BlendCut(target.Row(place.y() + four.Y), target.Width, place.x() + four.X, four.Cover,
                 colour);
    }
    for (const CoverMask::Stretch& stretch : stretches) {
        const int left = std::max(place.x() + stretch.X, 0);
        const int right = std::min(place.x() + stretch.X + stretch.Length, target.Width);
        std::fill_n(target.Row(place.y() + stretch.Y) + left, std::max(right - left, 0), colour);
    }
}

} // namespace zol
