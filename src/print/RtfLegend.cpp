// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/RtfLegend.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <initializer_list>

#include "flosses/Palette.h"
#include "grid/painting/SymbolText.h"
#include "model/LengthUnits.h"
#include "model/Rounding.h"
#include "print/KeyRows.h"
#include "print/PageText.h"
#include "print/RTFFuncs.h"

namespace zol {

namespace {

constexpr double TwipsPerPixel = 15; // a document measures in pixels, 96 an inch
/// Air above the key, which parts it from the facts.
constexpr double KeyAir = 16;

QList<QTextOption::Tab> SetTabStops(std::initializer_list<int> twips) {
    QList<QTextOption::Tab> tabs;
    for (const int stop : twips) {
        tabs.append(QTextOption::Tab(stop / TwipsPerPixel, QTextOption::LeftTab));
    }
    return tabs;
}

/// A length in the format "##.##", without the point that this leaves behind a whole number.
QString SizeText(int squares, int clothCount, bool inches) {
    const double size = static_cast<double>(squares) / std::max(1, clothCount);
    std::string text = FormatUpTo(inches ? size : size * CentimetresPerInch, 2);
    if (text.back() == '.') {
        text.pop_back();
    }
    return QString::fromStdString(text) + (inches ? QStringLiteral("\"") : QStringLiteral(" cm"));
}

/// Appends to a document line by line.
class LegendLines {
public:
    LegendLines(QTextDocument& document, const PrintOptions& options) : m_cursor(&document) {
        document.clear();
        QFont font(QString::fromStdString(options.TextInfoFontName));
        font.setPointSizeF(options.TextInfoFontSize);
        document.setDefaultFont(font);
        m_plain.setFontFamilies({QString::fromStdString(options.TextInfoFontName)});
        m_plain.setFontPointSize(options.TextInfoFontSize);
        m_plain.setFontItalic(options.TextInfoFontItalic);
        m_plain.setFontUnderline(options.TextInfoFontUnderline);
        m_plain.setFontWeight(QFont::Normal);
    }

    void SetBlock(const QTextBlockFormat& format) { m_block = format; }

    /// A label in bold and its value behind a tab.
    void AppendRtfLine(const QString& label, const QString& value) {
        StartLine();
        Bold(QStringLiteral("\t") + label);
        Plain(QStringLiteral("\t") + value);
    }
    void StartLine() {
        if (m_begun) {
            m_cursor.insertBlock(m_block, m_plain);
        } else {
            m_cursor.setBlockFormat(m_block);
            m_begun = true;
        }
    }
    void Plain(const QString& text) { m_cursor.insertText(text, m_plain); }
    void Bold(const QString& text) {
        QTextCharFormat bold = m_plain;
        bold.setFontWeight(QFont::Bold);
        m_cursor.insertText(text, bold);
    }
    void Symbol(int code, const Palette& palette) {
        QTextCharFormat format = m_plain;
        format.setFontFamilies({QString::fromStdString(palette.GetFontName())});
        format.setFontWeight(palette.GetFontBold() ? QFont::Bold : QFont::Normal);
        format.setFontItalic(palette.GetFontItalic());
        format.setFontUnderline(false);
        if (const char32_t symbol = SymbolText::ToUnicode(code); symbol != 0) {
            m_cursor.insertText(QString::fromUcs4(&symbol, 1), format);
        }
    }

private:
    QTextCursor m_cursor;
    QTextCharFormat m_plain;
    QTextBlockFormat m_block;
    bool m_begun = false;
};

QString GridSizeText(const Pattern& pattern) {
    return QString::number(pattern.GetPatternWidth()) + QStringLiteral(" W  x  ") +
           QString::number(pattern.GetPatternHeight()) + QStringLiteral(" H");
}

QString ClothCountText(const Pattern& pattern) {
    return QString::number(pattern.GetPatternClothCountX()) + QStringLiteral(" Horizontal, ") +
           QString::number(pattern.GetPatternClothCountY()) + QStringLiteral(" Vertical");
}

QString DesignAreaText(const Pattern& pattern, bool inches) {
    const int columns = pattern.GetDesignWidth();
    const int rows = pattern.GetDesignHeight();
    return SizeText(columns, pattern.GetPatternClothCountX(), inches) + QStringLiteral(" W  x  ") +
           SizeText(rows, pattern.GetPatternClothCountY(), inches) + QStringLiteral(" H   ( ") +
           QString::number(columns) + QStringLiteral(" x ") + QString::number(rows) +
           QStringLiteral(" stitches ) ");
}

void AppendFacts(LegendLines& lines, const Pattern& pattern, bool inches) {
    const auto line = [&lines](const char* label, const std::string& value) {
        if (!value.empty()) {
            lines.AppendRtfLine(QLatin1String(label), OneLine(value));
        }
    };
    QTextBlockFormat format;
    constexpr int valueStop = 2880;
    format.setTabPositions(SetTabStops({1440, valueStop, 4320, 5760, 7200}));
    // A long value goes on under its beginning.
    format.setLeftMargin(valueStop / TwipsPerPixel);
    format.setTextIndent(-valueStop / TwipsPerPixel);
    lines.SetBlock(format);
    line("Title:", OneLine(pattern.Title).toStdString());
    line("Author:", pattern.Author);
    line("Copyright:", pattern.Copyright);
    lines.AppendRtfLine(QStringLiteral("Grid Size:"), GridSizeText(pattern));
    lines.AppendRtfLine(QStringLiteral("Cloth Count:"), ClothCountText(pattern));
    line("Fabric:", pattern.Fabric);
    lines.AppendRtfLine(QStringLiteral("Design Area:"), DesignAreaText(pattern, inches));
}

void AppendKey(LegendLines& lines, const Pattern& pattern) {
    const MainCatalogue main = MainCatalogue::Of(pattern.Context());
    const Palette& palette = pattern.GetPalette();
    QTextBlockFormat format;
    format.setTabPositions(SetTabStops({1080, 3240, 4320}));
    QTextBlockFormat head = format;
    head.setTopMargin(KeyAir);
    lines.SetBlock(head);
    lines.StartLine();
    lines.Bold(QString::fromStdString(main.Desc) + QStringLiteral(" Key"));
    lines.SetBlock(format);
    lines.StartLine();
    lines.Plain(QStringLiteral("Symbol\t") + QString::fromStdString(main.Desc) +
                QStringLiteral("\tStrands\tDescription"));
    for (int position = 1; position <= palette.GetEntriesCount(); ++position) {
        const int entry = palette.GetSortIndex(position);
        if (pattern.GetColorCount(0, entry) == 0) {
            continue;
        }
        lines.StartLine();
        lines.Symbol(palette.GetFlossSymbol(entry), palette);
        lines.Plain(QStringLiteral("\t") + FlossCodeOf(palette, entry, main) +
                    QStringLiteral("\t") + QString::number(palette.GetFlossStitchStrands(entry)) +
                    QStringLiteral("\t") + OneLine(palette.GetFlossShortDesc(entry)));
    }
}

} // namespace

void RtfLegend::BuildRtfLegend(Pattern& pattern, const PrintOptions& options,
                               QTextDocument& legend) {
    pattern.CountStitches();
    LegendLines lines(legend, options);
    AppendFacts(lines, pattern, options.InInches());
    AppendKey(lines, pattern);
}

std::string RtfLegend::Write(Pattern& pattern, const PrintOptions& options) {
    QTextDocument legend;
    legend.setUndoRedoEnabled(false);
    BuildRtfLegend(pattern, options, legend);
    return RTFFuncs::SaveRichText(legend);
}

} // namespace zol
