// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>
#include <QString>

#include <vector>

#include "print/PageCanvas.h"

namespace zol {

/// One line of a wrapped text: where it starts and how many characters it shows.
struct TextLine {
    int Start = 0;
    int Length = 0;
    int Next = 0; ///< where the next line starts
};

/// Breaks the text into lines no wider than `width` twips, between words where it can. Line
/// breaks in the text hold. Stops after `mostLines` lines.
[[nodiscard]] std::vector<TextLine> WrapText(const QString& text, int from, const PageFont& font,
                                             double width, int mostLines);
/// The characters of a line as they are printed: tabs and control characters as blanks.
[[nodiscard]] QString PrintedLine(const QString& text, const TextLine& line);

/// Paints a long text piece by piece: as much from a position as a rectangle holds. Plain text is
/// one kind of it.
class TextFormatter {
public:
    struct Piece {
        int Next = 0;      ///< where the following piece starts; the text's length at its end
        double Height = 0; ///< twips that the piece takes
    };

    TextFormatter() = default;
    virtual ~TextFormatter() = default;
    TextFormatter(const TextFormatter&) = delete;
    TextFormatter& operator=(const TextFormatter&) = delete;

    [[nodiscard]] virtual int Length() const = 0;
    /// Twips that the text's first line takes in a room of that width.
    [[nodiscard]] virtual double FirstLineHeight(double width) const = 0;
    /// `room` in twips of the canvas. A piece always moves on, by a line if nothing fits.
    virtual Piece FormatRange(const PageCanvas& canvas, const QRectF& room, int from) const = 0;
};

class PlainTextFormatter : public TextFormatter {
public:
    PlainTextFormatter(QString text, PageFont font);

    [[nodiscard]] int Length() const override { return static_cast<int>(m_text.size()); }
    [[nodiscard]] double FirstLineHeight(double width) const override;
    Piece FormatRange(const PageCanvas& canvas, const QRectF& room, int from) const override;

private:
    QString m_text;
    PageFont m_font;
};

} // namespace zol
