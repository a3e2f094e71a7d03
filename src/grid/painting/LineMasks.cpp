// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/LineMasks.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "grid/painting/Capsule.h"

namespace zol {

namespace {

/// Pixels of the largest rectangle round a line whose mask is kept.
constexpr std::int64_t LargestArea = std::int64_t{1} << 18U;

/// And of its longer side.
constexpr std::int64_t LongestSide = 30'000;

/// Solid runs shorter than this go along with their neighbours' cover.
constexpr int LeastSolid = 4;

/// The inks that a line is laid out in, to be told apart.
constexpr Colour UnderInk = 0;
constexpr Colour OverInk = 1;

/// Gathers the cover of both inks of one line.
class CoverCanvas : public LineCanvas {
public:
    CoverCanvas(int width, int height, bool antialias)
        : m_width(width),
          m_height(height),
          m_antialias(antialias) {}

    void Piece(const QLine& line, int width, Colour colour) override {
        const double shift = width % 2 != 0 ? 0.5 : 0.0;
        const QPointF offset(shift, shift);
        Add(Capsule(line.p1() + offset, line.p2() + offset, width / 2.0), colour,
            // What two pieces leave bare is the product of what each does.
            [](unsigned a, unsigned b) { return a + b - (a * b + 127) / 255; });
    }
    void Wave(const std::vector<QPoint>& points, int width, Colour colour) override {
        const double shift = width % 2 != 0 ? 0.5 : 0.0;
        const QPointF offset(shift, shift);
        for (std::size_t i = 0; i + 3 < points.size(); i += 3) {
            const std::vector<QPointF> curve =
                PiecesOfCurve({points[i] + offset, points[i + 1] + offset, points[i + 2] + offset,
                               points[i + 3] + offset});
            for (std::size_t j = 1; j < curve.size(); ++j) {
                // The pieces of a curve cover together, so that their joints are no darker.
                Add(Capsule(curve[j - 1], curve[j], width / 2.0), colour,
                    [](unsigned a, unsigned b) { return std::max(a, b); });
            }
        }
    }
    [[nodiscard]] QRect Visible() const override { return {}; }

    /// What an ink covers, counted from `begin`.
    [[nodiscard]] RunMask Runs(Colour ink, QPoint begin) const;

private:
    template<typename Join>
    void Add(const Capsule& capsule, Colour ink, Join join) {
        std::vector<std::uint8_t>& cover = m_cover[ink];
        cover.resize(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height));
        const int bottom = std::min(capsule.Bottom(), m_height - 1);
        for (int y = std::max(0, capsule.Top()); y <= bottom; ++y) {
            const auto [from, to] = capsule.Row(y);
            std::uint8_t* row =
                cover.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width);
            for (int x = std::max(0, from); x <= std::min(to, m_width - 1); ++x) {
                row[x] = static_cast<std::uint8_t>(
                    join(row[x], Sharpened(capsule.Cover(x, y), m_antialias)));
            }
        }
    }

    int m_width;
    int m_height;
    bool m_antialias;
    std::array<std::vector<std::uint8_t>, 2> m_cover;
};

/// Adds the runs of a scan line.
void AddRuns(RunMask& mask, const std::uint8_t* row, int width, QPoint begin, int y) {
    const auto solidUpTo = [&](int x) {
        while (x < width && row[x] == 255) {
            ++x;
        }
        return x;
    };
    const auto add = [&](int from, int to, bool solid) {
        if (from == to) {
            return;
        }
        mask.Runs.push_back({static_cast<std::int16_t>(from - begin.x()),
                             static_cast<std::int16_t>(y - begin.y()),
                             static_cast<std::uint16_t>(to - from), solid});
        if (!solid) {
            mask.Cover.insert(mask.Cover.end(), row + from, row + to);
        }
    };
    for (int x = 0; x < width;) {
        if (row[x] == 0) {
            ++x;
            continue;
        }
        int from = x;
        while (x < width && row[x] != 0) {
            const int solid = solidUpTo(x);
            if (solid - x >= LeastSolid) {
                add(from, x, false);
                add(x, solid, true);
                from = solid;
            }
            x = std::max(solid, x + 1);
        }
        add(from, x, false);
    }
}

RunMask CoverCanvas::Runs(Colour ink, QPoint begin) const {
    RunMask mask;
    const std::vector<std::uint8_t>& cover = m_cover[ink];
    if (!cover.empty()) {
        for (int y = 0; y < m_height; ++y) {
            AddRuns(mask,
                    cover.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width),
                    m_width, begin, y);
        }
    }
    mask.Runs.shrink_to_fit();
    mask.Cover.shrink_to_fit();
    return mask;
}

/// Runs whose pixels are asked for before they are needed: each scan line lies far from the last.
constexpr std::size_t RunsAhead = 10;

void Prefetch(const PixelBuffer& target, QPoint place, const RunMask::Run& run) {
    const int x = std::clamp(place.x() + run.X, 0, target.Width - 1);
    const int y = std::clamp(place.y() + run.Y, 0, target.Height - 1);
    __builtin_prefetch(target.Row(y) + x, 1);
}

/// How far marks and waves may reach to the side of a line: less than a square.
int MarginOf(const LinePen& pen) {
    return pen.Width + static_cast<int>(std::ceil(std::max(pen.SquareWidth, pen.SquareHeight))) + 1;
}

std::uint64_t KeyOf(QPoint span, int style) {
    return (static_cast<std::uint64_t>(static_cast<unsigned>(style)) << 48U) |
           (static_cast<std::uint64_t>(static_cast<std::uint16_t>(span.x())) << 16U) |
           static_cast<std::uint16_t>(span.y());
}

} // namespace

void BlendRuns(const PixelBuffer& target, QPoint place, const RunMask& mask, QRgb colour) {
    if (target.Width <= 0 || target.Height <= 0) {
        return;
    }
    const std::uint8_t* cover = mask.Cover.data();
    for (std::size_t i = 0; i < mask.Runs.size(); ++i) {
        Prefetch(target, place, mask.Runs[std::min(i + RunsAhead, mask.Runs.size() - 1)]);
        const RunMask::Run& run = mask.Runs[i];
        const std::uint8_t* ownCover = cover;
        cover += run.Solid ? 0 : run.Count;
        const int y = place.y() + run.Y;
        if (y < 0 || y >= target.Height) {
            continue;
        }
        const int x = place.x() + run.X;
        const int from = std::max(0, -x);
        const int to = std::min<int>(run.Count, target.Width - x);
        QRgb* pixels = target.Row(y) + x;
        if (run.Solid) {
            std::fill(pixels + std::min(from, to), pixels + to, colour);
            continue;
        }
        for (int j = from; j < to; ++j) {
            BlendPixel(pixels[j], colour, ownCover[j]);
        }
    }
}

void LineMasks::TakeLook(const LinePen& pen, bool antialias) {
    if (pen.Width == m_width && pen.SquareWidth == m_squareWidth &&
        pen.SquareHeight == m_squareHeight && antialias == m_antialias) {
        return;
    }
    m_masks.clear();
    m_bytes = 0;
    m_width = pen.Width;
    m_squareWidth = pen.SquareWidth;
    m_squareHeight = pen.SquareHeight;
    m_antialias = antialias;
}

const LineMask* LineMasks::Find(QPoint span, const LinePen& pen, bool antialias) {
    const int margin = MarginOf(pen);
    const std::int64_t width = std::int64_t{span.x()} + 2 * margin + 1;
    const std::int64_t height = std::abs(std::int64_t{span.y()}) + 2 * margin + 1;
    if (std::max(width, height) > LongestSide || width * height > LargestArea) {
        return nullptr;
    }
    TakeLook(pen, antialias);
    const std::uint64_t key = KeyOf(span, pen.Style);
    if (const auto found = m_masks.find(key); found != m_masks.end()) {
        return &found->second;
    }
    return &Make(key, span, {static_cast<int>(width), static_cast<int>(height)}, pen);
}

const LineMask& LineMasks::Make(std::uint64_t key, QPoint span, const QSize& size,
                                const LinePen& pen) {
    if (m_bytes > Budget) {
        m_masks.clear();
        m_bytes = 0;
    }
    LinePen inks = pen;
    inks.Ground = UnderInk;
    inks.Floss = OverInk;
    // Coordinates stay positive: what marks are cut to does not depend on where a line lies.
    const int margin = MarginOf(pen);
    const QPoint begin(margin, margin + std::max(0, -span.y()));
    CoverCanvas canvas(size.width(), size.height(), m_antialias);
    canvas.Line(begin, begin + span, inks);
    LineMask mask{canvas.Runs(UnderInk, begin), canvas.Runs(OverInk, begin)};
    m_bytes += mask.Under.Bytes() + mask.Over.Bytes() + sizeof(LineMask);
    return m_masks.emplace(key, std::move(mask)).first->second;
}

} // namespace zol
