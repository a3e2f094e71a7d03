// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "import/Picture.h"

namespace zol {

/// The colours of a picture, each once, and which of them each pixel has. What depends on the
/// colour alone is then worked out once a colour instead of once a pixel.
struct DistinctColours {
    explicit DistinctColours(const Picture& image);

    /// In no particular order.
    std::vector<Colour> Colours;
    /// Place in Colours of each pixel, column by column: pixel (x, y) stands at x * height + y.
    std::vector<std::uint32_t> Places;
};

} // namespace zol
