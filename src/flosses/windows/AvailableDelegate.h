// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

namespace zol {

/// How available flosses are listed, by the places of `cmbListStyle`.
enum class ListStyle { NumbersAndDescriptions, NumbersAndColors, ColorsOnly };

/// Paints a row of the available flosses in one of the three styles.
class AvailableDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr int StripSide = 20; ///< of a colour alone, in pixels of the window

    using QStyledItemDelegate::QStyledItemDelegate;

    void SetStyle(ListStyle style) { m_style = style; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;

private:
    void PaintTexts(QPainter& painter, const QStyleOptionViewItem& option,
                    const QModelIndex& index) const;
    void PaintAlone(QPainter& painter, const QStyleOptionViewItem& option,
                    const QColor& color) const;

    ListStyle m_style = ListStyle::NumbersAndDescriptions;
};

} // namespace zol
