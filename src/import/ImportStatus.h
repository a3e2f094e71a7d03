// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace zol {

/// How a step of the import ended.
struct ImportStatus {
    enum class Outcome {
        Done,
        Invalid,   ///< a field is wrong: the message says which, and the screen stays
        Cancelled, ///< the user stopped it; nothing has changed
        Failed,    ///< the message is the error's own text
    };

    Outcome Result = Outcome::Done;
    std::string Message;

    [[nodiscard]] bool IsDone() const { return Result == Outcome::Done; }
    friend bool operator==(const ImportStatus&, const ImportStatus&) = default;
};

} // namespace zol
