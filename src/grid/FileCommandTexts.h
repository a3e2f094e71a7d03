// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

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

} // namespace zol::FileCommandTexts
