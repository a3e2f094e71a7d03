// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRect>
#include <QRgb>

#include <vector>

#include "import/PictureLevels.h"
#include "import/windows/PicturePlace.h"

namespace zol {

/// What shows where there is no picture: round it, and through its empty squares.
struct PictureGround {
    QRgb Desk = 0xFF808080U;
    /// The squares of a checker; two of one colour for plain cloth.
    QRgb Light = 0xFFFFFFFFU;
    QRgb Dark = 0xFFFFFFFFU;
    int CheckSide = 8; ///< in device pixels
};

/// Paints a picture at any size from its levels, pixel by pixel of the device: enlarged pixels stay
/// squares, a reduced picture is smooth.
class PicturePainter {
public:
    /// Fills a rectangle of the target (Format_RGB32), whose pixels are those of the view.
    void Paint(QImage& target, const QRect& rect, PictureLevels& levels, const PicturePlace& place,
               const PictureGround& ground);

private:
    /// Where a pixel of the device finds its colour on a level.
    struct Source {
        int First = 0;
        int Second = 0;
        unsigned Share = 0; ///< of the second, 0 to 256
    };
    static void FillSources(std::vector<Source>& sources, int from, int count, int contentSize,
                            int levelSize, bool smooth);
    void PaintRow(QRgb* out, const PictureLevels& levels, int row) const;
    void BlendRow(QRgb* out, PictureLevels& levels, int level, const Source& row);

    std::vector<Source> m_columns;
    std::vector<Source> m_rows;
    std::vector<ScreenPixel> m_upper;
    std::vector<ScreenPixel> m_lower;
    std::vector<ScreenPixel> m_mixed;
};

} // namespace zol
