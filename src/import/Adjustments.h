// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "import/Picture.h"

namespace zol {

class ProgressDoor;

/// Changes of a picture's colours before the matching. All of them leave erased pixels (pure
/// white) alone; what they make pure white is erased from then on. Values outside a range are
/// taken as its nearest end.
namespace Adjustments {

/// -1000 to 1000: black to white.
void ChangeBrightness(Picture& image, int amount);
/// -1000 to 1000: from a middle grey to black and white alone.
void ChangeContrast(Picture& image, int amount);
/// -1000 to 1000: from grey to twice as far from grey.
void ChangeSaturation(Picture& image, int amount);
/// 0 to 360 degrees around the circle of hues.
void ChangeHue(Picture& image, int degrees);
/// 10 to 200 hundredths; above 100 brightens the middle.
void ChangeGamma(Picture& image, int hundredths);
/// Spreads the lightness so that every level is as common as any other.
void EqualizeHistogram(Picture& image);
/// Stretches the channels so that the darkest becomes 0 and the brightest 255.
void StretchIntensity(Picture& image);
/// 256 levels of grey.
void ConvertToGrey(Picture& image);
/// How much brighter each channel is than around it, erased neighbours left out.
void EnhanceEdges(Picture& image);

/// The items of the adjustment list, in its order.
enum class Kind : std::uint8_t {
    Brightness,
    Contrast,
    Saturation,
    Hue,
    HistoEqualize,
    GrayScale,
    EdgeEnhance,
    StretchIntensity,
    GammaCorrect,
};

/// One line of the list, with its slider.
struct Item {
    Kind What;
    std::string_view Text;
    bool HasSlider;
    int Minimum;
    int Maximum;
    int Start;
    int Ticks;     ///< between two marks of the scale
    int SmallStep; ///< of an arrow key
    int LargeStep; ///< of Page Up and Down, or a click beside the handle
};

[[nodiscard]] const std::array<Item, 9>& Items();
[[nodiscard]] const Item& ItemOf(Kind kind);

/// Carries out an item at a position of its slider (without a slider it does not matter).
void Apply(Picture& image, Kind kind, int slider);
/// The same, band by band: the door (which may be null) is asked between them. False, with the
/// picture half-way, if it stopped the work.
[[nodiscard]] bool ApplyWhile(ProgressDoor* progress, Picture& image, Kind kind, int slider);

} // namespace Adjustments
} // namespace zol
