// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "import/Picture.h"
#include "model/Doors.h"

namespace zol {

/// A level of a channel with room for arithmetic. Sixteen bits, so that the vector unit takes
/// eight of them at once: a step of a slider has to keep up with the hand that moves it.
using Level = std::int16_t;

[[nodiscard]] constexpr Level LevelOf(int value) {
    return static_cast<Level>(value);
}
[[nodiscard]] constexpr Level LeastOf(Level a, Level b) {
    return a < b ? a : b;
}
[[nodiscard]] constexpr Level MostOf(Level a, Level b) {
    return a > b ? a : b;
}
/// Brought into 0 to 255.
[[nodiscard]] constexpr Level InRange(Level level) {
    return LeastOf(MostOf(level, 0), 255);
}
/// The upper half of a product of two numbers of 16 bits.
[[nodiscard]] constexpr std::uint16_t UpperProduct(std::uint16_t a, std::uint16_t b) {
    return static_cast<std::uint16_t>((std::uint32_t{a} * std::uint32_t{b}) >> 16U);
}
/// How light a colour is to the eye (Rec. 601, in 256ths), 0 to 255.
[[nodiscard]] constexpr Level LightnessOf(Level red, Level green, Level blue) {
    const auto sum = static_cast<std::uint16_t>(red * 77 + green * 150 + blue * 29 + 128);
    return static_cast<Level>(static_cast<std::uint16_t>(sum >> 8U));
}

/// Some neighbouring pixels, a plane a channel.
struct PixelBlock {
    static constexpr std::size_t Size = 256;
    using Plane = std::array<Level, Size>;

    Plane Red{};
    Plane Green{};
    Plane Blue{};

    void Split(const Colour* pixels, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            Red[i] = static_cast<Level>(pixels[i] & 255U);
            Green[i] = static_cast<Level>((pixels[i] >> 8U) & 255U);
            Blue[i] = static_cast<Level>((pixels[i] >> 16U) & 255U);
        }
    }
    /// Levels in range; erased pixels stay erased.
    void Join(Colour* pixels, std::size_t count) const {
        for (std::size_t i = 0; i < count; ++i) {
            const Colour changed = static_cast<std::uint16_t>(Red[i]) |
                                   (Colour{static_cast<std::uint16_t>(Green[i])} << 8U) |
                                   (Colour{static_cast<std::uint16_t>(Blue[i])} << 16U);
            pixels[i] = pixels[i] == EraseColor ? EraseColor : changed;
        }
    }
};

/// Walks a picture in bands between which the door (which may be null) is asked; false if it
/// stopped the walk. `work` gets the first pixel and the number of pixels of each.
template<typename Work>
bool ForEachBand(ProgressDoor* door, Picture& image, Work work) {
    constexpr std::size_t band = PixelBlock::Size * 256; // a fraction of a millisecond
    std::vector<Colour>& pixels = image.Pixels();
    for (std::size_t begin = 0; begin < pixels.size(); begin += band) {
        if (door != nullptr && !door->MayGoOn()) {
            return false;
        }
        work(pixels.data() + begin, std::min(band, pixels.size() - begin));
    }
    return true;
}

/// The same, block by block, each split into its planes. Planes may be changed and are joined
/// again only by who wants it.
template<typename Work>
bool ForEachBlock(ProgressDoor* door, Picture& image, Work work) {
    PixelBlock block;
    return ForEachBand(door, image, [&block, &work](Colour* pixels, std::size_t count) {
        for (std::size_t begin = 0; begin < count; begin += PixelBlock::Size) {
            const std::size_t size = std::min(PixelBlock::Size, count - begin);
            block.Split(pixels + begin, size);
            work(block, pixels + begin, size);
        }
    });
}

} // namespace zol
