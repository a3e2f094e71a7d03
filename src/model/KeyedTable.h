// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace zol {

/// Records in the order in which they were added, found by a packed integer key, removed in
/// constant time on average. A missing key is an ordinary event. Removing leaves a gap that is
/// closed when the gaps outnumber the records, so walks stay linear and the order never changes.
template<typename Record>
class KeyedTable {
public:
    using Key = std::uint32_t;

    /// The key "row|column" of a square or lattice point.
    [[nodiscard]] static constexpr Key KeyOf(int row, int column) {
        return (static_cast<Key>(static_cast<std::uint16_t>(row)) << 16U) |
               static_cast<std::uint16_t>(column);
    }

    [[nodiscard]] std::size_t Count() const { return m_index.size(); }
    [[nodiscard]] bool IsEmpty() const { return m_index.empty(); }

    [[nodiscard]] Record* Find(Key key) {
        const auto found = m_index.find(key);
        return found == m_index.end() ? nullptr : &*m_slots[found->second].record;
    }
    [[nodiscard]] const Record* Find(Key key) const {
        const auto found = m_index.find(key);
        return found == m_index.end() ? nullptr : &*m_slots[found->second].record;
    }

    /// Adds at the end. False if the key is there already; the table is then unchanged.
    bool Add(Key key, const Record& record) {
        if (!m_index.try_emplace(key, m_slots.size()).second) {
            return false;
        }
        m_slots.push_back({key, record});
        return true;
    }

    bool Remove(Key key) {
        const auto found = m_index.find(key);
        if (found == m_index.end()) {
            return false;
        }
        m_slots[found->second].record.reset();
        m_index.erase(found);
        if (m_slots.size() > 32 && m_slots.size() > 2 * m_index.size()) {
            CloseGaps();
        }
        return true;
    }

    void Clear() {
        m_slots.clear();
        m_index.clear();
    }

    /// Calls visit(record) for each record in order. The visit must not add or remove.
    template<typename Visit>
    void ForEach(Visit visit) {
        for (auto& slot : m_slots) {
            if (slot.record) {
                visit(*slot.record);
            }
        }
    }
    template<typename Visit>
    void ForEach(Visit visit) const {
        for (const auto& slot : m_slots) {
            if (slot.record) {
                visit(*slot.record);
            }
        }
    }

    /// Calls keep(record) for each record in order and removes those for which it is false.
    template<typename Keep>
    void RemoveUnless(Keep keep) {
        for (auto& slot : m_slots) {
            if (slot.record && !keep(*slot.record)) {
                slot.record.reset();
                m_index.erase(slot.key);
            }
        }
        CloseGaps();
    }

private:
    struct Slot {
        Key key = 0;
        std::optional<Record> record;
    };

    void CloseGaps() {
        std::size_t kept = 0;
        for (auto& slot : m_slots) {
            if (slot.record) {
                m_index[slot.key] = kept;
                if (&m_slots[kept] != &slot) {
                    m_slots[kept] = slot;
                }
                ++kept;
            }
        }
        m_slots.resize(kept);
    }

    std::vector<Slot> m_slots;
    std::unordered_map<Key, std::size_t> m_index;
};

} // namespace zol
