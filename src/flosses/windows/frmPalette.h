// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <functional>
#include <memory>
#include <string>

#include "flosses/editing/PaletteEditor.h"
#include "flosses/windows/PaletteWindows.h"

namespace Ui {
class frmPalette;
}

namespace zol {

/// What the palette editor's window is opened on and through. All of it outlives the window.
struct PaletteDesk {
    Pattern& Design;
    MessageDoor& Messages;
    SettingsDoor& Store;
    std::string Catalogue; ///< file name of the one that is shown first
    int SelectedFloss = 1;
    std::optional<SquareRect> EditBox = {};
    std::function<void()> BeforeFirstChange = {};
};

/// The window "Floss Palette": the available flosses of a catalogue beside the flosses of the
/// pattern's palette, which it changes in place as the user goes.
class frmPalette : public QDialog {
    Q_OBJECT

public:
    explicit frmPalette(const PaletteDesk& desk, QWidget* parent = nullptr);
    ~frmPalette() override;

    [[nodiscard]] int SelectedFloss() const { return m_editor.SelectedFloss(); }
    [[nodiscard]] bool HasChanged() const { return m_editor.HasChanged(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FillOwnLists();
    void ConnectAvailable();
    void ConnectPalette();
    void ConnectDragging();

    void ShowCatalogues();
    /// LoadAvailableColorsList: what is listed and which row is selected.
    void LoadAvailableColorsList();
    /// BuildDisplayGrid: what the palette has become, and the selected floss.
    void BuildDisplayGrid();
    void EnableParts();
    void Search();
    void ToggleBlend();
    void SelectAvailable(int row);
    void DropAvailable(const QPoint& globalPos);
    [[nodiscard]] int EntryUnder(const QPoint& globalPos) const;

    std::unique_ptr<Ui::frmPalette> m_ui;
    MessageDoor& m_messages;
    SettingsDoor& m_store;
    PaletteWindows m_windows;
    PaletteEditor m_editor;
    QObject m_whole; ///< what fields call the editor through; last, so that it dies first
};

} // namespace zol
