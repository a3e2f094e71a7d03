// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "flosses/AvailColors.h"
#include "model/ProgramContext.h"
#include "model/RunTimeError.h"

using namespace zol;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ProgramContext context;
    AvailColors catalogue(context);
    try {
        ByteReader stream({data, size});
        catalogue.Read(stream);
    } catch (const RunTimeError&) {
        return 0;
    }
    const auto bytes = catalogue.Bytes();
    if (bytes.size() > size || !std::equal(bytes.begin(), bytes.end(), data)) {
        std::abort(); // rows that were read are written as they stood
    }
    for (int order = 0; order <= 3; ++order) {
        catalogue.SortByCategory(order);
    }
    for (int i = 0; i <= catalogue.GetFlossCount() + 1; ++i) {
        (void)catalogue.GetFlossRGB(i);
        (void)catalogue.FindIndex(catalogue.GetFlossManuID(i));
        (void)catalogue.GetMapIndex(catalogue.GetFlossMasterID(i));
    }
    return 0;
}
