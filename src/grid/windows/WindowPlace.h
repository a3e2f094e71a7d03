// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace zol {

class SettingsDoor;

/// The main window's place from one run to the next, in "Options": the window state, and size and
/// place in the screen's pixels while it is neither maximized nor minimized.
namespace WindowPlace {

/// Puts the window where it was, or on a good part of the screen if it was never closed or would
/// lie outside every screen.
void Restore(QWidget& window, const SettingsDoor& store);
void Store(const QWidget& window, SettingsDoor& store);

} // namespace WindowPlace
} // namespace zol
