// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace zol {

/// Turns the American words of labels and buttons below a widget into British ones: "Colour" for
/// "Color", "Customise" for "Customize".
void SpellBritish(QWidget& window);

} // namespace zol
