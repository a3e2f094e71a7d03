// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/StitchRun.h"

#include <algorithm>
#include <cstdlib>

#include "model/Rounding.h"

namespace zol {

namespace {

/// Along the longer axis: for each step of the shorter one a run of places, each handed to visit
/// with the step. `ratio` has the sign of the long axis' direction.
template<typename Visit>
void WalkRuns(int longFrom, int longTo, int shortFrom, int shortTo, double ratio, Visit visit) {
    const int low = std::min(longFrom, longTo);
    const int high = std::max(longFrom, longTo);
    const int step = shortTo < shortFrom ? -1 : 1;
    const int direction = ratio < 0 ? -1 : 1;
    for (int k = shortFrom; k != shortTo + step; k += step) {
        const int start = RoundToInt(longFrom + std::abs(shortFrom - k) * ratio);
        const int end = RoundToInt(start + ratio);
        for (int place = start; place != end + direction; place += direction) {
            if (place >= low && place <= high) {
                visit(place, k);
            }
        }
    }
}

} // namespace

std::vector<SquarePos> StitchRun(SquarePos from, SquarePos to) {
    const int dx = std::abs(to.X - from.X) + 1;
    const int dy = std::abs(to.Y - from.Y) + 1;
    std::vector<SquarePos> squares;
    if (dx == dy) {
        const int right = to.X < from.X ? -1 : 1;
        const int down = to.Y < from.Y ? -1 : 1;
        for (int i = 0; i < dx; ++i) {
            squares.push_back({from.X + i * right, from.Y + i * down});
        }
    } else if (dx > dy) {
        const double ratio = static_cast<double>(dx) / dy * (to.X < from.X ? -1 : 1);
        WalkRuns(from.X, to.X, from.Y, to.Y, ratio, [&](int x, int y) {
            squares.push_back({x, y});
        });
    } else {
        const double ratio = static_cast<double>(dy) / dx * (to.Y < from.Y ? -1 : 1);
        WalkRuns(from.Y, to.Y, from.X, to.X, ratio, [&](int y, int x) {
            squares.push_back({x, y});
        });
    }
    return squares;
}

} // namespace zol
