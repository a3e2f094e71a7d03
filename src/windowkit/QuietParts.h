// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QRect>

class QPainter;
class QPalette;
class QStyleOption;

/// What the quiet style is drawn with: flat plates and signs in the colours of the palette. Every
/// operation leaves the painter as it was.
namespace zol::QuietParts {

/// The window's colour with this share of the text's, 0 to 1.
[[nodiscard]] QColor Ground(const QStyleOption& option, double share);
/// A rectangle with softened corners, its frame one pixel wide.
void DrawPlate(QPainter& painter, const QRect& rect, const QColor& ground, const QColor& frame);
/// The ground of a tool button or of a menu's icon that is on.
void DrawOn(QPainter& painter, const QRect& rect, const QPalette& palette);
/// The ground of a tool button: none while it rests and is off.
void DrawToolButton(const QStyleOption& option, QPainter& painter);
/// The line between the buttons of a bar.
void DrawBarSeparator(const QStyleOption& option, QPainter& painter);
void DrawCheckBox(const QStyleOption& option, QPainter& painter);
void DrawRadioButton(const QStyleOption& option, QPainter& painter);
/// Round a field to type in; in the accent while it has the keyboard.
void DrawFieldFrame(const QStyleOption& option, QPainter& painter);
/// Round what the keyboard acts on, for whoever works with keys; a mouse needs no ring.
void DrawFocus(const QStyleOption& option, QPainter& painter);

} // namespace zol::QuietParts
