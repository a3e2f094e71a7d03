// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCursor>

#include "grid/tools/ToolView.h"

/// The pointers over the grid: the system's own where it has one, and drawings of the icon family
/// for paint, colour picker and eraser, dark with a light rim so that they show on every floss.
namespace zol::GridCursors {

/// `ratio` is the device pixel ratio of the window that the pointer is over.
[[nodiscard]] QCursor Cursor(GridCursor kind, qreal ratio);

} // namespace zol::GridCursors
