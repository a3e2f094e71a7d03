// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

namespace zol::test {

/// While one lives there is no memory for a piece larger than a limit, on this thread alone. Brings
/// operators new and delete for the whole test program.
class ScarceMemory {
public:
    /// As many larger pieces as `granted` are still to be had.
    explicit ScarceMemory(std::size_t limit, int granted = 0) {
        s_limit = limit;
        s_granted = granted;
        s_refused = 0;
    }
    ~ScarceMemory() { s_limit = 0; }
    ScarceMemory(const ScarceMemory&) = delete;
    ScarceMemory& operator=(const ScarceMemory&) = delete;

    /// How often there was none.
    [[nodiscard]] static int Refused() { return s_refused; }

    [[nodiscard]] static bool Refuses(std::size_t size) {
        if (s_limit == 0 || size <= s_limit || s_granted-- > 0) {
            return false;
        }
        ++s_refused;
        return true;
    }

private:
    static inline thread_local std::size_t s_limit = 0; ///< 0: there is enough
    static inline thread_local int s_granted = 0;
    static inline thread_local int s_refused = 0;
};

} // namespace zol::test
