// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cmath>
#include <cstdint>
#include <string>

namespace zol {

/// To the nearest integer, a half to the even neighbour: the rounding of this program wherever
/// nothing else is said.
[[nodiscard]] inline double RoundHalfEven(double value) {
    return std::nearbyint(value);
}
[[nodiscard]] inline int RoundToInt(double value) {
    return static_cast<int>(std::nearbyint(value));
}
[[nodiscard]] inline int TruncToInt(double value) {
    return static_cast<int>(std::trunc(value));
}

/// The number with exactly `decimals` places, halves away from zero after the shortest decimal
/// form of the value: 0.25 gives "0.3", and so does 0.35 "0.4". A leading zero is shown; the
/// separator is a point whatever the locale.
[[nodiscard]] std::string FormatFixed(double value, int decimals);

/// As FormatFixed, but with trailing zeros dropped: the figure format "##.##". The point stays
/// behind a whole number ("2."), as that format has it.
[[nodiscard]] std::string FormatUpTo(double value, int decimals);

/// The number that a text begins with: blanks, digits, optionally a point and digits; 0 if none.
[[nodiscard]] double LeadingNumber(const char* begin, const char* end);
[[nodiscard]] inline double LeadingNumber(const std::string& text) {
    return LeadingNumber(text.data(), text.data() + text.size());
}

} // namespace zol
