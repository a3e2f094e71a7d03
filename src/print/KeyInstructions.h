// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "print/KeyPages.h"
#include "print/PrintFuncs.h"
#include "print/TextFormatter.h"

namespace zol {

/// The pattern's instructions at the end of the key, a boxed piece a page.
class KeyInstructions {
public:
    /// Instructions end by this key page, or the key fails.
    static constexpr int LastNotePosition = 100;

    /// Both must outlive this.
    KeyInstructions(PrintFuncs& job, KeyPages& pages) : m_job(&job), m_pages(&pages) {}

    /// Counting lays every page out and tells the job where each one begins; printing goes on from
    /// there and ends with the wanted page. Throws RunTimeError 9 for more than 100 pages.
    void Print(bool countOnly);

private:
    /// Lays out pages from `position` on, up to and with the key page `last`.
    void PrintPieces(const TextFormatter& text, int position, int last, KeyNotes& notes);
    int PrintPiece(const TextFormatter& text, int position);
    [[nodiscard]] QSizeF FreshRoom() const;
    [[nodiscard]] double Air() const { return m_pages->Font().TextHeight() / 2.0; }

    PrintFuncs* m_job;
    KeyPages* m_pages;
};

} // namespace zol
