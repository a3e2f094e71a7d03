// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>

#include "grid/tools/Tool.h"
#include "grid/tools/ToolDesk.h"

namespace zol {

class BackstitchTool;
class EditBox;
class EraseTool;
class PaintTool;

/// Told when what the tool buttons show has changed.
class DrawModeListener {
public:
    virtual ~DrawModeListener() = default;
    /// The mode, or whether the fill erases.
    virtual void DrawModeChanged() = 0;
    virtual void StitchTypeChanged() = 0;
    virtual void CurrentColorChanged() = 0;
    virtual void MirrorModeChanged() = 0;
    /// A button came up over the grid; all is done that follows from it.
    virtual void StrokeEnded() = 0;
};

/// The draw modes: which tool the pointer works, and what it works with. Routes the pointer's
/// events to the tool, but for what all modes share: the mirror's centre and the status panels.
class DrawModes {
public:
    DrawModes(ToolDesk desk, DrawModeListener& listener);
    ~DrawModes();
    DrawModes(const DrawModes&) = delete;
    DrawModes& operator=(const DrawModes&) = delete;

    /// Ends any open tool and drops the edit box first. Mode 9 is refused while painting: there
    /// erase is a flag of the paint tool. Mode 5, whose tool is not there yet, is refused too.
    void SetDrawMode(DrawMode mode);
    [[nodiscard]] DrawMode GetDrawMode() const { return m_mode; }
    /// Back to the last mode other than the zoom tool.
    void RestoreDrawMode();
    [[nodiscard]] DrawMode LastDrawMode() const { return m_lastMode; }
    /// The mode whose button stays pressed while another tool borrows the pointer: stitches or
    /// lines. It says what the eraser takes.
    [[nodiscard]] DrawMode BaseDrawMode() const { return m_baseMode; }

    /// Sets the draw mode to stitches first. An unknown type becomes 1, and so does type 13 while
    /// no custom stitch is selected.
    void SetStitchType(int type);
    /// Which smart stitches are offered. One that no longer is gives way to the whole stitch; the
    /// draw mode stays.
    void OfferSmartStitches(bool threeQuarters, bool quarters);
    /// Does nothing for an index outside the palette.
    void SetCurrentColor(int index);
    /// The button "ERASE" while painting: the fill then takes stitches away. It comes up when
    /// painting ends; without painting this does nothing.
    void SetPaintErases(bool on);
    [[nodiscard]] bool PaintErases() const;
    /// After a change of the palette, or another design: the current floss is found where it is
    /// now, and one that is gone gives way to 1. One that was exchanged in its place stays current.
    void PaletteChanged();

    /// A mode that is on is turned off.
    void ToggleMirrorMode(MirrorAxis axis);
    void ClearMirrorMode();

    void Press(const PointerEvent& event);
    /// Brings the place into the pattern first.
    void Move(const PointerEvent& event);
    void Release(const PointerEvent& event);
    /// Escape: ends what the tool has under way, or a mode other than stitches and lines.
    void Escape();
    /// An arrow key: moves what the tool holds by a square. False if it holds nothing.
    bool Nudge(int columns, int rows);
    /// Enter: what the tool holds is done with. False if it holds nothing.
    bool Confirm();

    /// What hangs over the design lands in it: a floating block where it is, a line that was taken
    /// up where it stood. Before the design is saved or given away.
    void SettleFloating();
    /// A block or line that is being dragged goes back to where the drag began, and stays there.
    void CancelDrag();

    [[nodiscard]] Overlay GetOverlay() const;
    [[nodiscard]] GridCursor Cursor() const;
    /// The tool of mode 2, for the commands of its menu.
    [[nodiscard]] BackstitchTool& Lines() { return *m_lines; }
    /// Of mode 3, and of what else lets a block float.
    [[nodiscard]] EditBox& Box() { return *m_box; }
    [[nodiscard]] const EditBox& Box() const { return *m_box; }

private:
    /// Null for a mode without a tool.
    [[nodiscard]] Tool* ToolOf(DrawMode mode) const;
    [[nodiscard]] Tool& Current() const { return *ToolOf(m_mode); }
    [[nodiscard]] bool HasSquares() const;
    void RememberFloss();
    [[nodiscard]] int FindFloss() const;
    void ShowStatus(int column, int row);

    ToolDesk m_desk;
    DrawModeListener& m_listener;
    DrawMode m_mode = DrawStitches;
    DrawMode m_lastMode = DrawStitches;
    DrawMode m_baseMode = DrawStitches;
    /// The floss that was current when the palette was last looked at.
    struct KnownFloss {
        int Index = 0;
        int Count = 0; ///< of the palette then
        std::string Description;
    };

    KnownFloss m_floss;
    bool m_mirrorHolds = false; ///< the right button is down and was the mirror's
    std::unique_ptr<Tool> m_stitches;
    std::unique_ptr<BackstitchTool> m_lines;
    std::unique_ptr<EditBox> m_box;
    std::unique_ptr<Tool> m_boxTool;
    std::unique_ptr<Tool> m_zoom;
    std::unique_ptr<PaintTool> m_paint;
    std::unique_ptr<Tool> m_picker;
    std::unique_ptr<EraseTool> m_eraser;
};

} // namespace zol
