// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/Adjustments.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include "model/Doors.h"
#include "model/Rounding.h"

namespace zol::Adjustments {

namespace {

struct Channels {
    int Red;
    int Green;
    int Blue;
};

Channels ChannelsOf(Colour colour) {
    return {static_cast<int>(colour & 255U), static_cast<int>((colour >> 8U) & 255U),
            static_cast<int>((colour >> 16U) & 255U)};
}

unsigned Clamped(int value) {
    return static_cast<unsigned>(std::clamp(value, 0, 255));
}

Colour ColourOf(const Channels& channels) {
    return MakeColour(Clamped(channels.Red), Clamped(channels.Green), Clamped(channels.Blue));
}

/// Lightness as the eye weighs the channels (Rec. 601), 0 to 255.
int LightnessOf(const Channels& channels) {
    return (channels.Red * 299 + channels.Green * 587 + channels.Blue * 114 + 500) / 1000;
}

/// Band by band; false if the door stopped it.
template<typename Change>
bool ForEachPixel(ProgressDoor* door, Picture& image, Change change) {
    constexpr std::size_t band = 65536; // a fraction of a millisecond
    std::vector<Colour>& pixels = image.Pixels();
    for (std::size_t begin = 0; begin < pixels.size(); begin += band) {
        if (door != nullptr && !door->MayGoOn()) {
            return false;
        }
        const std::size_t end = std::min(begin + band, pixels.size());
        for (std::size_t i = begin; i < end; ++i) {
            if (pixels[i] != EraseColor) {
                pixels[i] = change(pixels[i]);
            }
        }
    }
    return true;
}

using LevelTable = std::array<std::uint8_t, 256>;

template<typename Level>
LevelTable TableOf(Level level) {
    LevelTable table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i] = static_cast<std::uint8_t>(
            std::clamp(RoundHalfEven(level(static_cast<double>(i))), 0.0, 255.0));
    }
    return table;
}

bool MapChannels(ProgressDoor* door, Picture& image, const LevelTable& table) {
    return ForEachPixel(door, image, [&table](Colour pixel) {
        return MakeColour(table[pixel & 255U], table[(pixel >> 8U) & 255U],
                          table[(pixel >> 16U) & 255U]);
    });
}

double ThousandthsOf(int amount) {
    return std::clamp(amount, -1000, 1000) / 1000.0;
}

/// A colour with its hue turned by `turn` sixths of the circle; lightest and darkest channel stay.
Colour TurnHue(Colour colour, double turn) {
    const Channels channels = ChannelsOf(colour);
    const auto [low, high] = std::minmax({channels.Red, channels.Green, channels.Blue});
    const int span = high - low;
    if (span == 0) {
        return colour;
    }
    double hue = 0;
    if (channels.Red == high) {
        hue = static_cast<double>(channels.Green - channels.Blue) / span;
    } else if (channels.Green == high) {
        hue = 2 + static_cast<double>(channels.Blue - channels.Red) / span;
    } else {
        hue = 4 + static_cast<double>(channels.Red - channels.Green) / span;
    }
    const double turned = hue + turn + 6;
    // A channel is full within a sixth of its own hue and gone beyond two sixths.
    const auto channelAt = [turned, low = low, span](double own) {
        const double away = std::fabs(std::fmod(turned - own + 9, 6.0) - 3);
        return RoundToInt(low + span * std::clamp(2 - away, 0.0, 1.0));
    };
    return ColourOf({channelAt(0), channelAt(2), channelAt(4)});
}

/// Where lightness goes so that its share of darker pixels matches its place in the scale.
std::array<int, 256> EqualizedLightness(const Picture& image) {
    std::array<std::int64_t, 256> counts{};
    std::int64_t total = 0;
    for (const Colour pixel : image.Pixels()) {
        if (pixel != EraseColor) {
            ++counts[static_cast<std::size_t>(LightnessOf(ChannelsOf(pixel)))];
            ++total;
        }
    }
    std::array<int, 256> levels{};
    std::int64_t darker = 0;
    const std::int64_t darkest =
        *std::find_if(counts.begin(), counts.end() - 1, [](std::int64_t n) { return n > 0; });
    for (std::size_t i = 0; i < levels.size(); ++i) {
        darker += counts[i];
        levels[i] =
            total > darkest
                ? RoundToInt(static_cast<double>(std::max<std::int64_t>(darker - darkest, 0)) *
                             255.0 / static_cast<double>(total - darkest))
                : static_cast<int>(i);
    }
    return levels;
}

/// How much brighter a channel is than the mean of its neighbours that are not erased.
Colour EdgeAt(const Picture& image, int x, int y) {
    Channels sum{0, 0, 0};
    int neighbours = 0;
    const int left = std::max(x - 1, 0);
    const int right = std::min(x + 1, image.ImageWidth() - 1);
    for (int row = std::max(y - 1, 0); row <= std::min(y + 1, image.ImageHeight() - 1); ++row) {
        const Colour* pixels = image.Row(row);
        for (int column = left; column <= right; ++column) {
            if (pixels[column] == EraseColor) {
                continue;
            }
            const Channels channels = ChannelsOf(pixels[column]);
            sum.Red += channels.Red;
            sum.Green += channels.Green;
            sum.Blue += channels.Blue;
            ++neighbours;
        }
    }
    // The pixel itself is in the sum: it takes nothing away from the differences.
    const Channels own = ChannelsOf(image.ImagePixel(x, y));
    return ColourOf({own.Red - sum.Red / neighbours, own.Green - sum.Green / neighbours,
                     own.Blue - sum.Blue / neighbours});
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

bool Saturate(ProgressDoor* door, Picture& image, int amount) {
    const int factor = 1000 + std::clamp(amount, -1000, 1000);
    return ForEachPixel(door, image, [factor](Colour pixel) {
        const Channels channels = ChannelsOf(pixel);
        const int grey = LightnessOf(channels);
        const auto away = [grey, factor](int channel) {
            const int scaled = (channel - grey) * factor;
            return grey + (scaled >= 0 ? scaled + 500 : scaled - 500) / 1000;
        };
        return ColourOf({away(channels.Red), away(channels.Green), away(channels.Blue)});
    });
}

bool TurnHues(ProgressDoor* door, Picture& image, int degrees) {
    const double turn = std::clamp(degrees, 0, 360) % 360 / 60.0;
    return turn <= 0 ||
           ForEachPixel(door, image, [turn](Colour pixel) { return TurnHue(pixel, turn); });
}

bool Equalize(ProgressDoor* door, Picture& image) {
    const std::array<int, 256> levels = EqualizedLightness(image);
    return ForEachPixel(door, image, [&levels](Colour pixel) {
        const Channels channels = ChannelsOf(pixel);
        const int lightness = LightnessOf(channels);
        const int shift = levels[static_cast<std::size_t>(lightness)] - lightness;
        return ColourOf({channels.Red + shift, channels.Green + shift, channels.Blue + shift});
    });
}

bool Stretch(ProgressDoor* door, Picture& image) {
    int low = 255;
    int high = 0;
    for (const Colour pixel : image.Pixels()) {
        if (pixel != EraseColor) {
            const Channels channels = ChannelsOf(pixel);
            low = std::min({low, channels.Red, channels.Green, channels.Blue});
            high = std::max({high, channels.Red, channels.Green, channels.Blue});
        }
    }
    return low >= high || MapChannels(door, image, TableOf([low, high](double level) {
                                          return (level - low) * 255 / (high - low);
                                      }));
}

bool TurnGrey(ProgressDoor* door, Picture& image) {
    return ForEachPixel(door, image, [](Colour pixel) {
        const int grey = LightnessOf(ChannelsOf(pixel));
        return ColourOf({grey, grey, grey});
    });
}

bool FindEdges(ProgressDoor* door, Picture& image) {
    Picture edges = image;
    for (int y = 0; y < image.ImageHeight(); ++y) {
        if (door != nullptr && !door->MayGoOn()) {
            return false;
        }
        for (int x = 0; x < image.ImageWidth(); ++x) {
            if (image.ImagePixel(x, y) != EraseColor) {
                edges.SetImagePixel(x, y, EdgeAt(image, x, y));
            }
        }
    }
    image = std::move(edges);
    return true;
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
    FindEdges(nullptr, image);
}

void AddBitmap(Picture& image, const Picture& other) {
    const std::vector<Colour>& added = other.Pixels();
    std::size_t at = 0;
    for (Colour& pixel : image.Pixels()) {
        const Channels a = ChannelsOf(pixel);
        const Channels b = ChannelsOf(added[at++]);
        pixel = ColourOf({a.Red + b.Red, a.Green + b.Green, a.Blue + b.Blue});
    }
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
    case Kind::EdgeEnhance: {
        // The edges alone would be a dark picture: they are added to what was there.
        Picture edges = image;
        if (!FindEdges(progress, edges)) {
            return false;
        }
        AddBitmap(image, edges);
        return true;
    }
    case Kind::StretchIntensity:
        return Stretch(progress, image);
    case Kind::GammaCorrect:
        return MapChannels(progress, image, GammaTable(slider));
    }
    return true;
}

} // namespace zol::Adjustments
