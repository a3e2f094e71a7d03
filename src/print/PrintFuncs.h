// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <memory>
#include <utility>
#include <vector>

#include "grid/painting/GridPainter.h"
#include "model/Doors.h"
#include "model/Pattern.h"
#include "print/PageCanvas.h"
#include "print/PageDevice.h"
#include "print/PrintOptions.h"

namespace zol {

/// The squares of a pattern page, and where square (1, 1) lies, in twips of the device.
struct PageRange {
    SquareRect Squares{1, 1, 0, 0}; ///< empty if there is no such page
    double OriginX = 0;
    double OriginY = 0;
};

/// Where the instructions go on, page by page, as counting the key has found it.
struct KeyNotes {
    QSizeF Room;                ///< of a fresh page in twips, for which the positions hold
    int FirstPage = 0;          ///< key page on which the instructions begin
    std::vector<int> Positions; ///< at the start of that page and of those behind it
};

/// The pages that a job prints, and the one that it is at.
struct PrintRange {
    int From = 0;
    int To = 0;
    int Page = 0;
    bool KeyOnly = false; ///< pages are counted from the first key page for the user
};

/// Frame of the colour key's pages, in twips from the paper's edges.
struct KeyPageFrame {
    double LeftMargin = 0;
    double RightMargin = 0;
    double TopMargin = 0;
    double BottomRoom = 0;
};

/// Turns a pattern into numbered pages: pattern pages cut from the grid at a number of grid
/// squares per inch, then the pages of the colour key. Holds the state of one print job. The
/// device gives the paper's measures; pages go to any device that is given as target.
class PrintFuncs {
public:
    static constexpr int TooManyPages = 999;  ///< GetPageCount when a page holds no square
    static constexpr int WidthWithout = 8000; ///< twips, where there is no device at all
    static constexpr int HeightWithout = 13000;

    /// `printer` may be null; it must outlive this.
    PrintFuncs(PrintOptions options, PageDevice* printer);
    ~PrintFuncs();
    PrintFuncs(const PrintFuncs&) = delete;
    PrintFuncs& operator=(const PrintFuncs&) = delete;

    /// Looks whether there is a device with paper.
    bool InitPrinter();

    [[nodiscard]] const PrintOptions& Options() const { return m_options; }
    /// The key is to be counted again.
    void SetOptions(PrintOptions options);
    [[nodiscard]] PageDevice* Printer() const { return m_printer; }
    /// Takes the paper's measures from another device; may be null, and must outlive this. Pages
    /// are to be counted again if its paper has another size.
    void SetPrinter(PageDevice* printer);

    /// The pattern to print, which must outlive this or be replaced.
    void SetPattern(Pattern& pattern);
    /// The selected area as a pattern of its own; `corner` is its upper left square on the whole
    /// pattern, from which the printed numbers start. The pattern that was set before is the whole
    /// one; it must outlive this too.
    void SetSelection(Pattern& selection, SquarePos corner);
    [[nodiscard]] Pattern* PrintPattern() const { return m_pattern; }
    /// Whose title, author, copyright and fabric are printed: the whole pattern, also on the pages
    /// of a selected area, which has none of its own.
    [[nodiscard]] const Pattern& NamedPattern() const { return *m_named; }
    [[nodiscard]] SquarePos NumberOffset() const { return m_numberOffset; }

    // --- Layout (PrintFuncs.cpp) -----------------------------------------------------------
    /// Twips of a square; 0 where there are more than two squares to the twip.
    [[nodiscard]] int SquareWidth() const;
    [[nodiscard]] int SquareHeight() const;
    /// Usable room for the grid in twips; may be negative with wide margins.
    [[nodiscard]] int GetPrintWidth() const;
    [[nodiscard]] int GetPrintHeight();
    /// Grid squares per inch that put the whole pattern on one page, by the present room.
    [[nodiscard]] double FitGSPI();
    /// Takes FitGSPI, and where a page still cannot hold the pattern (the numbers grew with the
    /// squares, the cloth is oblong, the fit was exact) the next squares that it can hold.
    void FitToPage();
    /// Sets PatternPages and answers pattern pages and key pages together. 999, with nothing set,
    /// if a page holds no whole square. Throws RunTimeError 6 for more pages than 16 bits count.
    int GetPageCount();
    [[nodiscard]] int ColumnsPerPage() const;
    [[nodiscard]] int RowsPerPage();
    [[nodiscard]] PageRange GetPageRange(int page, bool toPrinter);

    // --- The job's range -------------------------------------------------------------------
    /// With `keyOnly` the pages count from the first key page.
    void SetPrintRange(int from, int to, bool keyOnly);
    [[nodiscard]] int PrintFromPage() const { return m_range.From; }
    [[nodiscard]] int PrintToPage() const { return m_range.To; }
    [[nodiscard]] int PrintPage() const { return m_range.Page; }
    void SetPrintPage(int page) { m_range.Page = page; }
    [[nodiscard]] const PrintRange& Range() const { return m_range; }
    void SetRange(const PrintRange& range) { m_range = range; }
    /// A page's number as the user counts it.
    [[nodiscard]] int NumberOfPage(int page) const {
        return m_range.KeyOnly ? page - m_patternPages : page;
    }
    [[nodiscard]] int PatternPages() const { return m_patternPages; }
    [[nodiscard]] int KeyPages() const { return m_keyPages; }
    void SetKeyPages(int pages) { m_keyPages = pages; }
    [[nodiscard]] const KeyNotes& KeyNotePositions() const { return m_keyNotePositions; }
    void SetKeyNotePositions(KeyNotes notes) { m_keyNotePositions = std::move(notes); }
    [[nodiscard]] bool PrintCancelled() const { return m_printCancelled; }
    void SetPrintCancelled(bool cancelled) { m_printCancelled = cancelled; }
    [[nodiscard]] bool PreviewMode() const { return m_previewMode; }
    void SetPreviewMode(bool preview) { m_previewMode = preview; }
    [[nodiscard]] bool PrinterPresent() const { return m_printerPresent; }

    // --- Margins ---------------------------------------------------------------------------
    /// True if a margin lies in the device's unprintable border: MarginQuestion is then asked.
    [[nodiscard]] bool CheckPrintMargins() const;
    /// Raises each margin under its border to the border.
    void RaisePrintMargins();

    // --- Footer (PrintFooter.cpp) ----------------------------------------------------------
    void BuildFooterLines();
    [[nodiscard]] const QStringList& FooterLines() const { return m_footerLines; }
    [[nodiscard]] int FooterLineCount() const { return static_cast<int>(m_footerLines.size()); }
    void PrintFooter(PageDevice& target);

    // --- Painting (PrintPages.cpp) ---------------------------------------------------------
    /// Paints the page PrintPage. Stops between columns when `progress` says so, which sets
    /// PrintCancelled. False if the target cannot be painted on.
    bool PrintPatternPage(PageDevice& target, ProgressDoor* progress, bool printStitches,
                          bool printFooter);
    [[nodiscard]] KeyPageFrame InitKeyPage() const;
    /// Counts the pages of the colour key into KeyPages.
    void CountKeyPages();
    /// Asks the door; a refusal is remembered as PrintCancelled.
    bool MayGoOn(ProgressDoor* progress);
    [[nodiscard]] GridPainter& Painter() { return m_painter; }
    /// How the pattern is painted on a page.
    [[nodiscard]] PaintOptions PaintOptionsForPage() const;

private:
    void WrapFooterLine(QStringList& lines, int index) const;
    [[nodiscard]] double FooterRoom() const;
    void PaintStitches(QPainter& painter, const GridView& view, const SquareRect& squares,
                       ProgressDoor* progress);
    [[nodiscard]] GridView ViewOf(const PageDevice& target, const PageRange& range) const;

    PrintOptions m_options;
    PageDevice* m_printer;
    Pattern* m_pattern = nullptr;
    const Pattern* m_named = nullptr;
    SquarePos m_numberOffset;
    PrintRange m_range;
    int m_patternPages = 0;
    int m_keyPages = 0;
    KeyNotes m_keyNotePositions;
    bool m_printCancelled = false;
    bool m_previewMode = false;
    bool m_printerPresent = false;
    QStringList m_footerLines;
    GridPainter m_painter;
};

/// Asked, in a yes/no box, when CheckPrintMargins finds a margin in the border.
inline constexpr char MarginQuestion[] =
    "One or more of your margins are outside the printable area for your printer.\n\n"
    "Do you wish to automatically adjust?";
inline constexpr char NoPrinterText[] = "No Default Printer Defined!";

} // namespace zol
