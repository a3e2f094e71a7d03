// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PrintPlan.h"

#include "model/RunTimeError.h"

namespace zol {

namespace {

constexpr char UncountableText[] = "The chart takes more pages than can be counted.";

} // namespace

PrintPlan::PrintPlan(const PrintOptions& options, PageDevice& printer, Pattern& design, Form form)
    : m_job(options, &printer),
      m_form(form) {
    if (IsKeyOnly()) {
        // The size of squares does not matter to the key, and must not keep it from being printed.
        PrintOptions keyOptions = options;
        keyOptions.GSPI = PrintOptions().GSPI;
        m_job.SetOptions(keyOptions);
    }
    PrintWhole(design);
}

void PrintPlan::PrintWhole(Pattern& design) {
    m_job.SetPattern(design);
    Recount();
}

void PrintPlan::PrintSelection(Pattern& content, SquarePos corner) {
    m_job.SetSelection(content, corner);
    Recount();
}

void PrintPlan::SetOptions(const PrintOptions& options) {
    PrintOptions next = options;
    next.GSPI = GSPI();
    next.PrintColorKey = m_job.Options().PrintColorKey;
    m_job.SetOptions(next);
    Recount();
}

void PrintPlan::SetPrinter(PageDevice& printer) {
    m_job.SetPrinter(&printer);
    Recount();
}

void PrintPlan::SetPrintColorKey(bool print) {
    PrintOptions options = m_job.Options();
    options.PrintColorKey = print;
    m_job.SetOptions(options);
    Recount();
}

void PrintPlan::SetFitPage(bool fit) {
    m_fitPage = fit;
    if (fit) {
        m_job.FitToPage();
    }
}

void PrintPlan::SetGSPI(double gspi) {
    PrintOptions options = m_job.Options();
    options.GSPI = gspi;
    m_job.SetOptions(options);
}

void PrintPlan::RaisePrintMargins() {
    m_job.RaisePrintMargins();
    Recount();
}

void PrintPlan::Recount() {
    m_countFault.clear();
    try {
        m_job.CountKeyPages();
    } catch (const RunTimeError& error) {
        m_countFault = error.what();
    }
    if (m_fitPage) {
        m_job.FitToPage();
    }
}

bool PrintPlan::HoldsNoSquare() {
    return m_job.ColumnsPerPage() <= 0 || m_job.RowsPerPage() <= 0;
}

int PrintPlan::LastPage() {
    m_layoutFault.clear();
    try {
        const int pages = m_job.GetPageCount();
        if (HoldsNoSquare()) {
            m_layoutFault = NoSquareText;
            return PrintFuncs::TooManyPages;
        }
        return GetToPage(pages, m_job.KeyPages(), IsKeyOnly(), m_job.Options().PrintColorKey);
    } catch (const RunTimeError&) {
        m_layoutFault = UncountableText;
        return PrintFuncs::TooManyPages;
    }
}

PrintRequestFault PrintPlan::Check(PrintRequest request) {
    request.LastPage = LastPage();
    PrintRequestFault fault = CheckPrintRequest(request);
    if (fault.Field != PrintField::None) {
        return fault;
    }
    if (!m_layoutFault.empty()) {
        return {PrintField::GSPI, m_layoutFault};
    }
    // A key that nobody wants may be as long as it likes.
    const bool wantsKey = IsKeyOnly() || m_job.Options().PrintColorKey;
    return {PrintField::None, wantsKey ? m_countFault : std::string()};
}

} // namespace zol
