// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTextCharFormat>
#include <QToolBar>

#include <array>

#include "model/ProgramContext.h"

class QAction;
class QComboBox;
class QFontComboBox;
class QTextEdit;

namespace zol {

/// `Toolbar1`: how the selected text of an editor looks, or what is typed next. It shows the looks
/// at the cursor, and keeps the keys of
/// lists. The editor and the door outlive it.
class FormatToolBar : public QToolBar {
    Q_OBJECT

public:
    /// The context says how colour is spelled.
    FormatToolBar(QTextEdit& editor, MessageDoor& messages, const ProgramContext& context,
                  QWidget* parent = nullptr);

    /// Takes what was typed into the size's box but not confirmed. False if that is no size: then
    /// the user has been told, and is back in the box.
    [[nodiscard]] bool TakeTypedSize();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A key of the bar, with its shortcut in the editor.
    QAction* AddKey(const char* key, const char* icon, const QString& caption,
                    const QKeySequence& shortcut);
    void AddBoxes();
    void AddLooks();
    void AddAlignments();
    void AddColors(const ProgramContext& context);
    void AddBullets();

    void ShowLooks();
    void Merge(const QTextCharFormat& format);
    void SetColor(const QBrush& color);
    void ChooseColor();
    void SetBullets(bool on);
    /// Enter in an empty item ends the list. False if the cursor is not in one.
    bool EndEmptyItem();
    /// What stands in a box goes to the text. False if it cannot be.
    bool Take(const QComboBox& box);
    void TakeFont();
    bool TakeSize();
    [[nodiscard]] bool TakeOrTell(QComboBox& box);
    [[nodiscard]] QFont FontAtCursor() const;

    QTextEdit& m_editor;
    MessageDoor& m_messages;
    QFontComboBox* m_fonts = nullptr; ///< `cmbTBFontName`
    QComboBox* m_sizes = nullptr;     ///< `cmbTBFontSize`
    QAction* m_bold = nullptr;
    QAction* m_italic = nullptr;
    QAction* m_underline = nullptr;
    std::array<QAction*, 3> m_alignments{}; ///< left, center, right
    QAction* m_bullets = nullptr;
    QString m_shownFont; ///< in the boxes when they last followed the text
    QString m_shownSize;
};

} // namespace zol
