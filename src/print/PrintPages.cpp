// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>

#include "print/GridNumbers.h"
#include "print/NewColorKey.h"
#include "print/PrintFuncs.h"

namespace zol {

namespace {

/// Squares that are painted at once where nobody waits for them.
constexpr int SquaresAtOnce = 20000;
/// Height of a symbol's em box in squares: most ink then takes about 0.6 of the square.
constexpr double SymbolHeight = 0.92;

} // namespace

KeyPageFrame PrintFuncs::InitKeyPage() const {
    constexpr double Twips = PageDevice::TwipsPerInch;
    KeyPageFrame frame;
    frame.LeftMargin = m_options.LeftMargin * Twips;
    frame.RightMargin = m_options.RightMargin * Twips;
    frame.TopMargin = m_options.TopMargin * Twips;
    frame.BottomRoom =
        2.0 * PageFont::TextInfo(m_options).TextHeight() + m_options.BottomMargin * Twips;
    return frame;
}

void PrintFuncs::CountKeyPages() {
    NewColorKey(*this).PrintColorKey(nullptr, nullptr, true);
}

bool PrintFuncs::MayGoOn(ProgressDoor* progress) {
    if (progress != nullptr && !progress->MayGoOn()) {
        m_printCancelled = true;
    }
    return !m_printCancelled;
}

PaintOptions PrintFuncs::PaintOptionsForPage() const {
    PaintOptions options;
    options.Target = TargetPrinter;
    options.StitchStyle = DisplayStyleOf(m_options.StitchSymbol);
    if (options.StitchStyle == 0) {
        options.StitchStyle = PaintOptions::None;
    }
    options.LinesStyle = m_options.BackStitchSymbol;
    options.GridLines = m_options.PrintGridLines;
    options.NormalWidthPercent = m_options.GridLineWidthPercentage1;
    options.BoldWidthPercent = m_options.GridLineWidthPercentage2;
    options.BackStitchWidthPercent = m_options.BackStitchLineWidthPercentage;
    options.NormalGLColor = m_options.pNormalGLColor;
    options.BoldGLColor = m_options.pBoldGLColor;
    options.SymbolScale = SymbolHeight;
    options.NumberOffsetX = m_numberOffset.X;
    options.NumberOffsetY = m_numberOffset.Y;
    return options;
}

GridView PrintFuncs::ViewOf(const PageDevice& target, const PageRange& range) const {
    GridView view;
    view.Source = m_pattern;
    view.Scale = GridScale::ForPrint(m_options.GSPI, m_pattern->GetPatternClothCountX(),
                                     m_pattern->GetPatternClothCountY(), target.TwipsPerPixelX(),
                                     target.TwipsPerPixelY());
    view.Options = PaintOptionsForPage();
    view.OriginX = range.OriginX;
    view.OriginY = range.OriginY;
    return view;
}

void PrintFuncs::PaintStitches(QPainter& painter, const GridView& view, const SquareRect& squares,
                               ProgressDoor* progress) {
    const int rows = squares.Bottom - squares.Top + 1;
    // Whoever waits for the page may cancel after each column.
    const int columnsAtOnce =
        progress != nullptr ? 1 : std::max(1, SquaresAtOnce / std::max(1, rows));
    const int columns = squares.Right - squares.Left + 1;
    for (int left = squares.Left; left <= squares.Right; left += columnsAtOnce) {
        const int right = std::min(left + columnsAtOnce - 1, squares.Right);
        m_painter.DrawStitches(painter, view, {left, squares.Top, right, squares.Bottom});
        if (progress != nullptr) {
            progress->UpdateStatus((right - squares.Left + 1) * 100 / columns);
        }
        if (!MayGoOn(progress)) {
            return;
        }
    }
    m_painter.DrawKnots(painter, view, squares);
}

bool PrintFuncs::PrintPatternPage(PageDevice& target, ProgressDoor* progress, bool printStitches,
                                  bool printFooter) {
    if (m_patternPages != 0 && m_range.Page > m_patternPages) {
        NewColorKey(*this).PrintColorKey(&target, progress, false);
        return target.Painter() != nullptr;
    }
    const PageCanvas canvas(target);
    if (!canvas.Paints()) {
        return false;
    }
    const PageRange range = GetPageRange(m_range.Page, target.IsPrinter());
    if (printStitches && !range.Squares.IsEmpty()) {
        const GridView view = ViewOf(target, range);
        QPainter& painter = *canvas.Painter();
        if (m_options.PrintGridLines) {
            m_painter.DrawGridLines(painter, view, range.Squares);
        }
        const GridNumbers numbers(canvas, m_options, range, SquareWidth(), SquareHeight());
        numbers.PrintNumbers(m_pattern->GetPatternWidth(), m_pattern->GetPatternHeight(),
                             m_numberOffset);
        numbers.PrintCentreMarks(m_pattern->GetPatternWidth(), m_pattern->GetPatternHeight());
        if (view.Options.StitchStyle != PaintOptions::None) {
            PaintStitches(painter, view, range.Squares, progress);
        } else if (MayGoOn(progress) && progress != nullptr) {
            progress->UpdateStatus(100);
        }
        if (!m_printCancelled && m_options.BackStitchSymbol != PrintNone) {
            m_painter.DrawBackStitchLines(painter, view, range.Squares);
        }
    }
    if (printFooter && !m_printCancelled) {
        BuildFooterLines();
        PrintFooter(target);
    }
    return true;
}

} // namespace zol
