// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "grid/tools/DrawModes.h"

namespace zol {

class MainCommands;

/// The commands that say what the pointer draws with: draw modes, stitch types, knot styles,
/// mirror mode, flexible backstitch. Keeps their buttons and check marks in step.
class DrawingCommands : public DrawModeListener {
public:
    /// What follows from changes here is the window's: the pointer, the overlay, the palette.
    struct Followers {
        std::function<void()> ToolChanged;
        std::function<void()> CurrentColorChanged;
        std::function<void()> StrokeEnded;
        std::function<void(bool anchored)> AnchorChanged;
    };

    DrawingCommands(MainCommands& commands, Followers followers);
    /// `modes` was made with this as its listener; both live as long as the window.
    void Connect(DrawModes& modes, ToolDesk desk);
    void SetAnchorBackstitches(bool anchored);

    void DrawModeChanged() override;
    void StitchTypeChanged() override;
    void CurrentColorChanged() override { m_followers.CurrentColorChanged(); }
    void MirrorModeChanged() override;
    void StrokeEnded() override { m_followers.StrokeEnded(); }

private:
    void ConnectModes();
    void ConnectStitchTypes();
    void ConnectKnotStyles();
    void ConnectMirror();
    /// Runs a mode, or goes back to stitches when it is on.
    void Toggle(DrawMode mode);
    void ToggleEraser();
    void ShowKnotStyle();

    MainCommands& m_commands;
    Followers m_followers;
    DrawModes* m_modes = nullptr;
    std::optional<ToolDesk> m_desk;
};

} // namespace zol
