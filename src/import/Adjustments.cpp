// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/Adjustments.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "import/EdgeEnhancing.h"
#include "import/PixelBlocks.h"
#include "model/Rounding.h"

namespace zol::Adjustments {

namespace {

using LevelTable = std::array<std::uint8_t, 256>;

template<typename Mapping>
LevelTable TableOf(Mapping mapping) {
    LevelTable table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i] = static_cast<std::uint8_t>(
            std::clamp(RoundHalfEven(mapping(static_cast<double>(i))), 0.0, 255.0));
    }
    return table;
}

bool MapChannels(ProgressDoor* door, Picture& image, const LevelTable& table) {
    return ForEachBand(door, image, [&table](Colour* pixels, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            const Colour pixel = pixels[i];
            const Colour changed = MakeColour(table[pixel & 255U], table[(pixel >> 8U) & 255U],
                                              table[(pixel >> 16U) & 255U]);
            pixels[i] = pixel == EraseColor ? EraseColor : changed;
        }
    });
}

double ThousandthsOf(int amount) {
    return std::clamp(amount, -1000, 1000) / 1000.0;
}

LevelTable BrightnessTable(int amount) {
    const double shift = ThousandthsOf(amount) * 255;
    return TableOf([shift](double level) { return level + shift; });
}

LevelTable ContrastTable(int amount) {
    const double share = ThousandthsOf(amount);
    constexpr double steepest = 1000; // at the end of the range: black and white alone
    const double slope = share <= 0 ? 1 + share : std::min(1 / std::max(1 - share, 1e-9), steepest);
    return TableOf([slope](double level) { return 127.5 + (level - 127.5) * slope; });
}

LevelTable GammaTable(int hundredths) {
    const double power = 100.0 / std::clamp(hundredths, 10, 200);
    return TableOf([power](double level) { return 255 * std::pow(level / 255, power); });
}

/// A level whose distance from grey is multiplied by a factor in 32768ths, up to 2, and rounded.
Level AwayFromGrey(Level level, Level grey, std::uint16_t factor) {
    const Level distance = LevelOf(level - grey);
    const Level sign = LevelOf(distance >> 15);
    const auto size = static_cast<std::uint16_t>((distance ^ sign) - sign);
    // In 64ths, of which the last counts for rounding only.
    const std::uint16_t fine = UpperProduct(static_cast<std::uint16_t>(size << 7U), factor);
    const Level scaled = LevelOf(static_cast<std::uint16_t>(fine + 32U) >> 6U);
    return InRange(LevelOf(grey + ((scaled ^ sign) - sign)));
}

bool Saturate(ProgressDoor* door, Picture& image, int amount) {
    constexpr int most = 65535;
    const int thousandths = 1000 + std::clamp(amount, -1000, 1000);
    const auto factor =
        static_cast<std::uint16_t>(std::min((thousandths * 32768 + 999) / 1000, most));
    return ForEachBlock(
        door, image, [factor](PixelBlock& block, Colour* pixels, std::size_t count) {
            for (std::size_t i = 0; i < PixelBlock::Size; ++i) {
                const Level grey = LightnessOf(block.Red[i], block.Green[i], block.Blue[i]);
                block.Red[i] = AwayFromGrey(block.Red[i], grey, factor);
                block.Green[i] = AwayFromGrey(block.Green[i], grey, factor);
                block.Blue[i] = AwayFromGrey(block.Blue[i], grey, factor);
            }
            block.Join(pixels, count);
        });
}

/// How far hues turn: whole sixths of the circle, and 65536ths of the next.
struct HueTurn {
    Level Sixths;
    std::uint16_t Rest;
};

/// Turns the hues of a block; the lightest and the darkest channel of each pixel stay as light.
/// The circle is measured in the pixel's own span of levels, six of them around, so that a
/// channel is full within one span of its own hue and gone beyond two.
void TurnBlock(PixelBlock& block, HueTurn turn) {
    for (std::size_t i = 0; i < PixelBlock::Size; ++i) {
        const Level red = block.Red[i];
        const Level green = block.Green[i];
        const Level blue = block.Blue[i];
        const Level high = MostOf(MostOf(red, green), blue);
        const Level low = LeastOf(LeastOf(red, green), blue);
        const Level span = LevelOf(high - low);
        const Level two = LevelOf(2 * span);
        const Level circle = LevelOf(6 * span);
        const std::uint16_t rest =
            UpperProduct(static_cast<std::uint16_t>(span << 7U), turn.Rest); // in 128ths
        const Level turned =
            LevelOf(span * turn.Sixths + LevelOf(static_cast<std::uint16_t>(rest + 64U) >> 7U));
        const Level ofGreen = LevelOf(two + blue - red);
        const Level ofBlue = LevelOf(two + two + red - green);
        const Level behindRed = green == high ? ofGreen : ofBlue;
        const Level own = red == high ? LevelOf(green - blue) : behindRed;
        const Level beyond = LevelOf(own + turned);
        const Level positive = beyond < 0 ? LevelOf(beyond + circle) : beyond;
        const Level hue = positive >= circle ? LevelOf(positive - circle) : positive;
        const Level fromRed = LeastOf(hue, LevelOf(circle - hue));
        const Level pastGreen = LevelOf(hue - two);
        const Level fromGreen = MostOf(pastGreen, LevelOf(-pastGreen));
        const Level pastBlue = LevelOf(pastGreen - two);
        const Level fromBlue = MostOf(pastBlue, LevelOf(-pastBlue));
        block.Red[i] = LevelOf(low + LeastOf(MostOf(LevelOf(two - fromRed), 0), span));
        block.Green[i] = LevelOf(low + LeastOf(MostOf(LevelOf(two - fromGreen), 0), span));
        block.Blue[i] = LevelOf(low + LeastOf(MostOf(LevelOf(two - fromBlue), 0), span));
    }
}

bool TurnHues(ProgressDoor* door, Picture& image, int degrees) {
    constexpr int sixth = 60;
    const int turn = std::clamp(degrees, 0, 360) % 360;
    const HueTurn hues{LevelOf(turn / sixth),
                       static_cast<std::uint16_t>((turn % sixth * 65536 + sixth - 1) / sixth)};
    return ForEachBlock(door, image, [hues](PixelBlock& block, Colour* pixels, std::size_t count) {
        TurnBlock(block, hues);
        block.Join(pixels, count);
    });
}

bool TurnGrey(ProgressDoor* door, Picture& image) {
    return ForEachBlock(door, image, [](PixelBlock& block, Colour* pixels, std::size_t count) {
        for (std::size_t i = 0; i < PixelBlock::Size; ++i) {
            const Level grey = LightnessOf(block.Red[i], block.Green[i], block.Blue[i]);
            block.Red[i] = grey;
            block.Green[i] = grey;
            block.Blue[i] = grey;
        }
        block.Join(pixels, count);
    });
}

using LevelCounts = std::array<std::int64_t, 256>;

/// How many pixels are how light.
bool CountLightness(ProgressDoor* door, Picture& image, LevelCounts& counts) {
    // Neighbours are often alike: two tables, so that one count does not wait for the other.
    LevelCounts others{};
    const bool whole =
        ForEachBlock(door, image, [&](const PixelBlock& block, Colour* pixels, std::size_t count) {
            PixelBlock::Plane light{};
            for (std::size_t i = 0; i < PixelBlock::Size; ++i) {
                light[i] = LightnessOf(block.Red[i], block.Green[i], block.Blue[i]);
            }
            for (std::size_t i = 0; i < count; ++i) {
                LevelCounts& table = i % 2 == 0 ? counts : others;
                table[static_cast<std::size_t>(light[i])] += pixels[i] == EraseColor ? 0 : 1;
            }
        });
    std::transform(counts.begin(), counts.end(), others.begin(), counts.begin(),
                   [](std::int64_t a, std::int64_t b) { return a + b; });
    return whole;
}

/// By how much each lightness changes so that its share of darker pixels matches its place in the
/// scale.
std::array<Level, 256> EqualizingShifts(const LevelCounts& counts) {
    std::int64_t total = 0;
    for (const std::int64_t count : counts) {
        total += count;
    }
    const std::int64_t darkest =
        *std::find_if(counts.begin(), counts.end() - 1, [](std::int64_t n) { return n > 0; });
    std::array<Level, 256> shifts{};
    if (total <= darkest) {
        return shifts;
    }
    std::int64_t darker = 0;
    for (std::size_t i = 0; i < shifts.size(); ++i) {
        darker += counts[i];
        const double share = static_cast<double>(std::max<std::int64_t>(darker - darkest, 0)) *
                             255.0 / static_cast<double>(total - darkest);
        shifts[i] = LevelOf(RoundToInt(share) - static_cast<int>(i));
    }
    return shifts;
}

bool Equalize(ProgressDoor* door, Picture& image) {
    LevelCounts counts{};
    if (!CountLightness(door, image, counts)) {
        return false;
    }
    const std::array<Level, 256> shifts = EqualizingShifts(counts);
    return ForEachBlock(door, image,
                        [&shifts](PixelBlock& block, Colour* pixels, std::size_t count) {
                            PixelBlock::Plane shift{};
                            for (std::size_t i = 0; i < PixelBlock::Size; ++i) {
                                shift[i] = LightnessOf(block.Red[i], block.Green[i], block.Blue[i]);
                            }
                            for (Level& level : shift) {
                                level = shifts[static_cast<std::size_t>(level)];
                            }
                            for (std::size_t i = 0; i < PixelBlock::Size; ++i) {
                                block.Red[i] = InRange(LevelOf(block.Red[i] + shift[i]));
                                block.Green[i] = InRange(LevelOf(block.Green[i] + shift[i]));
                                block.Blue[i] = InRange(LevelOf(block.Blue[i] + shift[i]));
                            }
                            block.Join(pixels, count);
                        });
}

bool Stretch(ProgressDoor* door, Picture& image) {
    // Erased pixels are bright and so darken nothing, but for the brightest they must not count.
    Level low = 255;
    Level high = 0;
    const bool whole =
        ForEachBlock(door, image, [&](const PixelBlock& block, Colour* pixels, std::size_t count) {
            for (std::size_t i = 0; i < count; ++i) {
                const Level least = LeastOf(LeastOf(block.Red[i], block.Green[i]), block.Blue[i]);
                const Level most = MostOf(MostOf(block.Red[i], block.Green[i]), block.Blue[i]);
                low = LeastOf(low, least);
                high = MostOf(high, pixels[i] == EraseColor ? Level{0} : most);
            }
        });
    if (!whole || low >= high) {
        return whole;
    }
    return MapChannels(door, image, TableOf([low, high](double level) {
                           return (level - low) * 255 / (high - low);
                       }));
}

} // namespace

void ChangeBrightness(Picture& image, int amount) {
    MapChannels(nullptr, image, BrightnessTable(amount));
}

void ChangeContrast(Picture& image, int amount) {
    MapChannels(nullptr, image, ContrastTable(amount));
}

void ChangeSaturation(Picture& image, int amount) {
    Saturate(nullptr, image, amount);
}

void ChangeHue(Picture& image, int degrees) {
    TurnHues(nullptr, image, degrees);
}

void ChangeGamma(Picture& image, int hundredths) {
    MapChannels(nullptr, image, GammaTable(hundredths));
}

void EqualizeHistogram(Picture& image) {
    Equalize(nullptr, image);
}

void StretchIntensity(Picture& image) {
    Stretch(nullptr, image);
}

void ConvertToGrey(Picture& image) {
    TurnGrey(nullptr, image);
}

void EnhanceEdges(Picture& image) {
    static_cast<void>(zol::EnhanceEdges(nullptr, image, EdgeResult::Alone));
}

const std::array<Item, 9>& Items() {
    static const std::array<Item, 9> items{{
        {Kind::Brightness, "Brightness", true, -100, 100, 0, 20, 1, 10},
        {Kind::Contrast, "Contrast", true, -100, 100, 0, 20, 1, 10},
        {Kind::Saturation, "Saturation", true, -100, 100, 0, 20, 1, 10},
        {Kind::Hue, "Hue", true, 0, 360, 0, 20, 1, 20},
        {Kind::HistoEqualize, "Histo Equalize", false, 0, 0, 0, 1, 1, 1},
        {Kind::GrayScale, "Gray Scale", false, 0, 0, 0, 1, 1, 1},
        {Kind::EdgeEnhance, "Edge Enhance", false, 0, 0, 0, 1, 1, 1},
        {Kind::StretchIntensity, "Stretch Intensity", false, 0, 0, 0, 1, 1, 1},
        {Kind::GammaCorrect, "Gamma Correct", true, 10, 200, 100, 20, 10, 50},
    }};
    return items;
}

const Item& ItemOf(Kind kind) {
    return Items()[static_cast<std::size_t>(kind)];
}

void Apply(Picture& image, Kind kind, int slider) {
    static_cast<void>(ApplyWhile(nullptr, image, kind, slider));
}

bool ApplyWhile(ProgressDoor* progress, Picture& image, Kind kind, int slider) {
    constexpr int amountOfSlider = 10;
    switch (kind) {
    case Kind::Brightness:
        return MapChannels(progress, image, BrightnessTable(slider * amountOfSlider));
    case Kind::Contrast:
        return MapChannels(progress, image, ContrastTable(slider * amountOfSlider));
    case Kind::Saturation:
        return Saturate(progress, image, slider * amountOfSlider);
    case Kind::Hue:
        return TurnHues(progress, image, slider);
    case Kind::HistoEqualize:
        return Equalize(progress, image);
    case Kind::GrayScale:
        return TurnGrey(progress, image);
    case Kind::EdgeEnhance:
        // The edges alone would be a dark picture: they are added to what was there.
        return zol::EnhanceEdges(progress, image, EdgeResult::Added);
    case Kind::StretchIntensity:
        return Stretch(progress, image);
    case Kind::GammaCorrect:
        return MapChannels(progress, image, GammaTable(slider));
    }
    return true;
}

} // namespace zol::Adjustments
