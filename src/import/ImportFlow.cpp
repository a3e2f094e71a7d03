// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/ImportFlow.h"

namespace zol {

std::optional<ImportFlow::Change> ImportFlow::Next(bool valid) {
    if (!valid || IsOnLastScreen()) {
        return std::nullopt;
    }
    return Change{++m_currentScreen, false};
}

std::optional<ImportFlow::Change> ImportFlow::Back(bool valid) {
    if (!CanGoBack()) {
        return std::nullopt;
    }
    return Change{--m_currentScreen, valid};
}

} // namespace zol
