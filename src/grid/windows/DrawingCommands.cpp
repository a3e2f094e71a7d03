// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/DrawingCommands.h"

#include <array>
#include <utility>

#include "grid/windows/MainCommands.h"

namespace zol {

namespace {

struct StitchRow {
    const char* Command;
    int Type;
};

constexpr std::array StitchTypes{
    StitchRow{"mnuStitchWhole", StitchWhole},     StitchRow{"mnuStitchHalfT2B", StitchTBH},
    StitchRow{"mnuStitchHalfB2T", StitchBTH},     StitchRow{"mnuStitch3Quarter", StitchS3Q},
    StitchRow{"mnuStitch3QuarterUL", StitchUL3Q}, StitchRow{"mnuStitch3QuarterUR", StitchUR3Q},
    StitchRow{"mnuStitch3QuarterLL", StitchLL3Q}, StitchRow{"mnuStitch3QuarterLR", StitchLR3Q},
    StitchRow{"mnuStitchQuarter", StitchSQ},      StitchRow{"mnuStitchQuarterUL", StitchULQ},
    StitchRow{"mnuStitchQuarterUR", StitchURQ},   StitchRow{"mnuStitchQuarterLL", StitchLLQ},
    StitchRow{"mnuStitchQuarterLR", StitchLRQ},   StitchRow{"mnuStitchFrenchKnot", StitchFKnot},
    StitchRow{"mnuCustomStitch", StitchCustom},
};

constexpr std::array KnotStyles{"mnuFK0", "mnuFK1", "mnuFK2", "mnuFK3", "mnuFK4"};

} // namespace

DrawingCommands::DrawingCommands(MainCommands& commands, Followers followers)
    : m_commands(commands),
      m_followers(std::move(followers)) {}

void DrawingCommands::Connect(DrawModes& modes, ToolDesk desk) {
    m_modes = &modes;
    m_desk.emplace(desk);
    ConnectModes();
    ConnectStitchTypes();
    ConnectKnotStyles();
    ConnectMirror();
    m_commands.Connect("mnuOptionsFlexBackstitch", &m_commands.At("mnuOptionsFlexBackstitch"),
                       [this] {
                           SetAnchorBackstitches(!m_desk->With.AnchorBackstitches);
                           m_followers.AnchorChanged(m_desk->With.AnchorBackstitches);
                       });
    DrawModeChanged();
    StitchTypeChanged();
    MirrorModeChanged();
    ShowKnotStyle();
}

void DrawingCommands::ConnectModes() {
    const auto connect = [this](const char* name, auto run) {
        m_commands.Connect(name, &m_commands.At(name), run);
    };
    connect("mnuDrawModeStitches", [this] { m_modes->SetDrawMode(DrawStitches); });
    connect("mnuDrawModeLines", [this] { m_modes->SetDrawMode(DrawLines); });
    connect("mnuDrawModeEditBox", [this] { m_modes->SetDrawMode(DrawEditBox); });
    connect("mnuPaintOnce", [this] { m_modes->SetDrawMode(DrawPaintOnce); });
    connect("mnuPaintMode", [this] { Toggle(DrawPaint); });
    connect("mnuColorPicker", [this] { Toggle(DrawColorPicker); });
    connect("mnuEraseMode", [this] { ToggleEraser(); });
    connect("ZoomTool", [this] {
        if (m_modes->GetDrawMode() == DrawZoom) {
            m_modes->RestoreDrawMode();
        } else {
            m_modes->SetDrawMode(DrawZoom);
        }
        DrawModeChanged();
    });
}

void DrawingCommands::ConnectStitchTypes() {
    for (const StitchRow& row : StitchTypes) {
        m_commands.Connect(row.Command, &m_commands.At(row.Command), [this, &row] {
            m_modes->SetStitchType(row.Type);
            StitchTypeChanged();
        });
    }
}

void DrawingCommands::ConnectKnotStyles() {
    for (std::size_t style = 0; style < KnotStyles.size(); ++style) {
        m_commands.Connect(KnotStyles[style], &m_commands.At(KnotStyles[style]), [this, style] {
            m_desk->Design().Context().FrenchKnotStyle = static_cast<std::uint8_t>(style);
            ShowKnotStyle();
        });
    }
}

void DrawingCommands::ConnectMirror() {
    const auto connect = [this](const char* name, auto run) {
        m_commands.Connect(name, &m_commands.At(name), [this, run] {
            run();
            MirrorModeChanged();
        });
    };
    connect("mnuMirrorNone", [this] { m_modes->ClearMirrorMode(); });
    connect("mnuMirrorVertical", [this] { m_modes->ToggleMirrorMode(MirrorVertical); });
    connect("mnuMirrorHorizontal", [this] { m_modes->ToggleMirrorMode(MirrorHorizontal); });
}

void DrawingCommands::Toggle(DrawMode mode) {
    const DrawMode now = m_modes->GetDrawMode();
    const bool isOn = now == mode || (mode == DrawPaint && now == DrawPaintOnce);
    m_modes->SetDrawMode(isOn ? DrawStitches : mode);
    // A click has flipped the check mark, whatever the mode became.
    DrawModeChanged();
}

void DrawingCommands::ToggleEraser() {
    const DrawMode mode = m_modes->GetDrawMode();
    if (mode == DrawPaint || mode == DrawPaintOnce) {
        m_modes->SetPaintErases(!m_modes->PaintErases());
        DrawModeChanged();
    } else {
        Toggle(DrawErase);
    }
}

void DrawingCommands::SetAnchorBackstitches(bool anchored) {
    m_desk->With.AnchorBackstitches = anchored;
    m_commands.SetChecked("mnuOptionsFlexBackstitch", !anchored);
}

void DrawingCommands::DrawModeChanged() {
    if (m_modes == nullptr) {
        return;
    }
    const DrawMode mode = m_modes->GetDrawMode();
    const bool paints = mode == DrawPaint || mode == DrawPaintOnce;
    const bool isBox = mode == DrawEditBox;
    const DrawMode base = m_modes->BaseDrawMode();
    m_commands.SetChecked("mnuDrawModeStitches", !isBox && base == DrawStitches);
    m_commands.SetChecked("mnuDrawModeLines", !isBox && base == DrawLines);
    m_commands.SetChecked("mnuDrawModeEditBox", isBox);
    m_commands.SetChecked("ZoomTool", mode == DrawZoom);
    m_commands.SetChecked("mnuPaintOnce", mode == DrawPaintOnce);
    m_commands.SetChecked("mnuPaintMode", paints);
    m_commands.SetChecked("mnuColorPicker", mode == DrawColorPicker);
    m_commands.SetChecked("mnuEraseMode", mode == DrawErase || (paints && m_modes->PaintErases()));
    m_followers.ToolChanged();
}

void DrawingCommands::StitchTypeChanged() {
    for (const StitchRow& row : StitchTypes) {
        m_commands.SetChecked(row.Command, row.Type == m_desk->With.CurrentStitchType);
    }
}

void DrawingCommands::MirrorModeChanged() {
    const MirrorMode& mirror = m_desk->Mirror;
    const bool on = mirror.IsMirrorActive();
    m_commands.SetChecked("mnuMirrorNone", !on);
    m_commands.SetChecked("mnuMirrorVertical", on && mirror.GetMirrorAxis() == MirrorVertical);
    m_commands.SetChecked("mnuMirrorHorizontal", on && mirror.GetMirrorAxis() == MirrorHorizontal);
    m_followers.ToolChanged();
}

void DrawingCommands::ShowKnotStyle() {
    const std::size_t style = m_desk->Design().Context().FrenchKnotStyle;
    for (std::size_t i = 0; i < KnotStyles.size(); ++i) {
        m_commands.SetChecked(KnotStyles[i], i == style);
    }
}

} // namespace zol
