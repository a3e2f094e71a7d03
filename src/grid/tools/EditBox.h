// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "grid/StitchTransform.h"
#include "grid/tools/Overlay.h"
#include "grid/tools/SelectionFrame.h"
#include "grid/tools/ToolDesk.h"

namespace zol {

/// The edit box: squares that were selected, or a block from elsewhere, which can float over the
/// design, be moved, turned and written back. While the box floats the design below is as it was:
/// it changes when the box is dropped. The clipboard belongs to the program alone.
///
/// A selection that was never moved is no more than a frame. Once it has content of its own
/// (HasPattern), dropping writes that back, and whoever drops it otherwise throws it away.
class EditBox {
public:
    explicit EditBox(ToolDesk desk) : m_desk(desk) {}

    /// Called whenever the box or the clipboard has changed; menus and the size shown follow.
    void SetFollower(std::function<void()> changed) { m_changed = std::move(changed); }

    // --- State ---------------------------------------------------------------------------
    [[nodiscard]] bool IsActive() const { return m_frame.IsActive(); }
    [[nodiscard]] bool IsSelecting() const { return m_frame.IsSelecting(); }
    [[nodiscard]] bool IsDragging() const { return m_drag.has_value(); }
    /// The content has to be written back: moved, pasted or turned.
    [[nodiscard]] bool HasPattern() const { return m_hasPattern; }
    /// The content lies nowhere in the design: it came from outside, or its place was erased.
    [[nodiscard]] bool IsPasted() const { return m_pasted; }
    [[nodiscard]] bool IsLifted() const { return m_lifted; }
    /// All 0 without a box; may reach over the design's edge.
    [[nodiscard]] SquareRect GetEditBoxRect() const { return m_frame.GetEditBoxRect(); }
    /// Bounds included.
    [[nodiscard]] bool IsInEditBox(int column, int row) const {
        return m_frame.IsInEditBox(column, row);
    }
    /// What the box holds, at its own squares from (1, 1); null without a finished box.
    [[nodiscard]] const Pattern* Content() const { return m_content.get(); }
    [[nodiscard]] bool IsClipboardFilled() const { return m_clipboard != nullptr; }
    /// Puts frame and floating content into an overlay; nothing without a box.
    void ShowIn(Overlay& overlay) const;

    // --- Selecting (EditBox.cpp) -----------------------------------------------------------
    /// The box becomes that square. What was in it before is to be dropped by the caller.
    void StartSelection(int column, int row);
    void TrackSelection(int column, int row);
    /// Cuts the box to the design and picks its squares up; a box outside is gone.
    void FinishSelection();
    /// Drops the old box and puts one round all that is stitched; none round an empty design.
    void SelectAll();
    /// Drops the old box; a new one holds a copy of `source`, all of it in one floss of the design
    /// if that is given. It is written back by the next drop. Nothing happens without room for its
    /// flosses, which is told. For custom stitches and inserts.
    void PickUpSelection(const Pattern& source, int column, int row,
                         std::optional<int> recolor = std::nullopt);
    /// The design has changed below a selection: what the box would move is picked up anew.
    void RefreshSelection();

    // --- Moving (EditBox.cpp) ----------------------------------------------------------------
    /// Holds the box at that square; without one at its upper left. The box counts as lifted.
    void BeginBoxDrag(std::optional<SquarePos> at = std::nullopt);
    /// Moves the box by as much as the pointer went, as far as the design's edges let it; the way
    /// that was cut off is remembered. Scrolls by a square when the box leaves the view.
    void DragEditBox(int column, int row);
    /// The end of a drag: one step "Move Section", and the box is gone.
    void FinishDrag();
    /// The box goes back to where the drag began and stays.
    void CancelDrag();
    /// Moves the box by a square or so; it floats from then on. False if an edge is in the way.
    bool Nudge(int columns, int rows);
    /// Ends the box; a drag under way is called off. Content of its own is written back, cut to the
    /// design, unless discarded.
    void DropEditBox(bool discard);
    /// The same as a step of its own, also for a box that has not been moved.
    void DropAsStep(UndoKind kind, const std::string& label);

    // --- Commands (EditBoxCommands.cpp); without a box they do nothing --------------------------
    /// Every stitch of the rectangle and the lines in it are gone.
    void EraseArea(const SquareRect& rect);
    void CopyEditBox();
    void CutEditBox();
    void EraseEditBox();
    /// One step "Flip" or "Rotate". What was selected is erased below the box.
    void TransformEditBox(TransformOperation operation);
    /// Whether the palette has room for a block's flosses beside those of what floats; where it has
    /// not, that is told.
    [[nodiscard]] bool HasRoomFor(const Pattern& block) const;
    [[nodiscard]] bool HasRoomForClipboard() const {
        return m_clipboard != nullptr && HasRoomFor(*m_clipboard);
    }
    /// One step "Paste". The draw mode must let the box be seen and moved.
    void PasteClipboard();
    /// Drops the old box and lets a block float in the upper left of what shows. Where the block is
    /// larger than the design the user is asked whether the design shall grow. The block takes the
    /// design's cloth counts. Nothing happens without room for its flosses.
    void PastePattern(std::shared_ptr<Pattern> block, const std::string& label);
    /// The content, for a file of its own: it gets the design's header. Null without a finished
    /// box.
    [[nodiscard]] Pattern* ContentWithHeader();

private:
    struct Drag {
        SquarePos At;     ///< DragColumn, DragRow
        SquareRect Began; ///< where the box was, and how
        bool HadPattern = false;
        bool WasLifted = false;
    };

    [[nodiscard]] SquareRect InDesign(const SquareRect& rect) const;
    void TakeSelection(const SquareRect& rect);
    void WriteBack();
    [[nodiscard]] UndoStep BeginStep(const std::string& label);
    void Float(std::shared_ptr<Pattern> content, const SquareRect& rect);
    [[nodiscard]] int FlossesWith(const Pattern& block) const;
    [[nodiscard]] bool GrowFor(const Pattern& block);
    void Forget();
    void Changed();

    ToolDesk m_desk;
    std::function<void()> m_changed;
    SelectionFrame m_frame;
    std::shared_ptr<Pattern> m_content;
    std::shared_ptr<Pattern> m_clipboard; ///< the same object as the content that was copied
    bool m_hasPattern = false;
    bool m_pasted = false;
    bool m_lifted = false;
    bool m_inOwnFlosses = false; ///< the content's floss numbers are the design's
    std::optional<Drag> m_drag;
    SquareRect m_sourceRect; ///< where the content was picked up
    int m_floatStep = -1;    ///< the undo step in which the content left the design or came to it
};

} // namespace zol
