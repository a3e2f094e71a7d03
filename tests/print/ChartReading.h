// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <filesystem>
#include <map>
#include <utility>

#include "model/Pattern.h"
#include "print/PrintFuncs.h"

namespace zol::test {

/// By column and row: the symbols of a square, sorted.
using Symbols = std::map<std::pair<int, int>, QString>;

/// Adds flosses with symbols of their own and fills the pattern with whole stitches of them in an
/// order without regularity.
void FillWithStitches(Pattern& pattern, int flosses);

/// What the chart of a pattern should say.
[[nodiscard]] Symbols SymbolsOf(const Pattern& pattern);

/// What the chart says: the symbols by where their text stands on the pattern pages. `job` is laid
/// out as the chart was.
[[nodiscard]] Symbols SymbolsIn(const std::filesystem::path& pdf, PrintFuncs& job);

} // namespace zol::test
