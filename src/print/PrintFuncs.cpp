// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PrintFuncs.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "model/Rounding.h"
#include "model/RunTimeError.h"

namespace zol {

namespace {

constexpr int Twips = PageDevice::TwipsPerInch;

/// Whole squares on a length. An exact fit loses one, so that the closing grid line stays inside.
int WholeSquares(int length, int square) {
    if (square <= 0 || length <= 0) {
        return 0;
    }
    return length / square - (length % square == 0 ? 1 : 0);
}

int PagesFor(int squares, int perPage) {
    return (squares + perPage - 1) / perPage;
}

/// The font of grid numbers: as high as a square.
PageFont NumberFont(const PrintOptions& options) {
    return PageFont::TextInfo(options, 72 / options.GSPI);
}

} // namespace

PrintFuncs::PrintFuncs(PrintOptions options, PageDevice* printer)
    : m_options(std::move(options)),
      m_printer(printer) {
    InitPrinter();
}

PrintFuncs::~PrintFuncs() = default;

bool PrintFuncs::InitPrinter() {
    m_printerPresent = m_printer != nullptr && m_printer->Width() > 0;
    return m_printerPresent;
}

void PrintFuncs::SetPrinter(PageDevice* printer) {
    m_printer = printer;
    InitPrinter();
}

void PrintFuncs::SetOptions(PrintOptions options) {
    m_options = std::move(options);
    m_keyNotePositions = {};
}

void PrintFuncs::SetPattern(Pattern& pattern) {
    m_keyNotePositions = {};
    m_pattern = &pattern;
    m_named = &pattern;
    m_numberOffset = {};
}

void PrintFuncs::SetSelection(Pattern& selection, SquarePos corner) {
    m_keyNotePositions = {};
    m_pattern = &selection;
    if (m_named == nullptr) {
        m_named = &selection;
    }
    m_numberOffset = {corner.X - 1, corner.Y - 1};
}

int PrintFuncs::SquareWidth() const {
    // Neither no squares to the inch nor a square larger than any paper can be laid out.
    constexpr double Least = 1e-3;
    return m_options.GSPI >= Least ? RoundToInt(Twips / m_options.GSPI) : 0;
}

int PrintFuncs::SquareHeight() const {
    const int countY = std::max(1, m_pattern->GetPatternClothCountY());
    return RoundToInt(static_cast<double>(SquareWidth()) *
                      std::max(1, m_pattern->GetPatternClothCountX()) / countY);
}

int PrintFuncs::GetPrintWidth() const {
    if (!m_printerPresent) {
        return WidthWithout;
    }
    const double room =
        m_printer->Width() - m_options.LeftMargin * Twips - m_options.RightMargin * Twips;
    return RoundToInt(room - NumberFont(m_options).TextWidth(QStringLiteral("0000")));
}

int PrintFuncs::GetPrintHeight() {
    if (!m_printerPresent) {
        return HeightWithout;
    }
    const double numberHeight = NumberFont(m_options).TextHeight();
    const double lineHeight = PageFont::TextInfo(m_options).TextHeight();
    double room =
        m_printer->Height() - m_options.TopMargin * Twips - m_options.BottomMargin * Twips;
    room -= numberHeight / 2 + numberHeight;
    if (m_options.PrintPageNumbers) {
        room -= 2 * lineHeight;
    }
    BuildFooterLines();
    if (FooterLineCount() > 0) {
        room -= lineHeight * FooterLineCount();
        if (m_options.PrintPageNumbers) {
            // The last footer line shares its row with the page number.
            room += lineHeight;
        }
    }
    return RoundToInt(room);
}

double PrintFuncs::FitGSPI() {
    const int width = GetPrintWidth();
    const int height = GetPrintHeight();
    const int columns = std::max(1, m_pattern->GetPatternWidth());
    const int rows = std::max(1, m_pattern->GetPatternHeight());
    const bool wide = static_cast<double>(width) / height <= static_cast<double>(columns) / rows;
    const int square = std::max(1, wide ? width / columns : height / rows);
    const int squaresPerInch = Twips / square + (Twips % square != 0 ? 1 : 0);
    return squaresPerInch;
}

void PrintFuncs::FitToPage() {
    m_options.GSPI = FitGSPI();
    while (m_options.GSPI < Twips && (ColumnsPerPage() < m_pattern->GetPatternWidth() ||
                                      RowsPerPage() < m_pattern->GetPatternHeight())) {
        m_options.GSPI += 1;
    }
}

int PrintFuncs::ColumnsPerPage() const {
    return WholeSquares(GetPrintWidth(), SquareWidth());
}

int PrintFuncs::RowsPerPage() {
    return WholeSquares(GetPrintHeight(), SquareHeight());
}

int PrintFuncs::GetPageCount() {
    const int columnsPerPage = ColumnsPerPage();
    const int rowsPerPage = RowsPerPage();
    if (columnsPerPage <= 0 || rowsPerPage <= 0) {
        return TooManyPages;
    }
    const int pages = PagesFor(m_pattern->GetPatternWidth(), columnsPerPage) *
                      PagesFor(m_pattern->GetPatternHeight(), rowsPerPage);
    if (pages + m_keyPages > std::numeric_limits<std::int16_t>::max()) {
        throw RunTimeError(ErrOverflow);
    }
    m_patternPages = pages;
    return m_patternPages + m_keyPages;
}

PageRange PrintFuncs::GetPageRange(int page, bool toPrinter) {
    PageRange range;
    const int columnsPerPage = ColumnsPerPage();
    const int rowsPerPage = RowsPerPage();
    if (columnsPerPage <= 0 || rowsPerPage <= 0 || page < 1) {
        return range;
    }
    // Pages run down first.
    const int pagesDown = PagesFor(m_pattern->GetPatternHeight(), rowsPerPage);
    if (pagesDown < 1) {
        return range;
    }
    const int startColumn = (page - 1) / pagesDown * columnsPerPage + 1;
    const int startRow = (page - 1) % pagesDown * rowsPerPage + 1;
    range.Squares = {startColumn, startRow,
                     std::min(startColumn + columnsPerPage - 1, m_pattern->GetPatternWidth()),
                     std::min(startRow + rowsPerPage - 1, m_pattern->GetPatternHeight())};
    range.OriginX = m_options.LeftMargin * Twips - (startColumn - 1.0) * SquareWidth();
    range.OriginY = m_options.TopMargin * Twips - (startRow - 1.0) * SquareHeight();
    if (toPrinter && m_printer != nullptr) {
        // The printer's coordinates start at its printable corner.
        range.OriginX -= m_printer->BorderX();
        range.OriginY -= m_printer->BorderY();
    }
    return range;
}

void PrintFuncs::SetPrintRange(int from, int to, bool keyOnly) {
    const int before = keyOnly ? m_patternPages : 0;
    m_range = {from + before, to + before, from + before, keyOnly};
}

bool PrintFuncs::CheckPrintMargins() const {
    if (!m_printerPresent) {
        return false;
    }
    const double borderX = static_cast<double>(m_printer->BorderX()) / Twips;
    const double borderY = static_cast<double>(m_printer->BorderY()) / Twips;
    return m_options.LeftMargin < borderX || m_options.RightMargin < borderX ||
           m_options.TopMargin < borderY || m_options.BottomMargin < borderY;
}

void PrintFuncs::RaisePrintMargins() {
    if (!m_printerPresent) {
        return;
    }
    const double borderX = static_cast<double>(m_printer->BorderX()) / Twips;
    const double borderY = static_cast<double>(m_printer->BorderY()) / Twips;
    m_options.LeftMargin = std::max(m_options.LeftMargin, borderX);
    m_options.RightMargin = std::max(m_options.RightMargin, borderX);
    m_options.TopMargin = std::max(m_options.TopMargin, borderY);
    m_options.BottomMargin = std::max(m_options.BottomMargin, borderY);
}

} // namespace zol
