// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>

#include <filesystem>
#include <functional>

#include "gui/DrawnProgram.h"
#include "import/windows/PictureView.h"
#include "import/windows/frmImportWizard.h"
#include "support/DialogDriver.h"

namespace zol::test {

/// Lets a user work in the wizard that the command opens.
inline void Import(DrawnProgram& program, const std::function<void(frmImportWizard&)>& work) {
    DialogDriver driver({[&work](QDialog& dialog) {
        auto* wizard = qobject_cast<frmImportWizard*>(&dialog);
        QVERIFY(wizard != nullptr);
        work(*wizard);
        if (wizard->isVisible()) {
            wizard->reject();
        }
    }});
    program.Choose("mnuImport");
    program.Settle();
    QVERIFY(driver.AllDone());
}

inline std::filesystem::path Sample(const char* name) {
    return std::filesystem::path(SourceFolder) / "data/samples/pictures" / name;
}

inline void Next(frmImportWizard& wizard) {
    ClickIn(wizard, "cmdNext");
}

/// A file chosen by its dialog, and on to the size screen.
inline void TakeFile(DrawnProgram& program, frmImportWizard& wizard, const char* sample) {
    QCOMPARE(wizard.CurrentScreen(), 0);
    program.User.files = {Sample(sample)};
    ClickIn(wizard, "cmdBrowse");
    QTRY_VERIFY(PartOf<PictureView>(wizard, "LPicPreview").Shown() != nullptr);
    for (int screen = 1; screen <= 3; ++screen) {
        Next(wizard);
        QCOMPARE(wizard.CurrentScreen(), screen);
    }
}

/// From the size screen to the mapping screen.
inline void GoToMapping(frmImportWizard& wizard) {
    Next(wizard);
    QCOMPARE(wizard.CurrentScreen(), 4);
    Next(wizard);
    QCOMPARE(wizard.CurrentScreen(), 5);
}

inline void ChooseFamily(frmImportWizard& wizard, const QString& maxColors) {
    auto& family = PartOf<QComboBox>(wizard, "cmbFlossFamily");
    QVERIFY(family.count() > 0);
    family.setFocus();
    QTest::keyClick(&family, Qt::Key_Home);
    TypeIn(wizard, "txtMaxColors", maxColors);
}

inline void SetWidth(frmImportWizard& wizard, const QString& stitches) {
    ClickIn(wizard, "optStitches");
    TypeIn(wizard, "txtWidth", stitches);
}

} // namespace zol::test
