// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/RTFFuncs.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>

#include <gtest/gtest.h>

#include <algorithm>

#include "print/rtf/RtfScene.h"

namespace zol::test {

namespace {

QTextCharFormat Looks(const QString& family, double points) {
    QTextCharFormat format;
    format.setFontFamilies({family});
    format.setFontPointSize(points);
    return format;
}

QTextBlockFormat Aligned(Qt::Alignment alignment) {
    QTextBlockFormat format;
    format.setAlignment(alignment);
    return format;
}

/// Written, read again, and every attribute compared.
void ExpectRoundTrip(const QTextDocument& document) {
    const std::string rtf = RTFFuncs::SaveRichText(document);
    const auto again = ReadRtf(rtf);
    EXPECT_EQ(Described(*again), Described(document)) << rtf;
    EXPECT_EQ(RTFFuncs::SaveRichText(*again), rtf);
    EXPECT_TRUE(std::all_of(rtf.begin(), rtf.end(), [](char c) {
        return (c >= ' ' && c < 0x7F) || c == '\r' || c == '\n';
    })) << rtf;
}

} // namespace

TEST(RtfWriterTest, WritesOnlyWhatChanges) {
    QTextDocument document;
    QTextCursor cursor(&document);
    QTextCharFormat format = Looks(QStringLiteral("Arial"), 10);
    cursor.insertText(QStringLiteral("Sew "), format);
    format.setFontWeight(QFont::Bold);
    format.setForeground(QColor(255, 0, 0));
    cursor.insertText(QStringLiteral("two"), format);
    cursor.insertBlock(Aligned(Qt::AlignHCenter), Looks(QStringLiteral("Arial"), 10));
    cursor.insertText(QString::fromUtf8("{caf\u00e9}\u0142"));
    EXPECT_EQ(RTFFuncs::SaveRichText(document),
              "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\r\n"
              "{\\colortbl ;\\red255\\green0\\blue0;}\r\n"
              "\\pard \\f0\\fs20 Sew \\b\\cf1 two\\par\r\n"
              "\\pard\\qc \\b0\\cf0 \\{caf\\'e9\\}\\u322?\\par\r\n}\r\n");
}

TEST(RtfWriterTest, EmptyDocumentComesBack) {
    ExpectRoundTrip(QTextDocument());
}

TEST(RtfWriterTest, CharactersComeBack) {
    QTextDocument document;
    QTextCursor cursor(&document);
    for (int bits = 0; bits < 16; ++bits) {
        QTextCharFormat format = Looks(QStringLiteral("Family %1").arg(bits % 3), 8 + bits / 2.0);
        format.setFontWeight((bits & 1) != 0 ? QFont::Bold : QFont::Normal);
        format.setFontItalic((bits & 2) != 0);
        format.setFontUnderline((bits & 4) != 0);
        format.setFontStrikeOut((bits & 8) != 0);
        if (bits % 3 == 1) {
            format.setForeground(QColor(bits, 100, 200));
            format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
        }
        if (bits % 4 == 1) {
            format.setBackground(QColor(200, bits, 100));
            format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
        }
        cursor.insertText(QStringLiteral(" word %1 ").arg(bits), format);
    }
    ExpectRoundTrip(document);
}

TEST(RtfWriterTest, ParagraphsComeBack) {
    QTextDocument document(QStringLiteral("first"));
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    for (const Qt::Alignment alignment :
         {Qt::AlignHCenter, Qt::AlignRight, Qt::AlignJustify, Qt::AlignLeft}) {
        QTextBlockFormat format = Aligned(alignment);
        format.setLeftMargin(20);
        format.setRightMargin(5);
        format.setTextIndent(-8);
        format.setTopMargin(3);
        format.setBottomMargin(4);
        format.setTabPositions({QTextOption::Tab(96, QTextOption::LeftTab),
                                QTextOption::Tab(192, QTextOption::RightTab),
                                QTextOption::Tab(288, QTextOption::CenterTab),
                                QTextOption::Tab(384, QTextOption::DelimiterTab)});
        cursor.insertBlock(format);
        cursor.insertText(QStringLiteral("a\tb"));
    }
    QTextCharFormat large;
    large.setFontPointSize(30);
    cursor.insertBlock(QTextBlockFormat(), large); // an empty line keeps its height
    cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    cursor.insertText(QStringLiteral("b"));
    cursor.insertBlock();
    ExpectRoundTrip(document);
}

TEST(RtfWriterTest, ListsComeBack) {
    QTextDocument document(QStringLiteral("before"));
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    for (int style = QTextListFormat::ListDisc; style >= QTextListFormat::ListUpperRoman; --style) {
        if (style == QTextListFormat::ListCircle || style == QTextListFormat::ListSquare) {
            continue; // other bullets are read as the plain one
        }
        QTextListFormat format;
        format.setStyle(static_cast<QTextListFormat::Style>(style));
        format.setIndent(1 - style % 3);
        cursor.insertList(format);
        cursor.insertText(QStringLiteral("one"));
        cursor.insertBlock();
        cursor.insertText(QStringLiteral("two"));
    }
    cursor.insertBlock(QTextBlockFormat());
    cursor.insertText(QStringLiteral("after"));
    ExpectRoundTrip(document);
}

TEST(RtfWriterTest, EveryCharacterComesBack) {
    QTextDocument document;
    QTextCursor cursor(&document);
    QString text = QString::fromUtf8("\U0001F9F5 \u2028next\ttab\\{};'");
    for (char16_t unit = ' '; unit < 0xD800; unit = static_cast<char16_t>(unit + 1)) {
        if (unit != QChar::ParagraphSeparator) {
            text += QChar(unit);
        }
    }
    cursor.insertText(text);
    const auto again = ReadRtf(RTFFuncs::SaveRichText(document));
    EXPECT_TRUE(again->firstBlock().text() == document.firstBlock().text());
    EXPECT_EQ(again->blockCount(), 1);
}

TEST(RtfWriterTest, ForeignFontNamesComeBack) {
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.insertText(QStringLiteral("x"), Looks(QString::fromUtf8("\u660e\u671d {A} \u00e9"), 9));
    ExpectRoundTrip(document);
    const auto semicolon = [&] {
        QTextDocument odd;
        QTextCursor(&odd).insertText(QStringLiteral("x"), Looks(QStringLiteral("A;B"), 9));
        return Described(*ReadRtf(RTFFuncs::SaveRichText(odd)));
    };
    EXPECT_NE(semicolon().find("A B 9"), std::string::npos);
}

TEST(RtfWriterTest, TablesAndPicturesLeaveTheirText) {
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.insertText(QStringLiteral("a"));
    cursor.insertImage(QImage(2, 2, QImage::Format_RGB32));
    cursor.insertText(QStringLiteral("b"));
    QTextTable* table = cursor.insertTable(1, 2);
    table->cellAt(0, 0).firstCursorPosition().insertText(QStringLiteral("left"));
    table->cellAt(0, 1).firstCursorPosition().insertText(QStringLiteral("right"));
    EXPECT_EQ(TextOf(*ReadRtf(RTFFuncs::SaveRichText(document))), "ab\nleft\nright\n");
}

} // namespace zol::test
