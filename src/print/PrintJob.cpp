// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PrintJob.h"

#include <exception>

namespace zol {

PrintJob::PrintJob(PrintFuncs& functions, PageDevice& target, ProgressDoor* progress)
    : m_functions(&functions),
      m_target(&target),
      m_progress(progress) {
    m_functions->SetPrintCancelled(false);
    m_functions->SetPrintPage(m_functions->PrintFromPage());
}

std::string PrintJob::PageLabel() const {
    const int page = m_functions->PrintPage();
    const bool isKey = m_functions->PatternPages() != 0 && page > m_functions->PatternPages();
    const std::string verb = m_functions->PreviewMode() ? "Previewing " : "Printing ";
    const ProgramContext& context = m_functions->PrintPattern()->Context();
    return isKey ? verb + context.ColorWord() + " Key Page " +
                       std::to_string(page - m_functions->PatternPages())
                 : verb + "Pattern Page " + std::to_string(page);
}

PrintJob::State PrintJob::PrintNextPage() {
    if (m_state != State::Running) {
        return m_state;
    }
    if (m_progress != nullptr) {
        m_progress->StartStatus(PageLabel(), 100);
    }
    try {
        PaintPage();
    } catch (const std::exception& error) {
        m_errorText = error.what();
        m_state = State::Failed;
    }
    if (m_progress != nullptr) {
        m_progress->StopStatus();
    }
    if (m_state != State::Running) {
        return End(m_state);
    }
    if (m_functions->PrintCancelled()) {
        return End(State::Cancelled);
    }
    if (m_functions->PrintPage() >= m_functions->PrintToPage()) {
        return End(State::Done);
    }
    m_functions->SetPrintPage(m_functions->PrintPage() + 1);
    return m_state;
}

PrintJob::State PrintJob::Run() {
    while (PrintNextPage() == State::Running) {
    }
    return m_state;
}

void PrintJob::PaintPage() {
    const bool opened = m_firstPage || m_target->NewPage();
    m_firstPage = false;
    if (!opened || !m_functions->PrintPatternPage(*m_target, m_progress, true, true)) {
        m_errorText = WhyRefused(*m_target);
        m_state = State::Failed;
    }
}

PrintJob::State PrintJob::End(State state) {
    m_state = state;
    if (state != State::Done) {
        m_target->KillDoc();
    } else if (!m_target->EndDoc()) {
        m_errorText = WhyRefused(*m_target);
        m_state = State::Failed;
    }
    return m_state;
}

} // namespace zol
