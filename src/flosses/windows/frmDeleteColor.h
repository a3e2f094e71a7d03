// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>

#include "flosses/Palette.h"
#include "flosses/editing/PaletteDialogs.h"

namespace Ui {
class frmDeleteColor;
}

namespace zol {

class SettingsDoor;

/// Asks what becomes of the stitches of a floss that leaves the palette.
class frmDeleteColor : public QDialog {
    Q_OBJECT

public:
    frmDeleteColor(const Palette& palette, const RemovalQuestion& question, SettingsDoor& store,
                   QWidget* parent = nullptr);
    ~frmDeleteColor() override;

    /// What was chosen, for a window that was accepted.
    [[nodiscard]] RemovalAnswer Answer() const;

private:
    std::unique_ptr<Ui::frmDeleteColor> m_ui;
};

} // namespace zol
