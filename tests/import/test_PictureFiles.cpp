// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/PictureFiles.h"

#include <gtest/gtest.h>

#include "import/Imaging.h"

namespace zol::test {
namespace {

TEST(PictureFiles, PicturesAreToldByTheirNamesInAnyCase) {
    for (const char* name : {"a.jpg", "a.JPEG", "a.png", "b.x.TIF", "a.webp", "a.gif", "a.heic",
                             "a.heif", "a.BMP", "/x/y.dib"}) {
        EXPECT_TRUE(PictureFiles::HasPictureName(name)) << name;
    }
    for (const char* name : {"a.pat", "a", "", "jpg", ".jpg", "a.", "a.jp", "a.jpg.bak", "a.*"}) {
        EXPECT_FALSE(PictureFiles::HasPictureName(name)) << name;
    }
}

TEST(PictureFiles, TheDialogOffersAllKindsFirstAndEveryFileLast) {
    const std::string filter = PictureFiles::DialogFilter();
    EXPECT_EQ(filter.find("Pictures|*.jpg;"), 0U);
    EXPECT_NE(filter.find("*.heic;*.heif;*.bmp;*.dib|JPEG pictures|"), std::string::npos);
    EXPECT_EQ(filter.substr(filter.size() - 12), "|All files|*");
}

TEST(PictureFiles, AFailureIsToldByNumberAndText) {
    EXPECT_EQ(PictureFiles::LoadFailure({{}, 53, "File not found"}), "Error 53: File not found");
}

} // namespace
} // namespace zol::test
