// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/DrawModes.h"

#include <algorithm>

#include "grid/tools/BackstitchTool.h"
#include "grid/tools/ColorPickerTool.h"
#include "grid/tools/EditBox.h"
#include "grid/tools/EditBoxTool.h"
#include "grid/tools/EraseTool.h"
#include "grid/tools/PaintTool.h"
#include "grid/tools/StitchTool.h"
#include "grid/tools/ZoomTool.h"

namespace zol {

namespace {

bool IsPaintMode(DrawMode mode) {
    return mode == DrawPaintOnce || mode == DrawPaint;
}

/// Whether the mode has a button of its own that stays pressed under the tools that borrow.
bool IsBaseMode(DrawMode mode) {
    return mode == DrawStitches || mode == DrawLines;
}

} // namespace

DrawModes::DrawModes(ToolDesk desk, DrawModeListener& listener)
    : m_desk(desk),
      m_listener(listener),
      m_stitches(std::make_unique<StitchTool>(desk)),
      m_lines(std::make_unique<BackstitchTool>(desk)),
      m_box(std::make_unique<EditBox>(desk)),
      m_boxTool(std::make_unique<EditBoxTool>(desk, *m_box)),
      m_zoom(std::make_unique<ZoomTool>(desk)),
      m_paint(std::make_unique<PaintTool>(desk,
                                          [this] {
                                              if (m_mode == DrawPaintOnce) {
                                                  SetDrawMode(DrawStitches);
                                              }
                                          })),
      m_picker(std::make_unique<ColorPickerTool>(desk,
                                                 [this](int floss) {
                                                     SetCurrentColor(floss);
                                                     SetDrawMode(DrawStitches);
                                                 })),
      m_eraser(std::make_unique<EraseTool>(desk, *m_lines)) {}

DrawModes::~DrawModes() = default;

Tool* DrawModes::ToolOf(DrawMode mode) const {
    switch (mode) {
    case DrawStitches:
        return m_stitches.get();
    case DrawLines:
        return m_lines.get();
    case DrawEditBox:
        return m_boxTool.get();
    case DrawZoom:
        return m_zoom.get();
    case DrawPaintOnce:
    case DrawPaint:
        return m_paint.get();
    case DrawColorPicker:
        return m_picker.get();
    case DrawErase:
        return m_eraser.get();
    default:
        return nullptr;
    }
}

void DrawModes::SetDrawMode(DrawMode mode) {
    if (ToolOf(mode) == nullptr || (mode == DrawErase && IsPaintMode(m_mode))) {
        return;
    }
    Current().Cancel();
    m_box->DropEditBox(false);
    m_mode = mode;
    if (IsBaseMode(mode)) {
        m_baseMode = mode;
    }
    if (mode != DrawZoom) {
        m_lastMode = mode;
        if (!IsPaintMode(mode)) {
            m_paint->SetErases(false);
        }
    }
    m_eraser->TakeLines(m_baseMode == DrawLines);
    m_desk.View.SetGridCursor(Cursor());
    m_listener.DrawModeChanged();
}

void DrawModes::RestoreDrawMode() {
    SetDrawMode(m_lastMode);
}

void DrawModes::SetStitchType(int type) {
    SetDrawMode(DrawStitches);
    // No custom stitch can be selected yet.
    const bool isKnown = type >= StitchWhole && type <= StitchSQ && type != StitchCustom;
    m_desk.With.CurrentStitchType = isKnown ? type : int{StitchWhole};
    m_listener.StitchTypeChanged();
}

void DrawModes::OfferSmartStitches(bool threeQuarters, bool quarters) {
    const int type = m_desk.With.CurrentStitchType;
    if ((type == StitchS3Q && !threeQuarters) || (type == StitchSQ && !quarters)) {
        m_desk.With.CurrentStitchType = StitchWhole;
        m_listener.StitchTypeChanged();
    }
}

void DrawModes::SetCurrentColor(int index) {
    const Palette& palette = m_desk.Design().GetPalette();
    if (index < 1 || index > palette.GetEntriesCount()) {
        return;
    }
    m_desk.With.CurrentPaletteIndex = index;
    RememberFloss();
    m_desk.View.ShowFloss(m_floss.Description);
    m_listener.CurrentColorChanged();
}

void DrawModes::PaletteChanged() {
    const int found = FindFloss();
    if (found != m_desk.With.CurrentPaletteIndex) {
        SetCurrentColor(found);
    }
    RememberFloss();
}

void DrawModes::RememberFloss() {
    const Palette& palette = m_desk.Design().GetPalette();
    const int index = m_desk.With.CurrentPaletteIndex;
    m_floss = {index, palette.GetEntriesCount(), palette.GetFlossLongDesc(index)};
}

int DrawModes::FindFloss() const {
    const Palette& palette = m_desk.Design().GetPalette();
    const int index = m_desk.With.CurrentPaletteIndex;
    const int count = palette.GetEntriesCount();
    const bool isThere = index >= 1 && index <= count;
    if (isThere &&
        (index != m_floss.Index || palette.GetFlossLongDesc(index) == m_floss.Description)) {
        return index;
    }
    for (int other = 1; other <= count; ++other) {
        if (palette.GetFlossLongDesc(other) == m_floss.Description) {
            return other;
        }
    }
    return isThere && count == m_floss.Count ? index : 1;
}

bool DrawModes::PaintErases() const {
    return m_paint->Erases();
}

void DrawModes::SetPaintErases(bool on) {
    if (IsPaintMode(m_mode)) {
        m_paint->SetErases(on);
        m_listener.DrawModeChanged();
    }
}

void DrawModes::ToggleMirrorMode(MirrorAxis axis) {
    if (m_desk.Mirror.IsMirrorActive() && m_desk.Mirror.GetMirrorAxis() == axis) {
        ClearMirrorMode();
        return;
    }
    m_desk.Mirror.SetMirrorMode(axis);
    m_desk.View.OverlayChanged();
    m_listener.MirrorModeChanged();
}

void DrawModes::ClearMirrorMode() {
    m_desk.Mirror.ClearMirrorMode();
    m_desk.View.OverlayChanged();
    m_listener.MirrorModeChanged();
}

bool DrawModes::HasSquares() const {
    return m_desk.Design().IsInGrid(1, 1);
}

void DrawModes::Press(const PointerEvent& event) {
    if (!HasSquares()) {
        return;
    }
    if (event.Button == PointerButton::Right) {
        m_mirrorHolds = m_desk.Mirror.IsMirrorActive();
        if (m_mirrorHolds) {
            m_desk.Mirror.SetMirrorCentre(event.At.Column, event.At.Row);
            m_desk.View.OverlayChanged();
            return;
        }
    }
    PaletteChanged();
    Current().Press(event);
}

void DrawModes::Move(const PointerEvent& event) {
    if (!HasSquares()) {
        return;
    }
    PointerEvent inside = event;
    const Pattern& design = m_desk.Design();
    inside.At.Column = std::clamp(event.At.Column, 1, design.GetPatternWidth());
    inside.At.Row = std::clamp(event.At.Row, 1, design.GetPatternHeight());
    if (m_mode != DrawLines && !event.Shift && !event.Ctrl) {
        ShowStatus(inside.At.Column, inside.At.Row);
    }
    if (!(m_mirrorHolds && event.Button == PointerButton::Right)) {
        Current().Move(inside);
    }
}

void DrawModes::Release(const PointerEvent& event) {
    if (m_mirrorHolds && event.Button == PointerButton::Right) {
        m_mirrorHolds = false;
    } else {
        Current().Release(event);
    }
    m_listener.StrokeEnded();
}

void DrawModes::Escape() {
    if (Current().Cancel()) {
        return;
    }
    if (m_mode == DrawZoom) {
        RestoreDrawMode();
    } else if (!IsBaseMode(m_mode)) {
        SetDrawMode(m_baseMode);
    }
}

bool DrawModes::Nudge(int columns, int rows) {
    return Current().Nudge(columns, rows);
}

bool DrawModes::Confirm() {
    return Current().Confirm();
}

void DrawModes::SettleFloating() {
    m_lines->PutBackTakenUp();
    m_box->DropEditBox(false);
}

void DrawModes::CancelDrag() {
    m_lines->PutBackTakenUp();
    m_box->CancelDrag();
}

void DrawModes::ShowStatus(int column, int row) {
    const Pattern& design = m_desk.Design();
    const int floss = design.GetStitchPaletteIndex(column, row);
    m_desk.View.ShowPlace(std::to_string(column) + ", " + std::to_string(row));
    m_desk.View.ShowFloss(floss == NoFloss ? std::string()
                                           : design.GetPalette().GetFlossLongDesc(floss));
}

Overlay DrawModes::GetOverlay() const {
    Overlay overlay = Current().GetOverlay();
    m_box->ShowIn(overlay);
    if (m_desk.Mirror.IsMirrorActive()) {
        overlay.Mirror =
            OverlayAxis{m_desk.Mirror.GetMirrorAxis(), m_desk.Mirror.GetMirrorCentre()};
    }
    return overlay;
}

GridCursor DrawModes::Cursor() const {
    return Current().Cursor();
}

} // namespace zol
