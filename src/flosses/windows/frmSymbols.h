// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>
#include <optional>
#include <string>

#include "flosses/editing/PaletteDialogs.h"
#include "flosses/editing/SymbolChoice.h"

namespace Ui {
class frmSymbols;
}

namespace zol {

class SettingsDoor;

/// Chooses the symbol of an entry of a palette, or of a new floss.
class frmSymbols : public QDialog {
    Q_OBJECT

public:
    /// Entry 0 is a new floss that looks like `look`; nothing is known of it without one. The
    /// palette must outlive the window.
    frmSymbols(const Palette& palette, int entry, const std::optional<FlossLook>& look,
               MessageDoor& messages, SettingsDoor& store, QWidget* parent = nullptr);
    ~frmSymbols() override;

    [[nodiscard]] std::string Symbol() const { return m_choice.Text(); }

private:
    void ShowChoice();

    std::unique_ptr<Ui::frmSymbols> m_ui;
    const Palette& m_palette;
    SymbolChoice m_choice;
};

/// The symbol choice of the whole program: a palette that needs a symbol for a new entry opens
/// frmSymbols over the active window.
class SymbolWindow : public SymbolDoor {
public:
    SymbolWindow(MessageDoor& messages, SettingsDoor& store)
        : m_messages(messages),
          m_store(store) {}
    [[nodiscard]] std::optional<std::string> ChooseSymbol(const Palette& palette) override;

private:
    MessageDoor& m_messages;
    SettingsDoor& m_store;
};

} // namespace zol
