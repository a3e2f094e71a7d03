// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/EdgeEnhancing.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "import/PixelBlocks.h"
#include "model/Doors.h"

namespace zol {

namespace {

/// Channels and a count: a pixel counts 1, an erased one nothing.
constexpr std::size_t PlaneCount = 4;
constexpr std::size_t Counts = 3;
constexpr unsigned MostNeighbours = 9;

/// A row of a picture, a plane a channel, with an empty pixel before and behind it.
class EdgeRow {
public:
    explicit EdgeRow(std::size_t width) {
        for (auto& plane : m_planes) {
            plane.assign(width + 2, 0);
        }
    }

    void Clear() {
        for (auto& plane : m_planes) {
            std::fill(plane.begin(), plane.end(), Level{0});
        }
    }
    void Split(const Colour* pixels, std::size_t width) {
        Level* red = Plane(0);
        Level* green = Plane(1);
        Level* blue = Plane(2);
        Level* count = Plane(Counts);
        for (std::size_t i = 0; i < width; ++i) {
            const Colour pixel = pixels[i] == EraseColor ? 0 : pixels[i];
            red[i] = static_cast<Level>(pixel & 255U);
            green[i] = static_cast<Level>((pixel >> 8U) & 255U);
            blue[i] = static_cast<Level>((pixel >> 16U) & 255U);
            count[i] = pixels[i] == EraseColor ? 0 : 1;
        }
    }
    void Sum(const EdgeRow& upper, const EdgeRow& own, const EdgeRow& lower) {
        for (std::size_t plane = 0; plane < PlaneCount; ++plane) {
            const Level* a = upper.m_planes[plane].data();
            const Level* b = own.m_planes[plane].data();
            const Level* c = lower.m_planes[plane].data();
            Level* sum = m_planes[plane].data();
            const std::size_t size = m_planes[plane].size();
            for (std::size_t i = 0; i < size; ++i) {
                sum[i] = LevelOf(a[i] + b[i] + c[i]);
            }
        }
    }
    /// Begins with the first pixel; one before it and one behind the last may be read.
    [[nodiscard]] Level* Plane(std::size_t plane) { return m_planes[plane].data() + 1; }
    [[nodiscard]] const Level* Plane(std::size_t plane) const { return m_planes[plane].data() + 1; }

private:
    std::array<std::vector<Level>, PlaneCount> m_planes;
};

[[nodiscard]] Level SumOfThree(const Level* at) {
    return LevelOf(at[-1] + at[0] + at[1]);
}

/// 32768 by the number of neighbours, rounded up: the product's upper half is then the exact
/// quotient of any sum of nine levels.
[[nodiscard]] std::array<std::uint16_t, MostNeighbours + 1> Reciprocals() {
    std::array<std::uint16_t, MostNeighbours + 1> reciprocals{};
    for (unsigned n = 1; n <= MostNeighbours; ++n) {
        reciprocals[n] = static_cast<std::uint16_t>((32768 + n - 1) / n);
    }
    return reciprocals;
}

/// Works on one picture; keeps its rows.
class EdgeWalk {
public:
    EdgeWalk(Picture& image, EdgeResult result)
        : m_image(image),
          m_width(static_cast<std::size_t>(image.ImageWidth())),
          m_share(result == EdgeResult::Added ? 1 : 0),
          m_upper(m_width),
          m_own(m_width),
          m_lower(m_width),
          m_sums(m_width),
          m_reciprocals(m_width) {}

    void Begin() { m_lower.Split(m_image.Row(0), m_width); }
    /// Rows in their order; what is read of a row is read before it changes.
    void DoRow(int y) {
        std::swap(m_upper, m_own);
        std::swap(m_own, m_lower);
        if (y + 1 < m_image.ImageHeight()) {
            m_lower.Split(m_image.Row(y + 1), m_width);
        } else {
            m_lower.Clear();
        }
        m_sums.Sum(m_upper, m_own, m_lower);
        FindReciprocals();
        for (std::size_t channel = 0; channel < Counts; ++channel) {
            Enhance(channel);
        }
        Join(m_image.Row(y));
    }

private:
    void FindReciprocals() {
        const Level* counts = m_sums.Plane(Counts);
        for (std::size_t i = 0; i < m_width; ++i) {
            m_reciprocals[i] = m_table[static_cast<std::size_t>(SumOfThree(counts + i))];
        }
    }
    /// Into the row above, which is not read any more.
    void Enhance(std::size_t channel) {
        const Level* sums = m_sums.Plane(channel);
        const Level* own = m_own.Plane(channel);
        const std::uint16_t* reciprocals = m_reciprocals.data();
        Level* result = m_upper.Plane(channel);
        const Level share = m_share;
        for (std::size_t i = 0; i < m_width; ++i) {
            const auto twice = static_cast<std::uint16_t>(2 * SumOfThree(sums + i));
            const auto mean = static_cast<Level>(UpperProduct(twice, reciprocals[i]));
            const Level edge = MostOf(LevelOf(own[i] - mean), 0);
            result[i] = LeastOf(LevelOf(own[i] * share + edge), 255);
        }
    }
    void Join(Colour* pixels) const {
        const Level* red = m_upper.Plane(0);
        const Level* green = m_upper.Plane(1);
        const Level* blue = m_upper.Plane(2);
        for (std::size_t i = 0; i < m_width; ++i) {
            const Colour changed = static_cast<std::uint16_t>(red[i]) |
                                   (Colour{static_cast<std::uint16_t>(green[i])} << 8U) |
                                   (Colour{static_cast<std::uint16_t>(blue[i])} << 16U);
            pixels[i] = pixels[i] == EraseColor ? EraseColor : changed;
        }
    }

    Picture& m_image;
    std::size_t m_width;
    Level m_share; ///< of a pixel's own levels in the result
    EdgeRow m_upper;
    EdgeRow m_own;
    EdgeRow m_lower;
    EdgeRow m_sums;
    std::vector<std::uint16_t> m_reciprocals;
    const std::array<std::uint16_t, MostNeighbours + 1> m_table = Reciprocals();
};

} // namespace

bool EnhanceEdges(ProgressDoor* door, Picture& image, EdgeResult result) {
    if (image.IsEmpty()) {
        return true;
    }
    EdgeWalk walk(image, result);
    walk.Begin();
    for (int y = 0; y < image.ImageHeight(); ++y) {
        if (door != nullptr && !door->MayGoOn()) {
            return false;
        }
        walk.DoRow(y);
    }
    return true;
}

} // namespace zol
