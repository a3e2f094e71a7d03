// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/ImportMessages.h"

#include <gtest/gtest.h>

using namespace zol;

namespace {

TEST(ImportMessages, AWidthOrHeightOfZeroHasItsMessage) {
    EXPECT_EQ(ImportMessages::ValidateSize(0, 10), "Pattern width must be greater than zero");
    EXPECT_EQ(ImportMessages::ValidateSize(-1, 0), "Pattern width must be greater than zero");
    EXPECT_EQ(ImportMessages::ValidateSize(10, 0), "Pattern height must be greater than zero");
    EXPECT_FALSE(ImportMessages::ValidateSize(0.1, 0.1));
}

TEST(ImportMessages, TheNumberOfColoursMustLieFrom1To200) {
    EXPECT_EQ(ImportMessages::ValidateMaxColors(0, std::nullopt, "Color"),
              "Pattern must contain at least one color");
    EXPECT_FALSE(ImportMessages::ValidateMaxColors(1, std::nullopt, "Color"));
    EXPECT_FALSE(ImportMessages::ValidateMaxColors(200, std::nullopt, "Color"));
    EXPECT_EQ(ImportMessages::ValidateMaxColors(201, std::nullopt, "Colour"),
              "Pattern can contain no more than 200 colours");
}

TEST(ImportMessages, WithTheEditBoxThePatternsFlossesAllStay) {
    EXPECT_EQ(ImportMessages::ValidateMaxColors(15, 16, "Color"),
              "You must import to at least the 16 colors in your current palette");
    EXPECT_FALSE(ImportMessages::ValidateMaxColors(16, 16, "Color"));
}

TEST(ImportMessages, TheBarNamesWhatIsReduced) {
    EXPECT_EQ(ImportMessages::Reducing("Colour"), "Reducing Colours");
}

} // namespace
