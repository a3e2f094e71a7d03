// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/FlossUsageModel.h"

#include <algorithm>
#include <utility>

#include "print/FlossUsageText.h"

namespace zol {

namespace {

Qt::Alignment AlignmentOf(int column) {
    const bool isNumber = column >= static_cast<int>(FlossUsageRow::FirstNumericColumn);
    return Qt::AlignVCenter | (isNumber ? Qt::AlignRight : Qt::AlignLeft);
}

} // namespace

FlossUsageModel::FlossUsageModel(std::vector<FlossUsageRow> rows, bool inches, QObject* parent)
    : QAbstractTableModel(parent),
      m_rows(std::move(rows)),
      m_inches(inches) {}

int FlossUsageModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int FlossUsageModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(FlossUsageRow::ColumnCount);
}

QVariant FlossUsageModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(AlignmentOf(index.column()));
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    const FlossUsageRow& row = m_rows[static_cast<std::size_t>(index.row())];
    return QString::fromStdString(row.Text(static_cast<std::size_t>(index.column())));
}

QVariant FlossUsageModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromStdString(
            FlossUsageHeadings(m_inches).at(static_cast<std::size_t>(section)));
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(AlignmentOf(section));
    case Qt::ToolTipRole:
        return QStringLiteral("Sort by this column (Ctrl+%1)").arg(section + 1);
    default:
        return {};
    }
}

void FlossUsageModel::sort(int column, Qt::SortOrder order) {
    if (column < 0) {
        return;
    }
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<int> entries;
    entries.reserve(static_cast<std::size_t>(before.size()));
    for (const QModelIndex& index : before) {
        entries.push_back(m_rows[static_cast<std::size_t>(index.row())].Entry);
    }
    SortFlossUsages(m_rows, static_cast<std::size_t>(column), order == Qt::DescendingOrder);
    QModelIndexList after;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto found =
            std::find_if(m_rows.begin(), m_rows.end(),
                         [&](const FlossUsageRow& row) { return row.Entry == entries[i]; });
        after.append(index(static_cast<int>(found - m_rows.begin()),
                           before[static_cast<qsizetype>(i)].column()));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

} // namespace zol
