// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractListModel>

namespace zol {

class AvailableFlosses;

/// The rows of the shown catalogue for a list. The display text is the number, so that typing one
/// in the list finds it.
class AvailableModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { ColourRole = Qt::UserRole, DescriptionRole };

    explicit AvailableModel(QObject* parent = nullptr) : QAbstractListModel(parent) {}

    /// They must outlive the model.
    void SetFlosses(const AvailableFlosses& flosses);
    /// After another catalogue or order.
    void Refresh();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    const AvailableFlosses* m_flosses = nullptr;
};

} // namespace zol
