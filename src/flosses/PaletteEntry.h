// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>

#include "model/ByteStream.h"
#include "model/CodePage.h"
#include "model/ZOLTypes.h"

namespace zol {

/// One floss of a palette, with the fields of its record on disk (169 bytes).
struct PaletteEntry {
    static constexpr int RecordSize = 169;

    FixedText<30> Description;
    Colour RGB = 0;
    FixedText<10> FlossID;
    std::int16_t ManufacturerIndex = 0;
    std::int32_t MasterID = 0;
    FixedText<30> BlendDescription;
    Colour BlendRGB = 0;
    FixedText<10> BlendFlossID;
    std::int16_t BlendManufacturerIndex = 0;
    std::int32_t BlendMasterID = 0;
    std::int16_t IsBlended = 0; ///< 0 or -1; any other value counts as blended
    std::uint8_t Symbol = 0;
    std::int16_t StitchStrands = 0;
    std::int16_t BackStitchStrands = 0;
    std::int16_t EntryTag = 0;
    FixedText<30> DisplayDescription;
    std::uint8_t DefaultBSType = 0;
    Colour NonRepColor = 0;
    FixedText<25> NonRepDesc;

    [[nodiscard]] static PaletteEntry Read(ByteReader& stream);
    void Write(ByteWriter& stream) const;

    friend bool operator==(const PaletteEntry&, const PaletteEntry&) = default;
};

/// "310 - Black"; the one alone where the other is empty.
[[nodiscard]] inline std::string NumberAndName(const std::string& number, const std::string& name) {
    return number + (number.empty() || name.empty() ? "" : " - ") + name;
}

/// One manufacturer seen in a palette (40 bytes on disk). Rows are added and never removed.
struct PaletteManufacturer {
    static constexpr int RecordSize = 40;

    FixedText<30> LongName;
    FixedText<10> ShortName;

    [[nodiscard]] static PaletteManufacturer Read(ByteReader& stream);
    void Write(ByteWriter& stream) const;

    friend bool operator==(const PaletteManufacturer&, const PaletteManufacturer&) = default;
};

} // namespace zol
