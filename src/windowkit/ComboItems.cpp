// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/ComboItems.h"

#include <QComboBox>

namespace zol {

void FillCombo(QComboBox& combo, const std::vector<OptionItem>& items) {
    combo.clear();
    for (const OptionItem& item : items) {
        combo.addItem(QString::fromStdString(item.Text), item.Value);
    }
}

void SetCombo(QComboBox& combo, const QVariant& value) {
    const int byData = combo.findData(value);
    combo.setCurrentIndex(byData >= 0 ? byData : combo.findText(value.toString()));
}

} // namespace zol
