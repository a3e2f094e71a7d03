// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "import/ImportWork.h"
#include "import/SampleCatalogue.h"
#include "import/windows/frmImportWizard.h"
#include "model/ByteStream.h"
#include "model/Pattern.h"
#include "model/ProgramContext.h"
#include "settings/Options.h"
#include "support/DialogHands.h"
#include "support/RecordingDoors.h"
#include "support/ScriptedUser.h"
#include "support/TempFolder.h"

namespace zol::test {

/// The import wizard with a design of 30 by 20 and a catalogue of three threads, in a folder of
/// its own.
class WizardKit {
public:
    explicit WizardKit(std::optional<SquareRect> editBox = std::nullopt) {
        qputenv("TMPDIR", m_folder.Path().c_str());
        Context.AppPath = m_folder.Path();
        QVERIFY(
            WriteCatalogue(Context, "few.col", "Few Threads",
                           {MakeColour(200, 0, 0), MakeColour(0, 200, 0), MakeColour(0, 0, 200)}));
        Design.Initialize(30, 20, 14, 14);
        Design.SetStitch(3, 4, 1, 1, 0);
        Create = [this](ImportWork& work) { return CreateThePattern(work); };
        Open(editBox);
    }
    ~WizardKit() {
        Wizard.reset();
        qunsetenv("TMPDIR");
    }
    WizardKit(const WizardKit&) = delete;
    WizardKit& operator=(const WizardKit&) = delete;

    /// A picture of red and blue halves.
    [[nodiscard]] std::filesystem::path PictureFile(const std::string& name = "photo.png",
                                                    QSize size = {40, 30}) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(qRgb(197, 0, 0));
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width() / 2; ++x) {
                image.setPixel(x, y, qRgb(0, 0, 197));
            }
        }
        std::filesystem::path file = m_folder / name;
        std::filesystem::create_directories(file.parent_path());
        if (!image.save(QString::fromStdString(file.string()))) {
            qFatal("the picture could not be written");
        }
        return file;
    }
    ImportStatus CreateThePattern(ImportWork& work) {
        ++Created;
        return work.Session.CreateThePattern(Design, work.MaxColors, work.Size.ClothCountX,
                                             work.Size.ClothCountY);
    }
    [[nodiscard]] std::string DesignBytes() {
        ByteWriter stream;
        return Design.Save({}, stream, 0) != 0
                   ? std::string("cannot be written")
                   : std::string{stream.Bytes().begin(), stream.Bytes().end()};
    }

    template<typename Widget = QWidget>
    [[nodiscard]] Widget& Part(const char* name) {
        return PartOf<Widget>(*Wizard, name);
    }
    [[nodiscard]] QString Text(const char* label) { return Part<QLabel>(label).text(); }
    void Click(const char* button) { ClickIn(*Wizard, button); }
    /// From the first screen on, with the picture typed.
    void GoTo(int screen) {
        if (Wizard->CurrentScreen() == 0) {
            TypeIn(*Wizard, "txtFileName", QString::fromStdString(PictureFile().string()));
        }
        while (Wizard->CurrentScreen() < screen) {
            const int before = Wizard->CurrentScreen();
            Click("cmdNext");
            QCOMPARE(Wizard->CurrentScreen(), before + 1);
        }
    }
    void ChooseFamily() {
        Part("cmbFlossFamily").setFocus();
        QTest::keyClick(&Part("cmbFlossFamily"), Qt::Key_Home);
    }

    ProgramContext Context;
    MapSettings Store;
    Options Settings;
    ScriptedUser User;
    Pattern Design{Context};
    int Created = 0; ///< how often the wizard had the design written
    std::function<ImportStatus(ImportWork&)> Create;
    std::unique_ptr<frmImportWizard> Wizard;

private:
    void Open(std::optional<SquareRect> editBox) {
        Settings.Units = "inches";
        Wizard = std::make_unique<frmImportWizard>(
            frmImportWizard::Outside{Context, Design, Store, Settings, User, User, nullptr,
                                     [this](ImportWork& work) { return Create(work); }},
            editBox);
        Wizard->show();
        QVERIFY(QTest::qWaitForWindowActive(Wizard.get()));
    }

    TempFolder m_folder;
};

} // namespace zol::test
