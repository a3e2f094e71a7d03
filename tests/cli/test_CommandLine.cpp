// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "cli/CommandLine.h"

namespace zol {
namespace {

CommandLine Parse(const std::vector<std::string>& words) {
    return {words, {{"-o", true, "--output"}, {"--grid"}, {"--gspi", true}}};
}

TEST(CommandLine, SortsOptionsAndFiles) {
    const CommandLine line = Parse({"in.pat", "--grid", "-o", "out.png", "--gspi=12.5", "-"});
    EXPECT_EQ(line.Files(), (std::vector<std::string>{"in.pat", "-"}));
    EXPECT_TRUE(line.Has("--grid"));
    EXPECT_EQ(line.Required("-o"), "out.png");
    EXPECT_DOUBLE_EQ(*line.Decimal("--gspi", 1, 100), 12.5);
    EXPECT_EQ(Parse({"--output", "x"}).Required("-o"), "x");
}

TEST(CommandLine, NegativeNumberIsAValueAndNoOption) {
    EXPECT_DOUBLE_EQ(*Parse({"--gspi", "-3"}).Decimal("--gspi", -10, 10), -3);
}

TEST(CommandLine, DoubleDashEndsTheOptions) {
    EXPECT_EQ(Parse({"--", "--grid"}).Files(), (std::vector<std::string>{"--grid"}));
}

TEST(CommandLine, WrongUsageIsRefused) {
    EXPECT_THROW(Parse({"--colour"}), WrongUsage);
    EXPECT_THROW(Parse({"-o"}), WrongUsage);
    EXPECT_THROW(Parse({"--grid=yes"}), WrongUsage);
    EXPECT_THROW((void)Parse({}).Required("-o"), WrongUsage);
    EXPECT_THROW(Parse({"a", "b"}).ExpectFiles(1, 1), WrongUsage);
    EXPECT_THROW(Parse({}).ExpectFiles(1, 1), WrongUsage);
    EXPECT_THROW((void)Parse({"--gspi", "1,5"}).Decimal("--gspi", 0, 9), WrongUsage);
    EXPECT_THROW((void)Parse({"--gspi", "7"}).Integer("--gspi", 1, 6), WrongUsage);
    EXPECT_THROW((void)Parse({"--gspi", "nan"}).Decimal("--gspi", 0, 9), WrongUsage);
}

TEST(CommandLine, NumbersAreDecimalOrHexadecimal) {
    EXPECT_EQ(CommandLine::ParseInteger("0x00FF10"), 0xFF10);
    EXPECT_EQ(CommandLine::ParseInteger("-12"), -12);
    for (const char* text : {"", "0x", "0x-1", "12a", " 12", "1.0", "99999999999999999999"}) {
        EXPECT_EQ(CommandLine::ParseInteger(text), std::nullopt) << text;
    }
    EXPECT_EQ(CommandLine::ParseList("1,2.5,-3"), (std::vector<double>{1, 2.5, -3}));
    EXPECT_EQ(CommandLine::ParseList("1,,3"), std::nullopt);
}

} // namespace
} // namespace zol
