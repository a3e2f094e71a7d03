// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <random>

#include "print/RTFFuncs.h"
#include "print/rtf/RtfDocumentBuilder.h"
#include "print/rtf/RtfReader.h"
#include "print/rtf/RtfScene.h"

namespace zol::test {

namespace {

const std::string Whole =
    "{\\rtf1\\ansi\\ansicpg1251\\deff0{\\fonttbl{\\f0\\fnil\\fcharset128 \\'93\\'fa;}{\\f1 B;}}"
    "{\\colortbl ;\\red1\\green2\\blue3;}{\\*\\listtable{\\list{\\listlevel\\levelnfc23}\\listid7}}"
    "{\\*\\listoverridetable{\\listoverride\\listid7\\ls1}}{\\pict\\bin4 }}{{ff}"
    "\\pard\\qc\\f0\\fs30\\b a\\'93\\'fa\\u-10179?\\u-8704?\\tab\\line\\par"
    "\\pard{\\pntext\\'b7\\tab}{\\*\\pn\\pnlvlblt}\\li720\\tx300 b\\par\\ls1\\ilvl2 c\\cell\\row}";

std::string Repeated(const std::string& piece, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) {
        text += piece;
    }
    return text;
}

/// Whatever was read can be written, and what was written says the same for ever.
void Exercise(const std::string& rtf) {
    const std::string once = RTFFuncs::SaveRichText(*ReadRtf(rtf));
    EXPECT_EQ(RTFFuncs::SaveRichText(*ReadRtf(once)), once) << rtf;
}

} // namespace

TEST(RtfDamageTest, CutAtEveryByte) {
    for (std::size_t length = 0; length <= Whole.size(); ++length) {
        Exercise(Whole.substr(0, length));
    }
}

TEST(RtfDamageTest, EveryByteChanged) {
    for (std::size_t at = 0; at < Whole.size(); ++at) {
        for (const char other : {'{', '}', '\\', '9', '\0', '\xff'}) {
            std::string damaged = Whole;
            damaged[at] = other;
            Exercise(damaged);
        }
    }
}

TEST(RtfDamageTest, RandomBytes) {
    std::mt19937 random(7); // the same bytes each time, so that a failure comes back
    for (int round = 0; round < 300; ++round) {
        std::string bytes = "{\\rtf1";
        for (int i = 0; i < 300; ++i) {
            bytes += static_cast<char>(random() & 0xFFU);
        }
        Exercise(bytes);
    }
}

TEST(RtfDamageTest, RandomWords) {
    const std::vector<std::string> words{"{",
                                         "}",
                                         "\\par ",
                                         "\\b",
                                         "\\u-10179?",
                                         "\\'93",
                                         "\\f1",
                                         "\\cell",
                                         "\\row",
                                         "\\*",
                                         "\\fonttbl",
                                         "\\colortbl",
                                         ";",
                                         "\\uc9",
                                         "\\pn",
                                         "\\pntext",
                                         "\\ls1",
                                         "\\ilvl9",
                                         "\\li9999",
                                         "\\tx-5",
                                         "\\bin3 ",
                                         "\\pard",
                                         "\\listid1",
                                         "text",
                                         "\\plain",
                                         "\\fs3",
                                         "\\v",
                                         "\\line",
                                         "\\pndec",
                                         "\\list",
                                         "\\listlevel",
                                         "\\listtable",
                                         "\\listoverridetable",
                                         "\\red9",
                                         "\\pnstart3",
                                         "\\levelstartat4",
                                         "{\\pntext 2.}",
                                         "{\\pntext c.}",
                                         "\\levelnfc4",
                                         "\\lfolevel",
                                         "\\listoverride",
                                         "{\\*\\pn\\pndec}",
                                         "\\ls2",
                                         "{\\pntext 1.}",
                                         "\\li1440"};
    std::mt19937 random(11);
    for (int round = 0; round < 500; ++round) {
        std::string rtf = "{\\rtf1{\\fonttbl{\\f1\\fcharset204 A;}}";
        for (int i = 0; i < 80; ++i) {
            rtf += words[random() % words.size()];
        }
        Exercise(rtf);
    }
}

TEST(RtfDamageTest, GroupsWithoutEnd) {
    constexpr int Many = 500000;
    EXPECT_EQ(TextOf(*ReadRtf("{\\rtf1 a" + Repeated("{", Many) + "b")), "ab");
    EXPECT_EQ(TextOf(*ReadRtf("{\\rtf1 a" + Repeated("}", Many) + "b")), "ab");
    EXPECT_EQ(TextOf(*ReadRtf("{\\rtf1 a" + Repeated("{", Many) + "\\b x" + Repeated("}", Many) +
                              "b\\par c")),
              "axb\nc");
    EXPECT_EQ(TextOf(*ReadRtf("{\\rtf1" + Repeated("{\\tx9\\li9", 100000) + "b")), "b");
}

TEST(RtfDamageTest, AGroupTooDeepLeavesTheTextBehindIt) {
    const std::string deep = "{\\rtf1 a" + Repeated("{", 600);
    EXPECT_EQ(TextOf(*ReadRtf(deep + "{\\pict 8950}b{\\*\\x y}c")), "abc");
    EXPECT_EQ(TextOf(*ReadRtf(deep + "{\\pict 8950{9}51}b}}c")), "abc");
    EXPECT_EQ(TextOf(*ReadRtf(deep + "{\\pntext\\fonttbl x}b" + Repeated("}", 600) + "c")), "abc");
    EXPECT_EQ(TextOf(*ReadRtf(deep + "{\\pict 8950" + Repeated("}", 601) + "c")), "ac");
    EXPECT_EQ(TextOf(*ReadRtf("{\\rtf1 a" + Repeated("{\\fonttbl", 100000))), "a");
}

TEST(RtfDamageTest, ACutEscapeTakesNoOtherCharacter) {
    for (const auto& [rtf, text] : {std::pair{"{\\rtf1 {a\\'\u00e9}b}", "a\u00e9b"},
                                    {"{\\rtf1 {\\v a\\'\u65e5}b}", "b"},
                                    {"{\\rtf1 {a\\'4\u65e5}b}", "a\u65e5b"},
                                    {"{\\rtf1 {a\\'\U0001F9F5}b}", "a\U0001F9F5b"},
                                    {"{\\rtf1 a\\'\u65e5", "a\u65e5"},
                                    {"{\\rtf1 a\\'4\u65e5", "a\u65e5"},
                                    {"{\\rtf1 a\\'g\U0001F9F5", "a\U0001F9F5"},
                                    {"{\\rtf1 a\\'\xe9 b}", "a\u00e9 b"}}) {
        EXPECT_EQ(TextOf(*ReadRtf(rtf)), text) << rtf;
    }
    Exercise("{\\rtf1 {a\\'\u65e5\\'4\u00e9}{\\pict\\'\U0001F9F5}b");
}

TEST(RtfDamageTest, ABinaryLengthPastTheEnd) {
    EXPECT_EQ(TextOf(*ReadRtf("{\\rtf1 a\\bin2147483647 bcd}")), "a");
    EXPECT_EQ(TextOf(*ReadRtf("{\\rtf1 a\\bin99999999999999999999 bcd}")), "a");
    EXPECT_EQ(TextOf(*ReadRtf("{\\rtf1 a\\bin-99999999999999999999 bcd}")), "abcd");
}

TEST(RtfDamageTest, ParagraphsAreLimitedAndTheirTextStays) {
    constexpr int Many = 3 * RtfDocumentBuilder::MaxParagraphs;
    const auto document = ReadRtf("{\\rtf1" + Repeated("\\par a", Many) + "}");
    EXPECT_LE(document->blockCount(), RtfDocumentBuilder::MaxParagraphs);
    EXPECT_EQ(document->toPlainText().count(QLatin1Char('a')), Many);
    EXPECT_EQ(document->toPlainText().count(QLatin1Char('\n')), Many);
}

TEST(RtfDamageTest, LooksAreLimitedAndTheirTextStays) {
    constexpr int Many = 20000;
    std::string rtf = "{\\rtf1";
    for (int i = 0; i < Many; ++i) {
        rtf += "\\pard\\tx" + std::to_string(i) + "\\fs" + std::to_string(i % 3000) + "\\sb" +
               std::to_string(i) + " a\\par";
    }
    const auto document = ReadRtf(rtf);
    EXPECT_EQ(document->blockCount(), Many);
    EXPECT_LE(document->allFormats().size(), 2 * static_cast<int>(RtfReader::MaxFormats) + 10);
}

TEST(RtfDamageTest, ListsAreLimitedAndTheirTextStays) {
    constexpr int Many = 5 * RtfDocumentBuilder::MaxLists;
    const std::string item = "\\pard{\\pntext\\'b7}a\\par\\pard b\\par";
    const auto document = ReadRtf("{\\rtf1" + Repeated(item, Many) + "}");
    EXPECT_EQ(document->blockCount(), 2 * Many);
    EXPECT_EQ(document->toPlainText().count(QLatin1Char('a')), Many);
    EXPECT_EQ(document->toPlainText().count(QChar(u'\u2022')), Many - RtfDocumentBuilder::MaxLists);
    const std::string once = RTFFuncs::SaveRichText(*document);
    EXPECT_TRUE(RTFFuncs::SaveRichText(*ReadRtf(once)) == once);
}

} // namespace zol::test
