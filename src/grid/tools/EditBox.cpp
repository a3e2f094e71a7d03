// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/EditBox.h"

#include <algorithm>

#include "grid/basEditBox.h"

namespace zol {

namespace {

SquareRect Moved(const SquareRect& rect, int columns, int rows) {
    return {rect.Left + columns, rect.Top + rows, rect.Right + columns, rect.Bottom + rows};
}

/// How far a box from `first` to `last` may go of `wanted` squares along a side of `length`. One
/// that reaches over both edges keeps to the first.
int CutToEdge(int wanted, int first, int last, int length) {
    int way = std::min(wanted, length - last);
    return std::max(way, 1 - first);
}

} // namespace

void EditBox::Changed() {
    m_desk.View.OverlayChanged();
    if (m_changed) {
        m_changed();
    }
}

void EditBox::Forget() {
    m_frame.Clear();
    m_content.reset();
    m_hasPattern = false;
    m_pasted = false;
    m_lifted = false;
    m_inOwnFlosses = false;
    m_drag.reset();
}

SquareRect EditBox::InDesign(const SquareRect& rect) const {
    const Pattern& design = m_desk.Design();
    return {std::max(rect.Left, 1), std::max(rect.Top, 1),
            std::min(rect.Right, design.GetPatternWidth()),
            std::min(rect.Bottom, design.GetPatternHeight())};
}

void EditBox::ShowIn(Overlay& overlay) const {
    if (!IsActive()) {
        return;
    }
    const SquareRect box = GetEditBoxRect();
    if (!InDesign(box).IsEmpty()) {
        overlay.Frame = IsSelecting() ? InDesign(box) : box;
    }
    // A selection that lies where it was picked up looks like the design below it.
    if (m_hasPattern) {
        overlay.Content = OverlayContent{m_content, {box.Left, box.Top}, IsDragging()};
    }
}

// --- Selecting ----------------------------------------------------------------------------

void EditBox::StartSelection(int column, int row) {
    Forget();
    m_frame.StartSelection(column, row);
    Changed();
}

void EditBox::TrackSelection(int column, int row) {
    m_frame.TrackSelection(column, row);
    Changed();
}

void EditBox::FinishSelection() {
    if (!IsSelecting()) {
        return;
    }
    const SquareRect box = InDesign(GetEditBoxRect());
    Forget();
    if (!box.IsEmpty()) {
        TakeSelection(box);
    }
    Changed();
}

void EditBox::SelectAll() {
    DropEditBox(false);
    const SquareRect used = InDesign(m_desk.Design().GetPatternRect());
    if (!used.IsEmpty()) {
        TakeSelection(used);
        Changed();
    }
}

void EditBox::TakeSelection(const SquareRect& rect) {
    const Pattern& design = m_desk.Design();
    m_frame.SetBox(rect);
    m_sourceRect = rect;
    m_inOwnFlosses = true;
    m_content = std::make_shared<Pattern>(
        basEditBox::PickUpSelection(design, rect, std::nullopt, design.Context().Progress));
}

void EditBox::PickUpSelection(const Pattern& source, int column, int row,
                              std::optional<int> recolor) {
    if (!recolor && !HasRoomFor(source)) {
        return;
    }
    DropEditBox(false);
    const int width = source.GetPatternWidth();
    const int height = source.GetPatternHeight();
    if (width < 1 || height < 1) {
        return;
    }
    Pattern& design = m_desk.Design();
    auto block = std::make_shared<Pattern>(basEditBox::PickUpSelection(
        source, {1, 1, width, height}, recolor, design.Context().Progress));
    m_inOwnFlosses = recolor.has_value();
    if (m_inOwnFlosses) {
        design.GetPalette().CreateCopy(block->GetPalette());
    }
    Float(std::move(block), {column, row, column + width - 1, row + height - 1});
    m_floatStep = -1;
    Changed();
}

void EditBox::RefreshSelection() {
    if (!IsActive() || IsSelecting() || m_hasPattern) {
        return;
    }
    const SquareRect box = GetEditBoxRect();
    const std::optional<Drag> drag = m_drag;
    Forget();
    if (InDesign(box) == box) {
        TakeSelection(box);
        m_drag = drag;
    }
    Changed();
}

/// The content lies nowhere in the design from now on.
void EditBox::Float(std::shared_ptr<Pattern> content, const SquareRect& rect) {
    m_content = std::move(content);
    m_frame.SetBox(rect);
    m_hasPattern = true;
    m_pasted = true;
    m_lifted = true;
    m_floatStep = m_desk.Steps.StepNumber();
}

// --- Moving -------------------------------------------------------------------------------

void EditBox::BeginBoxDrag(std::optional<SquarePos> at) {
    if (!IsActive()) {
        return;
    }
    const SquareRect box = GetEditBoxRect();
    m_drag = Drag{at.value_or(SquarePos{box.Left, box.Top}), box, m_hasPattern, m_lifted};
    m_lifted = true;
}

void EditBox::DragEditBox(int column, int row) {
    if (!m_drag) {
        return;
    }
    const Pattern& design = m_desk.Design();
    const SquareRect box = GetEditBoxRect();
    const int columns =
        CutToEdge(column - m_drag->At.X, box.Left, box.Right, design.GetPatternWidth());
    const int rows = CutToEdge(row - m_drag->At.Y, box.Top, box.Bottom, design.GetPatternHeight());
    if (columns == 0 && rows == 0) {
        return;
    }
    m_hasPattern = true;
    m_frame.SetBox(Moved(box, columns, rows));
    m_drag->At = {m_drag->At.X + columns, m_drag->At.Y + rows};
    Changed();
    m_desk.View.ScrollTowards(GetEditBoxRect());
}

void EditBox::CancelDrag() {
    if (!m_drag) {
        return;
    }
    const Drag drag = *m_drag;
    m_drag.reset();
    m_frame.SetBox(drag.Began);
    m_hasPattern = drag.HadPattern;
    m_lifted = drag.WasLifted;
    Changed();
}

void EditBox::FinishDrag() {
    if (!m_drag) {
        return;
    }
    if (!m_hasPattern) {
        // A click: no square has changed, and the step before stays.
        DropEditBox(true);
        return;
    }
    m_drag.reset();
    const UndoStep step = BeginStep("Move Section");
    if (m_lifted && !m_pasted) {
        EraseArea(m_sourceRect);
    }
    DropEditBox(false);
}

bool EditBox::Nudge(int columns, int rows) {
    if (!IsActive() || IsSelecting() || IsDragging()) {
        return false;
    }
    const Pattern& design = m_desk.Design();
    const SquareRect box = GetEditBoxRect();
    columns = CutToEdge(columns, box.Left, box.Right, design.GetPatternWidth());
    rows = CutToEdge(rows, box.Top, box.Bottom, design.GetPatternHeight());
    if (columns == 0 && rows == 0) {
        return false;
    }
    if (!m_hasPattern) {
        // No button comes up later that would end the move, so the squares are lifted here.
        const UndoStep step = BeginStep("Move Section");
        EraseArea(m_sourceRect);
        Float(m_content, box);
    }
    m_frame.SetBox(Moved(box, columns, rows));
    Changed();
    m_desk.View.ScrollTowards(GetEditBoxRect());
    return true;
}

void EditBox::WriteBack() {
    Pattern& design = m_desk.Design();
    const SquareRect box = GetEditBoxRect();
    const int flosses = design.GetPalette().GetEntriesCount();
    const auto write = m_inOwnFlosses ? basEditBox::PutBack : basEditBox::WriteBack;
    write(*m_content, design, box.Left, box.Top);
    design.SetChanged(true);
    if (design.GetPalette().GetEntriesCount() != flosses) {
        m_desk.View.FlossesChanged();
    }
    // Knots and ends of lines on the block's rim reach out of it.
    m_desk.View.RedrawSquares(
        InDesign({box.Left - 1, box.Top - 1, box.Left + m_content->GetPatternWidth(),
                  box.Top + m_content->GetPatternHeight()}));
}

void EditBox::DropEditBox(bool discard) {
    if (!IsActive()) {
        return;
    }
    CancelDrag();
    if (m_hasPattern && !discard) {
        WriteBack();
    }
    Forget();
    Changed();
}

void EditBox::DropAsStep(UndoKind kind, const std::string& label) {
    if (m_content == nullptr) {
        return;
    }
    m_drag.reset();
    const UndoStep step(m_desk.Steps, kind, label);
    WriteBack();
    DropEditBox(true);
}

} // namespace zol
