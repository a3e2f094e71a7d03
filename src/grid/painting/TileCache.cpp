// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/TileCache.h"

#include <algorithm>

#include "grid/painting/PaintColors.h"
#include "grid/painting/StitchLayers.h"
#include "grid/painting/StitchPixels.h"
#include "grid/painting/TileCopy.h"

namespace zol {

namespace {

/// Copies the pixels of a picture of the target's size that are not transparent.
void CopyOpaque(const PixelBuffer& target, const QImage& part) {
    for (int y = 0; y < target.Height; ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(part.constScanLine(y));
        QRgb* to = target.Row(y);
        for (int x = 0; x < target.Width; ++x) {
            if (qAlpha(from[x]) != 0) {
                to[x] = from[x];
            }
        }
    }
}

void Fill(const PixelBuffer& target, QRgb colour) {
    for (int y = 0; y < target.Height; ++y) {
        std::fill_n(target.Row(y), target.Width, colour);
    }
}

} // namespace

TileCache::TileCache(StitchImages& images, SymbolText& symbols)
    : m_images(images),
      m_symbols(symbols),
      m_masks(symbols) {
    m_flosses.fill(ToRgb(0));
}

void TileCache::Begin(const GridView& view) {
    ++m_paint;
    const Palette& palette = view.Source->GetPalette();
    const PaintOptions& options = view.Options;
    Setting setting{options.StitchStyle,    options.Ground(),      options.Antialias,
                    options.SymbolScale,    palette.GetFontName(), palette.GetFontBold(),
                    palette.GetFontItalic()};
    if (setting != m_setting || m_bytes + m_masks.Bytes() > Budget) {
        Clear();
        m_setting = std::move(setting);
        m_symbols.SetFont(palette);
        m_masks.SetAntialias(options.Antialias);
        m_masks.SetSymbolScale(options.SymbolScale);
    }
    m_ground = ToRgb(options.Ground());
    // Numbers behind the palette's entries look as they did, unless it has become shorter.
    const int entries = std::min(palette.GetEntriesCount(), 255);
    const int last = std::max(entries, m_entries);
    m_entries = entries;
    for (int floss = 0; floss <= last; ++floss) {
        const Look look{palette.GetFlossRGB(floss), palette.GetFlossSymbol(floss)};
        if (look != m_looks[static_cast<std::size_t>(floss)]) {
            TakeFloss(static_cast<std::uint8_t>(floss), look);
        }
    }
    PrepareSymbols();
}

void TileCache::PrepareSymbols() {
    // Fonts belong to the thread that made them: those that paint find the outlines taken.
    if (m_setting.style >= ShowBlackSymbols && m_setting.style <= ShowColorBlocksSymbols) {
        for (const Look& look : m_looks) {
            m_symbols.Prepare(look.Symbol);
        }
    }
}

void TileCache::Clear() {
    m_masks.Clear();
    m_sizes.clear();
    m_tiles.clear();
    m_bytes = 0;
}

void TileCache::TakeFloss(std::uint8_t floss, const Look& look) {
    m_looks[floss] = look;
    m_flosses[floss] = ToRgb(look.Floss);
    for (auto& entry : m_sizes) {
        for (std::size_t kind = 0; kind < Size::Kinds; ++kind) {
            entry.second->m_tiles[kind * 256 + floss].store(nullptr, std::memory_order_relaxed);
            entry.second->m_overlays[kind * 256 + floss].store(nullptr, std::memory_order_relaxed);
        }
    }
}

TileCache::Size& TileCache::SizeOf(int width, int height) {
    const std::lock_guard lock(m_making);
    const std::uint64_t key =
        (static_cast<std::uint64_t>(width) << 32U) | static_cast<std::uint32_t>(height);
    std::unique_ptr<Size>& size = m_sizes[key];
    if (!size) {
        size = std::make_unique<Size>(width, height);
        m_bytes += sizeof(Size);
    }
    return *size;
}

QRgb* TileCache::NewPicture(const Size& size) {
    const auto pixels =
        static_cast<std::size_t>(size.m_width) * static_cast<std::size_t>(size.m_height);
    m_tiles.push_back(std::make_unique<QRgb[]>(pixels));
    m_bytes += pixels * sizeof(QRgb);
    return m_tiles.back().get();
}

const QRgb* TileCache::Make(Size& size, std::uint8_t kind, std::uint8_t floss) {
    QRgb* tile = NewPicture(size);
    const PixelBuffer target{tile, size.m_width, size.m_width, size.m_height};
    Fill(target, m_ground);
    if (m_setting.style == ShowVStitches && kind != 0) {
        MakeImage(tile, size, kind, floss);
    } else {
        AddStitch(target, size, {kind, floss});
    }
    size.m_tiles[kind * std::size_t{256} + floss].store(tile, std::memory_order_release);
    return tile;
}

const QRgb* TileCache::MakeAlone(Size& size, std::uint8_t kind, std::uint8_t floss) {
    const std::lock_guard lock(m_making);
    // Another thread may have been faster.
    const QRgb* tile = size.m_tiles[kind * std::size_t{256} + floss].load(Ready);
    return tile != nullptr ? tile : Make(size, kind, floss);
}

const QRgb* TileCache::Overlay(Size& size, std::uint8_t kind, std::uint8_t floss) {
    const std::atomic<const QRgb*>& place = size.m_overlays[kind * std::size_t{256} + floss];
    const QRgb* overlay = place.load(Ready);
    if (overlay == nullptr) {
        const std::lock_guard lock(m_making);
        overlay = place.load(Ready);
        overlay = overlay != nullptr ? overlay : MakeOverlay(size, kind, floss);
    }
    return overlay;
}

const PixelMask& TileCache::KnotMask(int orientation, int width, int height, int penWidth,
                                     bool filled) {
    const std::lock_guard lock(m_making);
    return m_masks.Knot(orientation, width, height, penWidth, filled);
}

const PixelMask& TileCache::KnotSymbol(int symbol, int width, int height) {
    const std::lock_guard lock(m_making);
    return m_masks.Symbol(symbol, StitchFKnot, width, height);
}

const QRgb* TileCache::MakeOverlay(Size& size, std::uint8_t kind, std::uint8_t floss) {
    // What a stitch lets through is what differs between it on black and on white.
    QRgb* overlay = NewPicture(size);
    const auto pixels =
        static_cast<std::size_t>(size.m_width) * static_cast<std::size_t>(size.m_height);
    std::vector<QRgb> onWhite(pixels);
    const PixelBuffer black{overlay, size.m_width, size.m_width, size.m_height};
    const PixelBuffer white{onWhite.data(), size.m_width, size.m_width, size.m_height};
    Fill(black, qRgb(0, 0, 0));
    Fill(white, qRgb(255, 255, 255));
    AddStitch(black, size, {kind, floss});
    AddStitch(white, size, {kind, floss});
    for (std::size_t i = 0; i < pixels; ++i) {
        const QRgb ink = overlay[i];
        const int alpha = std::clamp(255 - qGreen(onWhite[i]) + qGreen(ink), 0, 255);
        overlay[i] = qRgba(std::min(qRed(ink), alpha), std::min(qGreen(ink), alpha),
                           std::min(qBlue(ink), alpha), alpha);
    }
    size.m_overlays[kind * std::size_t{256} + floss].store(overlay, std::memory_order_release);
    return overlay;
}

void TileCache::Compose(const PixelBuffer& target, Size& size, const SquareContent& content) {
    const auto kindOf = [](const SquareContent::Stitch& stitch) {
        return stitch.Kind < Size::Kinds ? stitch.Kind : std::uint8_t{0};
    };
    const SquareContent::Stitch* stitch = content.begin();
    // Laid over the first stitch's tile, and from then on over what is there: of the smallest
    // squares, which are a few pixels, a copy of its own would take as long as all the rest.
    const QRgb* below = Tile(size, stitch->Kind, stitch->PaletteIndex);
    std::ptrdiff_t stride = target.Width;
    if (content.StitchCount() == 1) {
        TileCopierFor(target.Width)(below, target.Pixels, target.Stride, target.Height,
                                    target.Width);
    }
    while (++stitch != content.end()) {
        const QRgb* over = Overlay(size, kindOf(*stitch), stitch->PaletteIndex);
        for (int y = 0; y < target.Height; ++y, below += stride, over += target.Width) {
            QRgb* row = target.Row(y);
            for (int x = 0; x < target.Width; ++x) {
                QRgb pixel = below[x];
                OverlayPixel(pixel, over[x]);
                row[x] = pixel;
            }
        }
        below = target.Pixels;
        stride = target.Stride;
    }
}

void TileCache::AddStitch(const PixelBuffer& target, Size& size,
                          const SquareContent::Stitch& stitch) {
    for (const StitchLayer& layer : LayersOf(m_setting.style, stitch.Kind)) {
        AddLayer(target, size, layer, stitch.PaletteIndex);
    }
}

void TileCache::AddLayer(const PixelBuffer& target, Size& size, const StitchLayer& layer,
                         std::uint8_t floss) {
    const Look& look = m_looks[floss];
    const QRgb ink = ToRgb(InkOf(layer.Colour, look.Floss));
    const int width = size.m_width;
    const int height = size.m_height;
    const auto blend = [&](const PixelMask*& known, const auto& find) {
        if (known == nullptr) {
            known = &find();
        }
        BlendMask(target, known->Left, known->Top, *known, ink);
    };
    switch (layer.What) {
    case StitchLayer::Paint::Fill:
        if (layer.Kind == StitchWhole) {
            Fill(target, ink);
        } else {
            blend(size.m_shapes[layer.Kind],
                  [&]() -> const PixelMask& { return m_masks.Shape(layer.Kind, width, height); });
        }
        break;
    case StitchLayer::Paint::Outline:
        blend(size.m_outlines[layer.Kind],
              [&]() -> const PixelMask& { return m_masks.Outline(layer.Kind, width, height); });
        break;
    case StitchLayer::Paint::Symbol:
        if (look.Symbol > 0 && look.Symbol < 256) {
            const auto at = layer.Kind * std::size_t{256} + static_cast<std::size_t>(look.Symbol);
            blend(size.m_symbols[at], [&]() -> const PixelMask& {
                return m_masks.Symbol(look.Symbol, layer.Kind, width, height);
            });
        }
        break;
    case StitchLayer::Paint::Image:
        AddImage(target, size, layer.Kind, floss);
        break;
    }
}

void TileCache::MakeImage(QRgb* tile, Size& size, std::uint8_t kind, std::uint8_t floss) {
    const QImage image = m_images.Image(m_images.SlotOf(m_looks[floss].Floss, m_setting.ground));
    CopyOpaque({tile, size.m_width, size.m_width, size.m_height},
               StitchPixels::ImagePart(image, kind, size.m_width, size.m_height));
}

void TileCache::AddImage(const PixelBuffer& target, Size& size, std::uint8_t kind,
                         std::uint8_t floss) {
    const PixelMask*& region = size.m_regions[kind];
    if (region == nullptr) {
        region = &m_masks.ImageRegion(kind, size.m_width, size.m_height);
    }
    const QRgb* tile = size.m_tiles[kind * std::size_t{256} + floss].load(Ready);
    tile = tile != nullptr ? tile : Make(size, kind, floss);
    const QRgb* from =
        tile + static_cast<std::ptrdiff_t>(region->Top) * target.Width + region->Left;
    for (int y = 0; y < region->Height; ++y, from += target.Width) {
        const std::uint8_t* cover = region->Row(y);
        QRgb* to = target.Row(region->Top + y) + region->Left;
        for (int x = 0; x < region->Width; ++x) {
            if (cover[x] != 0) {
                to[x] = from[x];
            }
        }
    }
}

} // namespace zol
