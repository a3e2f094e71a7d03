// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "print/PrintJob.h"
#include "print/windows/PrintDesk.h"

namespace zol {

/// Sends the job's range to the printer, with the printing window, if it can be sent now: what is
/// in the way is told, and so is a fault. Nothing is printed of a job that does not come back as
/// done.
PrintJob::State PrintOnPrinter(PrintDesk& desk, PrintFuncs& job, QWidget* parent);

} // namespace zol
