// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>

#include "flosses/editing/PaletteDialogs.h"

namespace Ui {
class frmAddPalette;
}

namespace zol {

struct ProgramContext;
class SettingsDoor;

/// Asks for the texts of a floss that the user has mixed.
class frmAddPalette : public QDialog {
    Q_OBJECT

public:
    /// `maySave`: it can be written to "My Colors".
    frmAddPalette(Colour mixed, bool maySave, const ProgramContext& context, SettingsDoor& store,
                  QWidget* parent = nullptr);
    ~frmAddPalette() override;

    [[nodiscard]] CustomFloss Floss() const;

private:
    std::unique_ptr<Ui::frmAddPalette> m_ui;
    Colour m_mixed;
};

} // namespace zol
