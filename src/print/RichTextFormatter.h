// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSizeF>
#include <QTextBlock>
#include <QTextCharFormat>

#include <memory>
#include <string>

#include "print/TextFormatter.h"

class QTextDocument;
class QTextLayout;

namespace zol {

/// Formatted text, piece by piece: fonts, sizes, colours, alignment, indents, tabs and lists as
/// they were written. It is laid out in twips without hinting, so that its lines break at the same
/// places on every device. A line is never split between two pieces.
class RichTextFormatter : public TextFormatter {
public:
    /// `font` is that of text without one of its own. Letters larger than the room of a fresh page,
    /// `largest`, are made as large as it holds.
    RichTextFormatter(const std::string& instructions, PageFont font, const QSizeF& largest);
    ~RichTextFormatter() override;

    /// Positions are those of the document's characters; empty paragraphs at the end do not count.
    [[nodiscard]] int Length() const override { return m_length; }
    [[nodiscard]] double FirstLineHeight(double width) const override;
    Piece FormatRange(const PageCanvas& canvas, const QRectF& room, int from) const override;

private:
    struct Paragraph;

    /// The format in twips.
    [[nodiscard]] QTextCharFormat OnPaper(const QTextCharFormat& format) const;
    void LayOut(const QTextBlock& block, double width, Paragraph& paragraph) const;
    void PaintLine(const PageCanvas& canvas, const QPointF& at, const Paragraph& paragraph,
                   int line) const;

    std::unique_ptr<QTextDocument> m_document;
    PageFont m_font;
    QSizeF m_largest;
    int m_length = 0;
};

/// The formatter for instructions: rich text as it was formatted, plain text in `font`.
[[nodiscard]] std::unique_ptr<TextFormatter>
MakeFormatter(const std::string& instructions, const PageFont& font, const QSizeF& largest);

} // namespace zol
