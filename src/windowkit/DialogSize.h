// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

class QDialog;

namespace zol {

class SettingsDoor;

/// A dialog comes back in the size in which it was left: section "Windows" of the store, by the
/// dialog's object name. To be called once its content stands, before it is shown; what is too
/// small for the content or too large for the screen is brought into bounds. The store outlives
/// the dialog.
void RememberSize(QDialog& dialog, SettingsDoor& store);

} // namespace zol
