// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/NonRepColors.h"

#include <QComboBox>

#include "flosses/windows/ColorSample.h"
#include "settings/ColorLists.h"

namespace zol {

void LoadNonRepColors(QComboBox& combo, const SettingsDoor& store, bool fill,
                      Colour selectedColor) {
    if (fill) {
        combo.clear();
        for (const ColorLists::NamedColor& line : ColorLists::LoadNonRepColors(store)) {
            combo.addItem(SwatchIcon(line.Value), QString::fromStdString(line.Description),
                          line.Value);
        }
        combo.addItem(SwatchIcon(0), QStringLiteral("Black"), Colour{0});
    }
    const int line = combo.findData(selectedColor);
    combo.setCurrentIndex(line >= 0 ? line : combo.count() - 1);
}

} // namespace zol
