// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/ZOLTypes.h"

class QComboBox;

namespace zol {

class SettingsDoor;

/// Fills a list with the non-representative colours and selects a colour in it. Each line has its
/// colour as its data, as a number 0x00BBGGRR. "Black" with colour 0 always ends the list and is
/// selected when no line has that colour. Without `fill` the lines stay and one is selected.
void LoadNonRepColors(QComboBox& combo, const SettingsDoor& store, bool fill, Colour selectedColor);

} // namespace zol
