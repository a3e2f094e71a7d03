// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "windowkit/IconStyle.h"

class QStyleOptionMenuItem;
class QStyleOptionSlider;

namespace zol {

/// Fusion made quiet, for where no desktop brings a style of its own: flat bars without lines and
/// bevels, so that the cloth and the threads stay the strong things on the screen. What is on is
/// framed in the accent, in tool bars and menus alike. A scroll bar without a way to go shows
/// nothing; one whose widget is not opaque leaves its ground to what lies beneath. Words have air
/// at both sides on buttons and in the cells of lists.
class QuietStyle : public IconStyle {
public:
    using IconStyle::IconStyle;

    /// A new one over Fusion, for the application to own.
    [[nodiscard]] static QStyle* OverFusion();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr,
                  const QWidget* widget = nullptr,
                  QStyleHintReturn* returned = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget = nullptr) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;

private:
    void DrawSortSign(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
    void DrawMenuTitle(const QStyleOptionMenuItem& item, QPainter& painter,
                       const QWidget* widget) const;
    void DrawMenuItem(const QStyleOptionMenuItem& item, QPainter& painter,
                      const QWidget* widget) const;
    void DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter,
                       const QWidget* widget) const;
};

} // namespace zol
