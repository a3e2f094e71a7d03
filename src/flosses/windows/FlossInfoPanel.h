// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <memory>

class QComboBox;

namespace Ui {
class FlossInfoPanel;
}

namespace zol {

class MessageDoor;
class PaletteEditor;
class SettingsDoor;

/// The selected floss of the palette editor, in the tabs of `tbFlossInfo`: its texts, its symbol
/// with strands and line style, its non-representative colour.
class FlossInfoPanel : public QWidget {
    Q_OBJECT

public:
    explicit FlossInfoPanel(QWidget* parent = nullptr);
    ~FlossInfoPanel() override;

    /// The fields call the editor as long as `whole` lives: a field that loses the focus when its
    /// window goes would otherwise call an editor that has gone before. All of it outlives `whole`.
    void SetEditor(PaletteEditor& editor, SettingsDoor& store, MessageDoor& messages,
                   QObject& whole);
    /// Fills the parts with the selected entry; they are off without one.
    void ShowFlossInfo();

Q_SIGNALS:
    /// The entry looks or reads otherwise now.
    void Edited();

private:
    void FillLists();
    void ConnectFields(QObject& whole);
    void ConnectParts();
    void SayIf(bool edited);
    void ShowTexts(int entry);
    void ShowSymbol(int entry);
    void ShowStrands(QComboBox& list, int strands);
    void ShowLineStyle(int style);
    void SetStrands();
    void SetLineStyle(int line);
    void SetNonRep(int line);
    void CustomizeNonRep();

    std::unique_ptr<Ui::FlossInfoPanel> m_ui;
    PaletteEditor* m_editor = nullptr;
    SettingsDoor* m_store = nullptr;
    MessageDoor* m_messages = nullptr;
};

} // namespace zol
