// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/editing/SymbolChoice.h"

#include "model/CodePage.h"

namespace zol {

SymbolChoice::SymbolChoice(const Palette& palette, int entry, MessageDoor& messages)
    : m_messages(messages) {
    for (int other = 1; other <= palette.GetEntriesCount(); ++other) {
        if (other != entry) {
            m_taken.set(static_cast<std::size_t>(palette.GetFlossSymbol(other)));
        }
    }
    if (entry != NewEntry) {
        // Its own symbol stays open to it, also where another floss has the same.
        m_taken.reset(static_cast<std::size_t>(palette.GetFlossSymbol(entry)));
    }
    m_chosen = entry == NewEntry ? PlaceOf(Palette::SymbolCodeOf(palette.GetNextAvailableSymbol()))
                                 : PlaceOf(palette.GetFlossSymbol(entry));
}

int SymbolChoice::PlaceOf(int code) {
    for (int place = 1; place <= Palette::SymbolCount; ++place) {
        if (CodeAt(place) == code) {
            return place;
        }
    }
    return 0;
}

bool SymbolChoice::IsTaken(int place) const {
    return m_taken.test(static_cast<std::size_t>(CodeAt(place)));
}

bool SymbolChoice::Choose(int place) {
    if (place < 1 || place > Palette::SymbolCount) {
        return false;
    }
    if (IsTaken(place)) {
        m_messages.Tell("This symbol is already being used by another floss.",
                        MessageIcon::Information, "Symbol already used");
        return false;
    }
    m_chosen = place;
    return true;
}

std::string SymbolChoice::Text() const {
    std::string text;
    if (m_chosen > 0) {
        CodePage::AppendUtf8(text,
                             CodePage::ToUnicode(static_cast<std::uint8_t>(CodeAt(m_chosen))));
    }
    return text;
}

} // namespace zol
