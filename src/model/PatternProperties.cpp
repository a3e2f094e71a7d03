// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>

#include "model/Pattern.h"

namespace zol {

void Pattern::SetNoMapping() {
    m_header.PatternFlags |= PatternNoMapping;
    m_allowFlossMapping = false;
}

void Pattern::ClearNoMapping() {
    m_header.PatternFlags &= ~std::uint32_t{PatternNoMapping};
    m_allowFlossMapping = true;
}

void Pattern::AddPatternID(std::uint32_t id, const std::string& source) {
    const bool known = std::any_of(m_ids.begin(), m_ids.end(), [id](const PatternIDRecord& row) {
        return row.PatternID == id;
    });
    if (id != 0 && !known) {
        m_ids.push_back({id, source});
    }
}

std::uint32_t Pattern::GetPatternID(int index) const {
    return index >= 1 && index <= GetPatternIDCount()
               ? m_ids[static_cast<std::size_t>(index - 1)].PatternID
               : 0;
}

std::string Pattern::GetPatternSource(int index) const {
    return index >= 1 && index <= GetPatternIDCount()
               ? m_ids[static_cast<std::size_t>(index - 1)].PatternSource
               : std::string();
}

void Pattern::AddAPatternNote(int x, int y, int width, int height, const std::string& text) {
    PatternNote note;
    note.NoteX = static_cast<std::int16_t>(x);
    note.NoteY = static_cast<std::int16_t>(y);
    note.NoteText = text;
    note.NoteWidth = static_cast<std::int16_t>(width);
    note.NoteHeight = static_cast<std::int16_t>(height);
    m_notes.push_back(note);
}

PatternNote Pattern::GetPatternNote(int index) const {
    return index >= 1 && index <= GetPatternNoteCount()
               ? m_notes[static_cast<std::size_t>(index - 1)]
               : PatternNote();
}

} // namespace zol
