// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace zol {

/// The Tab key goes through a window in the order in which its parts were made. A part that comes
/// from the form, below parts that were made in code, goes to the end with this; it keeps its place
/// in its box layout.
void MoveBehindInTabOrder(QWidget& part);

} // namespace zol
