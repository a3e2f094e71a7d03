// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractTableModel>
#include <QPixmap>

#include <vector>

#include "import/ImportPreview.h"

namespace zol {

/// The flosses of a preview, a row each: swatch and number, name, stitches.
class PreviewFlossModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Floss, Name, Stitches, ColumnCount };
    /// What a column is sorted by: numbers by their value, also within texts.
    static constexpr int SortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    void SetFlosses(std::vector<PreviewFloss> flosses);
    /// The side of a swatch in pixels of the window, and how many of the device one of them is.
    void SetSwatch(int side, double ratio);
    [[nodiscard]] const std::vector<PreviewFloss>& Flosses() const { return m_flosses; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    [[nodiscard]] QPixmap Swatch(Colour colour) const;

    std::vector<PreviewFloss> m_flosses;
    int m_side = 16;
    double m_ratio = 1;
};

} // namespace zol
