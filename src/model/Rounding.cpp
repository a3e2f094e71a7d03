// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/Rounding.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zol {

namespace {

/// Digits of a number in plain notation: whole part and fraction, the shortest that names it.
struct Digits {
    bool negative = false;
    std::string whole;
    std::string fraction;
};

Digits ShortestDigits(double value) {
    std::array<char, 400> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                   std::chars_format::fixed);
    const std::string text(buffer.data(), end.ptr);
    Digits digits;
    digits.negative = value < 0;
    const std::size_t point = text.find('.');
    digits.whole = text.substr(0, point);
    if (point != std::string::npos) {
        digits.fraction = text.substr(point + 1);
    }
    return digits;
}

/// Cuts the fraction to `decimals` digits, a half away from zero.
void RoundDigits(Digits& digits, std::size_t decimals) {
    const bool up = digits.fraction.size() > decimals && digits.fraction[decimals] >= '5';
    digits.fraction.resize(decimals, '0');
    if (!up) {
        return;
    }
    std::string all = digits.whole + digits.fraction;
    std::size_t i = all.size();
    while (i > 0) {
        --i;
        if (all[i] != '9') {
            ++all[i];
            break;
        }
        all[i] = '0';
        if (i == 0) {
            all.insert(all.begin(), '1');
        }
    }
    digits.whole = all.substr(0, all.size() - decimals);
    digits.fraction = all.substr(all.size() - decimals);
}

std::string Signed(const Digits& digits, const std::string& text) {
    const bool zero = text.find_first_not_of("0.") == std::string::npos;
    return digits.negative && !zero ? "-" + text : text;
}

} // namespace

std::string FormatFixed(double value, int decimals) {
    if (!std::isfinite(value)) {
        return "0";
    }
    Digits digits = ShortestDigits(value);
    RoundDigits(digits, static_cast<std::size_t>(std::max(decimals, 0)));
    const std::string text =
        decimals > 0 ? digits.whole + "." + digits.fraction : std::string(digits.whole);
    return Signed(digits, text);
}

std::string FormatUpTo(double value, int decimals) {
    std::string text = FormatFixed(value, decimals);
    if (decimals > 0 && text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
    }
    return text;
}

double LeadingNumber(const char* begin, const char* end) {
    const char* at = begin;
    while (at != end && *at == ' ') {
        ++at;
    }
    const char* start = at;
    const auto skipDigits = [&at, end] {
        while (at != end && *at >= '0' && *at <= '9') {
            ++at;
        }
    };
    skipDigits();
    if (at != end && *at == '.') {
        ++at;
        skipDigits();
    }
    double value = 0;
    std::from_chars(start, at, value, std::chars_format::fixed);
    return value;
}

} // namespace zol
