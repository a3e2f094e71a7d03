// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

#include "model/LengthUnits.h"

namespace zol {

/// Units of length that sizes are typed in; the value is how many make an inch.
inline constexpr double CmPerUnitInches = 1;
inline constexpr double CmPerUnitCentimetres = CentimetresPerInch;

/// A size in stitches.
struct StitchSize {
    int Width = 1;
    int Height = 1;

    friend bool operator==(const StitchSize&, const StitchSize&) = default;
};

/// The arithmetic of the size screen: fields typed in stitches or in units of length.
struct ImportSize {
    bool UseUnits = false; ///< the fields hold lengths, else stitches
    int ClothCountX = 14;  ///< squares an inch
    int ClothCountY = 14;
    double CmPerUnit = CmPerUnitInches;

    /// The size that two fields ask for, rounded half to even; what rounds below 1 becomes 1.
    /// Nothing if a side passes 32767 or the grid would pass MaxSquares.
    [[nodiscard]] std::optional<StitchSize> StitchesOf(double width, double height) const;

    [[nodiscard]] double UnitsOf(double stitches, int clothCount) const;
    [[nodiscard]] double StitchesOfUnits(double units, int clothCount) const;

    /// The text of a field: whole stitches, or a length with three places.
    [[nodiscard]] std::string FieldText(double value) const;
};

/// The two fields after a change of the width with the aspect kept.
struct ProportionalSize {
    double Width = 0;
    double Height = 0;
    bool WidthChanged = false; ///< the height met the edit box and the width gave way
};

/// The height that keeps the picture's aspect for a width. `editBoxHeight` in squares limits it;
/// nothing for none.
[[nodiscard]] ProportionalSize SetProportionalHeight(const ImportSize& size, double width,
                                                     int imageWidth, int imageHeight,
                                                     std::optional<int> editBoxHeight);
/// The width that keeps the picture's aspect for a height.
[[nodiscard]] double ProportionalWidth(double height, int imageWidth, int imageHeight);

} // namespace zol
