// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <array>
#include <memory>

#include "model/ZOLTypes.h"

class QLineEdit;

namespace Ui {
class frmColors;
}

namespace zol {

class AvailColors;
class ColorField;
class SettingsDoor;
struct ProgramContext;

/// What the colour mixer is given by its caller; any of it may be missing.
struct ColorMixerDesk {
    SettingsDoor* Store = nullptr;           ///< remembers the window's size
    const AvailColors* Threads = nullptr;    ///< a catalogue whose colours are offered
    const ProgramContext* Context = nullptr; ///< how its words are spelled; the title is given so
};

/// The colour mixer: a colour is taken from a field, made darker or brighter, or typed as three
/// channels. All of them show the same colour at any time.
class frmColors : public QDialog {
    Q_OBJECT

public:
    frmColors(const QString& title, Colour start, const ColorMixerDesk& desk = {},
              QWidget* parent = nullptr);
    ~frmColors() override;

    /// Opens the mixer. The colour as 0x00BBGGRR, or -1 when it was cancelled.
    [[nodiscard]] static int CreateCustomColor(const QString& title, Colour start, QWidget* parent,
                                               const ColorMixerDesk& desk = {});

    /// The colour that the three channels give.
    [[nodiscard]] Colour Chosen() const;

private:
    void FillFields(const AvailColors* threads);
    void ConnectParts();
    void TakeTyped();
    void TakeFromField(Colour color);
    void TakePercent(int percent);
    void ShowChannels(Colour color);
    /// Sample and fields; `except` chose the colour itself and knows its place better.
    void ShowColor(const ColorField* except);
    [[nodiscard]] std::array<QLineEdit*, 3> Channels() const;
    [[nodiscard]] std::array<ColorField*, 3> Fields() const;

    std::unique_ptr<Ui::frmColors> m_ui;
    Colour m_itself; ///< the colour at 100 percent
};

} // namespace zol
