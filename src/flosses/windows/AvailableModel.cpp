// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/AvailableModel.h"

#include "flosses/editing/AvailableFlosses.h"

namespace zol {

void AvailableModel::SetFlosses(const AvailableFlosses& flosses) {
    m_flosses = &flosses;
    Refresh();
}

void AvailableModel::Refresh() {
    beginResetModel();
    endResetModel();
}

int AvailableModel::rowCount(const QModelIndex& parent) const {
    return m_flosses == nullptr || parent.isValid() ? 0 : m_flosses->Rows().GetFlossCount();
}

QVariant AvailableModel::data(const QModelIndex& index, int role) const {
    if (m_flosses == nullptr || !index.isValid()) {
        return {};
    }
    const int row = index.row() + 1;
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromStdString(m_flosses->Rows().GetFlossManuID(row));
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return QString::fromStdString(m_flosses->LookOf(row).Description);
    case ColourRole:
        return m_flosses->Rows().GetFlossRGB(row);
    case DescriptionRole:
        return QString::fromStdString(m_flosses->Rows().GetFlossDesc(row));
    default:
        return {};
    }
}

} // namespace zol
