// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>

#include "print/CheckedOutput.h"

namespace zol {

/// How a file that is written whole or not at all came out.
struct WholeFileResult {
    int Number = 0;         ///< run-time error number
    bool IsWritten = false; ///< false as well if the writer gave up

    friend bool operator==(const WholeFileResult&, const WholeFileResult&) = default;
};

/// Lets `write` write into a new file beside `path`, which takes that name once all of it is safe;
/// until then an old file stays as it was. A device or pipe is written to directly. `write` answers
/// false to give up, which leaves nothing behind.
[[nodiscard]] WholeFileResult WriteWholeFile(const std::filesystem::path& path,
                                             const std::function<bool(CheckedOutput&)>& write);

} // namespace zol
