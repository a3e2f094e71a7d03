// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "flosses/AvailColors.h"
#include "flosses/CatalogueCsv.h"
#include "model/ProgramContext.h"
#include "model/RunTimeError.h"

using namespace zol;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view csv(reinterpret_cast<const char*>(data), size);
    try {
        const auto rows = ReadCatalogueCsv(csv);
        const auto bytes = BuildCatalogue(csv, "Maker", "Maker", 1, 45000);
        const ProgramContext context;
        AvailColors catalogue(context);
        ByteReader stream(bytes);
        catalogue.Read(stream);
        if (catalogue.GetFlossCount() != static_cast<int>(rows.size())) {
            std::abort();
        }
    } catch (const RunTimeError&) {
        return 0; // how damage is told
    }
    return 0;
}
