// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/ImportFlow.h"

#include <gtest/gtest.h>

namespace zol::test {
namespace {

using Change = ImportFlow::Change;

TEST(ImportFlow, ScreensFollowEachOtherWithThePictureThatTravels) {
    ImportFlow flow;
    EXPECT_EQ(flow.CurrentScreen(), ImportScreens::Source);
    EXPECT_FALSE(flow.CanGoBack());
    for (int screen = 1; screen < ImportScreens::Count; ++screen) {
        EXPECT_FALSE(flow.IsOnLastScreen());
        EXPECT_EQ(flow.Next(true), (Change{screen, false}));
        EXPECT_TRUE(flow.CanGoBack());
    }
    EXPECT_TRUE(flow.IsOnLastScreen());
}

TEST(ImportFlow, WhatWillNotDoStays) {
    ImportFlow flow;
    EXPECT_FALSE(flow.Next(false));
    EXPECT_EQ(flow.CurrentScreen(), 0);
}

TEST(ImportFlow, BackGoesWhateverTheWorkIsWorthAndKeepsThePictureOnlyIfItWasHandedOn) {
    ImportFlow flow;
    (void)flow.Next(true);
    (void)flow.Next(true);
    EXPECT_EQ(flow.Back(true), (Change{1, true}));
    EXPECT_EQ(flow.Back(false), (Change{0, false}));
    EXPECT_FALSE(flow.Back(true));
    EXPECT_EQ(flow.CurrentScreen(), 0);
}

TEST(ImportFlow, TheLastScreenStaysWhenTheImportFollows) {
    ImportFlow flow;
    for (int screen = 1; screen < ImportScreens::Count; ++screen) {
        (void)flow.Next(true);
    }
    EXPECT_FALSE(flow.Next(true));
    EXPECT_EQ(flow.CurrentScreen(), ImportScreens::ColorMapping);
}

} // namespace
} // namespace zol::test
