// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "print/windows/PrintDesk.h"

namespace zol {

/// Asks for a name and writes the job's range as a PDF, with the printing window. A fault is told;
/// an old file then stays as it was. False if no file came to be.
bool SaveJobAsPdf(PrintDesk& desk, PrintFuncs& job, QWidget* parent);

} // namespace zol
