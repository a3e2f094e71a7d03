// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "import/Picture.h"

namespace zol {

/// A place in a picture: a pixel goes from its number, counted from 0, to the next.
struct PicturePoint {
    double X = 0;
    double Y = 0;

    friend bool operator==(const PicturePoint&, const PicturePoint&) = default;
};

/// The part of a picture that is selected, kept as runs of pixels, so that it costs what its edge
/// is long. A pixel belongs to a shape when its middle lies in it; what lies outside the picture
/// is never selected. A shape without a pixel selects nothing.
class PictureRegion {
public:
    /// Nothing is selected, in a picture of that size.
    PictureRegion(int width, int height);

    /// Each takes the place of what was selected.
    void SelectRectRegion(const PixelRect& rect);
    /// The ellipse that touches the sides of the rectangle.
    void SelectOvalRegion(const PixelRect& rect);
    /// What a line encloses; its end is joined to its beginning. Where it crosses itself, what it
    /// goes round once more is still inside.
    void SelectFreehandRegion(const std::vector<PicturePoint>& line);
    /// What was not selected is, over the whole picture.
    void Invert();
    void FreeRegion();

    [[nodiscard]] bool HasRegion() const { return m_selected; }
    [[nodiscard]] bool Contains(int x, int y) const;
    /// Of no size without a region.
    [[nodiscard]] PixelRect Bounds() const;
    /// Gives the selected pixels of a picture of that size a colour.
    void FillRegion(Picture& image, Colour colour) const;

private:
    /// Pixels from `Begin` to before `End`.
    struct Run {
        int Begin = 0;
        int End = 0;
    };
    using Runs = std::vector<Run>;

    void Add(int row, double begin, double end);
    void Settle();

    int m_width;
    int m_height;
    bool m_selected = false;
    std::vector<Runs> m_rows; ///< apart, from left to right; none while nothing is selected
};

} // namespace zol
