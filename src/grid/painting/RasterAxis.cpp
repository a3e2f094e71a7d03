// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/RasterAxis.h"

#include <algorithm>

namespace zol {

void RasterAxis::Find(const SquareSpans& spans, int from, int to, int position, int areaFirst,
                      int areaLast) {
    Shown.clear();
    Sizes.clear();
    PlaceOf.clear();
    From = from;
    for (int number = from; number <= to; ++number) {
        const int edge = spans.Edge(number) - position;
        const int first = spans.First(number) - position;
        const int last = spans.Last(number) - position;
        const bool shown = last >= first && last >= areaFirst && first <= areaLast;
        PlaceOf.push_back(shown ? static_cast<int>(Shown.size()) : -1);
        if (!shown) {
            continue;
        }
        const int size = last - first + 1;
        const auto known = std::find(Sizes.begin(), Sizes.end(), size);
        const auto which = static_cast<std::size_t>(known - Sizes.begin());
        if (known == Sizes.end()) {
            Sizes.push_back(size);
        }
        Shown.push_back({number, edge, first, last, which, first < areaFirst || last > areaLast});
    }
    FindPitch();
}

void RasterAxis::FindPitch() {
    Pitch = 0;
    if (Shown.empty()) {
        return;
    }
    const int pitch = Shown.front().Last + 1 - Shown.front().Edge;
    int edge = Shown.front().Edge;
    for (const Stretch& stretch : Shown) {
        if (stretch.Edge != edge || stretch.Last + 1 - edge != pitch) {
            return;
        }
        edge += pitch;
    }
    Pitch = pitch;
}

std::vector<int> RasterAxis::Around(const SquareSpans& spans, int firstPixel, int lastPixel) const {
    std::vector<int> numbers;
    for (std::size_t i = 0; i < PlaceOf.size(); ++i) {
        const int number = From + static_cast<int>(i);
        if (PlaceOf[i] < 0 && spans.Last(number) >= firstPixel && spans.Edge(number) <= lastPixel) {
            numbers.push_back(number);
        }
    }
    return numbers;
}

} // namespace zol
