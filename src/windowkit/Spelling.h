// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QWidget;

namespace zol {

struct ProgramContext;

/// "Colour" for "Color" and "Customise" for "Customize" where the program runs in British English;
/// elsewhere the words as they are.
[[nodiscard]] QString Spelled(QString words, const ProgramContext& context);

/// The same for everything that a window and its parts say. To be called before names of flosses,
/// catalogues or colours are filled in: those are the user's, and stay as they are spelled.
void Spell(QWidget& window, const ProgramContext& context);

} // namespace zol
