// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "print/windows/PrinterDoor.h"

namespace zol::CupsQueue {

/// Options of a print job by name, as the print server takes them.
using JobOptions = std::vector<std::pair<QByteArray, QByteArray>>;

/// Asks the print server what the printer does with a job that comes now.
[[nodiscard]] PrinterState StateOf(const QString& printer);

/// Puts a file into the printer's queue. What went wrong in the server's words; empty if the
/// server has it.
[[nodiscard]] std::string Submit(const QString& printer, const std::filesystem::path& file,
                                 const QString& title, const JobOptions& options);

} // namespace zol::CupsQueue
