// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <utility>

#include "import/windows/DeskKit.h"
#include "import/windows/PictureViewKit.h"
#include "support/DialogHands.h"

namespace zol::test {

/// A screen of the wizard in a dialog, with the picture that came from the screen before.
template<typename WizardScreenType>
class ScreenScene {
public:
    /// `view` names the screen's picture.
    ScreenScene(const char* view, SharedPicture picture) : m_view(view) {
        Kit.Work.TheImage = std::move(picture);
        Screen = new WizardScreenType(Kit.Desk, &Dialog);
        (new QVBoxLayout(&Dialog))->addWidget(Screen);
        Screen->DisplayScreen(false);
        Dialog.resize(800, 500);
        Dialog.show();
        Dialog.activateWindow();
        if (!QTest::qWaitForWindowActive(&Dialog)) {
            qFatal("the dialog does not come up");
        }
    }
    [[nodiscard]] PictureView& View() { return PartOf<PictureView>(*Screen, m_view); }
    [[nodiscard]] const Picture& Shown() { return *View().Shown(); }
    [[nodiscard]] bool Offers(const char* button) {
        return PartOf<QPushButton>(*Screen, button).isEnabled();
    }
    void Press(const char* button) { ClickIn(*Screen, button); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        View().setFocus();
        QTest::keyClick(&View(), key, modifiers);
    }

    DeskKit Kit;
    QDialog Dialog;
    WizardScreenType* Screen = nullptr;

private:
    const char* m_view;
};

} // namespace zol::test
