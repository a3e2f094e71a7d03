// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "ToolTest.h"
#include "grid/tools/BackstitchTool.h"
#include "grid/tools/DrawModes.h"

namespace zol::test {

/// Counts what the tool buttons would be told.
class CountingListener : public DrawModeListener {
public:
    void DrawModeChanged() override { ++modes; }
    void StitchTypeChanged() override { ++types; }
    void CurrentColorChanged() override { ++colors; }
    void MirrorModeChanged() override { ++mirrors; }
    void StrokeEnded() override { ++strokes; }

    int modes = 0;
    int types = 0;
    int colors = 0;
    int mirrors = 0;
    int strokes = 0;
};

class DrawModesTest : public ToolTest {
protected:
    void Click(const PointerEvent& event) {
        modes.Press(event);
        modes.Release(event);
    }

    CountingListener listener;
    DrawModes modes{desk, listener};
};

} // namespace zol::test
