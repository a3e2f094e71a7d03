// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

#include "grid/painting/GridView.h"
#include "grid/painting/PixelMasks.h"
#include "grid/painting/SquareContent.h"
#include "grid/painting/StitchImages.h"
#include "grid/painting/StitchLayers.h"
#include "grid/painting/SymbolText.h"

namespace zol {

/// The pictures of single stitches, ground included. Squares of the same floss, kind and size look
/// the same, so each is made once and copied. Kept between paints; what a change of floss, font or
/// options makes stale goes when the next paint begins.
///
/// Begin() is for one thread alone; what else is public may be called from several at once, each
/// with pixels of its own.
class TileCache {
public:
    TileCache(StitchImages& images, SymbolText& symbols);

    /// The tiles of one size of square.
    class Size {
    public:
        Size(int width, int height) : m_width(width), m_height(height) {}
        [[nodiscard]] int Width() const { return m_width; }
        [[nodiscard]] int Height() const { return m_height; }

    private:
        friend class TileCache;
        /// Kinds that tiles are made of; any other looks like bare ground, as kind 0.
        static constexpr std::size_t Kinds = 13;
        int m_width;
        int m_height;
        using Pictures = std::array<std::atomic<const QRgb*>, Kinds * 256>;
        Pictures m_tiles{};
        /// Without ground, premultiplied: what lies above another stitch.
        Pictures m_overlays{};
        // Masks of the store, so that squares with several stitches need not search for them.
        std::array<const PixelMask*, Kinds> m_shapes{};
        std::array<const PixelMask*, Kinds> m_outlines{};
        std::array<const PixelMask*, Kinds> m_regions{};
        std::array<const PixelMask*, Kinds * 256> m_symbols{};
    };

    /// To be called before each paint: takes over palette and options. Sizes and tiles given
    /// before are void.
    void Begin(const GridView& view);
    /// Which paint is in work, from 1 on.
    [[nodiscard]] std::uint64_t Paint() const { return m_paint; }
    [[nodiscard]] Size& SizeOf(int width, int height);

    /// Rows of Width pixels without gaps.
    [[nodiscard]] const QRgb* Tile(Size& size, std::uint8_t kind, std::uint8_t floss) {
        if (kind >= Size::Kinds) {
            kind = 0;
            floss = 0;
        }
        const QRgb* tile = size.m_tiles[std::size_t{kind} * 256 + floss].load(Ready);
        return tile != nullptr ? tile : MakeAlone(size, kind, floss);
    }
    /// Paints the stitches of a square that has some, ground included, into Width x Height pixels.
    void Compose(const PixelBuffer& target, Size& size, const SquareContent& content);

    [[nodiscard]] QRgb GroundOf() const { return m_ground; }
    /// The colours of all 256 floss numbers.
    [[nodiscard]] const QRgb* Flosses() const { return m_flosses.data(); }
    [[nodiscard]] Colour ColourOf(std::uint8_t floss) const { return m_looks[floss].Floss; }
    [[nodiscard]] int SymbolOf(std::uint8_t floss) const { return m_looks[floss].Symbol; }
    /// Masks of knots and of symbols in them; good for the paint.
    [[nodiscard]] const PixelMask& KnotMask(int orientation, int width, int height, int penWidth,
                                            bool filled);
    [[nodiscard]] const PixelMask& KnotSymbol(int symbol, int width, int height);

private:
    /// What was written into a picture is seen by whoever finds it.
    static constexpr auto Ready = std::memory_order_acquire;

    /// What a floss's tiles depend on.
    struct Look {
        Colour Floss = 0;
        int Symbol = 0;
        friend bool operator==(const Look&, const Look&) = default;
    };
    /// What all tiles depend on.
    struct Setting {
        int style = 0;
        Colour ground = 0;
        bool antialias = true;
        double symbolScale = 1;
        std::string font;
        bool bold = false;
        bool italic = false;
        friend bool operator==(const Setting&, const Setting&) = default;
    };
    /// Memory that tiles and masks may hold from one paint to the next.
    static constexpr std::size_t Budget = std::size_t{32} << 20U;

    void Clear();
    void TakeFloss(std::uint8_t floss, const Look& look);
    void PrepareSymbols();
    /// Make() for any thread.
    const QRgb* MakeAlone(Size& size, std::uint8_t kind, std::uint8_t floss);
    [[nodiscard]] const QRgb* Overlay(Size& size, std::uint8_t kind, std::uint8_t floss);
    // From here on the caller holds the lock.
    [[nodiscard]] QRgb* NewPicture(const Size& size);
    const QRgb* Make(Size& size, std::uint8_t kind, std::uint8_t floss);
    const QRgb* MakeOverlay(Size& size, std::uint8_t kind, std::uint8_t floss);
    void AddStitch(const PixelBuffer& target, Size& size, const SquareContent::Stitch& stitch);
    void AddLayer(const PixelBuffer& target, Size& size, const StitchLayer& layer,
                  std::uint8_t floss);
    void AddImage(const PixelBuffer& target, Size& size, std::uint8_t kind, std::uint8_t floss);
    void MakeImage(QRgb* tile, Size& size, std::uint8_t kind, std::uint8_t floss);

    std::mutex m_making; ///< held by whoever adds to what is kept, or looks into the mask store
    StitchImages& m_images;
    SymbolText& m_symbols;
    MaskStore m_masks;
    Setting m_setting;
    std::uint64_t m_paint = 0;
    QRgb m_ground = 0;
    std::array<Look, 256> m_looks{};
    int m_entries = 255; ///< of the palette that the looks were taken from
    std::array<QRgb, 256> m_flosses{};
    std::unordered_map<std::uint64_t, std::unique_ptr<Size>> m_sizes;
    std::vector<std::unique_ptr<QRgb[]>> m_tiles;
    std::size_t m_bytes = 0;
};

} // namespace zol
