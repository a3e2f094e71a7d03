// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "import/scan/ScannerDoor.h"

namespace zol {

/// Drawing out, moving or stretching the area to scan: what a press took hold of, and what the
/// area becomes with the pointer elsewhere. All in millimetres of the bed.
class AreaDrag {
public:
    enum class Grip { New, Move, Sides };

    /// No area is smaller on either side.
    static constexpr double LeastSide = 1.0;

    /// A press at a place, with the area as it is. A side is taken hold of within `reach`; inside
    /// the area moves; elsewhere a new one begins.
    AreaDrag(const ScanArea& bed, const ScanArea& area, double x, double y, double reach);

    [[nodiscard]] Grip Holds() const { return m_grip; }
    // Only while sides are held.
    [[nodiscard]] bool HoldsAcross() const { return m_left || m_right; }
    [[nodiscard]] bool HoldsDown() const { return m_top || m_bottom; }
    /// One that falls from the upper left to the lower right.
    [[nodiscard]] bool HoldsFallingCorner() const { return m_left == m_top; }

    /// The area with the pointer there. It never leaves the bed.
    [[nodiscard]] ScanArea To(double x, double y) const;

    /// An area brought into the bed and to its least size.
    [[nodiscard]] static ScanArea Within(const ScanArea& bed, ScanArea area);

private:
    ScanArea m_bed;
    ScanArea m_area;
    double m_x;
    double m_y;
    Grip m_grip = Grip::New;
    bool m_left = false;
    bool m_right = false;
    bool m_top = false;
    bool m_bottom = false;
};

} // namespace zol
