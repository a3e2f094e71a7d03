// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "grid/tools/EditBox.h"
#include "grid/tools/Tool.h"
#include "grid/tools/ToolDesk.h"

namespace zol {

/// The pointer's way with the edit box: the left button draws one out, or takes hold of the one
/// that is there and moves it. A press beside the box drops it.
class EditBoxTool : public Tool {
public:
    EditBoxTool(ToolDesk desk, EditBox& box) : m_desk(desk), m_box(box) {}

    void Press(const PointerEvent& event) override;
    void Move(const PointerEvent& event) override;
    void Release(const PointerEvent& event) override;
    /// A drag or a selection under way is called off; a box that stands is dropped, and what it
    /// holds lands in the design.
    bool Cancel() override;
    /// A box that an edge stops keeps the key all the same.
    bool Nudge(int columns, int rows) override {
        return m_box.Nudge(columns, rows) || m_box.IsActive();
    }
    bool Confirm() override;
    [[nodiscard]] GridCursor Cursor() const override;

private:
    void ShowCursor();

    ToolDesk m_desk;
    EditBox& m_box;
    SquarePos m_pointer; ///< the last square under it
};

} // namespace zol
