// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PrintFuncs.h"

#include "print/PageText.h"

namespace zol {

namespace {

/// Characters at the front of `text` that fit the room, at least one so that cutting always ends.
int FittingLength(const PageFont& font, const QString& text, double room) {
    int fits = 1;
    int tooLong = static_cast<int>(text.size()) + 1;
    while (tooLong - fits > 1) {
        const int middle = (fits + tooLong) / 2;
        (font.TextWidth(text.left(middle)) <= room ? fits : tooLong) = middle;
    }
    return fits;
}

} // namespace

double PrintFuncs::FooterRoom() const {
    constexpr int Twips = PageDevice::TwipsPerInch;
    const double paper = m_printerPresent ? m_printer->Width() : WidthWithout;
    double room = paper;
    if (m_printerPresent) {
        room -= m_options.LeftMargin * Twips + m_options.RightMargin * Twips;
    }
    if (m_options.PrintPageNumbers) {
        room -= PageFont::TextInfo(m_options).TextWidth(QStringLiteral("  Page 000"));
    }
    return room;
}

void PrintFuncs::BuildFooterLines() {
    m_footerLines.clear();
    const QString title = OneLine(m_named->Title);
    const QString author = OneLine(m_named->Author);
    const QString copyright = OneLine(m_named->Copyright);
    QString first = title;
    if (!author.isEmpty()) {
        const QString lead =
            title.isEmpty() ? QStringLiteral("Author: ") : QString(title + QStringLiteral(" by "));
        first = lead + author;
    }
    if (!first.isEmpty()) {
        m_footerLines.append(first);
        WrapFooterLine(m_footerLines, 0);
    }
    if (!copyright.isEmpty()) {
        m_footerLines.append(copyright);
        WrapFooterLine(m_footerLines, FooterLineCount() - 1);
    }
}

void PrintFuncs::WrapFooterLine(QStringList& lines, int index) const {
    const double room = FooterRoom();
    const PageFont font = PageFont::TextInfo(m_options);
    while (lines[index].size() > 1 && font.TextWidth(lines[index]) > room) {
        const QString line = lines[index];
        const int fits = FittingLength(font, line, room);
        const int blank = static_cast<int>(line.lastIndexOf(QLatin1Char(' '), fits));
        const int cut = blank > 0 ? blank : fits;
        if (cut >= line.size()) {
            break; // one character wider than the room
        }
        lines[index] = line.left(cut).trimmed();
        lines.insert(index + 1, line.mid(cut).trimmed());
        ++index;
    }
}

void PrintFuncs::PrintFooter(PageDevice& target) {
    constexpr int Twips = PageDevice::TwipsPerInch;
    const PageCanvas canvas(target);
    const PrintOptions& options = m_options;
    const PageFont font(QString::fromStdString(options.TextInfoFontName), options.TextInfoFontSize,
                        options.TextInfoFontBold, options.TextInfoFontItalic, false);
    const double bottom = target.Height() - options.BottomMargin * Twips - target.OffsetY();
    if (options.PrintPageNumbers) {
        const QString text = QStringLiteral("Page ") + QString::number(m_range.Page);
        const double right = target.Width() - options.RightMargin * Twips - target.OffsetX();
        canvas.Text(right - font.TextWidth(text), bottom - font.TextHeight(), text, font);
    }
    const double left = options.LeftMargin * Twips - target.OffsetX();
    for (int i = 0; i < FooterLineCount(); ++i) {
        canvas.Text(left, bottom - (FooterLineCount() - i) * font.TextHeight(), m_footerLines[i],
                    font);
    }
}

} // namespace zol
