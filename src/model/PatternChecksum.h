// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <span>

#include "model/ByteStream.h"

namespace zol {

/// Sum of the values of a pattern stream's bytes but the four of its checksum field, as a 32-bit
/// integer that wraps.
[[nodiscard]] std::int32_t ComputeChecksum(std::span<const std::uint8_t> stream);

/// The same over an open file, from the 1-based position `offset` to the last byte's position
/// `end` (0: the end of the file). The file stands afterwards where it stood.
[[nodiscard]] std::int32_t ComputeChecksum(ByteReader& file, std::uint64_t offset,
                                           std::uint64_t end);

} // namespace zol
