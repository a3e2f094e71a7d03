// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "model/Pattern.h"
#include "model/ZOLTypes.h"

namespace zol {

/// Mirror mode: every stitch drawn is drawn a second time across a line of squares. Nothing of it
/// is stored in the pattern. The centre is the square of the first stitch after the mode began,
/// unless it was set before.
class MirrorMode {
public:
    /// Axis 1 reflects left to right, 2 top to bottom. The centre starts unset.
    void SetMirrorMode(MirrorAxis axis);
    void ClearMirrorMode() { m_active = false; }
    void SetMirrorCentre(int column, int row);
    [[nodiscard]] bool IsMirrorActive() const { return m_active; }
    [[nodiscard]] MirrorAxis GetMirrorAxis() const { return m_axis; }
    [[nodiscard]] SquarePos GetMirrorCentre() const { return m_centre; }

    /// Sets the twin of a stitch just drawn, not the stitch itself. Gives the twin's square, or
    /// nothing if the stitch lies on the axis.
    std::optional<SquarePos> MirrorStitch(Pattern& pattern, int column, int row, int stitchType,
                                          int paletteIndex, int position);

private:
    bool m_active = false;
    MirrorAxis m_axis = MirrorVertical;
    SquarePos m_centre; ///< 0, 0: not set
};

} // namespace zol
