// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include "import/windows/DeskKit.h"
#include "import/windows/PictureView.h"
#include "import/windows/SourceScreen.h"
#include "support/DialogHands.h"

namespace zol::test {

/// The wizard's first screen, shown.
struct SourceScene {
    explicit SourceScene(DeskKit& kit) : Screen(kit.Desk, nullptr) {
        Screen.resize(800, 500);
        Screen.DisplayScreen(false);
        Screen.show();
        (void)QTest::qWaitForWindowActive(&Screen);
    }
    [[nodiscard]] SharedPicture Picture() {
        return PartOf<PictureView>(Screen, "LPicPreview").Shown();
    }
    [[nodiscard]] QString Name() { return PartOf<QLineEdit>(Screen, "txtFileName").text(); }
    [[nodiscard]] bool CanAcquire() {
        return PartOf<QPushButton>(Screen, "cmdAcquire").isEnabled();
    }

    SourceScreen Screen;
};

/// A folder that stands for the system's temporary one, where the last picture lies; each takes the
/// place of the one before.
inline void UseTempFolder(std::unique_ptr<QTemporaryDir>& folder) {
    // Else the new one would lie in the old one.
    folder.reset();
    qunsetenv("TMPDIR");
    folder = std::make_unique<QTemporaryDir>();
    qputenv("TMPDIR", folder->path().toUtf8());
}

} // namespace zol::test
