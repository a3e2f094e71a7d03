// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "model/ByteStream.h"

namespace zol {

/// Bits of PatternFlags. The reserved ones travel from load to save.
enum PatternFlag : std::uint32_t {
    PatternNoMapping = 16,
    PatternTestChecksum = 4 | 8,
    PatternReservedFlags = 2 | 4 | 8,
};

/// The 264 bytes at the front of a pattern stream. Reserved fields travel from load to save.
struct PatternHeader {
    static constexpr int Size = 264;
    static constexpr int ChecksumOffset = 260;
    static constexpr std::string_view Magic = "Korvanta 6 Pattern File";

    std::uint16_t Reserved1 = 0;
    std::int32_t Version = 0; ///< of the program that wrote the stream
    std::uint32_t Reserved2 = 0;
    std::array<std::uint8_t, 187> Reserved3{};
    std::uint32_t PatternFlags = 0;
    std::int32_t Checksum = 0; ///< as loaded
};

} // namespace zol
