// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRect>

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

#include "grid/painting/StitchShapes.h"
#include "grid/painting/SymbolText.h"

namespace zol {

/// How much of each pixel a shape covers, 0 to 255.
struct PixelMask {
    int Left = 0; ///< of its first column, in the shape's own coordinates
    int Top = 0;
    int Width = 0;
    int Height = 0;
    std::vector<std::uint8_t> Cover;

    [[nodiscard]] const std::uint8_t* Row(int row) const {
        return Cover.data() + static_cast<std::size_t>(row) * static_cast<std::size_t>(Width);
    }
};

/// Pixels that shapes are blended into: rows of `Stride` pixels.
struct PixelBuffer {
    QRgb* Pixels = nullptr;
    std::ptrdiff_t Stride = 0;
    int Width = 0;
    int Height = 0;

    [[nodiscard]] QRgb* Row(int row) const { return Pixels + row * Stride; }
};

/// Mixes a colour into a pixel, `cover` of 255 parts.
inline void BlendPixel(QRgb& pixel, QRgb colour, unsigned cover) {
    if (cover == 255) {
        pixel = colour;
    } else if (cover != 0) {
        const auto mix = [cover](QRgb a, QRgb b) {
            const QRgb sum = (b & 0xFF00FFU) * cover + (a & 0xFF00FFU) * (255 - cover) + 0x800080U;
            return ((sum + ((sum >> 8U) & 0xFF00FFU)) >> 8U) & 0xFF00FFU;
        };
        pixel = 0xFF000000U | mix(pixel, colour) | ((mix(pixel >> 8U, colour >> 8U) & 0xFFU) << 8U);
    }
}

/// Mixes a colour into pixels by a mask whose upper left corner stands at (x, y); what falls
/// outside is cut.
void BlendMask(const PixelBuffer& target, int x, int y, const PixelMask& mask, QRgb colour);

/// The masks of stitch shapes, symbols and knots, each made once a size with the very code that
/// paints them elsewhere.
class MaskStore {
public:
    explicit MaskStore(SymbolText& symbols) : m_symbols(symbols) {}

    void Clear();
    void SetAntialias(bool on) { m_antialias = on; }
    void SetSymbolScale(double scale) { m_symbolScale = scale; }
    [[nodiscard]] std::size_t Bytes() const { return m_bytes; }

    [[nodiscard]] const PixelMask& Shape(int kind, int width, int height);
    [[nodiscard]] const PixelMask& Outline(int kind, int width, int height);
    /// A symbol in a kind's part of a square.
    [[nodiscard]] const PixelMask& Symbol(int symbol, int kind, int width, int height);
    /// 255 where a kind takes pixels of the stitch image.
    [[nodiscard]] const PixelMask& ImageRegion(int kind, int width, int height);
    /// A knot whose box stands at (0, 0); the sizes are those of KnotShapes::Box.
    [[nodiscard]] const PixelMask& Knot(int orientation, int width, int height, int penWidth,
                                        bool filled);

private:
    using Paint = std::function<void(QPainter&)>;
    enum Sort : std::uint8_t { ShapeSort, OutlineSort, SymbolSort, ImageSort, KnotSort, DiscSort };

    [[nodiscard]] const PixelMask* Find(std::uint64_t key) const;
    const PixelMask& Make(std::uint64_t key, const QRect& area, const Paint& paint);
    const PixelMask& Keep(std::uint64_t key, PixelMask mask);

    SymbolText& m_symbols;
    bool m_antialias = true;
    double m_symbolScale = 1;
    std::size_t m_bytes = 0;
    std::unordered_map<std::uint64_t, PixelMask> m_masks;
};

} // namespace zol
