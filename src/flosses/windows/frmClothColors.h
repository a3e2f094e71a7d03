// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>
#include <vector>

#include "settings/ColorLists.h"

namespace Ui {
class frmClothColors;
}

namespace zol {

struct ProgramContext;

/// Edits one of the lists of colours for cloth and grid lines. Closing it writes the list to the
/// store.
class frmClothColors : public QDialog {
    Q_OBJECT

public:
    /// `list` is one of ColorLists::List.
    frmClothColors(int list, SettingsDoor& store, const ProgramContext& context,
                   QWidget* parent = nullptr);
    ~frmClothColors() override;

    void done(int result) override;

private:
    void ShowColorsList();
    void ShowSelected();
    void ChangeText(const QString& text);
    void ReMix();
    /// Carries the selected line's text and colour into the list.
    void UpdateListEntry();
    [[nodiscard]] ColorLists::NamedColor& Selected();

    std::unique_ptr<Ui::frmClothColors> m_ui;
    int m_list;
    SettingsDoor& m_store;
    std::vector<ColorLists::NamedColor> m_lines;
};

} // namespace zol
