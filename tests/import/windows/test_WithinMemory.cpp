// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QRadioButton>

#include "import/windows/PictureView.h"
#include "import/windows/PictureViewKit.h"
#include "import/windows/WizardKit.h"
#include "support/ScarceMemory.h"

namespace zol::test {

/// What the wizard does where there is no memory for one more copy of a large picture.
class test_WithinMemory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void croppingLeavesThePicture();
    void resettingTheCropLeavesThePicture();
    void aScreenThatCannotHandOnStays();
    void aScreenWhoseSuccessorFindsNoMemoryComesBack();
    void goingBackWithoutMemoryStays();
    void aStrokeThatCannotBeTakenBackErasesNothing();
    void clearingAndResettingLeaveThePicture();
    void pastingIsToldAndTheNextOneWorks();
};

namespace {

constexpr QSize Large(400, 300);
/// Less than such a picture takes, and more than anything else.
constexpr std::size_t Limit = 300'000;
const char* const OutOfMemory = "Out of memory";

/// The wizard on one of its first screens with a large picture.
class LargeScene : public WizardKit {
public:
    explicit LargeScene(int screen) {
        TypeIn(*Wizard, "txtFileName",
               QString::fromStdString(PictureFile("large.png", Large).string()));
        while (Wizard->CurrentScreen() < screen) {
            const int before = Wizard->CurrentScreen();
            Click("cmdNext");
            QCOMPARE(Wizard->CurrentScreen(), before + 1);
        }
    }
    /// A click while there is not memory enough.
    void ClickScarce(const char* button, int granted = 0) {
        const ScarceMemory scarce(Limit, granted);
        Click(button);
        QCOMPARE(ScarceMemory::Refused(), 1);
    }
    [[nodiscard]] bool WasTold() {
        const bool told = User.ToldTexts() == std::vector<std::string>{OutOfMemory};
        User.told.clear();
        return told;
    }
    [[nodiscard]] PictureView& View(const char* name) { return Part<PictureView>(name); }
};

} // namespace

void test_WithinMemory::croppingLeavesThePicture() {
    LargeScene scene(1);
    PictureView& view = scene.View("lpicCrop");
    const SharedPicture before = view.Shown();
    Drag(view, {0, 0}, {390, 290});
    scene.ClickScarce("cmdCrop");
    QVERIFY(scene.WasTold());
    QCOMPARE(view.Shown(), before);
    QVERIFY(scene.Part("cmdCrop").isEnabled());
    scene.Click("cmdCrop");
    QCOMPARE(view.Shown()->ImageWidth(), 390);
}

void test_WithinMemory::resettingTheCropLeavesThePicture() {
    LargeScene scene(2);
    scene.Click("cmdBack");
    PictureView& view = scene.View("lpicCrop");
    Drag(view, {0, 0}, {200, 200});
    scene.Click("cmdCrop");
    const SharedPicture cropped = view.Shown();
    scene.ClickScarce("cmdResetCrop");
    QVERIFY(scene.WasTold());
    QCOMPARE(view.Shown(), cropped);
    scene.Click("cmdResetCrop");
    QCOMPARE(view.Shown()->ImageWidth(), Large.width());
}

void test_WithinMemory::aScreenThatCannotHandOnStays() {
    LargeScene scene(1);
    scene.ClickScarce("cmdNext");
    QVERIFY(scene.WasTold());
    QCOMPARE(scene.Wizard->CurrentScreen(), 1);
    QVERIFY(scene.View("lpicCrop").isVisible());
    scene.Click("cmdNext");
    QCOMPARE(scene.Wizard->CurrentScreen(), 2);
}

void test_WithinMemory::aScreenWhoseSuccessorFindsNoMemoryComesBack() {
    LargeScene scene(1);
    const SharedPicture before = scene.View("lpicCrop").Shown();
    // The crop screen's own copy is made, that of the erase screen is not.
    scene.ClickScarce("cmdNext", 1);
    QVERIFY(scene.WasTold());
    QCOMPARE(scene.Wizard->CurrentScreen(), 1);
    QVERIFY(scene.View("lpicCrop").isVisible());
    QVERIFY(scene.Part("cmdBack").isEnabled());
    // What travels is the picture that this screen got: it comes back itself and not as a copy.
    scene.Click("cmdResetCrop");
    QCOMPARE(scene.View("lpicCrop").Shown(), before);
    scene.Click("cmdNext");
    QCOMPARE(scene.Wizard->CurrentScreen(), 2);
    QCOMPARE(scene.View("lpicErase").Shown()->ImageWidth(), Large.width());
}

void test_WithinMemory::goingBackWithoutMemoryStays() {
    LargeScene scene(3);
    // The erase screen handed its picture on and needs one to work on.
    scene.ClickScarce("cmdBack");
    QVERIFY(scene.WasTold());
    QCOMPARE(scene.Wizard->CurrentScreen(), 3);
    QVERIFY(scene.View("lpicResized").isVisible());
    scene.Click("cmdBack");
    QCOMPARE(scene.Wizard->CurrentScreen(), 2);
}

void test_WithinMemory::aStrokeThatCannotBeTakenBackErasesNothing() {
    LargeScene scene(2);
    PictureView& view = scene.View("lpicErase");
    const Picture before = *view.Shown();
    {
        // A piece of the picture cannot be kept for Undo.
        constexpr std::size_t tile = 64 * 64 * sizeof(Colour);
        const ScarceMemory scarce(tile - 1);
        Drag(view, {50, 50}, {250, 150});
        QCOMPARE(ScarceMemory::Refused(), 1);
    }
    QVERIFY(scene.WasTold());
    QCOMPARE(*view.Shown(), before);
    QVERIFY(!scene.Part("cmdUndo").isEnabled());
    Drag(view, {50, 50}, {60, 60});
    QCOMPARE(view.Shown()->ImagePixel(55, 55), EraseColor);
    scene.Click("cmdUndo");
    QCOMPARE(*view.Shown(), before);
}

void test_WithinMemory::clearingAndResettingLeaveThePicture() {
    LargeScene scene(2);
    PictureView& view = scene.View("lpicErase");
    const Picture before = *view.Shown();
    Drag(view, {50, 50}, {60, 60});
    const Picture erased = *view.Shown();
    scene.ClickScarce("cmdResetErase");
    QVERIFY(scene.WasTold());
    QCOMPARE(*view.Shown(), erased);
    scene.Click("cmdResetErase");
    QCOMPARE(*view.Shown(), before);
    scene.ClickScarce("cmdUndo");
    QVERIFY(scene.WasTold());
    QCOMPARE(*view.Shown(), before);
    scene.Click("cmdUndo");
    QCOMPARE(*view.Shown(), before);
    QVERIFY(!scene.Part("cmdUndo").isEnabled());
}

void test_WithinMemory::pastingIsToldAndTheNextOneWorks() {
    LargeScene scene(0);
    QImage image(Large, QImage::Format_RGB32);
    image.fill(qRgb(10, 20, 30));
    QGuiApplication::clipboard()->setImage(image);
    PictureView& view = scene.View("LPicPreview");
    scene.ClickScarce("optClipboard");
    QVERIFY(scene.WasTold());
    QVERIFY(view.Shown() == nullptr);
    scene.Click("optClipboard");
    QVERIFY(view.Shown() != nullptr);
    QCOMPARE(view.Shown()->ImageWidth(), Large.width());
}

} // namespace zol::test

QTEST_MAIN(zol::test::test_WithinMemory)
#include "test_WithinMemory.moc"
