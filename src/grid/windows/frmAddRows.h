// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>

#include "grid/RowsAndColumns.h"
#include "grid/tools/Undo.h"
#include "model/Doors.h"
#include "model/OpenDesign.h"

namespace Ui {
class frmAddRows;
}

namespace zol {

/// Adds rows or columns to the design, or deletes some.
class frmAddRows : public QDialog {
    Q_OBJECT

public:
    /// What it works with; all of it outlives the dialog.
    struct Desk {
        DesignHolder& Open;
        Undo& Steps;
        MessageDoor& Messages;
        SettingsDoor& Store;
    };

    frmAddRows(Desk desk, bool deleteMode, QWidget* parent);
    ~frmAddRows() override;

    /// Changes the design and closes, if the fields are good.
    void accept() override;

private:
    [[nodiscard]] RowsAndColumns::Band Band() const;
    void ShowBand();
    /// Tells what is wrong and gives that field the focus.
    [[nodiscard]] bool ValidateAddRows();
    void Change();

    Desk m_desk;
    bool m_deleteMode;
    std::unique_ptr<Ui::frmAddRows> m_ui;
};

} // namespace zol
