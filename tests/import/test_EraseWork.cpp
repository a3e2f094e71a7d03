// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/EraseWork.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>

#include "support/ScarceMemory.h"

namespace zol {

namespace {

SharedPicture Photo(int width = 300, int height = 200) {
    auto picture = std::make_shared<Picture>(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture->SetImagePixel(x, y, MakeColour(unsigned(x) % 250U, unsigned(y) % 250U, 7));
        }
    }
    return picture;
}

/// A copy that later changes of the original do not reach.
Picture CopyOf(const Picture& picture) {
    return picture;
}

} // namespace

TEST(EraseWork, AStrokeChangesItsOwnCopyOnly) {
    const SharedPicture photo = Photo();
    const Picture before = CopyOf(*photo);
    EraseWork work;
    work.Take(photo);
    EXPECT_FALSE(work.CanUndo());
    EXPECT_EQ(work.BeginStroke({100, 100}, 16), (PixelRect{92, 92, 16, 16}));
    EXPECT_EQ(work.MoveStroke({140, 100}), (PixelRect{92, 92, 56, 16}));
    EXPECT_EQ(work.Shown()->ImagePixel(120, 100), EraseColor);
    EXPECT_EQ(work.Shown()->ImagePixel(120, 109), before.ImagePixel(120, 109));
    EXPECT_EQ(*photo, before);
}

TEST(EraseWork, OneStrokeIsTakenBackWhole) {
    EraseWork work;
    work.Take(Photo());
    work.BeginStroke({10, 10}, 32);
    work.MoveStroke({200, 150});
    const Picture afterFirst = *work.Shown();
    work.BeginStroke({5, 190}, 8);
    work.MoveStroke({299, 2});
    work.MoveStroke({20, 20});
    EXPECT_TRUE(work.CanUndo());
    work.Undo();
    EXPECT_EQ(*work.Shown(), afterFirst);
    // There is one level.
    EXPECT_FALSE(work.CanUndo());
    EXPECT_EQ(work.Undo(), PixelRect{});
    EXPECT_EQ(*work.Shown(), afterFirst);
}

TEST(EraseWork, WhatWasHandedOnStaysAsItWas) {
    EraseWork work;
    work.Take(Photo());
    work.BeginStroke({50, 50}, 32);
    const SharedPicture handed = work.HandOn();
    const Picture then = CopyOf(*handed);
    work.BeginStroke({150, 50}, 32);
    EXPECT_EQ(*handed, then);
    EXPECT_EQ(work.Shown()->ImagePixel(150, 50), EraseColor);
    work.Undo();
    EXPECT_EQ(*work.Shown(), then);
    const SharedPicture again = work.HandOn();
    work.Undo();
    work.MakeOwn();
    EXPECT_NE(work.Shown(), again);
    EXPECT_EQ(*work.Shown(), *again);
}

TEST(EraseWork, AnUndoAfterHandingOnLeavesThatAlone) {
    EraseWork work;
    const SharedPicture photo = Photo();
    work.Take(photo);
    work.BeginStroke({50, 50}, 32);
    const SharedPicture handed = work.HandOn();
    work.Undo();
    EXPECT_EQ(handed->ImagePixel(50, 50), EraseColor);
    EXPECT_EQ(*work.Shown(), *photo);
}

TEST(EraseWork, ClearsARegionAndAllButIt) {
    const SharedPicture photo = Photo(40, 30);
    EraseWork work;
    work.Take(photo);
    PictureRegion region(40, 30);
    region.SelectRectRegion({10, 5, 6, 4});
    EXPECT_EQ(work.ClearSelected(region), (PixelRect{10, 5, 6, 4}));
    EXPECT_EQ(work.Shown()->ImagePixel(15, 8), EraseColor);
    EXPECT_EQ(work.Shown()->ImagePixel(16, 8), photo->ImagePixel(16, 8));
    work.Undo();
    EXPECT_EQ(*work.Shown(), *photo);
    EXPECT_EQ(work.ClearUnselected(region), (PixelRect{0, 0, 40, 30}));
    EXPECT_EQ(work.Shown()->ImagePixel(15, 8), photo->ImagePixel(15, 8));
    EXPECT_EQ(work.Shown()->ImagePixel(16, 8), EraseColor);
    work.Undo();
    EXPECT_EQ(*work.Shown(), *photo);
}

TEST(EraseWork, WithoutARegionNothingIsAStep) {
    EraseWork work;
    work.Take(Photo(40, 30));
    work.BeginStroke({20, 20}, 8);
    const Picture erased = *work.Shown();
    EXPECT_EQ(work.ClearSelected(PictureRegion(40, 30)), PixelRect{});
    EXPECT_EQ(*work.Shown(), erased);
    EXPECT_TRUE(work.CanUndo());
}

TEST(EraseWork, ClearingOutsideEverythingIsNoStep) {
    EraseWork work;
    work.Take(Photo(40, 30));
    PictureRegion all(40, 30);
    all.SelectRectRegion({0, 0, 40, 30});
    EXPECT_EQ(work.ClearUnselected(all), PixelRect{});
    EXPECT_FALSE(work.CanUndo());
}

TEST(EraseWork, AStrokeBesideThePictureKeepsTheStepBefore) {
    const SharedPicture photo = Photo(40, 30);
    EraseWork work;
    work.Take(photo);
    work.BeginStroke({20, 20}, 8);
    EXPECT_EQ(work.BeginStroke({-50, -50}, 8), PixelRect{});
    work.MoveStroke({-60, 90});
    EXPECT_TRUE(work.CanUndo());
    work.Undo();
    EXPECT_EQ(*work.Shown(), *photo);
}

TEST(EraseWork, AResetLeavesTheStepBeforeToBeTakenBack) {
    const SharedPicture photo = Photo(40, 30);
    EraseWork work;
    work.Take(photo);
    work.BeginStroke({10, 10}, 8);
    const Picture afterFirst = *work.Shown();
    work.BeginStroke({30, 20}, 8);
    work.Reset(photo);
    EXPECT_EQ(*work.Shown(), *photo);
    EXPECT_TRUE(work.CanUndo());
    work.Undo();
    EXPECT_EQ(*work.Shown(), afterFirst);
    work.Reset(photo);
    EXPECT_EQ(*work.Shown(), *photo);
    work.Undo();
    EXPECT_EQ(*work.Shown(), afterFirst);
}

TEST(EraseWork, AnotherPictureForgetsTheStep) {
    EraseWork work;
    work.Take(Photo(40, 30));
    work.BeginStroke({10, 10}, 8);
    work.Take(Photo(20, 10));
    EXPECT_FALSE(work.CanUndo());
    EXPECT_EQ(work.Undo(), PixelRect{});
    work.Reset(Photo(20, 10));
    EXPECT_FALSE(work.CanUndo());
}

TEST(EraseWork, WorksWithoutAPicture) {
    EraseWork work;
    EXPECT_FALSE(work.HasPicture());
    work.Take(nullptr);
    EXPECT_FALSE(work.HasPicture());
    EXPECT_EQ(work.BeginStroke({1, 1}, 8), PixelRect{});
}

/// A tile kept for taking back is as large as this.
constexpr std::size_t TileBytes = 64 * 64 * sizeof(Colour);

TEST(EraseWork, AStepThatThereIsNoMemoryForLeavesTheOneBefore) {
    const SharedPicture photo = Photo();
    EraseWork work;
    work.Take(photo);
    work.BeginStroke({10, 10}, 32);
    const Picture afterFirst = *work.Shown();
    PictureRegion region(300, 200);
    region.SelectRectRegion({20, 20, 150, 150});
    {
        const test::ScarceMemory scarce(TileBytes - 1, 2);
        EXPECT_THROW(work.ClearSelected(region), std::bad_alloc);
    }
    EXPECT_EQ(*work.Shown(), afterFirst);
    ASSERT_TRUE(work.CanUndo());
    work.Undo();
    EXPECT_EQ(*work.Shown(), *photo);
}

TEST(EraseWork, AStrokeThatRunsOutOfMemoryIsTakenBackAsFarAsItCame) {
    const SharedPicture photo = Photo();
    EraseWork work;
    work.Take(photo);
    work.BeginStroke({10, 10}, 32);
    {
        const test::ScarceMemory scarce(TileBytes - 1, 1);
        EXPECT_THROW(work.MoveStroke({250, 10}), std::bad_alloc);
    }
    work.Undo();
    EXPECT_EQ(*work.Shown(), *photo);
}

TEST(EraseWork, AResetThatThereIsNoMemoryForChangesNothing) {
    const SharedPicture photo = Photo();
    EraseWork work;
    work.Take(photo);
    work.BeginStroke({100, 100}, 32);
    const SharedPicture handedOn = work.HandOn();
    const Picture erased = CopyOf(*handedOn);
    for (const int granted : {0, 1}) {
        const test::ScarceMemory scarce(TileBytes, granted);
        EXPECT_THROW(work.Reset(photo), std::bad_alloc);
    }
    EXPECT_EQ(*work.Shown(), erased);
    work.Undo();
    EXPECT_EQ(*work.Shown(), *photo);
    EXPECT_EQ(*handedOn, erased);
}

} // namespace zol
