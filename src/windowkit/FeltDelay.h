// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

namespace zol {

/// What is done sooner than this shows no progress, which would only flicker; what lasts longer
/// shows it within the fifth of a second after which people wonder.
inline constexpr std::chrono::milliseconds FeltDelay{120};

} // namespace zol
