// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <bitset>
#include <string>

#include "flosses/Palette.h"
#include "model/Doors.h"

namespace zol {

/// The choice of a symbol for one entry of a palette, or for a new one: which symbols there are,
/// which of them other flosses have, and which is chosen. Places count from 1 to
/// Palette::SymbolCount, in the order in which symbols are handed out.
class SymbolChoice {
public:
    static constexpr int NewEntry = 0;

    SymbolChoice(const Palette& palette, int entry, MessageDoor& messages);

    [[nodiscard]] static int CodeAt(int place) { return Palette::SymbolCode(place); }
    /// Whether another floss has it.
    [[nodiscard]] bool IsTaken(int place) const;
    /// False if it is taken, which the user is told; the choice then stays.
    bool Choose(int place);
    /// 0 if nothing is chosen: an entry without a symbol, or one that is not handed out.
    [[nodiscard]] int Chosen() const { return m_chosen; }
    /// The symbol as palettes take it; empty if nothing is chosen.
    [[nodiscard]] std::string Text() const;

private:
    [[nodiscard]] static int PlaceOf(int code);

    std::bitset<256> m_taken; ///< by code
    int m_chosen = 0;
    MessageDoor& m_messages;
};

} // namespace zol
