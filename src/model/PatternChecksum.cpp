// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/PatternChecksum.h"

#include <algorithm>
#include <numeric>

#include "model/PatternHeader.h"

namespace zol {

namespace {

std::uint32_t Sum(std::span<const std::uint8_t> bytes) {
    return std::accumulate(bytes.begin(), bytes.end(), std::uint32_t{0});
}

/// Bytes from `from` to before `to`, both counted from the stream's start, as far as they lie in
/// a part of the stream that begins at `start`.
std::span<const std::uint8_t> Between(std::span<const std::uint8_t> part, std::uint64_t start,
                                      std::uint64_t from, std::uint64_t to) {
    const std::uint64_t size = part.size();
    const std::uint64_t first = from > start ? std::min(from - start, size) : 0;
    const std::uint64_t last = to > start ? std::min(to - start, size) : 0;
    return first < last ? part.subspan(first, last - first) : part.first(0);
}

std::uint32_t SumWithoutField(std::span<const std::uint8_t> part, std::uint64_t start) {
    return Sum(part) - Sum(Between(part, start, PatternHeader::ChecksumOffset,
                                   PatternHeader::ChecksumOffset + 4));
}

} // namespace

std::int32_t ComputeChecksum(std::span<const std::uint8_t> stream) {
    return static_cast<std::int32_t>(SumWithoutField(stream, 0));
}

std::int32_t ComputeChecksum(ByteReader& file, std::uint64_t offset, std::uint64_t end) {
    const std::uint64_t present = file.Position();
    file.Seek(offset);
    std::uint64_t left = file.Remaining();
    if (end != 0) {
        left = end < offset ? 0 : std::min(left, end - offset + 1);
    }
    std::uint32_t sum = 0;
    std::uint64_t done = 0;
    while (left > 0) {
        std::span<const std::uint8_t> part = file.Ahead(1);
        if (part.empty()) {
            break; // the file has become shorter while it was read
        }
        part = part.first(static_cast<std::size_t>(std::min<std::uint64_t>(part.size(), left)));
        sum += SumWithoutField(part, done);
        file.Skip(part.size());
        done += part.size();
        left -= part.size();
    }
    file.Seek(present);
    return static_cast<std::int32_t>(sum);
}

} // namespace zol
