// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractTableModel>

#include <vector>

#include "print/FlossUsage.h"

namespace zol {

/// The usage report as a table that can be sorted by any column.
class FlossUsageModel : public QAbstractTableModel {
    Q_OBJECT

public:
    FlossUsageModel(std::vector<FlossUsageRow> rows, bool inches, QObject* parent = nullptr);

    /// As they are sorted now.
    [[nodiscard]] const std::vector<FlossUsageRow>& Rows() const { return m_rows; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    std::vector<FlossUsageRow> m_rows;
    bool m_inches;
};

} // namespace zol
