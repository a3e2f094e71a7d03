// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include "grid/GridGeometry.h"
#include "grid/windows/RulerDigits.h"

namespace zol {

/// What both rulers show.
struct RulerScale {
    int Zoom = 100;
    bool Inches = true; ///< centimetres otherwise

    friend bool operator==(const RulerScale&, const RulerScale&) = default;
};

/// One ruler, `picBigHRuler` or `picBigVRuler`: as long as the grid, moved along with it inside
/// a holder. Its ticks stand where the true measure of the cloth puts them.
class GridRuler : public QWidget {
    Q_OBJECT

public:
    static constexpr int ThicknessTwips = 275;
    /// Window pixels.
    static constexpr int Thickness = ThicknessTwips / 15;

    GridRuler(Qt::Orientation orientation, QWidget* parent);

    /// `lengthTwips`: the grid's width or height; `length` the same in window pixels.
    void Arrange(const RulerScale& scale, int lengthTwips, int length);

    /// Twips from a tick to the next; 0 for a ruler without ticks.
    [[nodiscard]] static int StepOf(const RulerScale& scale);
    /// Twips from the ruler's outer edge to where a tick begins; negative for no tick. The index
    /// counts 0 to 15 for inches and 0 to 9 for centimetres.
    [[nodiscard]] static double TickStart(bool inches, int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    class Sheet;

    Qt::Orientation m_orientation;
    RulerScale m_scale;
    int m_lengthTwips = 0;
    RulerDigits m_digits;
};

} // namespace zol
