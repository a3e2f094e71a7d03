// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/KeyPages.h"

#include <algorithm>

#include "model/RunTimeError.h"
#include "print/PageText.h"
#include "print/TextFormatter.h"

namespace zol {

namespace {

constexpr double TitlePoints = 36;
constexpr int MostPages = 1000;     ///< beyond any key; ends the flow in a frame too small for rows
constexpr int WidthWithout = 11906; ///< paper where there is no device at all
constexpr int HeightWithout = 16838;

} // namespace

KeyPages::KeyPages(const PrintFuncs& job, PageDevice* target, int wantedPage)
    : m_job(&job),
      m_realTarget(target),
      m_wantedPage(wantedPage),
      m_font(PageFont::TextInfoPlain(job.Options())) {}

void KeyPages::NewKeyPage() {
    if (++m_pageNo > MostPages) {
        throw RunTimeError(ErrOverflow);
    }
    const bool wanted = m_realTarget != nullptr && m_pageNo == m_wantedPage;
    m_canvas = wanted ? PageCanvas(*m_realTarget) : PageCanvas();
    const PageDevice* paper = m_realTarget != nullptr ? m_realTarget : m_job->Printer();
    const KeyPageFrame frame = m_job->InitKeyPage();
    const int width = paper != nullptr ? paper->Width() : WidthWithout;
    const int height = paper != nullptr ? paper->Height() : HeightWithout;
    const int offsetX = paper != nullptr ? paper->OffsetX() : 0;
    const int offsetY = paper != nullptr ? paper->OffsetY() : 0;
    m_left = frame.LeftMargin - offsetX;
    m_top = frame.TopMargin - offsetY;
    m_usableW = width - frame.RightMargin - offsetX;
    m_usableH = height - frame.BottomRoom - offsetY;
    PrintCopyright(height - 2 * offsetY);
    PrintTitle();
}

void KeyPages::PrintCopyright(double paperEnd) {
    const QString copyright = OneLine(m_job->NamedPattern().Copyright);
    double y = m_usableH + 2 * PageCanvas::FinestRule;
    // Two lines have room above the margin; a longer text goes on below rather than past the edge.
    const int mostLines = std::max(2, static_cast<int>((paperEnd - y) / m_font.TextHeight()));
    for (const TextLine& line : WrapText(copyright, 0, m_font, FrameWidth(), mostLines)) {
        m_canvas.Text(m_left, y, PrintedLine(copyright, line), m_font);
        y += m_font.TextHeight();
    }
}

void KeyPages::PrintTitle() {
    const PageFont font(QString::fromStdString(m_job->Options().TextInfoFontName), TitlePoints,
                        true, false, false);
    const QString title = OneLine(m_job->NamedPattern().Title);
    // A title that fills more than half the page would leave no room for what it is the title of.
    const int mostLines =
        std::max(1, static_cast<int>((m_usableH - m_top) / 2 / font.TextHeight()));
    double y = m_top;
    for (const TextLine& line : WrapText(title, 0, font, FrameWidth(), mostLines)) {
        const QString text = PrintedLine(title, line);
        m_canvas.Text(m_left + (FrameWidth() - font.TextWidth(text)) / 2, y, text, font);
        y += font.TextHeight();
    }
    m_canvas.Fill({m_left, y + 50, FrameWidth(), 30}, Qt::black);
    m_canvas.Rule(m_left, y + 150, m_usableW, y + 150, m_canvas.Hairline());
    m_freshY = y + 150 + 50;
    m_currentY = m_freshY;
}

void KeyPages::GoOnAt(int page) {
    m_pageNo = page - 1;
    NewKeyPage();
}

void KeyPages::NeedRoom(double height) {
    if (m_currentY + height >= m_usableH) {
        NewKeyPage();
    }
}

void KeyPages::PrintInfoRow(const QString& label, const QString& value) {
    const double lineHeight = m_font.TextHeight();
    const double air = lineHeight / 4;
    const double labelWidth = m_font.TextWidth(QStringLiteral(" Design Area: "));
    const QString& text = value.isEmpty() ? label : value;
    const double indent = value.isEmpty() ? 0 : labelWidth;
    constexpr int MostLines = 10000;
    const auto lines = WrapText(text, 0, m_font, FrameWidth() - indent, MostLines);
    MoveDown(air);
    NeedRoom(lineHeight + air);
    if (!value.isEmpty()) {
        m_canvas.Text(m_left, m_currentY, label, m_font);
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) {
            NeedRoom(lineHeight + air);
        }
        m_canvas.Text(m_left + indent, m_currentY, PrintedLine(text, lines[i]), m_font);
        MoveDown(lineHeight);
    }
    MoveDown(air);
    m_canvas.Rule(m_left, m_currentY, m_usableW, m_currentY, m_canvas.Hairline());
}

} // namespace zol
