// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "import/Adjustments.h"
#include "import/Picture.h"
#include "model/Doors.h"

namespace zol {

/// The pictures of a colour adjustment: the one that was last applied, and beside it what the
/// adjustment chosen makes of it. Each adjustment starts from the applied one, so that a value
/// never adds to the values tried before it.
class ColorAdjusting {
public:
    /// Starts over with a picture; nothing to undo. None of the pictures is null from then on.
    void Start(SharedPicture image);

    /// `lpicOrigColor`: what leaves the screen.
    [[nodiscard]] const SharedPicture& Original() const { return m_original; }
    /// `lpicNewColor`.
    [[nodiscard]] const SharedPicture& New() const { return m_new; }

    /// What an adjustment makes of a picture. Touches nothing else, so that any thread may run it;
    /// null if the door (which may be null) stopped it.
    [[nodiscard]] static SharedPicture Adjusted(const SharedPicture& original,
                                                Adjustments::Kind kind, int slider,
                                                ProgressDoor* progress);
    /// Shows what an adjustment of Original made.
    void SetNew(SharedPicture adjusted) { m_new = std::move(adjusted); }
    /// What was tried and not applied goes.
    void DropNew() { m_new = m_original; }

    void Apply();
    /// Back to what was there before the last Apply, as far as one step goes.
    void Undo();
    [[nodiscard]] bool CanUndo() const { return m_undo != nullptr && m_undo != m_original; }
    /// Both pictures become `image`, the one that came into the screen. What Undo brings back
    /// stays.
    void Reset(SharedPicture image);

private:
    SharedPicture m_original;
    SharedPicture m_new;
    SharedPicture m_undo;
};

} // namespace zol
