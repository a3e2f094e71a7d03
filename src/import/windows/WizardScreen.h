// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QWidget>

namespace zol {

/// One screen of the import wizard: a picture with what can be done to it. It works on a picture
/// of its own, and hands that on to the picture that travels when it is left.
class WizardScreen : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// What the wizard says above the screen.
    [[nodiscard]] virtual QString Instruction() const = 0;
    /// The screen comes into view. Without `keepPicture` its picture is taken anew from the one
    /// that travels; otherwise what was there is shown.
    virtual void DisplayScreen(bool keepPicture) = 0;
    /// Checks the screen's fields and hands its work on. False: the user has been told what is
    /// wrong, the field at fault has the focus, and nothing was handed on.
    [[nodiscard]] virtual bool ValidateScreen() = 0;
    /// The wizard goes out of sight. Whatever still runs is called off, since what it would tell
    /// would come up over other work.
    virtual void Suspend() {}
    /// It comes back with this screen: what was called off and is still wanted begins anew.
    virtual void Resume() {}
};

} // namespace zol
