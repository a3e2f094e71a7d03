// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// What the Edit menu does with the edit box.

#include <algorithm>

#include "grid/basEditBox.h"
#include "grid/tools/EditBox.h"
#include "model/RunTimeError.h"

namespace zol {

UndoStep EditBox::BeginStep(const std::string& label) {
    // Content that left the design in the last step is in no copy that could be taken now: undoing
    // a turn alone would leave a hole where the block was. So the step goes back to where the block
    // still lay in the design.
    const Undo& steps = m_desk.Steps;
    if (m_pasted && steps.IsAvailable() && steps.StepNumber() == m_floatStep) {
        return UndoStep::Continue(m_desk.Steps, label);
    }
    return {m_desk.Steps, UndoKind::Snapshot, label};
}

void EditBox::EraseArea(const SquareRect& rect) {
    Pattern& design = m_desk.Design();
    basEditBox::EraseArea(design, rect);
    design.SetChanged(true);
    m_desk.View.RedrawSquares(
        InDesign({rect.Left - 1, rect.Top - 1, rect.Right + 1, rect.Bottom + 1}));
}

void EditBox::CopyEditBox() {
    if (m_content != nullptr) {
        m_clipboard = m_content;
        Changed();
    }
}

void EditBox::CutEditBox() {
    if (m_content == nullptr) {
        return;
    }
    CancelDrag();
    const UndoStep step = BeginStep("Cut");
    CopyEditBox();
    EraseArea(GetEditBoxRect());
    DropEditBox(true);
}

void EditBox::EraseEditBox() {
    if (m_content == nullptr) {
        return;
    }
    CancelDrag();
    const SquareRect box = GetEditBoxRect();
    const UndoStep step = BeginStep("Erase");
    DropEditBox(true);
    EraseArea(box);
}

void EditBox::TransformEditBox(TransformOperation operation) {
    if (m_content == nullptr) {
        return;
    }
    CancelDrag();
    const bool flips = operation == TransformOperation::FlipVertical ||
                       operation == TransformOperation::FlipHorizontal;
    const UndoStep step = BeginStep(flips ? "Flip" : "Rotate");
    const SquareRect box = GetEditBoxRect();
    if (!m_pasted) {
        EraseArea(m_sourceRect);
    }
    Float(std::make_shared<Pattern>(StitchTransform::Apply(*m_content, operation)),
          StitchTransform::Rect(box, operation));
    Changed();
}

int EditBox::FlossesWith(const Pattern& block) const {
    Palette flosses = m_desk.Design().GetPalette();
    if (m_hasPattern && !m_inOwnFlosses) {
        basEditBox::MergeUsedFlosses(*m_content, flosses);
    }
    basEditBox::MergeUsedFlosses(block, flosses);
    return flosses.GetEntriesCount();
}

bool EditBox::HasRoomFor(const Pattern& block) const {
    const Pattern& design = m_desk.Design();
    const int needed = FlossesWith(block);
    if (needed <= std::max<int>(Palette::MostFlosses, design.GetPalette().GetEntriesCount())) {
        return true;
    }
    if (MessageDoor* messages = design.Context().Messages) {
        messages->TellMore("With these stitches the palette would need " + std::to_string(needed) +
                               " flosses. A palette holds at most " +
                               std::to_string(Palette::MostFlosses) + ".",
                           "The pattern stays as it is.", MessageIcon::Exclamation, {});
    }
    return false;
}

void EditBox::PasteClipboard() {
    if (m_clipboard != nullptr) {
        PastePattern(m_clipboard, "Paste");
    }
}

void EditBox::PastePattern(std::shared_ptr<Pattern> block, const std::string& label) {
    if (!HasRoomFor(*block)) {
        return;
    }
    CancelDrag();
    // What floated before lands before the copy for undo is taken, which it is no part of.
    DropEditBox(false);
    const UndoStep step = BeginStep(label);
    Pattern& design = m_desk.Design();
    if (GrowFor(*block)) {
        m_desk.View.DesignChanged();
    }
    const int width = design.GetPatternWidth();
    const int height = design.GetPatternHeight();
    if (width < 1 || height < 1) {
        return;
    }
    block->SetPatternClothCountX(design.GetPatternClothCountX());
    block->SetPatternClothCountY(design.GetPatternClothCountY());
    const int across = std::min(block->GetPatternWidth(), width);
    const int down = std::min(block->GetPatternHeight(), height);
    const SquareRect shown = m_desk.View.VisibleRange();
    const int left = std::clamp(shown.Left, 1, width - across + 1);
    const int top = std::clamp(shown.Top, 1, height - down + 1);
    Float(std::move(block), {left, top, left + across - 1, top + down - 1});
    Changed();
}

bool EditBox::GrowFor(const Pattern& block) {
    Pattern& design = m_desk.Design();
    const int width = std::max(design.GetPatternWidth(), block.GetPatternWidth());
    const int height = std::max(design.GetPatternHeight(), block.GetPatternHeight());
    if (width == design.GetPatternWidth() && height == design.GetPatternHeight()) {
        return false;
    }
    MessageDoor* messages = design.Context().Messages;
    if (messages == nullptr ||
        messages->Ask("The Copied pattern is larger than your current pattern.\n"
                      "Do you wish to increase the size of the current pattern?",
                      MessageIcon::Question, MessageButtons::YesNo, {}) != MessageAnswer::Yes) {
        return false;
    }
    try {
        design.Resize(width, height, design.GetPatternClothCountX(),
                      design.GetPatternClothCountY());
    } catch (const RunTimeError& error) {
        messages->TellMore(RunTimeErrorText(error.Number()),
                           "The pattern keeps its size. What lies beyond its edges is cut off when "
                           "the edit box is dropped.",
                           MessageIcon::Exclamation, {});
        return false;
    }
    design.SetChanged(true);
    return true;
}

Pattern* EditBox::ContentWithHeader() {
    if (m_content != nullptr) {
        m_content->Setheader(m_desk.Design().GetHeader());
    }
    return m_content.get();
}

} // namespace zol
