// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "import/ImportWork.h"
#include "import/KeptTiles.h"
#include "import/PictureRegion.h"

namespace zol {

/// The picture of the erase screen: what is erased from it, with one step that can be taken back
/// (`lpicUndo`). It works on a copy of its own, so that pictures handed on stay as they are. Every
/// operation needs a picture. One that there is no memory for throws std::bad_alloc, and all is as
/// it was.
class EraseWork {
public:
    /// Works on a copy of that picture from now on, and nothing can be taken back.
    void Take(const SharedPicture& picture);
    [[nodiscard]] bool HasPicture() const { return m_own && !m_own->IsEmpty(); }
    /// The picture as it is; later changes show in it.
    [[nodiscard]] SharedPicture Shown() const { return m_own; }
    /// The picture for whoever comes next: it stays as it is now.
    [[nodiscard]] SharedPicture HandOn();
    /// Makes the copy that the next change needs, if the picture has been handed on, so that the
    /// change itself is quick.
    void MakeOwn();

    /// The eraser of that size comes down: a new step. Answers what it changed in the picture; of
    /// no size outside of it.
    PixelRect BeginStroke(PicturePoint place, int across);
    /// It moves on, erasing all the way.
    PixelRect MoveStroke(PicturePoint place);

    /// `cmdClearSelected`: the region is erased, as a new step.
    PixelRect ClearSelected(const PictureRegion& region);
    /// `cmdClearUnselected`: all but the region.
    PixelRect ClearUnselected(const PictureRegion& region);

    /// Whether taking the last step back would change the picture.
    [[nodiscard]] bool CanUndo() const { return m_undo != nullptr || !m_kept.IsEmpty(); }
    /// Back to before the last step; answers what changed. There is one level only.
    PixelRect Undo();
    /// Back to that picture. Taking back then still leads to before the last step.
    void Reset(const SharedPicture& picture);

private:
    void Begin(std::shared_ptr<Picture> own);
    PixelRect EraseWay(PicturePoint to);
    void Keep(const PixelRect& rect);
    [[nodiscard]] PixelRect Whole() const;

    std::shared_ptr<Picture> m_own;
    bool m_handedOn = false;
    SharedPicture m_undo;     ///< what to go back to, when it is not what tiles were kept of
    KeptTiles m_kept;         ///< of the picture before the last step
    bool m_hasStep = false;   ///< there has been one since the picture was taken
    bool m_stepBegun = false; ///< the present stroke has touched the picture
    PicturePoint m_place;
    int m_across = 0;
};

} // namespace zol
