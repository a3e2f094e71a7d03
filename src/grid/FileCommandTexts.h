// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "model/Pattern.h"
#include "model/RunTimeError.h"

namespace zol::FileCommandTexts {

/// What the user sees of a pattern that could not be opened.
[[nodiscard]] inline std::string OpenFailure(const std::string& fileName, int result) {
    return result == ErrChecksumMismatch
               ? fileName + " has been corrupted and cannot be opened"
               : "Error Code " + std::to_string(result) + " opening " + fileName;
}

/// What the user sees of a pattern that could not be saved.
[[nodiscard]] inline std::string SaveFailure(int result) {
    return "error saving pattern: " + std::to_string(result);
}

/// What stands below the message where a pattern of some size cannot be made.
inline constexpr const char* SizeRefused =
    "A pattern of this size cannot be made. What was on the grid is still there.";

/// One line about a pattern: "Rose, 100 x 80, 12 flosses"; without a title it is left out.
[[nodiscard]] inline std::string Summary(const Pattern& pattern) {
    const int flosses = pattern.GetPalette().GetEntriesCount();
    std::string text = pattern.Title.empty() ? std::string() : pattern.Title + ", ";
    text += std::to_string(pattern.GetPatternWidth()) + " x ";
    text += std::to_string(pattern.GetPatternHeight()) + ", ";
    return text + std::to_string(flosses) + (flosses == 1 ? " floss" : " flosses");
}

} // namespace zol::FileCommandTexts
