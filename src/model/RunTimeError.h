// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <stdexcept>
#include <string>

namespace zol {

/// Numbers of the failures that readers, writers and their callers report to the user.
enum RunTimeErrorNumber : int {
    ErrNone = 0,
    ErrInvalidCall = 5,
    ErrOverflow = 6,
    ErrOutOfMemory = 7,
    ErrSubscript = 9,
    ErrFileNotFound = 53,
    ErrDeviceIO = 57,
    ErrDiskFull = 61,
    ErrPastEnd = 62,
    ErrPermission = 70,
    ErrPathAccess = 75,
    ErrPathNotFound = 76,
    ErrInvalidFormat = 321,
    ErrDuplicateKey = 457,
    ErrNoSuchFile = -10, ///< Load's own answer for a missing file
    ErrChecksumMismatch = 35001,
};

/// The text that belongs to a number, for instance "Out of memory" for 7.
[[nodiscard]] std::string RunTimeErrorText(int number);

/// Thrown inside readers and writers, caught where a result is told; never crosses a window.
class RunTimeError : public std::runtime_error {
public:
    explicit RunTimeError(int number)
        : std::runtime_error(RunTimeErrorText(number)),
          m_number(number) {}
    RunTimeError(int number, const std::string& text)
        : std::runtime_error(text),
          m_number(number) {}

    [[nodiscard]] int Number() const { return m_number; }

private:
    int m_number;
};

} // namespace zol
