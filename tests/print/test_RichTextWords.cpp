// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/RichTextWords.h"

#include <gtest/gtest.h>

namespace zol::test {

TEST(RichTextWordsTest, RichTextIsKnownByItsBeginning) {
    EXPECT_TRUE(IsRichText("{\\rtf1 x}"));
    EXPECT_FALSE(IsRichText(" {\\rtf1 x}"));
    EXPECT_FALSE(IsRichText("plain"));
}

TEST(RichTextWordsTest, PlainTextStaysAsItIs) {
    EXPECT_EQ(PrintableInstructions("a {b} \\c\n d"), QStringLiteral("a {b} \\c\n d"));
}

TEST(RichTextWordsTest, TablesAreNotWords) {
    EXPECT_EQ(WordsOfRichText("{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil Arial;}}"
                              "{\\colortbl ;\\red255\\green0\\blue0;}{\\*\\generator X 1;}"
                              "\\viewkind4\\uc1\\pard\\cf1\\f0\\fs20 Hello \\b world\\b0 .\\par }"),
              QStringLiteral("Hello world."));
}

TEST(RichTextWordsTest, ParagraphsTabsAndEscapes) {
    EXPECT_EQ(WordsOfRichText("{\\rtf1 a\\par b\\line c\\tab d\\{e\\}\\\\}"),
              QStringLiteral("a\nb\nc\td{e}\\"));
}

TEST(RichTextWordsTest, CodePageAndUnicodeCharacters) {
    EXPECT_EQ(WordsOfRichText("{\\rtf1 caf\\'e9 \\u8364?5 \\'93q\\'94}"),
              QString::fromUtf8("caf\u00e9 \u20ac5 \u201cq\u201d"));
}

TEST(RichTextWordsTest, HalvesOfACharacterAreOne) {
    EXPECT_EQ(WordsOfRichText("{\\rtf1 \\u-10179?\\u-8704?x\\u-10179?y}"),
              QString::fromUtf8("\U0001F600xy"));
}

TEST(RichTextWordsTest, DamageLosesNoMoreThanItself) {
    EXPECT_EQ(WordsOfRichText("{\\rtf1 a}}}} b"), QStringLiteral("a b"));
    EXPECT_EQ(WordsOfRichText("{\\rtf1 a\\'zz b"), QStringLiteral("a b"));
    EXPECT_EQ(WordsOfRichText("{\\rtf1 a\\"), QStringLiteral("a"));
    EXPECT_EQ(WordsOfRichText("{\\rtf1\\u999999999999999999 ?a"), QStringLiteral("a"));
}

} // namespace zol::test
