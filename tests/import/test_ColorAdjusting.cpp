// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/ColorAdjusting.h"

#include <gtest/gtest.h>

#include "support/RecordingDoors.h"

using namespace zol;
using Adjustments::Kind;

namespace {

constexpr Colour Sample = MakeColour(200, 100, 50);

SharedPicture Of(Colour colour) {
    auto picture = std::make_shared<Picture>(2, 1);
    picture->SetImagePixel(0, 0, colour);
    return picture; // its second pixel is erased
}

/// As the screen does it: from the applied picture to the one beside it.
void Try(ColorAdjusting& adjusting, Kind kind, int slider) {
    adjusting.SetNew(ColorAdjusting::Adjusted(adjusting.Original(), kind, slider, nullptr));
}

Colour First(const SharedPicture& picture) {
    return picture->ImagePixel(0, 0);
}

TEST(ColorAdjusting, StartsWithThePictureOnBothSides) {
    ColorAdjusting adjusting;
    const SharedPicture image = Of(Sample);
    adjusting.Start(image);
    EXPECT_EQ(adjusting.Original(), image);
    EXPECT_EQ(adjusting.New(), image);
    EXPECT_FALSE(adjusting.CanUndo());
    adjusting.Start(nullptr);
    EXPECT_TRUE(adjusting.New()->IsEmpty());
}

TEST(ColorAdjusting, AValueIsRelativeToTheAppliedPicture) {
    ColorAdjusting adjusting;
    adjusting.Start(Of(Sample));
    Try(adjusting, Kind::Brightness, -50);
    Try(adjusting, Kind::Brightness, 10); // does not add to the -50
    EXPECT_EQ(First(adjusting.New()), MakeColour(226, 126, 76));
    EXPECT_EQ(First(adjusting.Original()), Sample);
    adjusting.Apply();
    EXPECT_EQ(First(adjusting.Original()), MakeColour(226, 126, 76));
    Try(adjusting, Kind::Brightness, -10);
    EXPECT_EQ(First(adjusting.New()), MakeColour(200, 100, 50));
}

TEST(ColorAdjusting, ErasedSquaresAreNotTouched) {
    ColorAdjusting adjusting;
    adjusting.Start(Of(Sample));
    for (const Adjustments::Item& item : Adjustments::Items()) {
        Try(adjusting, item.What, item.Minimum);
        EXPECT_EQ(adjusting.New()->ImagePixel(1, 0), EraseColor) << item.Text;
    }
}

TEST(ColorAdjusting, UndoRestoresBothPicturesOfOneStep) {
    ColorAdjusting adjusting;
    const SharedPicture image = Of(Sample);
    adjusting.Start(image);
    Try(adjusting, Kind::GrayScale, 0);
    adjusting.Apply();
    const SharedPicture grey = adjusting.Original();
    Try(adjusting, Kind::Brightness, 20);
    adjusting.Apply();
    Try(adjusting, Kind::Contrast, 20); // tried only
    EXPECT_TRUE(adjusting.CanUndo());
    adjusting.Undo();
    EXPECT_EQ(adjusting.Original(), grey);
    EXPECT_EQ(adjusting.New(), grey);
    EXPECT_FALSE(adjusting.CanUndo()); // one level
    adjusting.Undo();
    EXPECT_EQ(adjusting.Original(), grey);
}

TEST(ColorAdjusting, ResetRestoresBothPictures) {
    ColorAdjusting adjusting;
    const SharedPicture image = Of(Sample);
    adjusting.Start(image);
    Try(adjusting, Kind::GrayScale, 0);
    adjusting.Apply();
    Try(adjusting, Kind::Brightness, 20);
    adjusting.Reset(image);
    EXPECT_EQ(adjusting.Original(), image);
    EXPECT_EQ(adjusting.New(), image);
}

TEST(ColorAdjusting, WhatIsNotAppliedIsDropped) {
    ColorAdjusting adjusting;
    adjusting.Start(Of(Sample));
    Try(adjusting, Kind::GrayScale, 0);
    adjusting.DropNew();
    EXPECT_EQ(adjusting.New(), adjusting.Original());
    EXPECT_EQ(First(adjusting.Original()), Sample);
}

TEST(ColorAdjusting, WhiteThatAnAdjustmentMakesIsErasedFromThenOn) {
    ColorAdjusting adjusting;
    adjusting.Start(Of(Sample));
    Try(adjusting, Kind::Brightness, 100);
    adjusting.Apply();
    EXPECT_EQ(First(adjusting.Original()), EraseColor);
    Try(adjusting, Kind::Brightness, -100);
    EXPECT_EQ(First(adjusting.New()), EraseColor);
}

TEST(ColorAdjusting, AStoppedAdjustmentGivesNothing) {
    for (const Adjustments::Item& item : Adjustments::Items()) {
        auto picture = std::make_shared<Picture>(300, 300);
        picture->SetImagePixel(0, 0, Sample);
        picture->SetImagePixel(1, 0, MakeColour(1, 2, 3));
        test::RecordingProgress never;
        never.cancelAfter = 0;
        EXPECT_EQ(ColorAdjusting::Adjusted(picture, item.What, 50, &never), nullptr) << item.Text;
        test::RecordingProgress halfWay;
        halfWay.cancelAfter = 1; // the picture has more than one band
        EXPECT_EQ(ColorAdjusting::Adjusted(picture, item.What, 50, &halfWay), nullptr) << item.Text;
        EXPECT_EQ(First(picture), Sample);
    }
}

} // namespace
