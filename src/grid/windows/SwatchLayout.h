// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace zol {

/// Where the swatches of the palette strip lie. They fill a column from the top, then the next, so
/// that neighbours in the display order stay side by side however far the strip is scrolled.
/// Positions count from 1.
struct SwatchLayout {
    static constexpr int Gap = 1;

    int Count = 0;
    int Rows = 1;
    int Side = 24; ///< pixels of the window

    [[nodiscard]] int Pitch() const { return Side + Gap; }
    [[nodiscard]] int Columns() const { return (Count + Rows - 1) / Rows; }
    [[nodiscard]] QSize Size() const {
        return {Columns() * Pitch() - (Count > 0 ? Gap : 0), Rows * Pitch() - Gap};
    }
    [[nodiscard]] QRect RectOf(int position) const {
        return {(position - 1) / Rows * Pitch(), (position - 1) % Rows * Pitch(), Side, Side};
    }
    /// 0 where there is no swatch; the gap belongs to the swatch before it.
    [[nodiscard]] int PositionAt(QPoint point) const {
        if (point.x() < 0 || point.y() < 0 || point.y() >= Rows * Pitch()) {
            return 0;
        }
        const int position = point.x() / Pitch() * Rows + point.y() / Pitch() + 1;
        return position <= Count ? position : 0;
    }
};

} // namespace zol
