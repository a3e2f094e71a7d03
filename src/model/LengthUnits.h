// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

namespace zol {

inline constexpr double CentimetresPerInch = 2.54;

} // namespace zol
