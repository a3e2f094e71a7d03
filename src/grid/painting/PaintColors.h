// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

#include "model/ZOLTypes.h"

namespace zol {

/// The colour as Qt's pixels hold it, opaque.
[[nodiscard]] constexpr QRgb ToRgb(Colour colour) {
    return 0xFF000000U | ((colour & 0xFFU) << 16U) | (colour & 0xFF00U) | ((colour >> 16U) & 0xFFU);
}

[[nodiscard]] inline QColor ToQColor(Colour colour) {
    return QColor::fromRgb(ToRgb(colour));
}

/// Black where the mean of red, green and blue is 125 or more, white otherwise.
[[nodiscard]] constexpr Colour GetContrastColor(Colour colour) {
    const Colour sum = (colour & 0xFFU) + ((colour >> 8U) & 0xFFU) + ((colour >> 16U) & 0xFFU);
    return sum >= 3 * 125 ? 0x000000 : 0xFFFFFF;
}

} // namespace zol
