// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "print/PageCanvas.h"
#include "print/PrintFuncs.h"

namespace zol {

/// Flows the key from page to page. Every page is laid out, and only the wanted one is painted,
/// so that counting and printing cannot differ.
class KeyPages {
public:
    /// `target` may be null: then no page is painted. `wantedPage` counts from 1.
    KeyPages(const PrintFuncs& job, PageDevice* target, int wantedPage);

    /// Starts the next page: copyright at its foot, title and rules at its head.
    void NewKeyPage();
    /// Leaves the pages before it out: the next page is `page`.
    void GoOnAt(int page);
    /// A row of the cover's table with a hairline under it; a label without a value takes the
    /// whole width. Long texts wrap, and flow over pages.
    void PrintInfoRow(const QString& label, const QString& value);
    /// Starts a new page unless so much room is left.
    void NeedRoom(double height);
    void MoveDown(double height) { m_currentY += height; }

    [[nodiscard]] int PageNo() const { return m_pageNo; }
    [[nodiscard]] bool IsPastWantedPage() const { return m_pageNo > m_wantedPage; }
    [[nodiscard]] const PageCanvas& Canvas() const { return m_canvas; }
    [[nodiscard]] const PageFont& Font() const { return m_font; }
    [[nodiscard]] double CurrentY() const { return m_currentY; }
    [[nodiscard]] double Left() const { return m_left; }
    [[nodiscard]] double Right() const { return m_usableW; }
    [[nodiscard]] double Bottom() const { return m_usableH; }
    [[nodiscard]] double FrameWidth() const { return m_usableW - m_left; }
    /// Below the title of a page on which nothing stands yet.
    [[nodiscard]] double FreshHeight() const { return m_usableH - m_freshY; }
    [[nodiscard]] int WantedPage() const { return m_wantedPage; }

private:
    void PrintTitle();
    /// At the foot of the page; `paperEnd` is the lowest place that can be printed on.
    void PrintCopyright(double paperEnd);

    const PrintFuncs* m_job;
    PageDevice* m_realTarget;
    int m_wantedPage;
    int m_pageNo = 0;
    PageFont m_font;
    PageCanvas m_canvas;
    double m_left = 0;
    double m_top = 0;
    double m_usableW = 0; ///< right limit of rows
    double m_usableH = 0; ///< bottom limit of rows
    double m_freshY = 0;  ///< where a page's content begins
    double m_currentY = 0;
};

} // namespace zol
