// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "import/scan/SaneDevice.h"
#include "import/scan/ScannerDoor.h"

namespace zol {

/// What the options that every scanner has by the same names mean to a scan.
namespace SaneSettings {

[[nodiscard]] ScanAbilities AbilitiesOf(const SaneDevice& device);

/// Sets the device for a scan. Anything but SANE_STATUS_GOOD: it does not take what was asked.
/// What a device does not have cannot be asked of it.
[[nodiscard]] SANE_Status Apply(const SaneDevice& device, const ScanRequest& request);

} // namespace SaneSettings
} // namespace zol
