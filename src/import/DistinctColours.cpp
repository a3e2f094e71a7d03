// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/DistinctColours.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "import/PictureOps.h"

namespace zol {

namespace {

constexpr std::uint32_t NoPlace = 0xFFFFFFFFU;

/// Finds or gives the place of a colour. Colours of 5 bits a channel have a table of their own,
/// so that a picture which was not smoothed costs a table look-up a pixel; others are hashed.
class PlaceTable {
public:
    explicit PlaceTable(std::vector<Colour>& colours)
        : m_colours(&colours),
          m_ofDepth(32768, NoPlace),
          m_slots(firstSlots, Slot{0, NoPlace}) {}

    std::uint32_t PlaceOf(Colour colour) {
        const Colour upper = colour & 0x00F8F8F8U;
        if ((upper | ((upper >> 5U) & 0x00070707U)) == colour) {
            std::uint32_t& place = m_ofDepth[((colour >> 3U) & 0x1FU) | ((colour >> 6U) & 0x3E0U) |
                                             ((colour >> 9U) & 0x7C00U)];
            return place != NoPlace ? place : place = Append(colour);
        }
        return PlaceOfHashed(colour);
    }

private:
    struct Slot {
        Colour colour;
        std::uint32_t place;
    };
    static constexpr std::size_t firstSlots = 1024;

    std::uint32_t Append(Colour colour) {
        m_colours->push_back(colour);
        return static_cast<std::uint32_t>(m_colours->size() - 1);
    }

    [[nodiscard]] Slot& SlotOf(Colour colour) {
        const std::size_t mask = m_slots.size() - 1;
        // Neighbouring colours are common in photos; the product spreads them over the table.
        std::size_t at = ((colour * 0x9E3779B1U) >> 8U) & mask;
        while (m_slots[at].place != NoPlace && m_slots[at].colour != colour) {
            at = (at + 1) & mask;
        }
        return m_slots[at];
    }

    std::uint32_t PlaceOfHashed(Colour colour) {
        Slot& slot = SlotOf(colour);
        if (slot.place != NoPlace) {
            return slot.place;
        }
        const std::uint32_t place = Append(colour);
        slot = {colour, place};
        if (++m_taken * 2 > m_slots.size()) {
            Grow();
        }
        return place;
    }

    void Grow() {
        std::vector<Slot> old(m_slots.size() * 4, Slot{0, NoPlace});
        old.swap(m_slots);
        for (const Slot& slot : old) {
            if (slot.place != NoPlace) {
                SlotOf(slot.colour) = slot;
            }
        }
    }

    std::vector<Colour>* m_colours;
    std::vector<std::uint32_t> m_ofDepth;
    std::vector<Slot> m_slots;
    std::size_t m_taken = 0;
};

} // namespace

DistinctColours::DistinctColours(const Picture& image) : Places(image.Pixels().size()) {
    PlaceTable table(Colours);
    const int width = image.ImageWidth();
    const int height = image.ImageHeight();
    // Square blocks, so that neither the rows read nor the columns written fall out of the cache.
    constexpr int block = 64;
    for (int top = 0; top < height; top += block) {
        const int bottom = std::min(top + block, height);
        for (int left = 0; left < width; left += block) {
            const int right = std::min(left + block, width);
            for (int y = top; y < bottom; ++y) {
                const Colour* row = image.Row(y);
                std::size_t at = static_cast<std::size_t>(left) * static_cast<std::size_t>(height) +
                                 static_cast<std::size_t>(y);
                for (int x = left; x < right; ++x) {
                    Places[at] = table.PlaceOf(row[x] & 0x00FFFFFFU);
                    at += static_cast<std::size_t>(height);
                }
            }
        }
    }
}

} // namespace zol
