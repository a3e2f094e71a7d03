// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>
#include <vector>

#include "print/FlossUsage.h"
#include "print/windows/PrintDesk.h"

namespace Ui {
class frmFlossUsage;
}

namespace zol {

class FlossUsageModel;

/// How much of each floss the design takes, counted once when the window opens. The list is
/// printed, copied and saved as it is sorted.
class frmFlossUsage : public QDialog {
    Q_OBJECT

public:
    /// What the desk refers to must outlive the window.
    explicit frmFlossUsage(PrintDesk desk, QWidget* parent = nullptr);
    ~frmFlossUsage() override;

private:
    void FillList();
    void AddListActions();
    void SortBy(int column);
    [[nodiscard]] std::vector<FlossUsageRow> SelectedRows() const;
    void Copy(const std::vector<FlossUsageRow>& rows) const;
    void SaveCsv();
    void Print();

    PrintDesk m_desk;
    bool m_inches;
    std::unique_ptr<Ui::frmFlossUsage> m_ui;
    FlossUsageModel* m_model = nullptr;
};

} // namespace zol
