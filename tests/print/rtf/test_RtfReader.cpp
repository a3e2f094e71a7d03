// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/rtf/RtfScene.h"

#include <gtest/gtest.h>

#include "print/RTFFuncs.h"

namespace zol::test {

namespace {

struct Case {
    const char* Rtf;
    const char* Expected;
};

std::string Text(const std::string& body) {
    return TextOf(*ReadRtf("{\\rtf1\\ansi " + body + "}"));
}

} // namespace

TEST(RtfReaderTest, CharacterWords) {
    for (const Case& c : {
             Case{"x", "Sans 12 - on -: x"},
             Case{"\\b x", "Sans 12 bold - on -: x"},
             Case{"\\b1 x", "Sans 12 bold - on -: x"},
             Case{"\\b\\b0 x", "Sans 12 - on -: x"},
             Case{"\\i x", "Sans 12 italic - on -: x"},
             Case{"\\ul x", "Sans 12 underline - on -: x"},
             Case{"\\uldb x", "Sans 12 underline - on -: x"},
             Case{"\\ul\\ulnone x", "Sans 12 - on -: x"},
             Case{"\\ul\\ul0 x", "Sans 12 - on -: x"},
             Case{"\\strike x", "Sans 12 strike - on -: x"},
             Case{"\\super x", "Sans 12 super - on -: x"},
             Case{"\\sub x", "Sans 12 sub - on -: x"},
             Case{"\\super\\nosupersub x", "Sans 12 - on -: x"},
             Case{"\\f1 x", "Arial 12 - on -: x"},
             Case{"\\f1\\plain x", "Sans 12 - on -: x"},
             Case{"\\fs20 x", "Sans 10 - on -: x"},
             Case{"\\fs19 x", "Sans 9.5 - on -: x"},
             Case{"\\fs0 x", "Sans 0.5 - on -: x"},
             Case{"\\fs-5 x", "Sans 0.5 - on -: x"},
             Case{"\\fs999999999 x", "Sans 1638 - on -: x"},
             Case{"\\cf1 x", "Sans 12 #ff0000 on -: x"},
             Case{"\\cf1\\cf0 x", "Sans 12 - on -: x"},
             Case{"\\cf99 x", "Sans 12 - on -: x"},
             Case{"\\cf-1 x", "Sans 12 - on -: x"},
             Case{"\\highlight2 x", "Sans 12 - on #0080ff: x"},
             Case{"\\chcbpat2 x", "Sans 12 - on #0080ff: x"},
             Case{"{\\b\\i}x", "Sans 12 - on -: x"},
             Case{"{\\b\\i x}y", "Sans 12 bold italic - on -: x"},
             Case{"\\zzz\\b7zzz5\\i x", "Sans 12 bold - on -: zzz5"},
         }) {
        EXPECT_EQ(RunOf(c.Rtf), c.Expected) << c.Rtf;
    }
}

TEST(RtfReaderTest, ParagraphWords) {
    const std::string rest = " left 0 right 0 first 0 before 0 after 0";
    EXPECT_EQ(ParagraphOf("\\ql x\\par"), "align 1" + rest);
    EXPECT_EQ(ParagraphOf("\\qr x\\par"), "align 2" + rest);
    EXPECT_EQ(ParagraphOf("\\qc x\\par"), "align 4" + rest);
    EXPECT_EQ(ParagraphOf("\\qj x\\par"), "align 8" + rest);
    EXPECT_EQ(ParagraphOf("\\qc\\pard x\\par"), "align 1" + rest);
    EXPECT_EQ(ParagraphOf("\\li150\\ri300\\fi-75\\sb30\\sa15 x\\par"),
              "align 1 left 10 right 20 first -5 before 2 after 1");
    EXPECT_EQ(ParagraphOf("\\tx1440\\tqr\\tx2880\\tqc\\tx4320\\tqdec\\tx5760 x\\par"),
              "align 1" + rest + " tab 96/0 tab 192/1 tab 288/2 tab 384/3");
}

TEST(RtfReaderTest, AParagraphTakesWhatHoldsAtItsEnd) {
    EXPECT_EQ(ParagraphOf("x\\qc\\par").substr(0, 7), "align 4");
    EXPECT_EQ(ParagraphOf("{\\qc x}\\par").substr(0, 7), "align 1");
    EXPECT_EQ(ParagraphOf("{\\qc x}").substr(0, 7), "align 4"); // it never ended
}

TEST(RtfReaderTest, AParagraphsEndBeginsNoOther) {
    EXPECT_EQ(Text("a\\par"), "a");
    EXPECT_EQ(Text("a\\par\\par"), "a\n");
    EXPECT_EQ(Text("a\\par b"), "a\nb");
    EXPECT_EQ(Text("\\par a"), "\na");
    EXPECT_EQ(Text("a\\\nb"), "a\nb");
    EXPECT_EQ(Text("a\\sect b\\page c"), "a\nb\nc");
    EXPECT_EQ(Text(""), "");
}

TEST(RtfReaderTest, TextAndSpecialCharacters) {
    for (const Case& c : {
             Case{"a\r\nb\nc", "abc"},
             Case{"\\lquote\\rquote\\ldblquote\\rdblquote", "\u2018\u2019\u201c\u201d"},
             Case{"\\emdash\\endash\\bullet", "\u2014\u2013\u2022"},
             Case{"a\\tab b\tc", "a\tb\tc"},
             Case{"a\\line b", "a/b"},
             Case{"a\\~b\\-c\\_d", "a\u00a0b\u00adc\u2011d"},
             Case{"\\\\\\{\\}", "\\{}"},
             Case{"\\b  two", " two"},
             Case{"\\'41\\'e9\\'80\\'E9", "A\u00e9\u20ac\u00e9"},
             Case{"a\\'4}b", "ab"},
             Case{"a\\|b\\:c", "abc"},
             Case{"{\\v hidden}seen", "seen"},
             Case{"a\\'01\\'0bb", "a/b"},
         }) {
        EXPECT_EQ(Text(c.Rtf), c.Expected) << c.Rtf;
    }
}

TEST(RtfReaderTest, UnicodeAndItsStandIns) {
    for (const Case& c : {
             Case{"\\u8364?x", "\u20acx"},
             Case{"\\u8364\\'80x", "\u20acx"},
             Case{"\\uc0\\u8364 x", "\u20acx"},
             Case{"\\uc2\\u8364 ??x", "\u20acx"},
             Case{"{\\uc2\\u8364 ??}\\u233?x", "\u20ac\u00e9x"},
             Case{"\\u8364\\par x", "\u20ac\nx"},
             Case{"\\u8217\\rquote x", "\u2019x"},
             Case{"\\u8226 \\tab x", "\u2022\tx"},
             Case{"{\\u8364}x", "\u20acx"},
             Case{"\\u-3913?x", "\uf0b7x"},
             Case{"\\u0?x", "x"},
             Case{"\\u70000?x", "x"},
             Case{"\\u-10179?\\u-8704?", "\U0001F600"},
             Case{"\\u-4?\\u-559?\\u-1?x", "x"}, // what a document keeps for itself
             Case{"\\u8233?x", "/x"},
             Case{"\\u8364\\{x", "\u20acx"},
         }) {
        EXPECT_EQ(Text(c.Rtf), c.Expected) << c.Rtf;
    }
}

TEST(RtfReaderTest, CodePagesOfDocumentAndFont) {
    for (const Case& c : {
             Case{"{\\rtf1\\ansi\\ansicpg1251 \\'cf\\'f0}", "\u041f\u0440"},
             Case{"{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset204 A;}}\\f0 \\'cf}", "\u041f"},
             Case{"{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset204 A;}{\\f1\\fcharset238 B;}}"
                  "\\f0 \\'cf\\f1 \\'b3}",
                  "\u041f\u0142"},
             Case{"{\\rtf1\\ansi\\ansicpg1251{\\fonttbl{\\f0\\fcharset0 A;}}\\f0 \\'e9}", "\u00e9"},
             Case{"{\\rtf1\\ansi\\ansicpg1251{\\fonttbl{\\f0\\fcharset1 A;}}\\f0 \\'e9}", "\u0439"},
             Case{"{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset128 A;}}\\f0 \\'93\\'fa\\'96{\\b\\'7b}}",
                  "\u65e5{"},
             Case{"{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset128 A;}}\\f0 \\'93\\'fa\\'96\\'7b}",
                  "\u65e5\u672c"},
             Case{"{\\rtf1\\ansi{\\fonttbl{\\f0\\cpg1253 A;}}\\f0 \\'e1}", "\u03b1"},
             Case{"{\\rtf1\\mac \\'8e}", "\u00e9"},
             Case{"{\\rtf1\\pc \\'82}", "\u00e9"},
             Case{"{\\rtf1\\ansi\\ansicpg65001 \\'c3\\'a9}", "\u00e9"},
             Case{"{\\rtf1\\ansi\\ansicpg99999 \\'e9}", "\u00e9"},
             Case{"{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset2 Symbol;}}\\f0 \\'b7\\'61}",
                  "\u2022\uf061"},
             // Not escaped: bytes of a file, and the same when the pattern file was read.
             Case{"{\\rtf1\\ansi caf\xe9}", "caf\u00e9"},
             Case{"{\\rtf1\\ansi caf\u00e9 \u0142}", "caf\u00e9 \u0142"},
             Case{"{\\rtf1\\ansi\\ansicpg1251 \xcf\xf0}", "\u041f\u0440"},
             Case{"{\\rtf1\\ansi\\ansicpg1251 \u00cf\u00f0}", "\u041f\u0440"},
         }) {
        EXPECT_EQ(TextOf(*ReadRtf(c.Rtf)), c.Expected) << c.Rtf;
    }
}

TEST(RtfReaderTest, FontTables) {
    const auto family = [](const std::string& table) {
        const std::string all = Described(*ReadRtf("{\\rtf1\\deff3" + table + "x}"));
        return all.substr(all.find("\n  ") + 3, all.find(" 12 - on") - all.find("\n  ") - 3);
    };
    EXPECT_EQ(family("{\\fonttbl{\\f3\\fnil Times New Roman;}}"), "Times New Roman");
    EXPECT_EQ(family("{\\fonttbl\\f2\\fnil One;\\f3\\fnil Two;}"), "Two");
    EXPECT_EQ(family("{\\fonttbl{\\f3\\froman{\\*\\panose 0202}Serif{\\*\\falt Other};}}"),
              "Serif");
    EXPECT_EQ(family("{\\fonttbl{\\f3\\fcharset204 \\'cf\\u1088?;}}"), "\u041f\u0440");
    EXPECT_EQ(family("{\\fonttbl{\\f3\\fcharset2 Wingdings;}}"), "Wingdings");
    const QTextDocument other;
    EXPECT_EQ(family("{\\fonttbl{\\f3\\fnil \\u1?;}}"),
              other.defaultFont().families().value(0).toStdString());
}

TEST(RtfReaderTest, OlderListForm) {
    const auto document =
        ReadRtf("{\\rtf1\\pard before\\par"
                "\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'B7}}"
                "\\fi-360\\li720 one\\par {\\pntext\\f1\\'B7\\tab}two\\par"
                "\\pard{\\pntext 1.\\tab}{\\*\\pn\\pnlvlbody\\pnstart1\\pndec{\\pntxta.}}\\li1440 "
                "three\\par"
                "\\pard after\\par}");
    EXPECT_EQ(TextOf(*document), "before\none\ntwo\nthree\nafter");
    const std::string all = Described(*document);
    EXPECT_NE(all.find("list -1 level 1 item 1"), std::string::npos) << all;
    EXPECT_NE(all.find("list -1 level 1 item 2"), std::string::npos) << all;
    EXPECT_NE(all.find("list -4 level 2 item 1"), std::string::npos) << all;
    EXPECT_EQ(all.find("list", all.find("three")), std::string::npos) << all;
}

TEST(RtfReaderTest, NewerListForm) {
    const auto document = ReadRtf(
        "{\\rtf1{\\*\\listtable{\\list\\listtemplateid1"
        "{\\listlevel\\levelnfc23{\\leveltext\\'01\\u8226 ?;}{\\levelnumbers;}\\fi-360\\li720}"
        "{\\listlevel\\levelnfc4{\\leveltext\\'02\\'01.;}{\\levelnumbers\\'01;}}{\\listname ;}"
        "\\listid7}}{\\listoverridetable{\\listoverride\\listid7\\listoverridecount0\\ls2}}"
        "\\pard{\\listtext\\pard\\plain \\u8226\\'95\\tab}\\ilvl0\\ls2 one\\par"
        "\\pard{\\listtext a.\\tab}\\ilvl1\\ls2 two\\par"
        "\\pard{\\listtext\\'B7\\tab}\\ls2 three\\par"
        "\\pard\\ls9 none\\par{\\listtext 4.\\tab}four\\par}");
    EXPECT_EQ(TextOf(*document), "one\ntwo\nthree\nnone\n4.\tfour");
    const std::string all = Described(*document);
    EXPECT_NE(all.find("list -1 level 1 item 1"), std::string::npos) << all;
    EXPECT_NE(all.find("list -5 level 2 item 1"), std::string::npos) << all;
    EXPECT_NE(all.find("list -1 level 1 item 2"), std::string::npos) << all;
    // The list around it is not there, so its number is text.
    EXPECT_EQ(all.find("list", all.find("none")), std::string::npos) << all;
}

TEST(RtfReaderTest, WhatCannotBeShownKeepsItsText) {
    for (const Case& c : {
             Case{"a{\\pict\\pngblip 89504e47}b", "ab"},
             Case{"a{\\*\\shppict{\\pict 8950}}{\\nonshppict{\\pict 8950}}b", "ab"},
             Case{"a{\\pict\\bin5 }}{{}b}c", "ac"},
             Case{"a\\bin3 {{{b", "ab"},
             Case{"a\\bin-3 b\\bin0 c", "abc"},
             Case{"a{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt link}}b", "alinkb"},
             Case{"a{\\object{\\*\\objdata 01}{\\result seen}}b", "aseenb"},
             Case{"{\\header head}{\\footerr foot}{\\info{\\title t}}{\\stylesheet{\\s0 N;}}b",
                  "b"},
             Case{"a{\\footnote note}b", "anoteb"},
             Case{"a{\\shp{\\*\\shpinst{\\sp{\\sn n}{\\sv 1}}{\\shptxt box}}{\\shprslt box}}b",
                  "aboxb"},
             Case{"{\\*\\zzz unknown {\\b deep}}b", "b"},
             Case{"{\\zzz known}b", "knownb"},
             Case{"\\trowd\\cellx9\\intbl a\\cell b\\cell\\row\\intbl c\\cell\\cell d\\cell\\row x",
                  "a\tb\nc\t\td\nx"},
         }) {
        EXPECT_EQ(Text(c.Rtf), c.Expected) << c.Rtf;
    }
}

TEST(RtfReaderTest, ToldWhenSomethingIsLeftOut) {
    const auto leavesOut = [](const std::string& body) {
        QTextDocument document;
        return RTFFuncs::LoadRichText(document, "{\\rtf1\\ansi " + body + "}");
    };
    for (const char* body :
         {"a{\\pict\\pngblip 8950}", "{\\*\\shppict{\\pict 8950}}", "{\\header h}", "{\\footerf f}",
          "a{\\*\\annotation note}", "{\\v hidden}a", "\\v hidden",
          "{\\shp{\\*\\shpinst{\\shptxt b}}}", "{\\*\\do\\dptxbx{\\dptxbxtext box}}",
          "\\trowd\\cellx9\\intbl a\\cell\\row",
          "{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt link}}", "a{\\footnote note}",
          "{\\object{\\*\\objdata 01}{\\result seen}}", "{\\xe entry}"}) {
        EXPECT_TRUE(leavesOut(body)) << body;
    }
    for (const char* body :
         {"", "a", "{\\b a}\\par", "{\\v}a", "{\\*\\generator X 1;}a", "{\\stylesheet{\\s0 N;}}a",
          "{\\info{\\title t}}a", "{\\fonttbl{\\f0{\\*\\panose 02}A;}}a", "{\\*\\pgdsctbl\\row1}a",
          "{\\pntext\\'b7\\tab}{\\*\\pn\\pnlvlblt}a"}) {
        EXPECT_FALSE(leavesOut(body)) << body;
    }
    QTextDocument document;
    EXPECT_TRUE(RTFFuncs::LoadInstructions(document, "{\\rtf1{\\header h}a}"));
    EXPECT_FALSE(RTFFuncs::LoadInstructions(document, "{\\header h} is plain"));
}

} // namespace zol::test
