// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/AvailableDelegate.h"

#include <QApplication>
#include <QPainter>
#include <QStaticText>
#include <QStyle>

#include <algorithm>

#include "flosses/windows/AvailableModel.h"
#include "grid/painting/PaintColors.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

constexpr int Gap = 6;
constexpr int LeastHeight = 24;
constexpr int NumberCharacters = 8;

void PaintPatch(QPainter& painter, const QRect& rect, const QColor& color, const QPalette& theme) {
    // Filled and not drawn, which is crisp at every scale of the screen.
    painter.fillRect(rect, Theme::Edge(theme));
    painter.fillRect(rect.adjusted(1, 1, -1, -1), color);
}

/// Laid out once: most texts fit, so they are shortened only after they were found too wide.
void PaintWords(QPainter& painter, const QStyleOptionViewItem& option, const QRect& where,
                const QString& words) {
    QStaticText text(words);
    text.setTextFormat(Qt::PlainText);
    text.prepare({}, option.font);
    if (text.size().width() > where.width()) {
        text.setText(option.fontMetrics.elidedText(words, Qt::ElideRight, where.width()));
        text.prepare({}, option.font);
    }
    const int height = option.fontMetrics.height();
    painter.drawStaticText(where.left(), where.top() + (where.height() - height) / 2, text);
}

QColor ColorOf(const QModelIndex& index) {
    return ToQColor(index.data(AvailableModel::ColourRole).toUInt());
}

} // namespace

QSize AvailableDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& /*index*/) const {
    if (m_style == ListStyle::ColorsOnly) {
        return {StripSide, StripSide};
    }
    return {10 * option.fontMetrics.averageCharWidth(),
            std::max(LeastHeight, option.fontMetrics.height() + Gap)};
}

void AvailableDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    painter->save();
    if (m_style == ListStyle::ColorsOnly) {
        PaintAlone(*painter, option, ColorOf(index));
    } else {
        PaintTexts(*painter, option, index);
    }
    painter->restore();
}

void AvailableDelegate::PaintAlone(QPainter& painter, const QStyleOptionViewItem& option,
                                   const QColor& color) const {
    painter.fillRect(option.rect, color);
    if ((option.state & QStyle::State_Selected) == 0) {
        return;
    }
    const QRect rect = option.rect;
    painter.fillRect(rect, Theme::Accent(option.palette));
    painter.fillRect(rect.adjusted(2, 2, -2, -2), color.lightness() > 127 ? Qt::black : Qt::white);
    painter.fillRect(rect.adjusted(3, 3, -3, -3), color);
}

void AvailableDelegate::PaintTexts(QPainter& painter, const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    row.text.clear();
    const QStyle* style = row.widget != nullptr ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, &painter, row.widget);

    const QRect inner = option.rect.adjusted(Gap, 3, -Gap, -3);
    const int numberWidth = NumberCharacters * option.fontMetrics.averageCharWidth();
    const bool selected = (option.state & QStyle::State_Selected) != 0;
    const bool wide = m_style == ListStyle::NumbersAndColors;
    const QRect number(inner.left() + (wide ? 0 : inner.height() + Gap), inner.top(), numberWidth,
                       inner.height());
    const QRect rest(number.right() + 1 + Gap, inner.top(), inner.right() - number.right() - Gap,
                     inner.height());
    PaintPatch(painter, wide ? rest : QRect(inner.topLeft(), QSize(inner.height(), inner.height())),
               ColorOf(index), option.palette);
    painter.setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter.setFont(option.font);
    PaintWords(painter, option, number, index.data(Qt::DisplayRole).toString());
    if (!wide) {
        PaintWords(painter, option, rest, index.data(AvailableModel::DescriptionRole).toString());
    }
}

} // namespace zol
