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

/// The channels of a pixel in lanes of 16 bits, with room for products.
[[nodiscard]] constexpr std::uint64_t LanesOf(QRgb pixel) {
    return (pixel | (std::uint64_t{pixel} << 24U)) & 0x00FF00FF00FF00FFU;
}
/// Lanes of products with 255 parts as a pixel again, rounded.
[[nodiscard]] constexpr QRgb PixelOf(std::uint64_t products) {
    constexpr std::uint64_t low = 0x00FF00FF00FF00FFU;
    products += 0x0080008000800080U;
    products = ((products + ((products >> 8U) & low)) >> 8U) & low;
    return static_cast<QRgb>(products | (products >> 24U));
}

/// Mixes a colour into a pixel, `cover` of 255 parts. Nothing here branches by the cover, which
/// no machine can foretell along an edge.
inline void BlendPixel(QRgb& pixel, QRgb colour, unsigned cover) {
    pixel = PixelOf(LanesOf(colour) * cover + LanesOf(pixel) * (255 - cover)) | 0xFF000000U;
}

/// Mixes a premultiplied pixel into another.
inline void OverlayPixel(QRgb& pixel, QRgb over) {
    pixel = (over + PixelOf(LanesOf(pixel) * (255 - (over >> 24U)))) | 0xFF000000U;
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
