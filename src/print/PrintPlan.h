// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "print/PrintFuncs.h"
#include "print/PrintRequest.h"

namespace zol {

/// A print job while its decisions are being made: each one is taken over at once, and the job's
/// pages are counted anew where it moves them.
class PrintPlan {
public:
    enum class Form { Pattern, ColorKey };

    /// `printer` and `design` must outlive this. Without a printer give a Paper.
    PrintPlan(const PrintOptions& options, PageDevice& printer, Pattern& design, Form form);

    [[nodiscard]] PrintFuncs& Job() { return m_job; }
    [[nodiscard]] bool IsKeyOnly() const { return m_form == Form::ColorKey; }
    [[nodiscard]] bool FitsPage() const { return m_fitPage; }
    [[nodiscard]] double GSPI() const { return m_job.Options().GSPI; }

    void PrintWhole(Pattern& design);
    void PrintSelection(Pattern& content, SquarePos corner);
    /// Settings have changed: all of `options` but what the plan holds itself, which are the
    /// squares to the inch and whether the key is wanted.
    void SetOptions(const PrintOptions& options);
    /// Another printer, or another paper in it.
    void SetPrinter(PageDevice& printer);
    void SetPrintColorKey(bool print);
    /// The whole pattern on one page. Afterwards the squares stay as they are.
    void SetFitPage(bool fit);
    void SetGSPI(double gspi);
    /// Each margin that lies in the printer's border is raised to it.
    void RaisePrintMargins();

    /// The last page that can be asked for; 999 where no page holds a whole square.
    [[nodiscard]] int LastPage();
    /// What is wrong with the range and size that were asked for; an empty text if the job may
    /// run. LastPage of the request is not looked at.
    [[nodiscard]] PrintRequestFault Check(PrintRequest request);

private:
    void Recount();
    [[nodiscard]] bool HoldsNoSquare();

    PrintFuncs m_job;
    Form m_form;
    bool m_fitPage = false;
    std::string m_countFault;  ///< why the key could not be counted
    std::string m_layoutFault; ///< why the pages could not be counted
};

} // namespace zol
