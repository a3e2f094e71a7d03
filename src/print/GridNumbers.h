// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/ZOLTypes.h"
#include "print/PageCanvas.h"
#include "print/PrintFuncs.h"

namespace zol {

/// What printing adds round the grid of a page: numbers at every tenth line, and the marks of the
/// pattern's centre.
class GridNumbers {
public:
    /// `squareWidth` and `squareHeight` in twips. Sizes are the whole pattern's.
    GridNumbers(const PageCanvas& canvas, const PrintOptions& options, const PageRange& range,
                double squareWidth, double squareHeight);

    /// `offset` is added to the numbers: where a printed selection starts on the whole pattern.
    void PrintNumbers(int patternWidth, int patternHeight, SquarePos offset) const;
    void PrintCentreMarks(int patternWidth, int patternHeight) const;

private:
    [[nodiscard]] double LineX(double squares) const { return m_originX + squares * m_squareW; }
    [[nodiscard]] double LineY(double squares) const { return m_originY + squares * m_squareH; }

    const PageCanvas* m_canvas;
    PageFont m_font;
    SquareRect m_squares;
    double m_originX;
    double m_originY;
    double m_squareW;
    double m_squareH;
};

} // namespace zol
