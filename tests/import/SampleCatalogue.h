// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "flosses/AvailColors.h"
#include "model/ByteStream.h"
#include "model/ProgramContext.h"

namespace zol::test {

/// A catalogue of threads of these colours, numbered from 1, as it is after it was read.
inline AvailColors CatalogueOf(const ProgramContext& context, const std::vector<Colour>& colours,
                               const std::string& name = "Maker and Sons") {
    AvailColors made(context);
    made.Setheader(name, 20000, "Maker", 1);
    int number = 0;
    for (const Colour colour : colours) {
        CatalogueRow row;
        row.MasterID = 1000 + number;
        row.FlossID.Set(std::to_string(++number));
        row.Description.Set("floss " + std::to_string(number));
        row.Red = static_cast<std::int16_t>(colour & 255U);
        row.Green = static_cast<std::int16_t>((colour >> 8U) & 255U);
        row.Blue = static_cast<std::int16_t>((colour >> 16U) & 255U);
        made.AppendRow(row);
    }
    // The long name is known of a catalogue that was read.
    const std::vector<std::uint8_t> bytes = made.Bytes();
    ByteReader reader(bytes);
    AvailColors catalogue(context);
    catalogue.Read(reader);
    return catalogue;
}

/// The same as a file among those that the program offers.
inline bool WriteCatalogue(const ProgramContext& context, const std::string& file,
                           const std::string& name, const std::vector<Colour>& colours) {
    const std::filesystem::path folder = context.AppPath / "Flosses";
    std::filesystem::create_directories(folder);
    return CatalogueOf(context, colours, name).SaveToFile(folder / file);
}

} // namespace zol::test
