// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <string>

namespace zol {

/// A property of a pattern as one line of text: ends trimmed, line breaks and tabs as blanks.
[[nodiscard]] QString OneLine(const std::string& utf8);

} // namespace zol
