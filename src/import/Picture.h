// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "model/ZOLTypes.h"

namespace zol {

/// A pixel of this colour is a square left empty.
inline constexpr Colour EraseColor = 0x00FFFFFF;
/// What a really white area of a picture becomes, so that only erased squares are pure white.
inline constexpr Colour WhiteStandIn = 0x00F7F7F7;
/// A fully transparent pixel of a picture that RemapWhite has not passed yet: white with a mark
/// above the colour, so that it stays apart from a white that is to be stitched.
inline constexpr Colour TransparentPixel = 0x80FFFFFF;

/// A rectangle of pixels, counted from 0; Width and Height are numbers of pixels.
struct PixelRect {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

/// A picture of 8 bits a channel: rows from the top, pixels 0x00BBGGRR. Positions count from 0.
class Picture {
public:
    Picture() = default;
    /// A picture of pure white.
    Picture(int width, int height) { NewBitmap(width, height); }
    /// Rows of that width, one after the other; their pixels are taken over. A last row that is
    /// not whole is dropped.
    Picture(int width, std::vector<Colour> pixels) {
        if (width > 0 && pixels.size() >= static_cast<std::size_t>(width)) {
            m_width = width;
            m_height = static_cast<int>(pixels.size() / static_cast<std::size_t>(width));
            m_pixels = std::move(pixels);
            m_pixels.resize(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height));
        }
    }

    /// Starts over at that size, all pure white. A side below 1 gives the empty picture.
    void NewBitmap(int width, int height) {
        const bool empty = width < 1 || height < 1;
        m_width = empty ? 0 : width;
        m_height = empty ? 0 : height;
        m_pixels.assign(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height),
                        EraseColor);
    }

    [[nodiscard]] int ImageWidth() const { return m_width; }
    [[nodiscard]] int ImageHeight() const { return m_height; }
    [[nodiscard]] bool IsEmpty() const { return m_pixels.empty(); }

    [[nodiscard]] Colour ImagePixel(int x, int y) const { return m_pixels[PlaceOf(x, y)]; }
    void SetImagePixel(int x, int y, Colour colour) { m_pixels[PlaceOf(x, y)] = colour; }

    [[nodiscard]] const std::vector<Colour>& Pixels() const { return m_pixels; }
    [[nodiscard]] std::vector<Colour>& Pixels() { return m_pixels; }
    [[nodiscard]] const Colour* Row(int y) const { return m_pixels.data() + PlaceOf(0, y); }
    [[nodiscard]] Colour* Row(int y) { return m_pixels.data() + PlaceOf(0, y); }

    friend bool operator==(const Picture&, const Picture&) = default;

private:
    [[nodiscard]] std::size_t PlaceOf(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
               static_cast<std::size_t>(x);
    }

    int m_width = 0;
    int m_height = 0;
    std::vector<Colour> m_pixels;
};

/// A picture that several screens show and none of them changes: who changes one makes a new one.
using SharedPicture = std::shared_ptr<const Picture>;

} // namespace zol
