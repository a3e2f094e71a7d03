// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/TextFormatter.h"

#include <gtest/gtest.h>

namespace zol::test {

namespace {

PageFont Font() {
    return PageFont::TextInfo(PrintOptions());
}

} // namespace

TEST(TextFormatterTest, PiecesTakeWhatFitsAndGoOn) {
    const PageFont font = Font();
    const PlainTextFormatter text(QStringLiteral("one\ntwo\nthree"), font);
    const QRectF room(0, 0, 5000, font.TextHeight() * 2.5);
    const TextFormatter::Piece first = text.FormatRange({}, room, 0);
    EXPECT_EQ(first.Next, 8);
    EXPECT_EQ(first.Height, 2.0 * font.TextHeight());
    const TextFormatter::Piece second = text.FormatRange({}, room, first.Next);
    EXPECT_EQ(second.Next, text.Length());
    EXPECT_EQ(second.Height, 1.0 * font.TextHeight());
}

TEST(TextFormatterTest, AlwaysMovesOn) {
    const PlainTextFormatter text(QStringLiteral("\n\nMMMM"), Font());
    int position = 0;
    int pieces = 0;
    while (position < text.Length()) {
        const int next = text.FormatRange({}, QRectF(0, 0, 1, 1), position).Next;
        ASSERT_GT(next, position);
        position = next;
        ASSERT_LT(++pieces, 10);
    }
}

TEST(TextFormatterTest, LineEndsOfAllKindsCountOnce) {
    const PlainTextFormatter text(QStringLiteral("a\r\nb\rc\nd"), Font());
    EXPECT_EQ(text.FormatRange({}, QRectF(0, 0, 5000, 99999), 0).Height, 4.0 * Font().TextHeight());
}

TEST(TextFormatterTest, LinesAreNoWiderThanTheRoomAndLoseNothing) {
    QString text;
    for (int i = 0; i < 300; ++i) {
        text += QStringLiteral("word") + QString::number(i * 7) + QStringLiteral(" ");
    }
    text += QString(500, QLatin1Char('m'));
    QString joined;
    const PageFont font = Font();
    for (const TextLine& line : WrapText(text, 0, font, 3000, 10000)) {
        const QString printed = PrintedLine(text, line);
        EXPECT_LE(font.TextWidth(printed), 3001);
        joined += text.mid(line.Start, line.Length);
    }
    EXPECT_EQ(joined, text);
}

TEST(TextFormatterTest, StopsAtTheMostLines) {
    const QString text = QStringLiteral("a b c d e f g h");
    const auto lines = WrapText(text, 0, Font(), 150, 3);
    EXPECT_EQ(lines.size(), 3U);
    EXPECT_LT(lines.back().Next, text.size());
}

TEST(TextFormatterTest, ControlCharactersPrintAsBlanks) {
    const QString text = QStringLiteral("a\tb\x01"
                                        "c");
    EXPECT_EQ(PrintedLine(text, {0, 5, 5}), QStringLiteral("a b c"));
}

} // namespace zol::test
