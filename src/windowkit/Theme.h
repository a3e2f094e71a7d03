// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPalette>

namespace zol::Theme {

/// Whether text is light on a dark ground.
[[nodiscard]] bool IsDark(const QPalette& palette);
/// The one strong colour of the program's own: selection frames, the current floss, focus.
[[nodiscard]] QColor Accent(const QPalette& palette);
/// The desk that the cloth lies on, a little darker than the window.
[[nodiscard]] QColor Desk(const QPalette& palette);
/// The cloth's fine edge.
[[nodiscard]] QColor Edge(const QPalette& palette);

} // namespace zol::Theme
