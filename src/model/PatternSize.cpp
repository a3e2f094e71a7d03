// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/PatternSize.h"

#include <cstdint>
#include <limits>

#include "model/RunTimeError.h"

namespace zol::PatternSize {

int Fault(int width, int height) {
    constexpr int largest = std::numeric_limits<std::int16_t>::max();
    if (width < 0 || height < 0 || width > largest || height > largest) {
        return ErrSubscript;
    }
    return std::int64_t{width} * height > MaxSquares ? ErrOutOfMemory : ErrNone;
}

std::optional<Size> Shrunk(const Pattern& pattern, const SquareRect& box) {
    // A design that reaches both far edges keeps the old size, moved or not.
    if (box.IsEmpty() ||
        (box.Right >= pattern.GetPatternWidth() && box.Bottom >= pattern.GetPatternHeight())) {
        return std::nullopt;
    }
    return Size{box.Right - box.Left + 3, box.Bottom - box.Top + 3};
}

int ShrinkFault(const Pattern& pattern) {
    const std::optional<Size> size = Shrunk(pattern, pattern.GetPatternRect());
    return size ? Fault(size->Width, size->Height) : ErrNone;
}

} // namespace zol::PatternSize
