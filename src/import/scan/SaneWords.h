// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <sane/sane.h>

#include <string>
#include <string_view>

#include "import/scan/ScannerDoor.h"

namespace zol {

/// What the user reads when a scan does not come about: what is wrong, and what to do.
namespace SaneWords {

/// SANE speaks ISO 8859-1 by its standard and UTF-8 in some of its drivers; null gives "".
[[nodiscard]] std::string TextOf(const char* saneText);

/// For any status but SANE_STATUS_GOOD. `saneText` is SANE's own name for it.
[[nodiscard]] ScanProblem OfStatus(SANE_Status status, std::string_view saneText);

/// A source that could not be opened; a device that is unknown has a status that means bad
/// settings elsewhere.
[[nodiscard]] ScanProblem OfOpening(SANE_Status status, std::string_view saneText);

[[nodiscard]] ScanProblem Cancelled();
/// `reason` is what the system says of the library.
[[nodiscard]] ScanProblem NoLibrary(std::string_view library, std::string_view reason);
/// More pixels than any picture may have.
[[nodiscard]] ScanProblem TooLarge();
/// A picture ended before its last row, or is of a make that no rows can be read from.
[[nodiscard]] ScanProblem Damaged(std::string_view what);
[[nodiscard]] ScanProblem NoAnswer();

} // namespace SaneWords
} // namespace zol
