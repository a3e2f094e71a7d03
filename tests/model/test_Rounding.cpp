// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <limits>

#include "model/Rounding.h"

namespace zol {
namespace {

TEST(Rounding, HalvesGoToTheEvenNeighbour) {
    EXPECT_EQ(RoundToInt(0.5), 0);
    EXPECT_EQ(RoundToInt(1.5), 2);
    EXPECT_EQ(RoundToInt(2.5), 2);
    EXPECT_EQ(RoundToInt(-1.5), -2);
    EXPECT_EQ(RoundToInt(7.0 / 2), 4);
    EXPECT_EQ(RoundToInt(5.0 / 2), 2);
    EXPECT_EQ(RoundHalfEven(11.5), 12);
}

TEST(Rounding, TruncationCutsTowardsZero) {
    EXPECT_EQ(TruncToInt(1.99), 1);
    EXPECT_EQ(TruncToInt(-1.99), -1);
}

TEST(FormatFixed, HalvesOfTheShortestDecimalFormGoAwayFromZero) {
    EXPECT_EQ(FormatFixed(0.25, 1), "0.3");
    EXPECT_EQ(FormatFixed(0.35, 1), "0.4");
    EXPECT_EQ(FormatFixed(0.1, 1), "0.1");
    EXPECT_EQ(FormatFixed(-0.25, 1), "-0.3");
    EXPECT_EQ(FormatFixed(2.5, 0), "3");
    EXPECT_EQ(FormatFixed(1.005, 2), "1.01");
    EXPECT_EQ(FormatFixed(9.999, 2), "10.00");
    EXPECT_EQ(FormatFixed(0.0004, 3), "0.000");
    EXPECT_EQ(FormatFixed(-0.0004, 3), "0.000");
    EXPECT_EQ(FormatFixed(1e21, 1), "1000000000000000000000.0");
    EXPECT_EQ(FormatFixed(std::numeric_limits<double>::infinity(), 1), "0");
}

TEST(FormatUpTo, DropsTrailingZerosButKeepsThePoint) {
    EXPECT_EQ(FormatUpTo(2, 2), "2.");
    EXPECT_EQ(FormatUpTo(2.5, 2), "2.5");
    EXPECT_EQ(FormatUpTo(0.126, 2), "0.13");
    EXPECT_EQ(FormatUpTo(10, 2), "10.");
    EXPECT_EQ(FormatUpTo(100, 0), "100");
}

TEST(LeadingNumber, TakesBlanksDigitsAndOnePoint) {
    EXPECT_EQ(LeadingNumber("310"), 310);
    EXPECT_EQ(LeadingNumber("  12.5x"), 12.5);
    EXPECT_EQ(LeadingNumber("White"), 0);
    EXPECT_EQ(LeadingNumber(""), 0);
    EXPECT_EQ(LeadingNumber("-5"), 0);
    EXPECT_EQ(LeadingNumber("1.2.3"), 1.2);
    EXPECT_EQ(LeadingNumber("3e5"), 3);
    EXPECT_EQ(LeadingNumber("7."), 7);
    EXPECT_EQ(LeadingNumber(".5"), 0.5);
    EXPECT_EQ(LeadingNumber("."), 0);
}

} // namespace
} // namespace zol
