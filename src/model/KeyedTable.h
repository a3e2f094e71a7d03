// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace zol {

/// Records in the order in which they were added, found by a packed integer key, removed in
/// constant time on average. A missing key is an ordinary event. Removing leaves a gap that is
/// closed when the gaps outnumber the records, so walks stay linear and the order never changes.
///
/// The index is one flat array with linear probing: patterns look thousands of squares up for
/// every repaint, and a node for each would cost more than the records.
template<typename Record>
class KeyedTable {
public:
    using Key = std::uint32_t;

    /// The key "row|column" of a square or lattice point.
    [[nodiscard]] static constexpr Key KeyOf(int row, int column) {
        return (static_cast<Key>(static_cast<std::uint16_t>(row)) << 16U) |
               static_cast<std::uint16_t>(column);
    }

    [[nodiscard]] std::size_t Count() const { return m_count; }
    [[nodiscard]] bool IsEmpty() const { return m_count == 0; }

    [[nodiscard]] Record* Find(Key key) {
        const std::size_t place = PlaceOf(key);
        return place == notThere ? nullptr : &*m_slots[m_index[place] - 1].record;
    }
    [[nodiscard]] const Record* Find(Key key) const {
        const std::size_t place = PlaceOf(key);
        return place == notThere ? nullptr : &*m_slots[m_index[place] - 1].record;
    }

    /// Adds at the end. False if the key is there already; the table is then unchanged.
    bool Add(Key key, const Record& record) {
        if ((m_count + 1) * 2 > m_index.size()) {
            Rebuild();
        }
        std::size_t place = HomeOf(key);
        for (; m_index[place] != 0; place = Next(place)) {
            if (m_slots[m_index[place] - 1].key == key) {
                return false;
            }
        }
        m_slots.push_back({key, record});
        m_index[place] = static_cast<std::uint32_t>(m_slots.size());
        ++m_count;
        return true;
    }

    bool Remove(Key key) {
        const std::size_t place = PlaceOf(key);
        if (place == notThere) {
            return false;
        }
        m_slots[m_index[place] - 1].record.reset();
        Vacate(place);
        --m_count;
        if (m_slots.size() > 32 && m_slots.size() > 2 * m_count) {
            Rebuild();
        }
        return true;
    }

    void Clear() {
        m_slots.clear();
        m_index.clear();
        m_count = 0;
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

    /// Calls keep(record) for each record in order and removes those for which it is false. What
    /// went before is no longer found by the keep that follows.
    template<typename Keep>
    void RemoveUnless(Keep keep) {
        const std::size_t before = m_count;
        for (auto& slot : m_slots) {
            if (slot.record && !keep(*slot.record)) {
                Vacate(PlaceOf(slot.key));
                slot.record.reset();
                --m_count;
            }
        }
        if (m_count != before) {
            Rebuild();
        }
    }

private:
    struct Slot {
        Key key = 0;
        std::optional<Record> record;
    };
    static constexpr std::size_t notThere = static_cast<std::size_t>(-1);

    [[nodiscard]] std::size_t HomeOf(Key key) const {
        // Neighbouring squares differ in few low bits; the multiplication spreads them.
        return ((key * 0x9E3779B1U) ^ (key >> 15U)) & (m_index.size() - 1);
    }
    [[nodiscard]] std::size_t Next(std::size_t place) const {
        return (place + 1) & (m_index.size() - 1);
    }
    [[nodiscard]] std::size_t PlaceOf(Key key) const {
        if (m_count == 0) {
            return notThere;
        }
        for (std::size_t place = HomeOf(key); m_index[place] != 0; place = Next(place)) {
            if (m_slots[m_index[place] - 1].key == key) {
                return place;
            }
        }
        return notThere;
    }

    /// Frees a place and draws up those behind it that had to give way, so that no search ends
    /// too early.
    void Vacate(std::size_t place) {
        const std::size_t mask = m_index.size() - 1;
        for (std::size_t next = Next(place); m_index[next] != 0; next = Next(next)) {
            const std::size_t home = HomeOf(m_slots[m_index[next] - 1].key);
            if (((next - home) & mask) >= ((next - place) & mask)) {
                m_index[place] = m_index[next];
                place = next;
            }
        }
        m_index[place] = 0;
    }

    /// Closes the gaps and sizes the index for twice the records.
    void Rebuild() {
        std::erase_if(m_slots, [](const Slot& slot) { return !slot.record; });
        std::size_t size = 16;
        while (size < (m_count + 1) * 4) {
            size *= 2;
        }
        m_index.assign(size, 0);
        for (std::size_t i = 0; i < m_slots.size(); ++i) {
            std::size_t place = HomeOf(m_slots[i].key);
            while (m_index[place] != 0) {
                place = Next(place);
            }
            m_index[place] = static_cast<std::uint32_t>(i + 1);
        }
    }

    std::vector<Slot> m_slots;
    std::vector<std::uint32_t> m_index; ///< slot number + 1, 0 for a free place
    std::size_t m_count = 0;
};

} // namespace zol
