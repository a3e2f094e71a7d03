// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/RTFFuncs.h"

#include <QTextCursor>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace zol::test {

using namespace RTFFuncs;

namespace {

QString Words(const std::string& rtf) {
    QTextDocument document;
    LoadInstructions(document, rtf);
    return document.toPlainText();
}

} // namespace

TEST(RTFFuncsTest, RichTextIsKnownByItsBeginning) {
    EXPECT_TRUE(IsRichText("{\\rtf1 x}"));
    EXPECT_FALSE(IsRichText(" {\\rtf1 x}"));
    EXPECT_FALSE(IsRichText("plain"));
}

TEST(RTFFuncsTest, PlainTextIsLoadedAsItIs) {
    EXPECT_EQ(Words("a {b} \\c\n d"), QStringLiteral("a {b} \\c\n d"));
}

TEST(RTFFuncsTest, TablesAreNotWords) {
    EXPECT_EQ(Words("{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil Arial;}}"
                    "{\\colortbl ;\\red255\\green0\\blue0;}{\\*\\generator X 1;}"
                    "\\viewkind4\\uc1\\pard\\cf1\\f0\\fs20 Hello \\b world\\b0 .\\par }"),
              QStringLiteral("Hello world."));
}

TEST(RTFFuncsTest, ParagraphsTabsAndEscapesAreWords) {
    EXPECT_EQ(Words("{\\rtf1 a\\par b\\line c\\tab d\\{e\\}\\\\}"),
              QStringLiteral("a\nb\nc\td{e}\\"));
}

TEST(RTFFuncsTest, CodePageAndUnicodeCharacters) {
    EXPECT_EQ(Words("{\\rtf1 caf\\'e9 \\u8364?5 \\'93q\\'94}"),
              QString::fromUtf8("caf\u00e9 \u20ac5 \u201cq\u201d"));
}

TEST(RTFFuncsTest, HalvesOfACharacterAreOne) {
    EXPECT_EQ(Words("{\\rtf1 \\u-10179?\\u-8704?x\\u-10179?y}"), QString::fromUtf8("\U0001F600xy"));
}

TEST(RTFFuncsTest, DamageLosesNoMoreThanItself) {
    EXPECT_EQ(Words("{\\rtf1 a}}}} b"), QStringLiteral("a b"));
    EXPECT_EQ(Words("{\\rtf1 a\\'zz b"), QStringLiteral("a b"));
    EXPECT_EQ(Words("{\\rtf1 a\\"), QStringLiteral("a"));
    EXPECT_EQ(Words("{\\rtf1\\u999999999999999999 ?a"), QStringLiteral("a"));
}

TEST(RTFFuncsTest, InstructionsThatNobodyEditedStayByteByByte) {
    for (const std::string& before :
         {std::string("plain\nwith {\\b braces}"), std::string("{\\rtf1 {\\*\\unknown x}\\zzz9 a}"),
          std::string()}) {
        QTextDocument document;
        LoadInstructions(document, before);
        EXPECT_FALSE(document.isModified());
        EXPECT_EQ(SaveInstructions(document, before), before);
    }
}

TEST(RTFFuncsTest, PlainInstructionsBecomeRichOnceTheyAreEdited) {
    QTextDocument document;
    LoadInstructions(document, "{\\c} caf\u00e9\nsecond");
    EXPECT_EQ(document.toPlainText(), QString::fromUtf8("{\\c} caf\u00e9\nsecond"));
    QTextCursor(&document).insertText(QStringLiteral("{\\rtf1 "));
    const std::string saved = SaveInstructions(document, "{\\c} caf\u00e9\nsecond");
    EXPECT_TRUE(IsRichText(saved));
    EXPECT_EQ(Words(saved), QString::fromUtf8("{\\rtf1 {\\c} caf\u00e9\nsecond"));
}

TEST(RTFFuncsTest, NothingLeftIsAnEmptyText) {
    QTextDocument document;
    LoadInstructions(document, "{\\rtf1 words}");
    QTextCursor all(&document);
    all.select(QTextCursor::Document);
    all.removeSelectedText();
    EXPECT_EQ(SaveInstructions(document, "{\\rtf1 words}"), "");
}

TEST(RTFFuncsTest, LoadingReplacesWhatWasThereAndKeepsUndoOn) {
    QTextDocument document(QStringLiteral("before"));
    LoadRichText(document, "{\\rtf1 after}");
    EXPECT_EQ(document.toPlainText(), QStringLiteral("after"));
    EXPECT_TRUE(document.isUndoRedoEnabled());
    EXPECT_FALSE(document.isUndoAvailable());
    QTextCursor(&document).insertText(QStringLiteral("x"));
    EXPECT_TRUE(document.isModified());
    document.undo();
    EXPECT_EQ(document.toPlainText(), QStringLiteral("after"));
}

} // namespace zol::test
