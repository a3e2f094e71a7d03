// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "import/scan/SaneLibrary.h"
#include "import/scan/ScanCall.h"
#include "import/scan/ScannerDoor.h"

namespace zol {

/// What the calls to a scanner do on SANE's own thread.
namespace SaneSession {

[[nodiscard]] SourcesFound FindSources(SaneLibrary& sane);
[[nodiscard]] AbilitiesFound AskAbilities(SaneLibrary& sane, const std::string& source);
[[nodiscard]] ScanResult Acquire(SaneLibrary& sane, const ScanRequest& request, ScanCall& call);

} // namespace SaneSession
} // namespace zol
