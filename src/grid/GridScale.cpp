// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/GridScale.h"

#include <algorithm>

#include "model/Rounding.h"

namespace zol {

namespace {

double CountOf(int clothCount) {
    return std::max(1, clothCount);
}

} // namespace

GridScale GridScale::ForZoom(double percent, int clothCountX, int clothCountY,
                             double twipsPerPixelX, double twipsPerPixelY) {
    const double zoom = percent / 100;
    GridScale scale;
    scale.SquareTwipsX = zoom * 1440 / CountOf(clothCountX);
    scale.SquareTwipsY = zoom * 1440 / CountOf(clothCountY);
    scale.TwipsPerPixelX = twipsPerPixelX;
    scale.TwipsPerPixelY = twipsPerPixelY;
    scale.LineBaseTwips = RoundHalfEven(scale.SquareTwipsX);
    return scale;
}

GridScale GridScale::ForPrint(double squaresPerInch, int clothCountX, int clothCountY,
                              double twipsPerPixelX, double twipsPerPixelY) {
    GridScale scale;
    scale.SquareTwipsX = RoundHalfEven(1440 / squaresPerInch);
    scale.SquareTwipsY =
        RoundHalfEven(scale.SquareTwipsX * CountOf(clothCountX) / CountOf(clothCountY));
    scale.TwipsPerPixelX = twipsPerPixelX;
    scale.TwipsPerPixelY = twipsPerPixelY;
    scale.LineBaseTwips = 1440 / squaresPerInch;
    return scale;
}

GridScale GridScale::ForPicture(int pixels, int clothCountX, int clothCountY) {
    GridScale scale;
    const int height =
        std::max(1, RoundToInt(pixels * CountOf(clothCountX) / CountOf(clothCountY)));
    scale.SquareTwipsX = pixels * scale.TwipsPerPixelX;
    scale.SquareTwipsY = height * scale.TwipsPerPixelY;
    scale.LineBaseTwips = scale.SquareTwipsX;
    return scale;
}

} // namespace zol
