// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/StitchLayers.h"

#include <array>
#include <initializer_list>
#include <vector>

#include "grid/painting/PaintColors.h"

namespace zol {

namespace {

using Paint = StitchLayer::Paint;
using Ink = StitchLayer::Ink;
using Layers = std::vector<StitchLayer>;

constexpr int Styles = 7;
constexpr int Kinds = 13;

bool IsPart(int kind) {
    return kind >= StitchUL3Q && kind <= StitchBTH;
}

Layers SymbolLayers(int kind, Ink ink) {
    Layers layers;
    const auto code = static_cast<std::uint8_t>(kind);
    if (IsPart(kind)) {
        layers.push_back({Paint::Outline, code, ink});
    }
    layers.push_back({Paint::Symbol, code, ink});
    return layers;
}

/// The legs of thread that a stitch is made of: half stitches first, then quarters.
Layers ThreadLegs(int kind) {
    const auto legs = [](std::initializer_list<StitchKind> kinds) {
        Layers layers;
        for (const StitchKind leg : kinds) {
            layers.push_back({Paint::Fill, leg, Ink::Floss});
        }
        return layers;
    };
    switch (kind) {
    case StitchWhole:
        return legs({StitchTBH, StitchBTH});
    case StitchUL3Q:
        return legs({StitchBTH, StitchULQ});
    case StitchUR3Q:
        return legs({StitchTBH, StitchURQ});
    case StitchLL3Q:
        return legs({StitchTBH, StitchLLQ});
    case StitchLR3Q:
        return legs({StitchBTH, StitchLRQ});
    default:
        return legs({static_cast<StitchKind>(kind)});
    }
}

Layers MakeLayers(int style, int kind) {
    const auto code = static_cast<std::uint8_t>(kind);
    switch (style) {
    case ShowColorSquares:
        return {{Paint::Fill, code, Ink::Floss}};
    case ShowBlackSymbols:
        return SymbolLayers(kind, Ink::Black);
    case ShowColorSymbols:
        return SymbolLayers(kind, Ink::Floss);
    case ShowColorBlocksSymbols:
        return {{Paint::Fill, code, Ink::Floss}, {Paint::Symbol, code, Ink::Contrast}};
    case ShowColorStitch:
        return ThreadLegs(kind);
    case ShowVStitches:
        return {{Paint::Image, code, Ink::Floss}};
    default:
        return {};
    }
}

using Table = std::array<std::array<Layers, Kinds>, Styles>;

Table MakeTable() {
    Table table;
    for (int style = 1; style < Styles; ++style) {
        for (int kind = 1; kind < Kinds; ++kind) {
            if (kind != StitchFKnot) {
                table[static_cast<std::size_t>(style)][static_cast<std::size_t>(kind)] =
                    MakeLayers(style, kind);
            }
        }
    }
    return table;
}

} // namespace

std::span<const StitchLayer> LayersOf(int style, int kind) {
    static const Table table = MakeTable();
    if (style < 1 || style >= Styles || kind < 1 || kind >= Kinds) {
        return {};
    }
    return table[static_cast<std::size_t>(style)][static_cast<std::size_t>(kind)];
}

Colour InkOf(StitchLayer::Ink ink, Colour floss) {
    switch (ink) {
    case StitchLayer::Ink::Black:
        return 0;
    case StitchLayer::Ink::Contrast:
        return GetContrastColor(floss);
    default:
        return floss;
    }
}

bool CoversSquare(int style, int kind) {
    return kind == StitchWhole && (style == ShowColorSquares || style == ShowVStitches);
}

} // namespace zol
