// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <random>

namespace zol::test {

/// The same numbers of 32 bits on every run for a seed.
class Random32 {
public:
    explicit Random32(std::uint32_t seed) : m_engine(seed) {}
    std::uint32_t operator()() { return static_cast<std::uint32_t>(m_engine()); }

private:
    std::mt19937 m_engine;
};

} // namespace zol::test
