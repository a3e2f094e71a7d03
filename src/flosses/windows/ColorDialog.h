// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

#include <optional>

#include "model/ZOLTypes.h"

class QWidget;

namespace zol {

[[nodiscard]] inline Colour ColourOf(const QColor& color) {
    return MakeColour(static_cast<unsigned>(color.red()), static_cast<unsigned>(color.green()),
                      static_cast<unsigned>(color.blue()));
}

/// The platform's dialog for colours. Nothing means that the user cancelled.
[[nodiscard]] std::optional<Colour> AskColor(Colour start, QWidget* parent);

} // namespace zol
