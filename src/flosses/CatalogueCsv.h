// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zol {

// Catalogues are kept as readable CSV and turned into catalogue files when the program is built.
// The first line is "FlossID,Description,Red,Green,Blue,MasterID"; each further line is one
// thread. Lines end with LF or CRLF; a field may be quoted, a quote inside is doubled.

/// One thread of the CSV.
struct CatalogueCsvRow {
    std::string FlossID;     ///< 1 to 10 characters
    std::string Description; ///< 1 to 30 characters
    int Red = 0;
    int Green = 0;
    int Blue = 0;
    std::int32_t MasterID = 0; ///< 0 or more

    friend bool operator==(const CatalogueCsvRow&, const CatalogueCsvRow&) = default;
};

/// The rows in their order. Throws RunTimeError (321) with a text that names the line and what is
/// wrong there: nothing is guessed or left out.
[[nodiscard]] std::vector<CatalogueCsvRow> ReadCatalogueCsv(std::string_view csv);

/// The bytes of the catalogue file, its rows in the order of the CSV. `name` has 1 to 30
/// characters, `shortName` 1 to 10; `date` is in days since 30 December 1899. Throws RunTimeError
/// (321) as ReadCatalogueCsv.
[[nodiscard]] std::vector<std::uint8_t> BuildCatalogue(std::string_view csv, std::string_view name,
                                                       std::string_view shortName,
                                                       std::int32_t baseID, double date);

/// A moment of the Unix clock in days since 30 December 1899.
[[nodiscard]] double CatalogueDate(std::int64_t secondsSince1970);

} // namespace zol
