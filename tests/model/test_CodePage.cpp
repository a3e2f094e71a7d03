// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <set>

#include "model/CodePage.h"

namespace zol {
namespace {

TEST(CodePage, EveryByteSurvivesARoundTrip) {
    std::set<char32_t> seen;
    for (unsigned code = 0; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(static_cast<unsigned char>(code)));
        EXPECT_EQ(CodePage::FromUtf8(CodePage::ToUtf8(byte)), byte) << code;
        seen.insert(CodePage::ToUnicode(static_cast<std::uint8_t>(code)));
    }
    EXPECT_EQ(seen.size(), 256U);
}

TEST(CodePage, UndefinedBytesAreControlCharactersOfTheSameNumber) {
    for (const char32_t undefined : {U'\x81', U'\x8D', U'\x8F', U'\x90', U'\x9D'}) {
        const auto code = static_cast<std::uint8_t>(undefined);
        EXPECT_EQ(CodePage::ToUnicode(code), undefined);
        EXPECT_EQ(CodePage::FromUnicode(undefined), code);
    }
}

TEST(CodePage, KnownCharacters) {
    EXPECT_EQ(CodePage::ToUtf8("\x80"), "\u20AC");
    EXPECT_EQ(CodePage::ToUtf8("\xE9"), "\u00E9");
    EXPECT_EQ(CodePage::FromUtf8("\u0178"), "\x9F");
    EXPECT_EQ(CodePage::FromUtf8("\u00FF"), "\xFF");
}

TEST(CodePage, MissingCharactersBecomeTheNearestPlainLetterOrAQuestionMark) {
    EXPECT_EQ(CodePage::FromUtf8("\u0142\u0141\u010D\u0119"), "lLce");
    EXPECT_EQ(CodePage::FromUtf8("\u2212\u2032"), "-'");
    EXPECT_EQ(CodePage::FromUtf8("\u4E2D\U0001F600"), "??");
}

TEST(CodePage, MalformedUtf8IsReadAsLatin1) {
    EXPECT_EQ(CodePage::FromUtf8("a\xFF\xC3"), "a\xFF\xC3");
    EXPECT_EQ(CodePage::FromUtf8("\xE2\x82"), CodePage::FromUtf8("\u00E2\u0082"));
}

TEST(CodePage, TrimTakesBlanksAlone) {
    EXPECT_EQ(Trimmed("  a b \t "), "a b \t");
    EXPECT_EQ(Trimmed("   "), "");
    EXPECT_EQ(TrimmedRight("  a  "), "  a");
    EXPECT_EQ(TrimmedRight("   "), "");
}

TEST(CodePage, CaseChangesAsciiAlone) {
    EXPECT_EQ(LowerCase("ABz\u00C9"), "abz\u00C9");
    EXPECT_EQ(UpperCase("abZ\u00E9"), "ABZ\u00E9");
}

TEST(FixedText, PadsAndCuts) {
    FixedText<5> field("ab");
    EXPECT_EQ(field.Padded(), "ab   ");
    EXPECT_EQ(field.Text(), "ab");
    field.Set("abcdefg");
    EXPECT_EQ(field.Padded(), "abcde");
    field.Set("\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9");
    EXPECT_EQ(field.Coded(), "\xE9\xE9\xE9\xE9\xE9");
    EXPECT_LT(FixedText<5>("A"), FixedText<5>("a"));
}

} // namespace
} // namespace zol
