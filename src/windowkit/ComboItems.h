// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariant>

#include <vector>

#include "settings/OptionLists.h"

class QComboBox;

namespace zol {

/// Fills a list with texts; each line has its value as its data.
void FillCombo(QComboBox& combo, const std::vector<OptionItem>& items);
/// Selects the line whose data or text is the value; none if there is none.
void SetCombo(QComboBox& combo, const QVariant& value);

} // namespace zol
