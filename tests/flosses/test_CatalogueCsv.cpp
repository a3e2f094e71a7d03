// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "flosses/AvailColors.h"
#include "flosses/CatalogueCsv.h"
#include "model/ProgramContext.h"
#include "model/RunTimeError.h"
#include "support/TestPaths.h"

namespace zol {
namespace {

const std::string header = "FlossID,Description,Red,Green,Blue,MasterID\n";

std::string FailureOf(const std::string& csv) {
    try {
        (void)ReadCatalogueCsv(csv);
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), ErrInvalidFormat);
        return error.what();
    }
    return "no failure";
}

TEST(CatalogueCsv, ReadsRowsInTheirOrder) {
    const auto rows = ReadCatalogueCsv(header + "310,Black,0,1,2,9\nB5200,Snow,255,254,253,0\n");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0], (CatalogueCsvRow{"310", "Black", 0, 1, 2, 9}));
    EXPECT_EQ(rows[1], (CatalogueCsvRow{"B5200", "Snow", 255, 254, 253, 0}));
}

TEST(CatalogueCsv, TakesWindowsLineEndsAndNoneAtTheEnd) {
    EXPECT_EQ(ReadCatalogueCsv("\xEF\xBB\xBF"
                               "FlossID,Description,Red,Green,Blue,MasterID\r\n"
                               "1,a,0,0,0,1\r\n2,b,0,0,0,2")
                  .size(),
              2U);
}

TEST(CatalogueCsv, AHeaderAloneIsACatalogueWithoutRows) {
    EXPECT_TRUE(ReadCatalogueCsv(header).empty());
}

TEST(CatalogueCsv, QuotedFieldsHoldCommasAndDoubledQuotes) {
    const auto rows = ReadCatalogueCsv(header + "\"1\",\"Red, \"\"hot\"\"\",\"1\",2,3,\"4\"\n");
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].Description, "Red, \"hot\"");
    EXPECT_EQ(rows[0].Red, 1);
    EXPECT_EQ(rows[0].MasterID, 4);
}

TEST(CatalogueCsv, TextIsUtf8WithinTheCodePage) {
    const auto rows = ReadCatalogueCsv(header + "1,\xC3\x89"
                                                "cru,0,0,0,1\n");
    EXPECT_EQ(rows.at(0).Description, "\xC3\x89"
                                      "cru");
    EXPECT_EQ(FailureOf(header + "1,\xE7\xBA\xA2,0,0,0,1\n"),
              "Line 2: Description holds a character that catalogues cannot hold");
}

TEST(CatalogueCsv, DamageIsNamedWithItsLine) {
    const std::string good = header + "1,a,0,0,0,1\n";
    EXPECT_EQ(FailureOf(""),
              "Line 1: the header is not \"" + header.substr(0, header.size() - 1) + "\"");
    EXPECT_EQ(FailureOf("FlossID;Description\n"), FailureOf(""));
    EXPECT_EQ(FailureOf(good + "2,b,0,0,0\n"), "Line 3: 5 fields instead of 6");
    EXPECT_EQ(FailureOf(good + "2,b,0,0,0,2,\n"), "Line 3: 7 fields instead of 6");
    EXPECT_EQ(FailureOf(good + "\n"), "Line 3: 1 fields instead of 6");
    EXPECT_EQ(FailureOf(good + "2,b,256,0,0,2\n"),
              "Line 3: Red \"256\" is no number from 0 to 255");
    EXPECT_EQ(FailureOf(good + "2,b,0,-1,0,2\n"),
              "Line 3: Green \"-1\" is no number from 0 to 255");
    EXPECT_EQ(FailureOf(good + "2,b,0,0,1x,2\n"), "Line 3: Blue \"1x\" is no number from 0 to 255");
    EXPECT_EQ(FailureOf(good + "2,b,0,0,,2\n"), "Line 3: Blue \"\" is no number from 0 to 255");
    EXPECT_EQ(FailureOf(good + "2,b,0,0,0,2147483648\n"),
              "Line 3: MasterID \"2147483648\" is no number from 0 to 2147483647");
    EXPECT_EQ(FailureOf(good + " ,b,0,0,0,2\n"), "Line 3: FlossID is empty");
    EXPECT_EQ(FailureOf(good + "12345678901,b,0,0,0,2\n"),
              "Line 3: FlossID is longer than 10 characters");
    EXPECT_EQ(FailureOf(good + "2," + std::string(31, 'x') + ",0,0,0,2\n"),
              "Line 3: Description is longer than 30 characters");
    EXPECT_EQ(FailureOf(good + "2,a\tb,0,0,0,2\n"),
              "Line 3: Description holds a character that catalogues cannot hold");
    EXPECT_EQ(FailureOf(good + "2,\"b,0,0,0,2\n"), "Line 3: a quoted field is not closed");
    EXPECT_EQ(FailureOf(good + "2,\"b\"c,0,0,0,2\n"), "Line 3: something follows a quoted field");
    EXPECT_EQ(FailureOf(good + "2,b\"c,0,0,0,2\n"),
              "Line 3: a quote stands inside a field that is not quoted");
    EXPECT_EQ(FailureOf(header + "a1,a,0,0,0,1\nA1,b,0,0,0,2\n"),
              "Line 3: FlossID \"A1\" is there twice");
}

TEST(CatalogueCsv, SizesAreBounded) {
    std::string many = header;
    for (int i = 0; i < 32768; ++i) {
        many += std::to_string(i) + ",a,0,0,0,1\n";
    }
    EXPECT_EQ(FailureOf(many), "Line 32769: more than 32767 rows");
    EXPECT_EQ(FailureOf(std::string(9U << 20U, 'x')), "The file is too large for a catalogue");
}

TEST(CatalogueCsv, TheCatalogueKeepsTheOrderOfTheRows) {
    const auto bytes =
        BuildCatalogue(header + "30,c,7,8,9,3\n10,a,1,2,3,1\n", "Anchor", "Anchor", 10001, 45000.5);
    ASSERT_EQ(bytes.size(), 54U + 2 * 57U);
    const ProgramContext context;
    AvailColors catalogue(context);
    ByteReader stream(bytes);
    catalogue.Read(stream);
    ASSERT_EQ(catalogue.GetFlossCount(), 2);
    EXPECT_EQ(catalogue.GetFlossManuID(1), "30");
    EXPECT_EQ(catalogue.GetFlossManuID(2), "10");
    EXPECT_EQ(catalogue.GetFlossRGB(1), MakeColour(7, 8, 9));
    EXPECT_EQ(catalogue.GetFlossMasterID(2), 1);
    EXPECT_EQ(catalogue.GetHeader().BaseID, 10001);
    EXPECT_EQ(catalogue.GetHeader().Date, 45000.5);
    EXPECT_EQ(catalogue.GetManuDesc(), "Anchor");
    EXPECT_EQ(catalogue.GetShortDesc(), "Anchor");
    EXPECT_EQ(catalogue.GetManuCount(), 0);
}

TEST(CatalogueCsv, TheNamesMustFitTheirFields) {
    EXPECT_THROW((void)BuildCatalogue(header, "", "x", 0, 0), RunTimeError);
    EXPECT_THROW((void)BuildCatalogue(header, "Anchor", "Anchor Mouline", 0, 0), RunTimeError);
    EXPECT_THROW((void)BuildCatalogue(header, std::string(31, 'n'), "x", 0, 0), RunTimeError);
}

TEST(CatalogueCsv, DatesCountFromTheEndOf1899) {
    EXPECT_EQ(CatalogueDate(0), 25569);
    EXPECT_EQ(CatalogueDate(86400 + 43200), 25570.5);
}

// --- The catalogues that ship -------------------------------------------------------------------

std::string ReadSource(const std::string& name) {
    std::ifstream file(std::string(test::SourceFolder) + "/data/flosses/" + name);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(ShippedCatalogues, EachMakerOfTheTableHasACatalogueUnderItsName) {
    std::ifstream table(std::string(test::SourceFolder) + "/data/flosses/makers.csv");
    std::string line;
    ASSERT_TRUE(std::getline(table, line));
    ASSERT_EQ(line, "Name,ShortName,File,BaseID");
    std::vector<std::string> names;
    while (std::getline(table, line)) {
        const std::size_t first = line.find(',');
        const std::size_t second = line.find(',', first + 1);
        const std::size_t third = line.find(',', second + 1);
        const std::string name = line.substr(0, first);
        const std::string shortName = line.substr(first + 1, second - first - 1);
        const std::string file = line.substr(second + 1, third - second - 1);
        EXPECT_EQ(name, shortName) << "the colour key tells a floss's own maker by both";
        ASSERT_TRUE(file.size() > 4 && file.substr(file.size() - 4) == ".col") << file;
        const std::string csv = ReadSource(file.substr(0, file.size() - 4) + ".csv");
        EXPECT_GE(ReadCatalogueCsv(csv).size(), 30U) << file;
        EXPECT_FALSE(
            BuildCatalogue(csv, name, shortName, std::stoi(line.substr(third + 1)), 0).empty());
        names.push_back(name);
    }
    EXPECT_THAT(names, testing::ElementsAre("DMC", "Anchor", "J&P Coats", "Madeira", "Cosmo",
                                            "Sullivans", "DMC LE"));
}

TEST(ShippedCatalogues, DmcHoldsTheShadesThatEverybodyKnows) {
    const auto rows = ReadCatalogueCsv(ReadSource("dmc.csv"));
    ASSERT_EQ(rows.size(), 489U);
    EXPECT_THAT(rows, testing::Contains(
                          testing::AllOf(testing::Field(&CatalogueCsvRow::FlossID, "310"),
                                         testing::Field(&CatalogueCsvRow::Red, 0),
                                         testing::Field(&CatalogueCsvRow::Description, "Black"))));
}

} // namespace
} // namespace zol
