// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <string>

#include "model/ProgramContext.h"

class QLabel;
class QTextEdit;

namespace zol {

class FormatToolBar;

/// Edits a pattern's instructions: `rtxtInstructions` below its bar of keys. The text stands on
/// paper, light in every theme, as its colours are meant for that. `lblLeftOut` below it tells when
/// the text has parts that editing it loses.
class InstructionsEditor : public QWidget {
    Q_OBJECT

public:
    /// `textFont` is that of text without a font of its own. Door and context outlive the editor.
    InstructionsEditor(const QFont& textFont, MessageDoor& messages, const ProgramContext& context,
                       QWidget* parent = nullptr);

    /// Plain or rich text.
    void SetInstructions(const std::string& instructions);
    /// Byte by byte what was set, unless it was edited; then rich text, or an empty text if nothing
    /// is left.
    [[nodiscard]] std::string Instructions() const;
    /// False if the box of sizes holds none: then the user has been told, and is back there.
    [[nodiscard]] bool TakeTypedSize();

private:
    void SetUpPaper(const QFont& textFont);
    void SetUpLeftOut();

    QTextEdit* m_text; ///< `rtxtInstructions`
    QLabel* m_leftOut; ///< `lblLeftOut`
    FormatToolBar* m_bar;
    std::string m_before;
};

} // namespace zol
