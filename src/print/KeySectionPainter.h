// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>

#include "print/KeyPages.h"
#include "print/KeyRows.h"
#include "print/PrintFuncs.h"

namespace zol {

/// Paints one section of the key as a boxed table of columns, cut where a page ends.
class KeySectionPainter {
public:
    KeySectionPainter(PrintFuncs& job, KeyPages& pages, const KeySection& section,
                      KeyColumns columns);

    /// The title, then the rows; on each further page the title again.
    void Print();

private:
    /// Rows from `first` that this page takes, dealt top down; the number of the first that it
    /// does not.
    std::size_t PrintPart(std::size_t first);
    void PrintRow(const KeyRow& row, double x, double y) const;
    void PrintSample(const KeyRow& row, const QRectF& cell) const;
    /// Where a block of colour lies in a row's cell.
    [[nodiscard]] QRectF BlockIn(const QRectF& cell) const;
    void PrintSymbol(const KeyRow& row, const QRectF& cell, Colour colour) const;
    void PrintStitch(const KeyRow& row, const QRectF& cell) const;
    void PrintLine(const KeyRow& row, const QRectF& cell) const;

    PrintFuncs* m_job;
    KeyPages* m_pages;
    const KeySection* m_section;
    KeyColumns m_columns;
    double m_rowHeight;
    double m_cellWidth;
    double m_gap = 0;   ///< between the sample and the text
    double m_pitch = 0; ///< from one column of rows to the next
    int m_columnCount = 1;
};

} // namespace zol
