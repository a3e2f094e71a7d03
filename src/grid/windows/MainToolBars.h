// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <string_view>

class QAction;
class QMainWindow;
class QToolBar;
class QToolButton;
class QWidget;

namespace zol {

class MainCommands;

/// The row of commands above the cloth (`tbKorvantaToolBar`) and the column of stitches at its left
/// (`tbStitchToolbar`). The object names of their buttons are the tool keys. A button and the menu
/// item of the same command are two objects that show one action.
class MainToolBars {
public:
    /// `zoomBox` is taken over and stands behind the zoom buttons.
    MainToolBars(QMainWindow& window, const MainCommands& commands, QWidget* zoomBox);

    /// By its tool key, "DRAWMODE_LINES".
    [[nodiscard]] QToolButton& At(std::string_view key) const;
    [[nodiscard]] QToolBar& Commands() const { return *m_commands; }
    [[nodiscard]] QToolBar& Stitches() const { return *m_stitches; }

    /// One smart button in place of the four fixed ones, or the reverse.
    void UseSmartStitches(bool threeQuarters, bool quarters);

private:
    void Fill(QToolBar& bar, const MainCommands& commands, std::string_view keys);
    void Show(std::string_view keys, bool visible);

    QToolBar* m_commands;
    QToolBar* m_stitches;
    QWidget* m_zoomBox;
    std::map<std::string_view, QToolButton*> m_buttons;
    std::map<std::string_view, QAction*> m_places; ///< what shows and hides a button
};

} // namespace zol
