// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/PictureRegion.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "import/PictureOps.h"

namespace zol {

namespace {

/// Where a line passes the middle of a row, and whether it goes down there.
struct Crossing {
    double X = 0;
    int Turn = 0;
};

/// The first pixel whose middle does not lie before a place.
int FirstMiddle(double place, int limit) {
    return static_cast<int>(std::clamp(std::ceil(place - 0.5), 0.0, static_cast<double>(limit)));
}

/// Notes the rows that the line from one point to another passes.
void NoteCrossings(std::vector<std::vector<Crossing>>& rows, PicturePoint from, PicturePoint to) {
    const int turn = from.Y < to.Y ? 1 : -1;
    if (turn < 0) {
        std::swap(from, to);
    }
    const int limit = static_cast<int>(rows.size());
    const int end = FirstMiddle(to.Y, limit);
    for (int y = FirstMiddle(from.Y, limit); y < end; ++y) {
        const double share = (y + 0.5 - from.Y) / (to.Y - from.Y);
        rows[static_cast<std::size_t>(y)].push_back({from.X + share * (to.X - from.X), turn});
    }
}

} // namespace

PictureRegion::PictureRegion(int width, int height)
    : m_width(std::max(width, 0)),
      m_height(std::max(height, 0)) {}

void PictureRegion::FreeRegion() {
    m_selected = false;
    m_rows.clear();
}

/// Runs of a row come from left to right.
void PictureRegion::Add(int row, double begin, double end) {
    const Run run{FirstMiddle(begin, m_width), FirstMiddle(end, m_width)};
    if (run.Begin < run.End) {
        m_rows[static_cast<std::size_t>(row)].push_back(run);
    }
}

void PictureRegion::Settle() {
    m_selected =
        std::any_of(m_rows.begin(), m_rows.end(), [](const Runs& runs) { return !runs.empty(); });
    if (!m_selected) {
        FreeRegion();
    }
}

void PictureRegion::SelectRectRegion(const PixelRect& rect) {
    m_rows.assign(static_cast<std::size_t>(m_height), {});
    const PixelRect part = ClipToPicture(rect, m_width, m_height);
    for (int y = part.Top; y < part.Top + part.Height; ++y) {
        Add(y, part.Left, part.Left + part.Width);
    }
    Settle();
}

void PictureRegion::SelectOvalRegion(const PixelRect& rect) {
    m_rows.assign(static_cast<std::size_t>(m_height), {});
    const double acrossHalf = rect.Width / 2.0;
    const double downHalf = rect.Height / 2.0;
    const PixelRect part = ClipToPicture(rect, m_width, m_height);
    for (int y = part.Top; y < part.Top + part.Height; ++y) {
        const double down = (y + 0.5 - rect.Top - downHalf) / downHalf;
        const double half = acrossHalf * std::sqrt(std::max(0.0, 1 - down * down));
        const double middle = rect.Left + acrossHalf;
        Add(y, middle - half, middle + half);
    }
    Settle();
}

void PictureRegion::SelectFreehandRegion(const std::vector<PicturePoint>& line) {
    m_rows.assign(static_cast<std::size_t>(m_height), {});
    std::vector<std::vector<Crossing>> crossings(m_rows.size());
    for (std::size_t i = 0; i < line.size(); ++i) {
        NoteCrossings(crossings, line[i], line[(i + 1) % line.size()]);
    }
    for (std::size_t y = 0; y < crossings.size(); ++y) {
        std::vector<Crossing>& row = crossings[y];
        std::sort(row.begin(), row.end(),
                  [](const Crossing& one, const Crossing& two) { return one.X < two.X; });
        int depth = 0;
        double begin = 0;
        for (const Crossing& crossing : row) {
            if (depth == 0) {
                begin = crossing.X;
            }
            depth += crossing.Turn;
            if (depth == 0) {
                Add(static_cast<int>(y), begin, crossing.X);
            }
        }
    }
    Settle();
}

void PictureRegion::Invert() {
    std::vector<Runs> before(static_cast<std::size_t>(m_height));
    before.swap(m_rows);
    before.resize(static_cast<std::size_t>(m_height));
    for (int y = 0; y < m_height; ++y) {
        int begin = 0;
        for (const Run& run : before[static_cast<std::size_t>(y)]) {
            Add(y, begin, run.Begin);
            begin = run.End;
        }
        Add(y, begin, m_width);
    }
    Settle();
}

bool PictureRegion::Contains(int x, int y) const {
    if (y < 0 || y >= static_cast<int>(m_rows.size())) {
        return false;
    }
    const Runs& runs = m_rows[static_cast<std::size_t>(y)];
    return std::any_of(runs.begin(), runs.end(),
                       [x](const Run& run) { return x >= run.Begin && x < run.End; });
}

PixelRect PictureRegion::Bounds() const {
    if (!m_selected) {
        return {};
    }
    int left = std::numeric_limits<int>::max();
    int right = 0;
    int top = -1;
    int bottom = 0;
    for (int y = 0; y < static_cast<int>(m_rows.size()); ++y) {
        const Runs& runs = m_rows[static_cast<std::size_t>(y)];
        if (!runs.empty()) {
            left = std::min(left, runs.front().Begin);
            right = std::max(right, runs.back().End);
            top = top < 0 ? y : top;
            bottom = y + 1;
        }
    }
    return {left, top, right - left, bottom - top};
}

void PictureRegion::FillRegion(Picture& image, Colour colour) const {
    for (int y = 0; y < static_cast<int>(m_rows.size()); ++y) {
        for (const Run& run : m_rows[static_cast<std::size_t>(y)]) {
            std::fill(image.Row(y) + run.Begin, image.Row(y) + run.End, colour);
        }
    }
}

} // namespace zol
