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

/// Fewer covered pixels side by side are blended with their neighbours.
constexpr int LeastSolid = 16;

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

    /// What the line itself covers wholly need not be hidden first.
    void DropHidden() {
        const std::vector<std::uint8_t>& over = m_cover[OverInk];
        std::vector<std::uint8_t>& under = m_cover[UnderInk];
        for (std::size_t i = 0; i < std::min(over.size(), under.size()); ++i) {
            under[i] = over[i] == 255 ? std::uint8_t{0} : under[i];
        }
    }
    /// What an ink covers, counted from `begin`.
    [[nodiscard]] CoverMask MaskOf(Colour ink, QPoint begin) const;

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

/// Cuts a scan line into pieces.
class LineCutter {
public:
    /// `begin` is the place that the mask counts from.
    LineCutter(CoverMask& mask, const std::uint8_t* row, int width, QPoint begin, int y)
        : m_mask(mask),
          m_row(row),
          m_width(width),
          m_beginX(begin.x()),
          m_y(static_cast<std::int16_t>(y - begin.y())) {}

    void Cut() {
        for (int x = 0; x < m_width;) {
            x = m_row[x] == 0 ? x + 1 : Add(x);
        }
    }

private:
    /// The end of the solid pixels from x on; x itself where they are too few to count.
    [[nodiscard]] int SolidUpTo(int x) const {
        int end = x;
        while (end < m_width && m_row[end] == 255) {
            ++end;
        }
        return end - x >= LeastSolid ? end : x;
    }
    /// Adds what begins at x. Where more is to be looked for.
    int Add(int x) {
        if (const int end = SolidUpTo(x); end > x) {
            m_mask.Stretches.push_back({Place(x), m_y, end - x});
            Reach(x, end);
            return end;
        }
        CoverMask::Four four{Place(x), m_y, {}};
        for (int i = 0; i < static_cast<int>(four.Cover.size()); ++i) {
            four.Cover[static_cast<std::size_t>(i)] =
                x + i < m_width ? m_row[x + i] : std::uint8_t{0};
        }
        m_mask.Fours.push_back(four);
        const int end = x + static_cast<int>(four.Cover.size());
        Reach(x, end);
        return end;
    }
    [[nodiscard]] std::int16_t Place(int x) const {
        return static_cast<std::int16_t>(x - m_beginX);
    }
    void Reach(int from, int end) { m_mask.Bounds |= QRect(from - m_beginX, m_y, end - from, 1); }

    CoverMask& m_mask;
    const std::uint8_t* m_row;
    int m_width;
    int m_beginX;
    std::int16_t m_y;
};

CoverMask CoverCanvas::MaskOf(Colour ink, QPoint begin) const {
    CoverMask mask;
    const std::vector<std::uint8_t>& cover = m_cover[ink];
    if (cover.empty()) {
        return mask;
    }
    for (int y = 0; y < m_height; ++y) {
        LineCutter(mask, cover.data() + static_cast<std::ptrdiff_t>(y) * m_width, m_width, begin, y)
            .Cut();
    }
    mask.Fours.shrink_to_fit();
    mask.Stretches.shrink_to_fit();
    return mask;
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

void LineMasks::Clear() {
    m_masks.clear();
    m_bytes = 0;
}

void LineMasks::TakeLook(const LinePen& pen, bool antialias) {
    if (pen.Width == m_look.Width && pen.SquareWidth == m_look.SquareWidth &&
        pen.SquareHeight == m_look.SquareHeight && antialias == m_antialias && m_margin > 0) {
        return;
    }
    Clear();
    m_look = pen;
    m_look.Ground = UnderInk;
    m_look.Floss = OverInk;
    m_margin = MarginOf(pen);
    m_antialias = antialias;
}

const LineMask* LineMasks::Find(QPoint span, int style) {
    const std::int64_t width = std::int64_t{span.x()} + 2 * m_margin + 1;
    const std::int64_t height = std::abs(std::int64_t{span.y()}) + 2 * m_margin + 1;
    if (std::max(width, height) > LongestSide || width * height > LargestArea) {
        return nullptr;
    }
    const std::uint64_t key = KeyOf(span, style);
    if (const auto found = m_masks.find(key); found != m_masks.end()) {
        return &found->second;
    }
    return &Make(key, span, {static_cast<int>(width), static_cast<int>(height)}, style);
}

const LineMask& LineMasks::Make(std::uint64_t key, QPoint span, const QSize& size, int style) {
    LinePen inks = m_look;
    inks.Style = style;
    // Coordinates stay positive: what marks are cut to does not depend on where a line lies.
    const QPoint begin(m_margin, m_margin + std::max(0, -span.y()));
    CoverCanvas canvas(size.width(), size.height(), m_antialias);
    canvas.Line(begin, begin + span, inks);
    canvas.DropHidden();
    LineMask mask{canvas.MaskOf(UnderInk, begin), canvas.MaskOf(OverInk, begin), {}};
    mask.Bounds = mask.Under.Bounds | mask.Over.Bounds;
    m_bytes += mask.Under.Bytes() + mask.Over.Bytes() + sizeof(LineMask);
    return m_masks.emplace(key, std::move(mask)).first->second;
}

} // namespace zol
