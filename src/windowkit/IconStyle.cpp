// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/IconStyle.h"

#include <QIcon>
#include <QPainter>
#include <QStyleOptionMenuItem>
#include <QWidget>

namespace zol {

QStyle* IconStyle::Over(const QString& style) {
    return new IconStyle(style);
}

void IconStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const bool selected = item != nullptr && item->state.testFlag(State_Selected) &&
                          item->state.testFlag(State_Enabled) && !item->icon.isNull();
    if (element != CE_MenuItem || !selected) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionMenuItem changed(*item);
    const int side = proxy()->pixelMetric(PM_SmallIconSize, option, widget);
    const qreal ratio = painter->device()->devicePixelRatioF();
    changed.icon = QIcon(item->icon.pixmap(QSize(side, side), ratio, QIcon::Selected));
    QProxyStyle::drawControl(element, &changed, painter, widget);
}

} // namespace zol
