// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPalette>
#include <QPixmap>

namespace zol {

/// The picture that stands on the screen while the program starts: its icon and name over a band
/// of cross stitches, in the colours of the theme.
class Splash {
public:
    static constexpr QSize Size{480, 240};

    /// `ratio`: device pixels to a pixel of the window.
    [[nodiscard]] static QPixmap Picture(const QPalette& palette, double ratio);
};

} // namespace zol
