// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>

#include "model/Doors.h"
#include "print/PrintFuncs.h"

namespace zol {

/// A print job, one page at a time: whoever runs it steps it, from a loop or from a timer.
class PrintJob {
public:
    enum class State { Running, Done, Cancelled, Failed };

    /// Prints the pages of the range that SetPrintRange gave to `target`. All must outlive this;
    /// `progress` may be null.
    PrintJob(PrintFuncs& functions, PageDevice& target, ProgressDoor* progress);

    /// Prints the next page, and after the last one ends the document. A cancelled or failed job
    /// kills the document.
    State PrintNextPage();
    /// Prints all that is left.
    State Run();

    [[nodiscard]] State CurrentState() const { return m_state; }
    /// Of a failed job: what the caller can show.
    [[nodiscard]] const std::string& ErrorText() const { return m_errorText; }
    /// "Printing Pattern Page " and the number, or its like for the key and the preview.
    [[nodiscard]] std::string PageLabel() const;

private:
    void PaintPage();
    State End(State state);

    PrintFuncs* m_functions;
    PageDevice* m_target;
    ProgressDoor* m_progress;
    State m_state = State::Running;
    std::string m_errorText;
    bool m_firstPage = true;
};

} // namespace zol
