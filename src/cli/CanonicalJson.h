// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <ostream>

#include "cli/JsonWriter.h"
#include "flosses/AvailColors.h"
#include "flosses/Palette.h"
#include "model/Pattern.h"

namespace zol::CanonicalJson {

/// The whole content of a pattern as one JSON object with sorted keys. Counts the stitches.
void WritePattern(std::ostream& out, Pattern& pattern);
void WritePalette(std::ostream& out, const Palette& palette);
void WriteCatalogue(std::ostream& out, const AvailColors& catalogue);

} // namespace zol::CanonicalJson
