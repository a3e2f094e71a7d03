// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/ColorDialog.h"

#include <QColorDialog>

#include "grid/painting/PaintColors.h"

namespace zol {

std::optional<Colour> AskColor(Colour start, QWidget* parent) {
    QColorDialog dialog(ToQColor(start), parent);
    dialog.setObjectName(QStringLiteral("cdCreate"));
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return ColourOf(dialog.selectedColor());
}

} // namespace zol
