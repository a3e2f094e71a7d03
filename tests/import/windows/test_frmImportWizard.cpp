// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QKeySequence>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <set>

#include "import/windows/PictureView.h"
#include "import/windows/PictureViewKit.h"
#include "import/windows/WizardKit.h"
#include "support/Arrivals.h"
#include "windowkit/LatestJob.h"

namespace zol::test {

using Texts = std::vector<std::string>;

/// The wizard's six screens as a whole, worked by mouse and keys.
class test_frmImportWizard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingChosenStaysOnTheFirstScreen();
    void theScreensFollowEachOther_data();
    void theScreensFollowEachOther();
    void backHandsTheScreensWorkOn();
    void backGoesAlsoFromAFaultyScreen();
    void finishSaysBeforehandWhatItReplaces();
    void finishWorksWithoutAPreview();
    void finishStaysWhileTheNumberOfColorsIsWrong();
    void enterInAFieldIsForTheField();
    void cancelDuringFinishLeavesDesignAndWizard_data();
    void cancelDuringFinishLeavesDesignAndWizard();
    void aFailureIsToldAndTheWizardStays();
    void cancelLeavesTheDesign_data();
    void cancelLeavesTheDesign();
    void aHiddenWizardResumesWithAllItsState();
    void resetBringsBackWhatItSays();
    void aFailureBehindTheHiddenWizardSaysNothing();
    void aResizeThatWasCalledOffBeginsAnewOnResuming();
    void anEditBoxWhosePaletteChangedIsLockedAnew();
    void everyScreenFitsWhateverItsNames();
    void tabGoesThroughTheScreenAndThenTheButtons();
    void noTwoMnemonicsOfAScreenAreAlike();
};

namespace {

const char* const Instructions[] = {
    "Select from where you wish to get the image to import",
    "Click and drag the mouse cursor to select the area of the image you wish to keep, and click "
    "the Crop button.",
    "Here you can erase sections of the image using the Eraser tool or by selecting and clearing "
    "areas.",
    "This screen shows what the acual size of your stitched pattern will be when completed.",
    "You can use this screen to fix the colors in your image before importing.",
    "Select your Floss Family or Palette and maximum number of colors to see what your pattern "
    "will look like."};

} // namespace

void test_frmImportWizard::nothingChosenStaysOnTheFirstScreen() {
    WizardKit kit;
    QCOMPARE(kit.Wizard->windowTitle(), QStringLiteral("Import Wizard"));
    QVERIFY(!kit.Part("cmdBack").isEnabled());
    QVERIFY(!kit.Wizard->HasWork());
    kit.Click("cmdNext");
    QCOMPARE(kit.Wizard->CurrentScreen(), 0);
    QTest::keyClick(&kit.Part("txtFileName"), Qt::Key_Return);
    QCOMPARE(kit.Wizard->CurrentScreen(), 0);
    QCOMPARE(kit.User.ToldTexts(),
             (Texts{"You must select an image to import", "You must select an image to import"}));
    QVERIFY(kit.Part("txtFileName").hasFocus());
}

void test_frmImportWizard::theScreensFollowEachOther_data() {
    QTest::addColumn<bool>("byKeys");
    QTest::newRow("mouse") << false;
    QTest::newRow("keys") << true;
}

void test_frmImportWizard::theScreensFollowEachOther() {
    QFETCH(bool, byKeys);
    WizardKit kit;
    const auto press = [&](const char* button, Qt::Key letter) {
        if (byKeys) {
            QTest::keyClick(kit.Wizard.get(), letter, Qt::AltModifier);
        } else {
            kit.Click(button);
        }
    };
    TypeIn(*kit.Wizard, "txtFileName", QString::fromStdString(kit.PictureFile().string()));
    for (int screen = 0; screen < 6; ++screen) {
        QTRY_COMPARE(kit.Wizard->CurrentScreen(),
                     screen); // a button that keys press stays down a while
        QCOMPARE(kit.Text("lblInstruction"), QLatin1String(Instructions[screen]));
        QCOMPARE(kit.Part("cmdBack").isEnabled(), screen > 0);
        QCOMPARE(kit.Part<QPushButton>("cmdNext").text(),
                 screen < 5 ? QStringLiteral("&Next") : QStringLiteral("&Finish"));
        if (screen < 5) {
            press("cmdNext", Qt::Key_N);
        }
    }
    kit.ChooseFamily(); // going back tells what is wrong otherwise
    for (int screen = 4; screen >= 0; --screen) {
        press("cmdBack", Qt::Key_B);
        QTRY_COMPARE(kit.Wizard->CurrentScreen(),
                     screen); // a button that keys press stays down a while
        QCOMPARE(kit.Text("lblInstruction"), QLatin1String(Instructions[screen]));
    }
    QVERIFY(kit.User.told.empty());
}

void test_frmImportWizard::backHandsTheScreensWorkOn() {
    WizardKit kit;
    kit.GoTo(2);
    Drag(kit.Part<PictureView>("lpicErase"), {20, 15}, {20, 15});
    QCOMPARE(kit.Part<PictureView>("lpicErase").Shown()->ImagePixel(20, 15), EraseColor);
    kit.Click("cmdBack");
    // The crop screen shows what it held; what it is put back to is what the eraser handed on.
    auto& crop = kit.Part<PictureView>("lpicCrop");
    QVERIFY(crop.Shown()->ImagePixel(20, 15) != EraseColor);
    kit.Click("cmdResetCrop");
    kit.Click("cmdNext");
    QCOMPARE(kit.Part<PictureView>("lpicErase").Shown()->ImagePixel(20, 15), EraseColor);
}

void test_frmImportWizard::backGoesAlsoFromAFaultyScreen() {
    WizardKit kit;
    kit.GoTo(2);
    Drag(kit.Part<PictureView>("lpicErase"), {20, 15}, {20, 15});
    kit.GoTo(3);
    TypeIn(*kit.Wizard, "txtWidth", QStringLiteral("0"));
    kit.Click("cmdNext");
    QCOMPARE(kit.Wizard->CurrentScreen(), 3);
    QVERIFY(kit.Part("txtWidth").hasFocus());
    kit.Click("cmdBack");
    QCOMPARE(kit.User.ToldTexts(), (Texts{"Pattern width must be greater than zero",
                                          "Pattern width must be greater than zero"}));
    QCOMPARE(kit.Wizard->CurrentScreen(), 2);
    // Nothing was handed on, so the screen begins anew with the picture that travels.
    QCOMPARE(kit.Part<PictureView>("lpicErase").Shown()->ImagePixel(20, 15), EraseColor);
    QVERIFY(!kit.Part("cmdUndo").isEnabled());
}

void test_frmImportWizard::finishSaysBeforehandWhatItReplaces() {
    {
        WizardKit kit;
        for (int screen = 0; screen < 5; ++screen) {
            kit.GoTo(screen);
            QVERIFY(kit.Text("lblReplaces").isEmpty());
        }
        kit.GoTo(5);
        QVERIFY(kit.Part("lblReplaces").isVisible());
        QCOMPARE(kit.Text("lblReplaces"),
                 QStringLiteral("Finish replaces the whole design. Only Undo brings it back."));
        kit.Click("cmdBack");
        QVERIFY(kit.Text("lblReplaces").isEmpty());
    }
    // Into the edit box nothing else is touched.
    WizardKit kit(SquareRect{2, 3, 9, 8});
    kit.GoTo(3);
    kit.Click("chkUseEditBox");
    kit.GoTo(5);
    QVERIFY(kit.Text("lblReplaces").isEmpty());
}

void test_frmImportWizard::finishWorksWithoutAPreview() {
    WizardKit kit;
    kit.GoTo(5);
    kit.ChooseFamily();
    kit.Click("cmdNext");
    QVERIFY(!kit.Wizard->isVisible());
    QCOMPARE(kit.Wizard->result(), int(QDialog::Accepted));
    QCOMPARE(kit.Created, 1);
    QCOMPARE(kit.Design.GetPatternWidth(), 30);
    QCOMPARE(kit.Design.GetPalette().GetEntriesCount(), 2);
    QCOMPARE(kit.Design.GetStitchCount(29, 10), 1);
    QVERIFY(kit.User.told.empty());
}

void test_frmImportWizard::enterInAFieldIsForTheField() {
    WizardKit kit;
    kit.GoTo(4);
    TypeIn(*kit.Wizard, "txtAdjuster", QStringLiteral("40"));
    QTest::keyClick(&kit.Part("txtAdjuster"), Qt::Key_Return);
    QCOMPARE(kit.Wizard->CurrentScreen(), 4);
    QCOMPARE(PartOf<QSlider>(*kit.Wizard, "sliAdjuster").value(), 40);
    kit.GoTo(5);
    kit.ChooseFamily();
    TypeIn(*kit.Wizard, "txtMaxColors", QStringLiteral("1"));
    QTest::keyClick(&kit.Part("txtMaxColors"), Qt::Key_Return);
    QVERIFY(kit.Wizard->isVisible());
    QCOMPARE(kit.Created, 0);
    QTRY_VERIFY(PartOf<PictureView>(*kit.Wizard, "lpicPreviewPattern").Shown() != nullptr);
}

void test_frmImportWizard::finishStaysWhileTheNumberOfColorsIsWrong() {
    WizardKit kit;
    kit.GoTo(5);
    kit.Click("cmdNext");
    kit.ChooseFamily();
    TypeIn(*kit.Wizard, "txtMaxColors", QStringLiteral("201"));
    kit.Click("cmdNext");
    TypeIn(*kit.Wizard, "txtMaxColors", QStringLiteral("0"));
    QTest::keyClick(&kit.Part("txtMaxColors"), Qt::Key_Return);
    QCOMPARE(kit.User.ToldTexts(), (Texts{"You must select a floss family to import.",
                                          "Pattern can contain no more than 200 colors",
                                          "Pattern must contain at least one color"}));
    QVERIFY(kit.Part("txtMaxColors").hasFocus());
    QCOMPARE(kit.Wizard->CurrentScreen(), 5);
    QVERIFY(kit.Wizard->isVisible());
    QCOMPARE(kit.Created, 0);
}

void test_frmImportWizard::cancelDuringFinishLeavesDesignAndWizard_data() {
    QTest::addColumn<bool>("byKeys");
    QTest::newRow("click") << false;
    QTest::newRow("Escape") << true;
}

void test_frmImportWizard::cancelDuringFinishLeavesDesignAndWizard() {
    QFETCH(bool, byKeys);
    WizardKit kit;
    kit.GoTo(5);
    kit.ChooseFamily();
    const std::string before = kit.DesignBytes();
    QWidget& strip = kit.Part("picStatus");
    kit.Create = [&](ImportWork& work) {
        // The work goes on until the strip is there and has been used.
        bool pressed = false;
        QElapsedTimer time;
        time.start();
        while (kit.Context.Progress->MayGoOn() && !time.hasExpired(10000)) {
            if (strip.isVisible() && !pressed) {
                pressed = true;
                QMetaObject::invokeMethod(
                    &strip,
                    [&] {
                        if (byKeys) {
                            QTest::keyClick(kit.Wizard->windowHandle(), Qt::Key_Escape);
                        } else {
                            QTest::mouseClick(&PartOf<QWidget>(strip, "cmdCancelStatus"),
                                              Qt::LeftButton);
                        }
                    },
                    Qt::QueuedConnection);
            }
        }
        return kit.CreateThePattern(work);
    };
    kit.Click("cmdNext");
    QVERIFY(kit.Wizard->isVisible());
    QVERIFY(!strip.isVisible());
    QCOMPARE(kit.Wizard->CurrentScreen(), 5);
    QCOMPARE(kit.Created, 1);
    QCOMPARE(kit.DesignBytes(), before);
    QVERIFY(kit.User.told.empty());
    QVERIFY(kit.Context.Progress == nullptr);
    QCOMPARE(kit.Part<QComboBox>("cmbFlossFamily").currentText(), QStringLiteral("Few Threads"));
    // All is there for another try.
    kit.Create = [&kit](ImportWork& work) { return kit.CreateThePattern(work); };
    kit.Click("cmdNext");
    QVERIFY(!kit.Wizard->isVisible());
    QVERIFY(kit.DesignBytes() != before);
}

void test_frmImportWizard::aFailureIsToldAndTheWizardStays() {
    WizardKit kit;
    kit.GoTo(5);
    kit.ChooseFamily();
    kit.Create = [](ImportWork&) {
        return ImportStatus{ImportStatus::Outcome::Failed, "Subscript out of range"};
    };
    kit.Click("cmdNext");
    QCOMPARE(kit.User.ToldTexts(), Texts{"Subscript out of range"});
    QCOMPARE(kit.User.told[0].icon, MessageIcon::Exclamation);
    QCOMPARE(kit.User.told[0].title, std::string("Import Wizard"));
    QVERIFY(kit.Wizard->isVisible());
    QCOMPARE(kit.Wizard->CurrentScreen(), 5);
}

void test_frmImportWizard::cancelLeavesTheDesign_data() {
    QTest::addColumn<int>("screen");
    QTest::addColumn<int>("way");
    for (const int screen : {0, 3, 5}) {
        for (int way = 0; way < 3; ++way) {
            QTest::addRow("%d from %d", way, screen) << screen << way;
        }
    }
}

void test_frmImportWizard::cancelLeavesTheDesign() {
    QFETCH(int, screen);
    QFETCH(int, way);
    WizardKit kit;
    const std::string before = kit.DesignBytes();
    kit.GoTo(screen);
    if (way == 0) {
        kit.Click("cmdCancel");
    } else if (way == 1) {
        QTest::keyClick(kit.Wizard.get(), Qt::Key_Escape);
    } else {
        kit.Wizard->close();
    }
    QVERIFY(!kit.Wizard->isVisible());
    QCOMPARE(kit.Wizard->result(), int(QDialog::Rejected));
    QCOMPARE(kit.DesignBytes(), before);
    QCOMPARE(kit.Created, 0);
    QVERIFY(kit.User.told.empty());
}

void test_frmImportWizard::aHiddenWizardResumesWithAllItsState() {
    WizardKit kit;
    kit.GoTo(1);
    const QString file = kit.Part<QLineEdit>("txtFileName").text();
    Drag(kit.Part<PictureView>("lpicCrop"), {0, 0}, {40, 20});
    kit.Click("cmdCrop");
    kit.GoTo(2);
    kit.Click("optEraser2");
    Drag(kit.Part<PictureView>("lpicErase"), {5, 5}, {5, 5});
    kit.GoTo(3);
    kit.Click("optStitches");
    TypeIn(*kit.Wizard, "txtWidth", QStringLiteral("20"));
    kit.Click("chkSmoothColors");
    kit.GoTo(4);
    QTest::keyClick(&kit.Part("sliAdjuster"), Qt::Key_PageUp);
    kit.Click("cmdApplyColor");
    kit.GoTo(5);
    kit.ChooseFamily();
    TypeIn(*kit.Wizard, "txtMaxColors", QStringLiteral("2"));
    kit.Click("cmdPreviewPattern");
    auto& preview = kit.Part<PictureView>("lpicPreviewPattern");
    QTRY_VERIFY(preview.Shown() != nullptr && !preview.Shown()->IsEmpty());
    const SharedPicture shown = preview.Shown();
    kit.Click("cmdCancel");
    QVERIFY(!kit.Wizard->isVisible());
    QVERIFY(kit.Wizard->HasWork());

    kit.Wizard->Resume();
    kit.Wizard->show();
    QVERIFY(QTest::qWaitForWindowActive(kit.Wizard.get()));
    QCOMPARE(kit.Wizard->CurrentScreen(), 5);
    QCOMPARE(preview.Shown(), shown);
    QCOMPARE(kit.Part<QComboBox>("cmbFlossFamily").currentText(), QStringLiteral("Few Threads"));
    QCOMPARE(kit.Part<QLineEdit>("txtMaxColors").text(), QStringLiteral("2"));
    kit.Click("cmdBack");
    QVERIFY(kit.Part("cmdUndoColor").isEnabled());
    kit.Click("cmdBack");
    QCOMPARE(kit.Part<QLineEdit>("txtWidth").text(), QStringLiteral("20"));
    QCOMPARE(kit.Part<QLineEdit>("txtHeight").text(), QStringLiteral("10"));
    QVERIFY(!kit.Part<QAbstractButton>("chkSmoothColors").isChecked());
    kit.Click("cmdBack");
    QVERIFY(kit.Part<QRadioButton>("optEraser2").isChecked());
    QVERIFY(kit.Part("cmdUndo").isEnabled());
    QCOMPARE(kit.Part<PictureView>("lpicErase").Shown()->ImagePixel(5, 5), EraseColor);
    kit.Click("cmdBack");
    QCOMPARE(kit.Part<PictureView>("lpicCrop").Shown()->ImageHeight(), 20);
    kit.Click("cmdBack");
    QCOMPARE(kit.Part<QLineEdit>("txtFileName").text(), file);
    QVERIFY(kit.User.told.empty());
}

void test_frmImportWizard::resetBringsBackWhatItSays() {
    WizardKit kit;
    for (const char* reset : {"cmdResetCrop", "cmdResetErase", "cmdResetColor"}) {
        QCOMPARE(kit.Part(reset).toolTip(),
                 QStringLiteral("Brings back the picture as it was on the screen shown before this "
                                "one"));
    }
    kit.GoTo(3);
    kit.Click("optStitches");
    TypeIn(*kit.Wizard, "txtWidth", QStringLiteral("20"));
    kit.Click("cmdBack");
    auto& erase = kit.Part<PictureView>("lpicErase");
    QCOMPARE(erase.Shown()->ImageWidth(), 40);
    kit.Click("cmdResetErase");
    QCOMPARE(erase.Shown()->ImageWidth(), 20);
}

void test_frmImportWizard::aFailureBehindTheHiddenWizardSaysNothing() {
    WizardKit kit;
    const std::filesystem::path pipe = kit.PictureFile().parent_path() / "pipe.png";
    QCOMPARE(mkfifo(pipe.c_str(), 0600), 0);
    const Arrivals arrivals(PartOf<LatestJob>(*kit.Wizard, "loadPicture"));
    kit.Wizard->TakeFile(pipe);
    // The load stands in the pipe until somebody writes.
    QTRY_COMPARE(arrivals.Count(), 1);
    kit.Click("cmdCancel");
    QVERIFY(!kit.Wizard->isVisible());
    // It may have been called off before it reads, which must not end the test.
    std::signal(SIGPIPE, SIG_IGN);
    std::ofstream(pipe) << "no picture";
    QTRY_COMPARE(arrivals.Count(), 2);
    QVERIFY(kit.User.told.empty());
}

void test_frmImportWizard::aResizeThatWasCalledOffBeginsAnewOnResuming() {
    WizardKit kit;
    kit.GoTo(3);
    kit.Click("optStitches");
    // Large enough to be called off under way; if it is done before, nothing is called off.
    TypeIn(*kit.Wizard, "txtWidth", QStringLiteral("3000"));
    kit.Click("cmdCancel");
    QVERIFY(!kit.Wizard->isVisible());
    kit.Wizard->Resume();
    kit.Wizard->show();
    auto& view = kit.Part<PictureView>("lpicResized");
    QTRY_VERIFY(view.Shown() != nullptr && view.Shown()->ImageWidth() == 3000);
    QVERIFY(kit.User.told.empty());
}

void test_frmImportWizard::anEditBoxWhosePaletteChangedIsLockedAnew() {
    WizardKit kit(SquareRect{2, 3, 9, 8});
    kit.GoTo(3);
    kit.Click("chkUseEditBox");
    kit.GoTo(5);
    kit.ChooseFamily();
    const int before = kit.Part<QLineEdit>("txtMaxColors").text().toInt();
    kit.Wizard->reject();
    kit.Design.GetPalette().AddPaletteEntry(MakeColour(1, 2, 3), "999", "new", "Own", "~", 2, 1, 9,
                                            9, 0, "Own");
    kit.Wizard->Resume();
    kit.Wizard->show();
    QVERIFY(QTest::qWaitForWindowActive(kit.Wizard.get()));
    QCOMPARE(kit.Part<QComboBox>("cmbFlossFamily").currentText(), QStringLiteral("Few Threads"));
    QCOMPARE(kit.Part<QLineEdit>("txtMaxColors").text().toInt(), before + 1);
}

void test_frmImportWizard::everyScreenFitsWhateverItsNames() {
    WizardKit kit;
    const QString longName = QString(120, QLatin1Char('m'));
    QVERIFY(WriteCatalogue(kit.Context, "long.col", std::string(30, 'm'), {MakeColour(9, 9, 9)}));
    const QSize size = kit.Wizard->size();
    const QSize least = kit.Wizard->minimumSizeHint();
    const auto file = kit.PictureFile(std::string(120, 'f') + "/" + std::string(120, 'm') + ".png");
    TypeIn(*kit.Wizard, "txtFileName", QString::fromStdString(file.string()));
    for (int screen = 0; screen < 6; ++screen) {
        kit.GoTo(screen);
        if (screen == 5) {
            auto& family = kit.Part<QComboBox>("cmbFlossFamily");
            family.addItem(longName);
            family.setCurrentIndex(family.count() - 1);
            QCOMPARE(family.toolTip(), longName);
        }
        QCoreApplication::sendPostedEvents();
        QCOMPARE(kit.Wizard->size(), size);
        const QSize now = kit.Wizard->minimumSizeHint();
        QVERIFY2(now.width() <= 1280 && now.height() <= 720,
                 qPrintable(kit.Text("lblInstruction")));
        QVERIFY(now.width() < least.width() + 200);
    }
}

void test_frmImportWizard::tabGoesThroughTheScreenAndThenTheButtons() {
    // The stops between the picture's zoom and the wizard's buttons, screen by screen; a group of
    // options is one.
    const QStringList orders{
        QStringLiteral("optFile txtFileName cmdBrowse LPicPreview cmdNext cmdCancel"),
        QStringLiteral("lpicCrop ZOOM cmdResetCrop cmdBack cmdNext cmdCancel"),
        QStringLiteral("lpicErase ZOOM optEraseBy0 optEraser0 cmdResetErase cmdBack cmdNext "
                       "cmdCancel"),
        QStringLiteral(
            "optStitches txtWidth chkAspect cmbClothCount chkSmoothColors lpicResized ZOOM "
            "cmdBack cmdNext cmdCancel"),
        QStringLiteral("cmbAdjustmentType sliAdjuster txtAdjuster lpicOrigColor lpicNewColor ZOOM "
                       "cmdBack cmdNext cmdCancel"),
        QStringLiteral("optFlossList cmbFlossFamily txtMaxColors cmdPreviewPattern lstFlosses "
                       "lpicMappedImage lpicPreviewPattern ZOOM cmdBack cmdNext cmdCancel")};
    WizardKit kit;
    for (int screen = 0; screen < 6; ++screen) {
        kit.GoTo(screen);
        kit.Part("cmdCancel").setFocus();
        QStringList names;
        do {
            QTest::keyClick(kit.Wizard.get(), Qt::Key_Tab);
            names.append(QApplication::focusWidget()->objectName());
        } while (names.back() != QStringLiteral("cmdCancel") && names.size() < 40);
        QCOMPARE(names.join(QLatin1Char(' '))
                     .replace(QStringLiteral("cmdZoomOut cmbZoomLevel cmdZoomIn"),
                              QStringLiteral("ZOOM")),
                 orders[screen]);
    }
}

void test_frmImportWizard::noTwoMnemonicsOfAScreenAreAlike() {
    WizardKit kit(SquareRect{2, 3, 9, 8});
    const auto check = [&kit] {
        std::set<QString> taken;
        for (const QWidget* part : kit.Wizard->findChildren<QWidget*>()) {
            const auto* button = qobject_cast<const QAbstractButton*>(part);
            const auto* label = qobject_cast<const QLabel*>(part);
            const QString text = button != nullptr                               ? button->text()
                                 : label != nullptr && label->buddy() != nullptr ? label->text()
                                                                                 : QString();
            const QString key = QKeySequence::mnemonic(text).toString();
            if (part->isVisible() && !key.isEmpty()) {
                QVERIFY2(taken.insert(key).second, qPrintable(text));
            }
        }
        QVERIFY(taken.size() > 3);
    };
    for (int screen = 0; screen < 6; ++screen) {
        kit.GoTo(screen);
        check();
        if (screen == 2) {
            kit.Click("optEraseBy1");
            check();
        } else if (screen == 3) {
            PartOf<QRadioButton>(*kit.Wizard, "optUnits").setText(QStringLiteral("&Centimetres"));
            check();
        } else if (screen == 5) {
            kit.Click("optPalette");
            check();
        }
    }
}

} // namespace zol::test

QTEST_MAIN(zol::test::test_frmImportWizard)
#include "test_frmImportWizard.moc"
