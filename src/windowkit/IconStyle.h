// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

namespace zol {

/// The platform's style, but for the icon of the menu item under the pointer: that one takes the
/// colour of the text beside it. Styles ask for the same icon there as in a tool bar, where the
/// ground is another.
class IconStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    /// A new one over the style of this name, for the application to own.
    [[nodiscard]] static QStyle* Over(const QString& style);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
};

} // namespace zol
