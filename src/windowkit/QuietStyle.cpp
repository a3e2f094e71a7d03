// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/QuietStyle.h"

#include <QMainWindow>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>

#include <algorithm>
#include <array>

#include "windowkit/IconFamily.h"
#include "windowkit/QuietParts.h"

namespace zol {

using namespace QuietParts;

namespace {

constexpr double ThumbShare = 0.32;
constexpr double HeldThumbShare = 0.5;

struct OwnIcon {
    QStyle::StandardPixmap Standard;
    const char* Name;
};

constexpr std::array OwnIcons{
    OwnIcon{QStyle::SP_ToolBarHorizontalExtensionButton, "more-right"},
    OwnIcon{QStyle::SP_ToolBarVerticalExtensionButton, "more-down"},
    OwnIcon{QStyle::SP_MessageBoxQuestion, "help"},
    OwnIcon{QStyle::SP_MessageBoxInformation, "about"},
    OwnIcon{QStyle::SP_MessageBoxWarning, "warning"},
    OwnIcon{QStyle::SP_MessageBoxCritical, "cancel"},
};

} // namespace

QStyle* QuietStyle::OverFusion() {
    return new QuietStyle(QStringLiteral("fusion"));
}

void QuietStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    switch (element) {
    case PE_PanelButtonTool:
        if (!option->state.testFlag(State_AutoRaise)) {
            break;
        }
        DrawToolButton(*option, *painter);
        return;
    case PE_IndicatorToolBarSeparator:
        DrawBarSeparator(*option, *painter);
        return;
    case PE_IndicatorCheckBox:
        DrawCheckBox(*option, *painter);
        return;
    case PE_IndicatorRadioButton:
        DrawRadioButton(*option, *painter);
        return;
    case PE_FrameLineEdit:
        DrawFieldFrame(*option, *painter);
        return;
    case PE_FrameFocusRect:
        DrawFocus(*option, *painter);
        return;
    case PE_PanelMenuBar:
        return;
    case PE_IndicatorHeaderArrow:
        DrawSortSign(*option, *painter, widget);
        return;
    default:
        break;
    }
    IconStyle::drawPrimitive(element, option, painter, widget);
}

void QuietStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    // Inside a dialog a bar lies on the ground of its page, which may be another.
    const bool isInside = widget != nullptr && !widget->isWindow() &&
                          qobject_cast<const QMainWindow*>(widget->window()) == nullptr;
    if (element == CE_ToolBar && isInside) {
        return;
    }
    if (element == CE_ToolBar || element == CE_MenuBarEmptyArea) {
        painter->fillRect(option->rect, option->palette.color(QPalette::Window));
        return;
    }
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element == CE_MenuItem && item != nullptr) {
        DrawMenuItem(*item, *painter, widget);
        return;
    }
    if (element == CE_MenuBarItem && item != nullptr && !item->state.testFlag(State_Selected)) {
        DrawMenuTitle(*item, *painter, widget);
        return;
    }
    IconStyle::drawControl(element, option, painter, widget);
}

void QuietStyle::DrawSortSign(const QStyleOption& option, QPainter& painter,
                              const QWidget* widget) const {
    const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(&option);
    if (header == nullptr || header->orientation != Qt::Horizontal || widget == nullptr) {
        IconStyle::drawPrimitive(PE_IndicatorHeaderArrow, &option, &painter, widget);
        return;
    }
    // Fusion reckons with a header that is but a line high, and draws a pixel above the middle.
    QStyleOptionHeader moved(*header);
    moved.rect.moveTop((widget->height() - moved.rect.height()) / 2 + 1);
    IconStyle::drawPrimitive(PE_IndicatorHeaderArrow, &moved, &painter, widget);
}

void QuietStyle::DrawMenuTitle(const QStyleOptionMenuItem& item, QPainter& painter,
                               const QWidget* widget) const {
    painter.fillRect(item.rect, item.palette.color(QPalette::Window));
    const bool marks = proxy()->styleHint(SH_UnderlineShortcut, &item, widget) != 0;
    const int flags = Qt::AlignCenter | Qt::TextDontClip | Qt::TextSingleLine |
                      (marks ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
    // Where Fusion puts the text of a title that is selected.
    proxy()->drawItemText(&painter, item.rect.adjusted(0, 1, 0, -3), flags, item.palette,
                          item.state.testFlag(State_Enabled), item.text, QPalette::ButtonText);
}

void QuietStyle::DrawMenuItem(const QStyleOptionMenuItem& item, QPainter& painter,
                              const QWidget* widget) const {
    const bool framed = item.checked && !item.icon.isNull();
    QStyleOptionMenuItem changed(item);
    if (framed) {
        changed.checked = false;
        changed.state.setFlag(State_On, false);
    }
    const int side = proxy()->pixelMetric(PM_SmallIconSize, &item, widget) + 4;
    const int column = std::max(item.maxIconWidth, side);
    const QRect frame = visualRect(item.direction, item.rect,
                                   QRect(item.rect.left() + (column + 4 - side) / 2,
                                         item.rect.center().y() - side / 2 + 1, side, side));
    const bool selected = item.state.testFlag(State_Selected);
    if (framed && !selected) {
        DrawOn(painter, frame, item.palette);
    }
    IconStyle::drawControl(CE_MenuItem, &changed, &painter, widget);
    if (framed && selected) {
        DrawPlate(painter, frame, Qt::transparent, item.palette.color(QPalette::HighlightedText));
    }
}

void QuietStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr) {
        DrawScrollBar(*bar, *painter, widget);
        return;
    }
    IconStyle::drawComplexControl(control, option, painter, widget);
    const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
    if (control == CC_SpinBox && spin != nullptr && spin->frame) {
        DrawFieldFrame(*spin, *painter);
    }
}

void QuietStyle::DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter,
                               const QWidget* widget) const {
    if (widget == nullptr || widget->testAttribute(Qt::WA_OpaquePaintEvent)) {
        painter.fillRect(bar.rect, bar.palette.color(QPalette::Window));
    }
    if (!bar.state.testFlag(State_Enabled) || bar.minimum == bar.maximum) {
        return;
    }
    const auto part = [&](SubControl which) {
        return proxy()->subControlRect(CC_ScrollBar, &bar, which, widget);
    };
    const bool across = bar.orientation == Qt::Horizontal;
    const auto arrow = [&](SubControl which, PrimitiveElement element) {
        QStyleOption drawn;
        drawn.state = bar.state;
        drawn.palette = bar.palette;
        drawn.direction = bar.direction;
        drawn.rect = part(which).adjusted(3, 3, -3, -3);
        proxy()->drawPrimitive(element, &drawn, &painter, widget);
    };
    arrow(SC_ScrollBarSubLine, across ? PE_IndicatorArrowLeft : PE_IndicatorArrowUp);
    arrow(SC_ScrollBarAddLine, across ? PE_IndicatorArrowRight : PE_IndicatorArrowDown);
    const bool held = bar.activeSubControls.testFlag(SC_ScrollBarSlider) &&
                      (bar.state.testFlag(State_Sunken) || bar.state.testFlag(State_MouseOver));
    const int inset = 3;
    const QRect thumb = across ? part(SC_ScrollBarSlider).adjusted(1, inset, -1, -inset)
                               : part(SC_ScrollBarSlider).adjusted(inset, 1, -inset, -1);
    const QColor color = Ground(bar, held ? HeldThumbShare : ThumbShare);
    DrawPlate(painter, thumb, color, color);
}

int QuietStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returned) const {
    // Faded text with a shadow cannot be read on dark; signs on buttons only repeat their words.
    return hint == SH_EtchDisabledText || hint == SH_DialogButtonBox_ButtonsHaveIcons
               ? 0
               : IconStyle::styleHint(hint, option, widget, returned);
}

int QuietStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const {
    constexpr int extension = 18;
    constexpr int messageIcon = 40;
    constexpr int cellMargin = 6;
    switch (metric) {
    case PM_ToolBarExtensionExtent:
        return extension;
    case PM_MessageBoxIconSize:
        return messageIcon;
    case PM_HeaderMargin:
        return cellMargin;
    case PM_FocusFrameHMargin:
        return cellMargin - 1; // lists add one to it
    default:
        return IconStyle::pixelMetric(metric, option, widget);
    }
}

QSize QuietStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                   const QSize& contents, const QWidget* widget) const {
    constexpr int buttonMargin = 12;
    QSize size = IconStyle::sizeFromContents(type, option, contents, widget);
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (type == CT_PushButton && button != nullptr && !button->text.isEmpty()) {
        size.setWidth(std::max(size.width(), contents.width() + 2 * buttonMargin));
    }
    return size;
}

QIcon QuietStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                               const QWidget* widget) const {
    // Fusion's own are of another time, or black on any ground.
    const auto own = std::find_if(OwnIcons.begin(), OwnIcons.end(),
                                  [icon](const OwnIcon& each) { return each.Standard == icon; });
    if (own != OwnIcons.end()) {
        return IconFamily::Icon(QLatin1String(own->Name));
    }
    return IconStyle::standardIcon(icon, option, widget);
}

} // namespace zol
