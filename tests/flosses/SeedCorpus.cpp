// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cstdlib>

#include "PaletteSeeds.h"
#include "flosses/AvailColors.h"
#include "flosses/CatalogueCsv.h"
#include "flosses/Palette.h"

namespace zol {
namespace {

using Bytes = std::vector<std::uint8_t>;

/// Writes a seed for the target fuzz_TARGET if KORVANTA_CORPUS_DIR names a corpus ("fuzz/corpus" in
/// the project). Each seed is checked before: one that does not load would lead the fuzzer nowhere.
void WriteSeed(const std::string& target, const std::string& name, const Bytes& bytes) {
    const char* corpus = std::getenv("KORVANTA_CORPUS_DIR");
    if (corpus == nullptr) {
        return;
    }
    const std::filesystem::path folder = std::filesystem::path(corpus) / target;
    std::filesystem::create_directories(folder);
    test::WriteBytes(folder / name, bytes);
    EXPECT_EQ(test::ReadBytes(folder / name), bytes);
}

TEST(SeedCorpus, PalettesOfEveryForm) {
    ProgramContext context;
    Palette palette = Palette::Empty(context);
    for (const auto& [name, bytes] : {std::pair{"release6.fls", test::Rel6Bytes()},
                                      {"release5.fls", test::Rel5Bytes()},
                                      {"old.fls", test::OldBytes()}}) {
        palette.ClearPalette();
        ByteReader stream(bytes);
        palette.LoadWholeFile(stream);
        EXPECT_EQ(palette.GetEntriesCount(), 2) << name;
        WriteSeed("palette", name, bytes);
    }
    ByteWriter startup;
    Palette(context).SaveToDisk(startup);
    WriteSeed("palette", "startup.fls", startup.Bytes());
}

TEST(SeedCorpus, Catalogue) {
    const ProgramContext context;
    AvailColors catalogue(context);
    const Bytes bytes = test::CatalogueBytes();
    ByteReader stream(bytes);
    catalogue.Read(stream);
    EXPECT_EQ(catalogue.GetFlossCount(), 2);
    WriteSeed("catalogue", "two-rows.col", bytes);
}

TEST(SeedCorpus, CatalogueCsv) {
    const std::string text = test::CatalogueCsvText();
    EXPECT_EQ(ReadCatalogueCsv(text).size(), 2U);
    WriteSeed("catalogue_csv", "two-rows.csv", {text.begin(), text.end()});
}

} // namespace
} // namespace zol
