// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Doors.h"
#include "print/KeyPages.h"
#include "print/KeyRows.h"
#include "print/PrintFuncs.h"

namespace zol {

/// Prints the pages that follow the pattern pages: a cover block, a section for each group of
/// flosses, and the pattern's instructions. Also counts them.
class NewColorKey {
public:
    /// The job must outlive this.
    explicit NewColorKey(PrintFuncs& job);

    /// Counts the pages into the job's KeyPages, or paints the key page that the job's PrintPage
    /// means. Ends at the next step once the job is cancelled. Throws RunTimeError 9 for
    /// instructions of more than 100 pages.
    void PrintColorKey(PageDevice* target, ProgressDoor* progress, bool countOnly);

private:
    bool Step(ProgressDoor* progress, int percent);
    void PrintPatternInfo(KeyPages& pages);
    void PrintKeySection(KeyPages& pages, const KeyRows& rows, const KeySection& section);

    PrintFuncs* m_job;
};

} // namespace zol
