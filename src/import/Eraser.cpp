// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/Eraser.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "import/PictureOps.h"

namespace zol::Eraser {

namespace {

struct Corner {
    int X = 0;
    int Y = 0;
};

/// So far outside nothing is reached any more, and differences stay within whole numbers.
constexpr double FarOutside = 1 << 29;

Corner NearestCorner(PicturePoint place) {
    const auto whole = [](double value) {
        return static_cast<int>(std::lround(std::clamp(value, -FarOutside, FarOutside)));
    };
    return {whole(place.X), whole(place.Y)};
}

/// Half the width of each row of a disc, from its top.
std::vector<int> HalfWidths(int across) {
    const double radius = across / 2.0;
    std::vector<int> widths(static_cast<std::size_t>(across));
    for (int y = 0; y < across; ++y) {
        const double down = y + 0.5 - radius;
        const double half = std::sqrt(radius * radius - down * down);
        widths[static_cast<std::size_t>(y)] = static_cast<int>(std::floor(half + 0.5));
    }
    return widths;
}

void FillDisc(Picture& image, Corner middle, const std::vector<int>& widths) {
    const int across = static_cast<int>(widths.size());
    const int top = middle.Y - across / 2;
    const int end = std::min(top + across, image.ImageHeight());
    for (int y = std::max(top, 0); y < end; ++y) {
        const int half = widths[static_cast<std::size_t>(y - top)];
        const int left = std::clamp(middle.X - half, 0, image.ImageWidth());
        const int right = std::clamp(middle.X + half, 0, image.ImageWidth());
        std::fill(image.Row(y) + left, image.Row(y) + right, EraseColor);
    }
}

} // namespace

PixelRect ReachOf(PicturePoint from, PicturePoint to, int across, int width, int height) {
    const Corner one = NearestCorner(from);
    const Corner two = NearestCorner(to);
    const int half = across / 2;
    return ClipToPicture({std::min(one.X, two.X) - half, std::min(one.Y, two.Y) - half,
                          std::abs(one.X - two.X) + across, std::abs(one.Y - two.Y) + across},
                         width, height);
}

void Erase(Picture& image, PicturePoint from, PicturePoint to, int across) {
    const PixelRect reach = ReachOf(from, to, across, image.ImageWidth(), image.ImageHeight());
    if (reach.Width < 1 || reach.Height < 1) {
        return;
    }
    const Corner one = NearestCorner(from);
    const Corner two = NearestCorner(to);
    const std::vector<int> widths = HalfWidths(across);
    const int steps = std::max(std::abs(two.X - one.X), std::abs(two.Y - one.Y));
    const auto share = [&](int step) { return steps == 0 ? 0.0 : double(step) / steps; };
    for (int step = 0; step <= steps; ++step) {
        const Corner at{one.X + static_cast<int>(std::lround((two.X - one.X) * share(step))),
                        one.Y + static_cast<int>(std::lround((two.Y - one.Y) * share(step)))};
        FillDisc(image, at, widths);
    }
}

} // namespace zol::Eraser
