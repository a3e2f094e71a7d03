// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "model/Pattern.h"
#include "print/PrintOptions.h"

class QTextDocument;

namespace zol {

/// A pattern's facts and its key as a document: a line for each property that has a value, then a
/// table by tab stops, a line for each floss with stitches in display order. Needs a
/// QGuiApplication.
class RtfLegend {
public:
    /// Replaces what the document held. Counts the pattern's stitches.
    static void BuildRtfLegend(Pattern& pattern, const PrintOptions& options,
                               QTextDocument& legend);
    /// The same as the bytes of a rich text file.
    [[nodiscard]] static std::string Write(Pattern& pattern, const PrintOptions& options);
};

} // namespace zol
