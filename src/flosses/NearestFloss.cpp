// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/NearestFloss.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "flosses/HSLFuncs.h"

namespace zol {

namespace {

using HSLFuncs::CurveOf;

constexpr std::size_t laneCount = 16; ///< candidates that the vector unit takes at once
constexpr std::size_t chunkSize = 512;
constexpr std::uint8_t cap = 255; ///< a capped distance of this may stand for a greater one

/// Candidates side by side, a multiple of laneCount of them.
struct Candidates {
    const std::uint8_t* Red;
    const std::uint8_t* Green;
    const std::uint8_t* Blue;
    std::size_t Count;
};

struct CurvedColour {
    std::uint8_t Red;
    std::uint8_t Green;
    std::uint8_t Blue;
};

#if defined(__SSE2__)

__m128i Lanes(const std::uint8_t* bytes) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
}

__m128i Spread(std::uint8_t value) {
    return _mm_set1_epi8(static_cast<char>(value));
}

__m128i Difference(__m128i a, __m128i b) {
    return _mm_sub_epi8(_mm_max_epu8(a, b), _mm_min_epu8(a, b));
}

std::uint8_t LeastLane(__m128i lanes) {
    lanes = _mm_min_epu8(lanes, _mm_srli_si128(lanes, 8));
    lanes = _mm_min_epu8(lanes, _mm_srli_si128(lanes, 4));
    lanes = _mm_min_epu8(lanes, _mm_srli_si128(lanes, 2));
    lanes = _mm_min_epu8(lanes, _mm_srli_si128(lanes, 1));
    return static_cast<std::uint8_t>(_mm_cvtsi128_si32(lanes) & 0xFF);
}

/// Writes each candidate's distance, or 255 if it is greater, and gives the least of them.
std::uint8_t CappedDistances(const Candidates& of, CurvedColour sought, std::uint8_t* distances) {
    const __m128i red = Spread(sought.Red);
    const __m128i green = Spread(sought.Green);
    const __m128i blue = Spread(sought.Blue);
    __m128i least = Spread(cap);
    for (std::size_t i = 0; i < of.Count; i += laneCount) {
        const __m128i sum = _mm_adds_epu8(_mm_adds_epu8(Difference(Lanes(of.Red + i), red),
                                                        Difference(Lanes(of.Green + i), green)),
                                          Difference(Lanes(of.Blue + i), blue));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(distances + i), sum);
        least = _mm_min_epu8(least, sum);
    }
    return LeastLane(least);
}

/// Caps the distances of a block whose `used` elements are 0, and gives the least of the others.
std::uint8_t MaskBlock(const std::int16_t* used, std::uint8_t* distances) {
    const __m128i zero = _mm_setzero_si128();
    const auto* source = reinterpret_cast<const __m128i*>(used);
    const __m128i low = _mm_cmpeq_epi16(_mm_loadu_si128(source), zero);
    const __m128i high = _mm_cmpeq_epi16(_mm_loadu_si128(source + 1), zero);
    const __m128i masked = _mm_or_si128(Lanes(distances), _mm_packs_epi16(low, high));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(distances), masked);
    return LeastLane(masked);
}

#else

std::uint8_t CappedDistances(const Candidates& of, CurvedColour sought, std::uint8_t* distances) {
    int least = cap;
    for (std::size_t i = 0; i < of.Count; ++i) {
        const int sum = std::abs(of.Red[i] - sought.Red) + std::abs(of.Green[i] - sought.Green) +
                        std::abs(of.Blue[i] - sought.Blue);
        distances[i] = static_cast<std::uint8_t>(std::min<int>(sum, cap));
        least = std::min(least, sum);
    }
    return static_cast<std::uint8_t>(least);
}

std::uint8_t MaskBlock(const std::int16_t* used, std::uint8_t* distances) {
    std::uint8_t least = cap;
    for (std::size_t i = 0; i < laneCount; ++i) {
        distances[i] = used[i] != 0 ? distances[i] : cap;
        least = std::min(least, distances[i]);
    }
    return least;
}

#endif

/// Caps what must not be chosen and gives the least of the others; missing elements are 0.
std::uint8_t MaskUnused(const std::vector<std::int16_t>& used, std::size_t first,
                        std::uint8_t* distances, std::size_t count) {
    std::uint8_t least = cap;
    for (std::size_t i = 0; i < count; i += laneCount) {
        const std::size_t place = first + i;
        const std::size_t known = used.size() > place ? used.size() - place : 0;
        if (known >= laneCount) {
            least = std::min(least, MaskBlock(used.data() + place, distances + i));
        } else {
            std::int16_t block[laneCount] = {};
            std::copy_n(used.data() + used.size() - known, known, block);
            least = std::min(least, MaskBlock(block, distances + i));
        }
    }
    return least;
}

} // namespace

void NearestFloss::Add(Colour colour) {
    const auto place = static_cast<std::size_t>(m_count);
    const CurvedColour curved{CurveOf(HSLFuncs::RedOf(colour)),
                              CurveOf(HSLFuncs::GreenOf(colour) & 0xFF),
                              CurveOf(HSLFuncs::BlueOf(colour))};
    if (place % laneCount == 0) {
        // The free lanes repeat the first candidate, which wins every tie against them.
        const bool first = place == 0;
        m_red.resize(place + laneCount, first ? curved.Red : m_red.front());
        m_green.resize(place + laneCount, first ? curved.Green : m_green.front());
        m_blue.resize(place + laneCount, first ? curved.Blue : m_blue.front());
    }
    m_red[place] = curved.Red;
    m_green[place] = curved.Green;
    m_blue[place] = curved.Blue;
    ++m_count;
}

void NearestFloss::Clear() {
    m_count = 0;
    m_red.clear();
    m_green.clear();
    m_blue.clear();
}

int NearestFloss::GetClosest(int red, int green, int blue) const {
    return Search(red, green, blue, nullptr);
}

int NearestFloss::GetClosest(int red, int green, int blue,
                             const std::vector<std::int16_t>& used) const {
    return Search(red, green, blue, &used);
}

int NearestFloss::Search(int red, int green, int blue,
                         const std::vector<std::int16_t>* used) const {
    const CurvedColour sought{CurveOf(red), CurveOf(green), CurveOf(blue)};
    std::uint8_t distances[chunkSize]; // NOLINT(cppcoreguidelines-pro-type-member-init)
    std::uint8_t best = cap;
    std::size_t bestIndex = 0;
    for (std::size_t first = 0; first < m_red.size(); first += chunkSize) {
        const std::size_t count = std::min(chunkSize, m_red.size() - first);
        std::uint8_t least = CappedDistances(
            {m_red.data() + first, m_green.data() + first, m_blue.data() + first, count}, sought,
            distances);
        if (used != nullptr && least < best) {
            least = MaskUnused(*used, first, distances, count);
        }
        if (least < best) {
            best = least;
            const auto* place =
                static_cast<const std::uint8_t*>(std::memchr(distances, least, count));
            bestIndex = first + static_cast<std::size_t>(place - distances) + 1;
        }
    }
    return bestIndex != 0 ? static_cast<int>(bestIndex) : SearchFar(red, green, blue, used);
}

int NearestFloss::SearchFar(int red, int green, int blue,
                            const std::vector<std::int16_t>* used) const {
    const int soughtRed = CurveOf(red);
    const int soughtGreen = CurveOf(green);
    const int soughtBlue = CurveOf(blue);
    int best = 768;
    int bestIndex = 0;
    for (int index = 1; index <= m_count; ++index) {
        const auto i = static_cast<std::size_t>(index - 1);
        if (used != nullptr && (i >= used->size() || (*used)[i] == 0)) {
            continue;
        }
        const int difference = std::abs(m_red[i] - soughtRed) + std::abs(m_green[i] - soughtGreen) +
                               std::abs(m_blue[i] - soughtBlue);
        if (difference < best) {
            best = difference;
            bestIndex = index;
        }
    }
    return bestIndex;
}

} // namespace zol
