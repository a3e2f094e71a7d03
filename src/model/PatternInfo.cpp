// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/PatternInfo.h"

#include <cstdint>
#include <limits>

#include "model/Pattern.h"
#include "model/Rounding.h"
#include "model/ZOLTypes.h"

namespace zol {

namespace {

using Field = PatternInfoField;
using Fault = std::optional<PatternInfoFault>;

constexpr const char* WidthText = "Your pattern width is invalid.";
constexpr const char* HeightText = "Your pattern height is invalid.";
constexpr const char* AcrossText = "Your horizontal cloth count is invalid.";
constexpr const char* DownText = "Your vertical cloth count is invalid.";

constexpr int MaxClothCount = std::numeric_limits<std::int16_t>::max();

bool IsCount(double value) {
    return value > 0 && RoundHalfEven(value) >= 1 && value <= MaxClothCount;
}

Fault SideFault(double stitches, int present, PatternInfoFault told) {
    if (RoundHalfEven(stitches) < 1) {
        told.More = "That is less than one stitch.";
        return told;
    }
    if (stitches > PatternInfo::MaxSide && RoundHalfEven(stitches) != present) {
        told.More = "A pattern can have up to " + std::to_string(PatternInfo::MaxSide) +
                    " stitches across and down.";
        return told;
    }
    return std::nullopt;
}

} // namespace

// --- Properties ---------------------------------------------------------------------------

PatternInfo PatternInfo::Of(const Pattern& pattern) {
    PatternInfo info;
    info.Width = pattern.GetPatternWidth();
    info.Height = pattern.GetPatternHeight();
    info.ClothCountX = pattern.GetPatternClothCountX();
    info.ClothCountY = pattern.GetPatternClothCountY();
    info.Title = pattern.Title;
    info.Author = pattern.Author;
    info.Copyright = pattern.Copyright;
    info.Fabric = pattern.Fabric;
    info.Instructions = pattern.Instructions;
    return info;
}

bool PatternInfo::CutsInto(const PatternInfo& present) const {
    return Width < present.Width || Height < present.Height;
}

void PatternInfo::ApplyTo(Pattern& pattern) const {
    pattern.Resize(Width, Height, ClothCountX, ClothCountY);
    pattern.Author = Author;
    pattern.Title = Title;
    pattern.Copyright = Copyright;
    pattern.Fabric = Fabric;
    pattern.Instructions = Instructions;
    pattern.SetChanged(true);
}

Fault InstructionsFault(const PatternInfo& wanted, const PatternInfo& present) {
    if (wanted.Instructions == present.Instructions ||
        wanted.Instructions.size() <= PatternInfo::MaxText) {
        return std::nullopt;
    }
    return PatternInfoFault{
        Field::Instructions, "Your instructions are too long.",
        "With their formatting they take " + std::to_string(wanted.Instructions.size()) +
            " characters; a pattern file holds " + std::to_string(PatternInfo::MaxText) + "."};
}

// --- Number fields ------------------------------------------------------------------------

double PatternSizeFields::WidthInStitches() const {
    return UseUnits ? Width * ClothCountX / UnitsPerInch : Width;
}

double PatternSizeFields::HeightInStitches() const {
    return UseUnits ? Height * ClothCountY / UnitsPerInch : Height;
}

Fault PatternSizeFields::ClothFault() const {
    if (!IsCount(ClothCountX)) {
        return PatternInfoFault{Field::ClothCountX, AcrossText, {}};
    }
    if (!IsCount(ClothCountY)) {
        return PatternInfoFault{Field::ClothCountY, DownText, {}};
    }
    return std::nullopt;
}

Fault PatternSizeFields::SizeFault(const PatternInfo& present) const {
    const double width = WidthInStitches();
    const double height = HeightInStitches();
    if (Fault fault = SideFault(width, present.Width, {Field::Width, WidthText, {}})) {
        return fault;
    }
    if (Fault fault = SideFault(height, present.Height, {Field::Height, HeightText, {}})) {
        return fault;
    }
    if (RoundHalfEven(width) * RoundHalfEven(height) > static_cast<double>(MaxSquares)) {
        return PatternInfoFault{Field::Width, "Your pattern is too large.",
                                "A pattern can have up to " + std::to_string(MaxSquares) +
                                    " squares; this one would have " +
                                    FormatFixed(RoundHalfEven(width) * RoundHalfEven(height), 0) +
                                    "."};
    }
    return std::nullopt;
}

Fault PatternSizeFields::FindFault(const PatternInfo& present) const {
    if (!(Width > 0)) {
        return PatternInfoFault{Field::Width, WidthText, {}};
    }
    if (!(Height > 0)) {
        return PatternInfoFault{Field::Height, HeightText, {}};
    }
    if (Fault fault = ClothFault()) {
        return fault;
    }
    return SizeFault(present);
}

void PatternSizeFields::SwitchUnits(bool useUnits) {
    if (useUnits == UseUnits) {
        return;
    }
    const double width = WidthInStitches();
    const double height = HeightInStitches();
    UseUnits = useUnits;
    Width = useUnits ? width / ClothCountX * UnitsPerInch : width;
    Height = useUnits ? height / ClothCountY * UnitsPerInch : height;
}

void PatternSizeFields::PutInto(PatternInfo& info) const {
    info.Width = RoundToInt(WidthInStitches());
    info.Height = RoundToInt(HeightInStitches());
    info.ClothCountX = RoundToInt(ClothCountX);
    info.ClothCountY = RoundToInt(ClothCountY);
}

std::string PatternSizeFields::FieldText(double value) const {
    return UseUnits ? FormatFixed(value, 3) : FormatFixed(RoundHalfEven(value), 0);
}

} // namespace zol
