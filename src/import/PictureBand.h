// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "import/Picture.h"
#include "import/PictureRegion.h"

namespace zol {

/// A rubber band on a picture: drawn by a drag, taken by its corners and edges or moved as a whole
/// afterwards. It goes along the borders of pixels and stays on the picture.
class PictureBand {
public:
    /// What of it is under the pointer: sides add up to corners.
    enum Part : unsigned {
        Nothing = 0,
        LeftSide = 1,
        RightSide = 2,
        TopSide = 4,
        BottomSide = 8,
        Middle = 16,
    };
    /// How near counts as on a side, in pixels of the picture.
    struct Reach {
        double Across = 0;
        double Down = 0;
    };

    /// For a picture of that size; no band.
    void Start(int width, int height);
    void Clear() { m_rect = {}; }
    [[nodiscard]] bool HasBand() const { return m_rect.Width > 0 && m_rect.Height > 0; }
    [[nodiscard]] const PixelRect& Rect() const { return m_rect; }
    void SelectAll() { m_rect = {0, 0, m_width, m_height}; }

    /// Sums of Part.
    [[nodiscard]] unsigned PartAt(PicturePoint place, Reach reach) const;
    /// A drag begins: of what is there, or of a new band.
    void Press(PicturePoint place, Reach reach);
    /// A drag of a new band begins, whatever is there.
    void PressAnew(PicturePoint place);
    void MoveTo(PicturePoint place);
    /// The drag ends. A band without size is dropped.
    void Release();
    /// Moves the band by pixels as far as the picture goes.
    void Nudge(int across, int down);
    /// Moves its right and lower side; it keeps a pixel at least.
    void Stretch(int across, int down);

private:
    /// The picture's pixel border nearest to a place.
    [[nodiscard]] int Column(double x) const;
    [[nodiscard]] int Row(double y) const;
    void Move(int left, int top);

    int m_width = 0;
    int m_height = 0;
    PixelRect m_rect;
    unsigned m_held = Nothing;
    PicturePoint m_from; ///< of the drag
    PixelRect m_before;  ///< the band when it began
};

} // namespace zol
