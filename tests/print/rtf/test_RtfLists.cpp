// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

#include <gtest/gtest.h>

#include <algorithm>

#include "print/RTFFuncs.h"
#include "print/rtf/RtfNumbering.h"
#include "print/rtf/RtfScene.h"

namespace zol::test {

namespace {

/// The paragraphs as they are shown, a line each: with the bullets and numbers that the document
/// puts before its items.
std::string Shown(const QTextDocument& document) {
    std::string text;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (const QTextList* list = block.textList()) {
            text += list->format().style() == QTextListFormat::ListDisc
                        ? std::string("*")
                        : list->itemText(block).toStdString();
            text += " ";
        }
        text += block.text().toStdString() + "\n";
    }
    return text;
}

/// The same, whether a number is the document's or text.
std::string Looks(const QTextDocument& document) {
    std::string text = Shown(document);
    std::replace(text.begin(), text.end(), '\t', ' ');
    return text;
}

/// What is written has the same numbers, and is written alike from then on.
void ExpectToComeBack(const QTextDocument& document) {
    const std::string once = RTFFuncs::SaveRichText(document);
    const auto again = ReadRtf(once);
    EXPECT_EQ(Looks(*again), Looks(document)) << once;
    EXPECT_EQ(RTFFuncs::SaveRichText(*again), once);
}

void ExpectShown(const std::string& body, const std::string& expected) {
    const auto document = ReadRtf("{\\rtf1\\ansi" + body + "}");
    EXPECT_EQ(Shown(*document), expected) << body;
    ExpectToComeBack(*document);
}

/// A table of lists with numbers of one kind, and an override a list: \ls1, \ls2 ...
std::string Tables(const std::vector<std::string>& ids, const std::string& level) {
    std::string lists;
    std::string overrides;
    int number = 0;
    for (const std::string& id : ids) {
        lists += "{\\list{\\listlevel";
        lists += level;
        lists += "}{\\listlevel\\levelnfc4}\\listid";
        lists += id;
        lists += "}";
        overrides += "{\\listoverride\\listid";
        overrides += id;
        overrides += "\\ls" + std::to_string(++number) + "}";
    }
    return "{\\*\\listtable" + lists + "}{\\*\\listoverridetable" + overrides + "}";
}

std::string Old(const std::string& words, const std::string& text) {
    return "\\pard{\\pntext " + text + "\\tab}{\\*\\pn\\pnlvlbody" + words + "}\\fi-360\\li720 ";
}

} // namespace

TEST(RtfListsTest, IdsOfTenDigitsAreTwoLists) {
    for (const auto& [bullets, numbers] : {std::pair{"1847205511", "1847205512"},
                                           {"-1847205511", "-1847205512"},
                                           {"2147483647", "-2147483648"},
                                           {"83886079", "83886080"}}) {
        ExpectShown("{\\*\\listtable{\\list{\\listlevel\\levelnfc23}\\listid" +
                        std::string(bullets) + "}{\\list{\\listlevel\\levelnfc0}\\listid" +
                        numbers + "}}{\\*\\listoverridetable{\\listoverride\\listid" + bullets +
                        "\\ls1}{\\listoverride\\listid" + numbers +
                        "\\ls2}}\\pard\\ls1 a\\par"
                        "\\pard\\ls2 b\\par",
                    "* a\n1. b\n");
    }
}

TEST(RtfListsTest, AListGoesOnBehindAPlainParagraph) {
    ExpectShown(Tables({"7"}, "\\levelnfc0") +
                    "\\pard\\ls1 a\\par b\\par\\pard text\\par\\pard\\ls1 c\\par",
                "1. a\n2. b\ntext\n3. c\n");
    ExpectShown(Old("\\pndec\\pnstart1", "1.") + "a\\par" + Old("\\pndec\\pnstart1", "2.") +
                    "b\\par\\pard text\\par" + Old("\\pndec\\pnstart3", "3.") + "c\\par",
                "1. a\n2. b\ntext\n3. c\n");
    // Nothing but the ready-made text tells it.
    ExpectShown("\\pard{\\pntext 1.\\tab}a\\par\\pard text\\par\\pard{\\pntext 2.\\tab}b\\par",
                "1. a\ntext\n2. b\n");
}

TEST(RtfListsTest, ListsOfTwoNamesCountForThemselves) {
    ExpectShown(Tables({"7", "8"}, "\\levelnfc0") +
                    "\\pard\\ls1 a\\par b\\par\\pard\\ls2 c\\par\\pard\\ls1 d\\par",
                "1. a\n2. b\n1. c\n3. d\n");
    ExpectShown(Old("\\pndec\\pnstart1", "1.") + "a\\par\\pard text\\par" +
                    Old("\\pndec\\pnstart1", "1.") + "b\\par",
                "1. a\ntext\n1. b\n");
}

TEST(RtfListsTest, AListBeginsWhereItSays) {
    ExpectShown(Tables({"7"}, "\\levelnfc0\\levelstartat5") +
                    "\\pard\\ls1 a\\par b\\par\\pard text\\par\\pard\\ls1 c\\par",
                "5.\ta\n6.\tb\ntext\n7.\tc\n");
    ExpectShown(Tables({"7"}, "\\levelnfc2\\levelstartat4") + "\\pard\\ls1 a\\par b\\par",
                "iv.\ta\nv.\tb\n");
    ExpectShown("{\\*\\listtable{\\list{\\listlevel\\levelnfc0}\\listid7}}{\\*\\listoverridetable"
                "{\\listoverride\\listid7\\ls1}{\\listoverride\\listid7\\listoverridecount1"
                "{\\lfolevel\\listoverridestartat\\levelstartat9}\\ls2}}"
                "\\pard\\ls1 a\\par\\pard\\ls2 b\\par",
                "1. a\n9.\tb\n");
    ExpectShown(Old("\\pndec\\pnstart5", "5.") + "a\\par b\\par", "5.\ta\n6.\tb\n");
    ExpectShown("\\pard{\\*\\pn\\pnlvlbody\\pndec\\pnstart0}\\li720 a\\par b\\par",
                "0.\ta\n1.\tb\n");
    ExpectShown(Tables({"7"}, "\\levelnfc0\\levelstartat2147483647") + "\\pard\\ls1 a\\par",
                "99999.\ta\n");
}

TEST(RtfListsTest, NumbersThatAreTextStandOutFromTheirItems) {
    const auto document = ReadRtf("{\\rtf1{\\pntext 4.\\tab}{\\*\\pn\\pnlvlbody\\pndec\\pnstart4}"
                                  "\\li1440 {\\b a}\\par}");
    const QTextBlock item = document->firstBlock();
    EXPECT_EQ(item.blockFormat().leftMargin(), 96);
    EXPECT_EQ(item.blockFormat().textIndent(), -24);
    EXPECT_EQ(item.begin().fragment().text(), QStringLiteral("4.\ta"));
    EXPECT_TRUE(item.begin().fragment().charFormat().font().bold());
}

TEST(RtfListsTest, ASubListLeavesTheNumbersAroundIt) {
    ExpectShown(Tables({"7"}, "\\levelnfc0") +
                    "\\pard\\ls1 a\\par\\pard\\ls1\\ilvl1 b\\par c\\par\\pard\\ls1 d\\par"
                    "\\pard\\ls1\\ilvl1 e\\par",
                "1. a\na. b\nb. c\n2. d\na. e\n");
}

TEST(RtfListsTest, WritesTheNumbersThatAreShown) {
    QTextDocument document;
    QTextCursor cursor(&document);
    const auto item = [&cursor](const char* text) {
        cursor.insertText(QString::fromLatin1(text));
        cursor.insertBlock();
    };
    QTextListFormat steps;
    steps.setStyle(QTextListFormat::ListUpperRoman);
    QTextList* list = cursor.createList(steps);
    item("a");
    item("b");
    QTextListFormat letters;
    letters.setStyle(QTextListFormat::ListLowerAlpha);
    letters.setIndent(2);
    QTextList* inner = cursor.createList(letters);
    item("c");
    item("d");
    inner->remove(cursor.block());
    cursor.setBlockFormat(QTextBlockFormat());
    list->add(cursor.block());
    item("e");
    list->remove(cursor.block());
    cursor.setBlockFormat(QTextBlockFormat());
    item("text");
    list->add(cursor.block());
    item("f");
    list->remove(cursor.block());
    cursor.setBlockFormat(QTextBlockFormat());
    cursor.createList(steps);
    cursor.insertText(QStringLiteral("touches"));
    EXPECT_EQ(Shown(document), "I. a\nII. b\na. c\nb. d\nIII. e\ntext\nIV. f\nI. touches\n");
    ExpectToComeBack(document);
    const std::string rtf = RTFFuncs::SaveRichText(document);
    for (const char* part :
         {"\\pnucrm\\pnstart1", "{\\pntext II.\\tab}b", "{\\pntext b.\\tab}d",
          "{\\pntext III.\\tab}e", "\\pnucrm\\pnstart4", "{\\pntext IV.\\tab}f"}) {
        EXPECT_NE(rtf.find(part), std::string::npos) << part << " in\n" << rtf;
    }
}

TEST(RtfListsTest, NumbersLookAsADocumentShowsThem) {
    QTextDocument document;
    QTextCursor cursor(&document);
    for (const auto style : {QTextListFormat::ListDecimal, QTextListFormat::ListLowerAlpha,
                             QTextListFormat::ListUpperAlpha, QTextListFormat::ListLowerRoman,
                             QTextListFormat::ListUpperRoman}) {
        cursor.insertBlock(QTextBlockFormat());
        const QTextList* list = cursor.createList(style);
        for (int number = 1; number <= 800; ++number) {
            const std::string text = RtfNumbering::Text(style, number) + ".";
            ASSERT_EQ(text, list->itemText(cursor.block()).toStdString());
            ASSERT_EQ(RtfNumbering::OfText(style, text), number) << text;
            cursor.insertBlock();
        }
    }
}

TEST(RtfListsTest, NumbersAreFoundInReadyMadeTexts) {
    using enum QTextListFormat::Style;
    EXPECT_EQ(RtfNumbering::OfText(ListDecimal, "(12)\t"), 12);
    EXPECT_EQ(RtfNumbering::OfText(ListDecimal, "2.3."), 3);
    EXPECT_EQ(RtfNumbering::OfText(ListDecimal, "b."), std::nullopt);
    EXPECT_EQ(RtfNumbering::OfText(ListDecimal, "100000"), std::nullopt);
    EXPECT_EQ(RtfNumbering::OfText(ListDecimal, "99999999999999999999"), std::nullopt);
    EXPECT_EQ(RtfNumbering::OfText(ListLowerAlpha, "aa)"), 27);
    EXPECT_EQ(RtfNumbering::OfText(ListLowerRoman, "iix."), std::nullopt);
    EXPECT_EQ(RtfNumbering::OfText(ListUpperRoman, "iv."), std::nullopt);
    EXPECT_EQ(RtfNumbering::OfText(ListUpperAlpha, ""), std::nullopt);
    // More letters than any number has, summed beyond 32 bits.
    EXPECT_EQ(RtfNumbering::OfText(ListLowerRoman, std::string(3'000'000, 'm')), std::nullopt);
    EXPECT_EQ(RtfNumbering::OfText(ListLowerAlpha, std::string(3'000'000, 'm')), std::nullopt);
}

} // namespace zol::test
