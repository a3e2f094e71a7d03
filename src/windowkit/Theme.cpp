// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/Theme.h"

namespace zol::Theme {

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

QColor Accent(const QPalette& palette) {
    return IsDark(palette) ? QColor(0xE0, 0x7A, 0x86) : QColor(0xB2, 0x3A, 0x48);
}

QColor Desk(const QPalette& palette) {
    return palette.color(QPalette::Window).darker(IsDark(palette) ? 125 : 112);
}

QColor Edge(const QPalette& palette) {
    return palette.color(QPalette::Window).darker(IsDark(palette) ? 180 : 145);
}

} // namespace zol::Theme
