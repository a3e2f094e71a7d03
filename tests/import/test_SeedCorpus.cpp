// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cstdlib>

#include "import/Imaging.h"
#include "import/SamplePictures.h"

namespace zol {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes SavedAs(const char* suffix) {
    const vips::VImage image = test::VipsPicture(4, 3, [](int x, int y) {
        return MakeColour(static_cast<unsigned>(x * 60), static_cast<unsigned>(y * 90), 128U);
    });
    if (std::string(suffix) == ".bmp") {
        return test::SavedAsBmp(image);
    }
    void* buffer = nullptr;
    std::size_t size = 0;
    image.write_to_buffer(suffix, &buffer, &size);
    const auto* bytes = static_cast<const std::uint8_t*>(buffer);
    Bytes saved(bytes, bytes + size);
    g_free(buffer);
    return saved;
}

/// A seed that does not load would lead the fuzzer nowhere. It is written for the target
/// fuzz_picture if KORVANTA_CORPUS_DIR names a corpus ("fuzz/corpus" in the project).
TEST(SeedCorpus, APictureOfEachFormat) {
    for (const char* suffix : {".bmp", ".gif", ".jpg", ".png", ".tif", ".webp"}) {
        const Bytes bytes = SavedAs(suffix);
        PictureFile file(bytes);
        ASSERT_TRUE(file.GetError().IsGood()) << suffix << ": " << file.GetError().Text;
        EXPECT_EQ(file.ImageWidth(), 4) << suffix;
        EXPECT_EQ(file.ImageHeight(), 3) << suffix;
        if (const char* corpus = std::getenv("KORVANTA_CORPUS_DIR")) {
            const std::filesystem::path folder = std::filesystem::path(corpus) / "picture";
            std::filesystem::create_directories(folder);
            test::WriteFile(folder / (std::string("saved") + suffix), {bytes.begin(), bytes.end()});
        }
    }
}

} // namespace
} // namespace zol
