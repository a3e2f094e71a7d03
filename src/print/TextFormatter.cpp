// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/TextFormatter.h"

#include <algorithm>
#include <utility>

#include <QTextLayout>
#include <QTextOption>

namespace zol {

namespace {

/// Appends the lines of one paragraph, which starts at `start` in the whole text.
void WrapParagraph(const QString& paragraph, int start, const PageFont& font, double width,
                   int mostLines, std::vector<TextLine>& lines) {
    QTextLayout layout(paragraph, font.Font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    while (static_cast<int>(lines.size()) < mostLines) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) {
            break;
        }
        line.setLineWidth(width);
        const int first = start + line.textStart();
        lines.push_back({first, line.textLength(), first + line.textLength()});
    }
    layout.endLayout();
}

} // namespace

std::vector<TextLine> WrapText(const QString& text, int from, const PageFont& font, double width,
                               int mostLines) {
    std::vector<TextLine> lines;
    const int length = static_cast<int>(text.size());
    while (from < length && static_cast<int>(lines.size()) < mostLines) {
        const int found = static_cast<int>(text.indexOf(QLatin1Char('\n'), from));
        const int end = found < 0 ? length : found;
        if (end == from) {
            lines.push_back({from, 0, from});
        } else {
            WrapParagraph(text.mid(from, end - from), from, font, width, mostLines, lines);
        }
        if (lines.back().Next < end) {
            break; // cut by mostLines
        }
        lines.back().Next = std::min(end + 1, length);
        from = end + 1;
    }
    return lines;
}

QString PrintedLine(const QString& text, const TextLine& line) {
    QString printed = text.mid(line.Start, line.Length);
    for (QChar& character : printed) {
        if (character.category() == QChar::Other_Control) {
            character = QLatin1Char(' ');
        }
    }
    while (printed.endsWith(QLatin1Char(' '))) {
        printed.chop(1);
    }
    return printed;
}

PlainTextFormatter::PlainTextFormatter(QString text, PageFont font)
    : m_text(std::move(text)),
      m_font(std::move(font)) {
    m_text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    m_text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

double PlainTextFormatter::FirstLineHeight(double /*width*/) const {
    return m_font.TextHeight();
}

TextFormatter::Piece PlainTextFormatter::FormatRange(const PageCanvas& canvas, const QRectF& room,
                                                     int from) const {
    const double lineHeight = m_font.TextHeight();
    const int fitting = std::max(1, static_cast<int>(room.height() / lineHeight));
    Piece piece{from, 0};
    for (const TextLine& line : WrapText(m_text, from, m_font, room.width(), fitting)) {
        canvas.Text(room.left(), room.top() + piece.Height, PrintedLine(m_text, line), m_font);
        piece.Height += lineHeight;
        piece.Next = line.Next;
    }
    return piece;
}

} // namespace zol
