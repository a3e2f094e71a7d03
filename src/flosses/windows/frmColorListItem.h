// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>
#include <optional>

#include "model/ProgramContext.h"
#include "settings/ColorLists.h"

namespace Ui {
class frmColorListItem;
}

namespace zol {

/// One line of a list of colours: its description and its colour.
class frmColorListItem : public QDialog {
    Q_OBJECT

public:
    /// With a line: mode "CHANGE", which begins with it; else mode "ADD", which begins empty.
    frmColorListItem(const std::optional<ColorLists::NamedColor>& line, MessageDoor& messages,
                     const ProgramContext& context, QWidget* parent = nullptr);
    ~frmColorListItem() override;

    [[nodiscard]] ColorLists::NamedColor Line() const;

    void accept() override;

private:
    void ChooseColor();

    std::unique_ptr<Ui::frmColorListItem> m_ui;
    MessageDoor& m_messages;
};

} // namespace zol
