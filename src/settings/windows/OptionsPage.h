// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>
#include <QWidget>

#include "settings/windows/OptionBindings.h"
#include "settings/windows/OptionsDesk.h"

class QPushButton;

namespace zol {

/// One page of the options dialog. A page only reads and shows its controls.
class OptionsPage : public QWidget {
    Q_OBJECT

public:
    OptionsPage(const OptionsDesk& desk, QWidget* parent);

    virtual void FillOptionLists() = 0;
    virtual void LoadOptionControls(const Options& options) { m_bindings.Load(options); }
    virtual void ApplyOptionControls(Options& options) const { m_bindings.Store(options); }

protected:
    [[nodiscard]] OptionBindings& Bindings() { return m_bindings; }
    [[nodiscard]] const OptionsDesk& Desk() const { return m_desk; }
    [[nodiscard]] std::string ColorWord() const { return m_desk.Context.ColorWord(); }

    /// A list of colours, by ColorLists::List, with the button that customizes it.
    struct ColorChoice {
        QComboBox* Combo;
        QPushButton* Customize;
        int List;
    };
    void FillColors(const ColorChoice& choice);
    void ConnectCustomize(const ColorChoice& choice);

private:
    OptionBindings m_bindings;
    const OptionsDesk& m_desk;
};

} // namespace zol
