// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/KeySectionPainter.h"

#include <algorithm>
#include <utility>

#include "grid/painting/PaintColors.h"
#include "grid/painting/StyledLine.h"
#include "model/Rounding.h"

namespace zol {

namespace {

/// Height of a symbol's em box in rows; over a block it leaves the colour room.
constexpr double SymbolHeight = 0.85;
constexpr double SymbolOverBlockHeight = 0.66;

/// Lies beneath lines that white paper would swallow.
constexpr QColor Shade(0x80, 0x80, 0x80);
constexpr int PaleFrom = 200; ///< grey value

bool IsPale(Colour floss) {
    return qGray(ToQColor(floss).rgb()) >= PaleFrom;
}

} // namespace

KeySectionPainter::KeySectionPainter(PrintFuncs& job, KeyPages& pages, const KeySection& section,
                                     KeyColumns columns)
    : m_job(&job),
      m_pages(&pages),
      m_section(&section),
      m_columns(std::move(columns)),
      m_rowHeight(pages.Font().TextHeight()),
      m_cellWidth(pages.Font().TextWidth(QStringLiteral("W"))) {
    const double blanks = pages.Font().TextWidth(QStringLiteral("     "));
    m_columnCount = static_cast<int>(pages.FrameWidth() / (m_columns.Row + blanks));
    m_columnCount = std::clamp(m_columnCount, 1, static_cast<int>(section.Rows.size()));
    m_pitch = pages.FrameWidth() / m_columnCount;
    // What a column has to spare goes between the sample and the text first.
    const double spare = m_pitch - m_cellWidth - m_columns.Row;
    m_gap = std::clamp(spare / 3, 0.0, m_cellWidth / 2);
}

void KeySectionPainter::Print() {
    std::size_t next = 0;
    m_pages->NeedRoom(3.5 * m_rowHeight);
    for (;;) {
        m_pages->PrintInfoRow(m_section->Title, QString());
        next = PrintPart(next);
        if (next >= m_section->Rows.size()) {
            break;
        }
        m_pages->NewKeyPage();
    }
    m_pages->MoveDown(m_rowHeight);
}

std::size_t KeySectionPainter::PrintPart(std::size_t first) {
    const PageCanvas& canvas = m_pages->Canvas();
    const std::size_t left = m_section->Rows.size() - first;
    const auto columns = static_cast<std::size_t>(m_columnCount);
    m_pages->MoveDown(m_rowHeight / 2);
    const double top = m_pages->CurrentY();
    // By no measure of the device, so that rows flow alike on every one and where pages are
    // counted.
    const double room = m_pages->Bottom() - 2 * PageCanvas::FinestRule - top;
    const auto fitting = static_cast<std::size_t>(std::max(1.0, room / m_rowHeight));
    const std::size_t lines = std::min(fitting, (left + columns - 1) / columns);
    const std::size_t taken = std::min(left, lines * columns);
    for (std::size_t i = 0; i < taken; ++i) {
        const std::size_t column = i / lines;
        PrintRow(m_section->Rows[first + i],
                 m_pages->Left() + static_cast<double>(column) * m_pitch,
                 top + static_cast<double>(i % lines) * m_rowHeight);
    }
    const double height = static_cast<double>(lines) * m_rowHeight;
    canvas.Frame({m_pages->Left(), top, m_pages->FrameWidth(), height}, canvas.Hairline());
    m_pages->MoveDown(height);
    return first + taken;
}

void KeySectionPainter::PrintRow(const KeyRow& row, double x, double y) const {
    const PageCanvas& canvas = m_pages->Canvas();
    if (!canvas.Paints()) {
        return;
    }
    const PageFont& font = m_pages->Font();
    const double end = x + m_pitch;
    const double air = std::min(m_gap, m_cellWidth / 4);
    PrintSample(row, {x + air, y, m_cellWidth, m_rowHeight});
    x += air + m_cellWidth + m_gap;
    const QString slash = QStringLiteral(" / ");
    for (std::size_t i = 0; i < m_columns.Manus.size(); ++i) {
        if (i > 0) {
            canvas.Text(x, y, slash, font);
            x += font.TextWidth(slash);
        }
        canvas.Text(x, y, row.Manus[static_cast<qsizetype>(i)], font);
        x += m_columns.Manus[i];
    }
    x += 2 * font.TextWidth(QStringLiteral(" "));
    const QFontMetricsF metrics(font.Font());
    canvas.Text(x, y, metrics.elidedText(row.Desc, Qt::ElideRight, std::max(0.0, end - x)), font);
}

void KeySectionPainter::PrintSample(const KeyRow& row, const QRectF& cell) const {
    const int style = m_job->Options().StitchSymbol;
    if (m_section->IsBackstitch) {
        PrintLine(row, cell);
        return;
    }
    if (style == PrintVirtualStitches) {
        PrintStitch(row, cell);
        return;
    }
    if (style == PrintColorBlocks || style == PrintBlocksAndSymbols) {
        const QRectF block = BlockIn(cell);
        m_pages->Canvas().Fill(block, ToQColor(row.Floss));
        m_pages->Canvas().Frame(block, m_pages->Canvas().Hairline());
    }
    if (style == PrintBlocksAndSymbols) {
        PrintSymbol(row, cell, GetContrastColor(row.Floss));
    } else if (style == PrintBlackSymbols) {
        PrintSymbol(row, cell, 0);
    } else if (style == PrintColorSymbols) {
        PrintSymbol(row, cell, row.Floss);
    }
}

QRectF KeySectionPainter::BlockIn(const QRectF& cell) const {
    // A little lower than the row, so that blocks of neighbouring rows stay apart.
    const double air = m_rowHeight / 12;
    return cell.adjusted(0, air, 0, -air);
}

void KeySectionPainter::PrintSymbol(const KeyRow& row, const QRectF& cell, Colour colour) const {
    const PageCanvas& canvas = m_pages->Canvas();
    SymbolText& symbols = m_job->Painter().Symbols();
    symbols.SetFont(m_job->PrintPattern()->GetPalette());
    symbols.DrawText(*canvas.Painter(),
                     {canvas.PixelX(cell.left()), canvas.PixelY(cell.top()),
                      canvas.PixelX(cell.width()), canvas.PixelY(cell.height())},
                     row.Symbol, ToQColor(colour),
                     m_job->Options().StitchSymbol == PrintBlocksAndSymbols ? SymbolOverBlockHeight
                                                                            : SymbolHeight);
}

void KeySectionPainter::PrintStitch(const KeyRow& row, const QRectF& cell) const {
    const PageCanvas& canvas = m_pages->Canvas();
    StitchImages& images = m_job->Painter().Images();
    const double size = std::min(m_rowHeight * 5 / 6, m_cellWidth);
    const QRectF square(cell.center().x() - size / 2, cell.center().y() - size / 2, size, size);
    canvas.Painter()->drawImage(QRectF(canvas.PixelX(square.left()), canvas.PixelY(square.top()),
                                       canvas.PixelX(square.width()),
                                       canvas.PixelY(square.height())),
                                images.Image(images.SlotOf(row.Floss, 0xFFFFFF)));
}

void KeySectionPainter::PrintLine(const KeyRow& row, const QRectF& cell) const {
    const PageCanvas& canvas = m_pages->Canvas();
    // Small squares, so that a dash or a tie repeats within the sample.
    constexpr double SquaresInSample = 3;
    constexpr double LineWidth = 20;
    LinePen pen;
    pen.Style = row.Symbol;
    pen.Floss = m_job->Options().BackStitchSymbol == PrintBlackLines ? 0 : row.Floss;
    double inset = 0;
    if (IsPale(pen.Floss)) {
        canvas.Fill(BlockIn(cell), Shade);
        inset = cell.width() / 8; // within its shade it is seen to be a line
    }
    pen.Width = std::max(1, RoundToInt(canvas.PixelX(LineWidth)));
    pen.SquareWidth = canvas.PixelX(cell.width() / SquaresInSample);
    pen.SquareHeight = canvas.PixelY(cell.width() / SquaresInSample);
    const int y = RoundToInt(canvas.PixelY(cell.center().y()));
    DrawStyledLine(*canvas.Painter(), {RoundToInt(canvas.PixelX(cell.left() + inset)), y},
                   {RoundToInt(canvas.PixelX(cell.right() - inset)), y}, pen);
}

} // namespace zol
