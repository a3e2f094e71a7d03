// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPalette>

class QApplication;

namespace zol::Theme {

enum class Look { Light, Dark };

/// Whether text is light on a dark ground.
[[nodiscard]] bool IsDark(const QPalette& palette);
/// The one strong colour of the program's own: selection frames, the current floss, focus.
[[nodiscard]] QColor Accent(const QPalette& palette);
/// The accent for a ground that is no window's, as the cloth: seen on light and on dark.
[[nodiscard]] QColor AccentOn(const QColor& ground);
/// The desk that the cloth lies on, a little darker than the window.
[[nodiscard]] QColor Desk(const QPalette& palette);
/// The cloth's fine edge.
[[nodiscard]] QColor Edge(const QPalette& palette);
/// How well two colours stand apart, from 1 to 21; text needs 4.5.
[[nodiscard]] double Contrast(const QColor& one, const QColor& other);

/// `share` of the way from one colour to another, 0 to 1.
[[nodiscard]] QColor Mix(const QColor& from, const QColor& to, double share);

/// The program's own colours, for where the platform has no style.
[[nodiscard]] QPalette Palette(Look look);

/// At the start: keeps the platform's style, or takes Fusion with Palette, dark if the system is;
/// what is selected takes the accent from then on, also after the system's colours change. The
/// environment variable KORVANTA_THEME, "light" or "dark", asks for Fusion in that look.
void Apply(QApplication& application);

} // namespace zol::Theme
