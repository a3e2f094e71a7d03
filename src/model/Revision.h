// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>
#include <cstdint>

namespace zol {

/// A number that stands for one state of some content. No two states share one, in whichever
/// object they are: whoever keeps something worked out from the content needs to keep the number
/// alone to tell whether it still holds. Moves with the content that it stands for.
class Revision {
public:
    Revision() = default;
    ~Revision() = default;
    Revision(const Revision&) = delete;
    Revision& operator=(const Revision&) = delete;
    Revision(Revision&& other) noexcept : m_number(other.m_number) { other.Renew(); }
    Revision& operator=(Revision&& other) noexcept {
        if (this != &other) {
            m_number = other.m_number;
            other.Renew();
        }
        return *this;
    }

    /// To be called with every change.
    void Renew() { m_number = Next(); }
    /// Never 0.
    [[nodiscard]] std::uint64_t Number() const { return m_number; }

private:
    [[nodiscard]] static std::uint64_t Next() {
        // Patterns are read on other threads too.
        static std::atomic<std::uint64_t> last{0};
        return last.fetch_add(1, std::memory_order_relaxed) + 1;
    }

    std::uint64_t m_number = Next();
};

} // namespace zol
