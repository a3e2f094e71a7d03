// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "grid/painting/GridView.h"
#include "grid/painting/KnotShapes.h"
#include "grid/painting/SquareContent.h"
#include "grid/painting/StitchImages.h"
#include "grid/painting/StitchLayers.h"
#include "grid/painting/SymbolBatch.h"
#include "grid/painting/SymbolText.h"

class QPainter;

namespace zol {

/// Paints squares shape by shape onto any QPainter. Made for one view and used up with it; the
/// painter is left as it was found. On paper the symbols of squares come after their shapes, many
/// at once, and before the knots.
class SquarePainter {
public:
    SquarePainter(QPainter& painter, const GridView& view, StitchImages& images,
                  SymbolText& symbols);
    ~SquarePainter();
    SquarePainter(const SquarePainter&) = delete;
    SquarePainter& operator=(const SquarePainter&) = delete;

    /// Ground (not on paper) and stitches.
    void DrawStitches(const SquareContent& content, const PixelRect& square);
    void DrawKnot(const PlacedKnot& placed);
    /// One stitch, without ground.
    void DrawStitch(int kind, const PixelRect& square, Colour floss, int symbol);
    void DrawSymbol(const PixelRect& rect, int symbol, Colour colour);

private:
    void DrawLayer(const StitchLayer& layer, const PixelRect& square, Colour floss, int symbol);
    void FillShape(int kind, const PixelRect& square, Colour colour);
    void DrawOutline(int kind, const PixelRect& square, Colour colour);
    void DrawImage(int kind, const PixelRect& square, Colour floss);
    void FlushSymbols();
    void DrawKnotCurve(const PixelRect& box, int orientation, Colour colour, bool filled);
    [[nodiscard]] bool IsPaper() const { return m_view.Options.Target == TargetPrinter; }

    QPainter& m_painter;
    GridView m_view;
    StitchImages& m_images;
    SymbolText& m_symbols;
    SymbolBatch m_batch; ///< symbols of squares that paper gets together
};

} // namespace zol
