// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/RunTimeError.h"

namespace zol {

std::string RunTimeErrorText(int number) {
    switch (number) {
    case ErrNone:
        return {};
    case ErrInvalidCall:
        return "Invalid procedure call or argument";
    case ErrOverflow:
        return "Overflow";
    case ErrOutOfMemory:
        return "Out of memory";
    case ErrSubscript:
        return "Subscript out of range";
    case ErrFileNotFound:
    case ErrNoSuchFile:
        return "File not found";
    case ErrDeviceIO:
        return "Device I/O error";
    case ErrDiskFull:
        return "Disk full";
    case ErrPastEnd:
        return "Input past end of file";
    case ErrPermission:
        return "Permission denied";
    case ErrPathAccess:
        return "Path/File access error";
    case ErrPathNotFound:
        return "Path not found";
    case ErrInvalidFormat:
        return "Invalid file format";
    case ErrDuplicateKey:
        return "This key is already associated with an element of this collection";
    default:
        return "Error " + std::to_string(number);
    }
}

} // namespace zol
