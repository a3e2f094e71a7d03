// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace zol {

struct ProgramContext;

/// Turns "Color" and "color" into the word of the place where the program runs, in everything that
/// a window and its parts say. To be called once all is written.
void Spell(QWidget& window, const ProgramContext& context);

} // namespace zol
