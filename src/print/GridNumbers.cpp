// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/GridNumbers.h"

#include <algorithm>

namespace zol {

namespace {

constexpr int NumberEvery = 10;

/// Is there a number at the line behind that many squares?
bool IsNumbered(int squares, int offset, int patternSize) {
    return squares >= 1 && squares <= patternSize && (squares + offset) % NumberEvery == 0;
}

} // namespace

GridNumbers::GridNumbers(const PageCanvas& canvas, const PrintOptions& options,
                         const PageRange& range, double squareWidth, double squareHeight)
    : m_canvas(&canvas),
      m_font(PageFont::TextInfo(options, 72 / options.GSPI)),
      m_squares(range.Squares),
      m_originX(range.OriginX),
      m_originY(range.OriginY),
      m_squareW(squareWidth),
      m_squareH(squareHeight) {}

void GridNumbers::PrintNumbers(int patternWidth, int patternHeight, SquarePos offset) const {
    const double right = LineX(m_squares.Right);
    const double bottom = LineY(m_squares.Bottom);
    const double gap = m_font.TextWidth(QStringLiteral("0"));
    const double height = m_font.TextHeight();
    for (int row = m_squares.Top - 1; row <= m_squares.Bottom; ++row) {
        if (!IsNumbered(row, offset.Y, patternHeight)) {
            continue;
        }
        // The closing line's number would run into the column numbers of the corner, so it
        // stands above the line.
        const double y = LineY(row) - (row == m_squares.Bottom ? height : 0);
        m_canvas->Text(right + gap, y, QString::number(row + offset.Y), m_font);
    }
    for (int column = m_squares.Left - 1; column <= m_squares.Right; ++column) {
        if (IsNumbered(column, offset.X, patternWidth)) {
            m_canvas->Text(LineX(column), bottom + height / 2, QString::number(column + offset.X),
                           m_font);
        }
    }
}

void GridNumbers::PrintCentreMarks(int patternWidth, int patternHeight) const {
    const double width = m_font.TextWidth(QStringLiteral("W"));
    const double line = m_canvas->Hairline();
    // Half the mark's width is half a square: the middle of an odd size lies within its square.
    const int middleColumn = patternWidth / 2;
    const int middleRow = patternHeight / 2;
    const double centreX = LineX(middleColumn) + (patternWidth % 2 != 0 ? width / 2 : 0);
    const double centreY = LineY(middleRow) + (patternHeight % 2 != 0 ? width / 2 : 0);
    const double left = LineX(m_squares.Left - 1);
    const double top = LineY(m_squares.Top - 1);
    if (centreX >= left && centreX <= LineX(m_squares.Right)) {
        const double tip = top - line;
        m_canvas->Rule(centreX - width / 2, tip - width, centreX + width / 2, tip - width, line);
        m_canvas->Rule(centreX - width / 2, tip - width, centreX, tip, line);
        m_canvas->Rule(centreX + width / 2, tip - width, centreX, tip, line);
    }
    if (centreY >= top && centreY <= LineY(m_squares.Bottom)) {
        const double tip = left - line;
        m_canvas->Rule(tip - width, centreY - width / 2, tip - width, centreY + width / 2, line);
        m_canvas->Rule(tip - width, centreY - width / 2, tip, centreY, line);
        m_canvas->Rule(tip - width, centreY + width / 2, tip, centreY, line);
    }
}

} // namespace zol
