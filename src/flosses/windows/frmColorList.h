// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>
#include <optional>
#include <vector>

#include "model/ProgramContext.h"
#include "settings/ColorLists.h"

namespace Ui {
class frmColorList;
}

namespace zol {

/// Keeps the list of non-representative colours. Closing it writes the list to the store.
class frmColorList : public QDialog {
    Q_OBJECT

public:
    frmColorList(SettingsDoor& store, MessageDoor& messages, const ProgramContext& context,
                 QWidget* parent = nullptr);
    ~frmColorList() override;

    void done(int result) override;

private:
    void Add();
    void Change();
    void Delete();
    /// Shows the lines and selects one, as near as there is one.
    void ShowList(int selected);
    [[nodiscard]] std::optional<ColorLists::NamedColor>
    AskLine(const std::optional<ColorLists::NamedColor>& line);

    std::unique_ptr<Ui::frmColorList> m_ui;
    SettingsDoor& m_store;
    MessageDoor& m_messages;
    const ProgramContext& m_context;
    std::vector<ColorLists::NamedColor> m_lines;
};

} // namespace zol
