// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/RichTextFormatter.h"

#include <algorithm>
#include <utility>

#include <QTextDocument>
#include <QTextLayout>
#include <QTextList>

#include "model/Rounding.h"
#include "print/RTFFuncs.h"
#include "print/rtf/RtfFormat.h"

namespace zol {

namespace {

constexpr double TwipsPerPoint = 20;
/// A line gets the air that the lines of plain text have.
constexpr double LineAir = 1.08;
/// Between an item's bullet and its text.
constexpr double TwipsBehindMarker = 100;
/// A size at which fonts of any size are measured.
constexpr int MeasuredSize = 1000;
/// However far a paragraph is moved in, this share of the room is left for its text.
constexpr double LeastShare = 0.25;

/// What stands before an item of a list; empty for other paragraphs.
QString MarkerOf(const QTextBlock& block) {
    const QTextList* list = block.textList();
    if (list == nullptr) {
        return {};
    }
    switch (list->format().style()) {
    case QTextListFormat::ListDisc:
        return QStringLiteral("\u2022");
    case QTextListFormat::ListCircle:
        return QStringLiteral("\u25e6");
    case QTextListFormat::ListSquare:
        return QStringLiteral("\u25aa");
    default:
        return list->itemText(block);
    }
}

double IndentOf(const QTextBlock& block) {
    const QTextList* list = block.textList();
    const int levels =
        block.blockFormat().indent() + (list != nullptr ? list->format().indent() : 0);
    return block.blockFormat().leftMargin() * TwipsPerPixel + levels * TwipsPerListLevel;
}

/// Stops of a paragraph are measured from the room's edge, a line's from where it starts.
QList<QTextOption::Tab> TabsOf(const QTextBlock& block, double left, double firstLine) {
    QList<QTextOption::Tab> tabs;
    for (QTextOption::Tab tab : block.blockFormat().tabPositions()) {
        tab.position = tab.position * TwipsPerPixel - left - firstLine;
        if (tab.position > 0) {
            tabs.append(tab);
        }
    }
    if (firstLine < 0) {
        // The text behind what hangs out starts where the other lines do.
        tabs.append(QTextOption::Tab(-firstLine, QTextOption::LeftTab));
    }
    std::sort(tabs.begin(), tabs.end(),
              [](const auto& one, const auto& other) { return one.position < other.position; });
    return tabs;
}

} // namespace

struct RichTextFormatter::Paragraph {
    QTextLayout Layout;
    QString Marker;
    QFont MarkerFont;
    double Before = 0; ///< twips, as is After
    double After = 0;
};

RichTextFormatter::RichTextFormatter(const std::string& instructions, PageFont font,
                                     const QSizeF& largest)
    : m_document(std::make_unique<QTextDocument>()),
      m_font(std::move(font)),
      m_largest(largest) {
    m_document->setUndoRedoEnabled(false);
    RTFFuncs::LoadInstructions(*m_document, instructions);
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next()) {
        if (!block.text().trimmed().isEmpty()) {
            m_length = block.position() + block.length();
        }
    }
}

RichTextFormatter::~RichTextFormatter() = default;

QTextCharFormat RichTextFormatter::OnPaper(const QTextCharFormat& format) const {
    double size = m_font.Font().pixelSize();
    if (format.hasProperty(QTextFormat::FontPointSize)) {
        size = format.fontPointSize() * TwipsPerPoint;
    } else if (format.hasProperty(QTextFormat::FontPixelSize)) {
        size = format.intProperty(QTextFormat::FontPixelSize) * TwipsPerPixel;
    }
    QTextCharFormat onPaper = format;
    onPaper.clearProperty(QTextFormat::FontPointSize);
    onPaper.setProperty(QTextFormat::FontPixelSize, std::max(1, RoundToInt(size)));
    onPaper.setFontHintingPreference(QFont::PreferNoHinting);
    if (size > std::min(m_largest.width(), m_largest.height()) / 2) {
        QFont font = onPaper.font();
        font.setPixelSize(MeasuredSize);
        const double share = QFontMetricsF(font).lineSpacing() * LineAir / MeasuredSize;
        const double most = std::min(m_largest.width(), m_largest.height() / share);
        onPaper.setProperty(QTextFormat::FontPixelSize,
                            std::max(1, static_cast<int>(std::min(size, most))));
    }
    return onPaper;
}

void RichTextFormatter::LayOut(const QTextBlock& block, double width, Paragraph& paragraph) const {
    const QTextBlockFormat format = block.blockFormat();
    const double right = std::max(0.0, format.rightMargin() * TwipsPerPixel);
    const double widest = std::max(1.0, width * (1 - LeastShare));
    const double left = std::clamp(IndentOf(block), 0.0, widest);
    const double firstLine = std::clamp(format.textIndent() * TwipsPerPixel, -left, widest - left);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setAlignment(format.alignment());
    option.setTextDirection(block.textDirection());
    option.setTabStopDistance(TwipsPerListLevel);
    option.setTabs(TabsOf(block, left, firstLine));
    QList<QTextLayout::FormatRange> ranges = block.textFormats();
    for (QTextLayout::FormatRange& range : ranges) {
        range.format = OnPaper(range.format);
    }
    const QTextCharFormat first =
        ranges.isEmpty() ? OnPaper(block.charFormat()) : ranges.first().format;
    paragraph.MarkerFont = first.font().resolve(m_font.Font());
    paragraph.Marker = MarkerOf(block);
    paragraph.Before = format.topMargin() * TwipsPerPixel;
    paragraph.After = format.bottomMargin() * TwipsPerPixel;
    QTextLayout& layout = paragraph.Layout;
    // An empty paragraph is as high as what would stand there.
    layout.setFont(ranges.isEmpty() ? paragraph.MarkerFont : m_font.Font());
    layout.setText(block.text());
    layout.setFormats(ranges);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        const double from = left + (line.lineNumber() == 0 ? firstLine : 0);
        line.setLeadingIncluded(true);
        line.setLineWidth(std::max(width * LeastShare, width - from - right));
        line.setPosition(QPointF(from, 0));
    }
    layout.endLayout();
}

void RichTextFormatter::PaintLine(const PageCanvas& canvas, const QPointF& at,
                                  const Paragraph& paragraph, int lineNumber) const {
    if (!canvas.Paints()) {
        return;
    }
    QPainter& painter = *canvas.Painter();
    const QTextLine line = paragraph.Layout.lineAt(lineNumber);
    painter.save();
    painter.scale(canvas.PixelX(1), canvas.PixelY(1));
    painter.setPen(Qt::black);
    line.draw(&painter, at);
    if (lineNumber == 0 && !paragraph.Marker.isEmpty()) {
        const double width =
            QFontMetricsF(paragraph.MarkerFont).horizontalAdvance(paragraph.Marker);
        painter.setFont(paragraph.MarkerFont);
        painter.setPen(Qt::black);
        painter.drawText(
            at + QPointF(std::max(0.0, line.x() - TwipsBehindMarker - width), line.ascent()),
            paragraph.Marker);
    }
    painter.restore();
}

double RichTextFormatter::FirstLineHeight(double width) const {
    Paragraph paragraph;
    LayOut(m_document->begin(), width, paragraph);
    return paragraph.Layout.lineAt(0).height() * LineAir;
}

TextFormatter::Piece RichTextFormatter::FormatRange(const PageCanvas& canvas, const QRectF& room,
                                                    int from) const {
    Piece piece{from, 0};
    bool isFirst = true;
    double before = 0;
    for (QTextBlock block = m_document->findBlock(from);
         block.isValid() && block.position() < m_length; block = block.next()) {
        Paragraph paragraph;
        LayOut(block, room.width(), paragraph);
        before += paragraph.Before;
        for (int i = 0; i < paragraph.Layout.lineCount(); ++i) {
            const QTextLine line = paragraph.Layout.lineAt(i);
            if (block.position() + line.textStart() < from) {
                continue;
            }
            const double top = isFirst ? 0 : piece.Height + before;
            const double bottom = top + line.height() * LineAir;
            if (!isFirst && bottom > room.height()) {
                return piece;
            }
            PaintLine(canvas, room.topLeft() + QPointF(0, top), paragraph, i);
            isFirst = false;
            before = 0;
            piece.Height = bottom;
            piece.Next = block.position() + line.textStart() + line.textLength();
        }
        piece.Next = block.position() + block.length();
        before += paragraph.After;
    }
    return piece;
}

std::unique_ptr<TextFormatter> MakeFormatter(const std::string& instructions, const PageFont& font,
                                             const QSizeF& largest) {
    if (RTFFuncs::IsRichText(instructions)) {
        return std::make_unique<RichTextFormatter>(instructions, font, largest);
    }
    return std::make_unique<PlainTextFormatter>(QString::fromStdString(instructions), font);
}

} // namespace zol
