// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/ImportSize.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "model/Rounding.h"
#include "model/ZOLTypes.h"

namespace zol {

std::optional<StitchSize> ImportSize::StitchesOf(double width, double height) const {
    const double w = UseUnits ? StitchesOfUnits(width, ClothCountX) : width;
    const double h = UseUnits ? StitchesOfUnits(height, ClothCountY) : height;
    constexpr double longestSide = 32767; // pattern sizes are 16-bit
    if (!std::isfinite(w) || !std::isfinite(h) || w > longestSide || h > longestSide) {
        return std::nullopt;
    }
    const StitchSize size{RoundToInt(std::max(w, 1.0)), RoundToInt(std::max(h, 1.0))};
    if (static_cast<std::int64_t>(size.Width) * size.Height > MaxSquares) {
        return std::nullopt;
    }
    return size;
}

double ImportSize::UnitsOf(double stitches, int clothCount) const {
    return stitches / clothCount * CmPerUnit;
}

double ImportSize::StitchesOfUnits(double units, int clothCount) const {
    return units * clothCount / CmPerUnit;
}

std::string ImportSize::FieldText(double value) const {
    return UseUnits ? FormatFixed(value, 3) : FormatFixed(RoundHalfEven(value), 0);
}

ProportionalSize SetProportionalHeight(const ImportSize& size, double width, int imageWidth,
                                       int imageHeight, std::optional<int> editBoxHeight) {
    const double ratio = static_cast<double>(imageHeight) / imageWidth;
    ProportionalSize fields{width, width * ratio, false};
    const double scale = size.UseUnits ? size.ClothCountY : 1;
    if (editBoxHeight && RoundHalfEven(scale * fields.Height) > *editBoxHeight) {
        fields.Height = *editBoxHeight / scale;
        fields.Width = fields.Height / ratio;
        fields.WidthChanged = true;
    }
    return fields;
}

double ProportionalWidth(double height, int imageWidth, int imageHeight) {
    return height / (static_cast<double>(imageHeight) / imageWidth);
}

} // namespace zol
