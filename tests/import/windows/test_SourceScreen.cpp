// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <QButtonGroup>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>

#include "import/Imaging.h"
#include "import/PictureFiles.h"
#include "import/SamplePictures.h"
#include "import/windows/SourceScene.h"

namespace zol::test {

namespace fs = std::filesystem;

/// Where the picture comes from, worked as a user does.
class SourceScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void NothingChosenIsToldAndTheFieldHasTheFocus();
    void ATypedFileIsLoadedOnLeaving();
    void BrowsingLoadsAndShowsAtOnce();
    void BrowsingComesBackToTheSameFolder();
    void ATypedNameTakesTheOldPictureAway();
    void TheClipboardIsPasted();
    void AnEmptyClipboardIsTold();
    void EachOptionEmptiesPreviewAndName();
    void TheLastImageIsOfferedOnceThereIsOne();
    void TheLastImageIsNotOfferedWhereItCouldNotBeSaved();
    void TheLatestOfTwoSavesStays();
    void FieldsOfOtherSourcesAreOff();

private:
    [[nodiscard]] fs::path Write(const std::string& name, const std::vector<std::uint8_t>& bytes) {
        fs::path file = fs::path(m_folder->path().toStdString()) / name;
        WriteBytes(file, bytes);
        return file;
    }
    [[nodiscard]] fs::path LastImport() const {
        return fs::path(m_folder->path().toStdString()) / PictureFiles::LastImportName;
    }

    [[nodiscard]] static LatestJob& SaveOf(SourceScene& scene) {
        return PartOf<LatestJob>(scene.Screen, "saveLastImport");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

vips::VImage Plain(int width, int height, Colour colour) {
    return VipsPicture(width, height, [colour](int, int) { return colour; });
}

const Colour Brick = MakeColour(189, 57, 33); // one that 16 bits a pixel can hold

} // namespace

void SourceScreenTest::init() {
    UseTempFolder(m_folder);
    QGuiApplication::clipboard()->clear();
}

void SourceScreenTest::NothingChosenIsToldAndTheFieldHasTheFocus() {
    DeskKit kit;
    SourceScene shown(kit);
    QVERIFY(QTest::qWaitForWindowActive(&shown.Screen));
    PartOf<QPushButton>(shown.Screen, "cmdBrowse").setFocus();
    QVERIFY(!shown.Screen.ValidateScreen());
    QCOMPARE(kit.User.ToldTexts(), std::vector<std::string>{"You must select an image to import"});
    QVERIFY(PartOf<QLineEdit>(shown.Screen, "txtFileName").hasFocus());
    QVERIFY(kit.Work.TheImage == nullptr);
    QCOMPARE(shown.Screen.Instruction(),
             QStringLiteral("Select from where you wish to get the image to import"));
}

void SourceScreenTest::ATypedFileIsLoadedOnLeaving() {
    DeskKit kit;
    SourceScene shown(kit);
    const fs::path file = Write("a b.png", SavedAs(Plain(30, 20, Brick), ".png"));
    TypeIn(shown.Screen, "txtFileName", QString::fromStdString(file.string()));
    QVERIFY(shown.Picture() == nullptr);
    QVERIFY(!PartOf<QWidget>(shown.Screen, "cmbZoomLevel").isEnabled());
    QVERIFY(shown.Screen.ValidateScreen());
    QVERIFY(PartOf<QWidget>(shown.Screen, "cmbZoomLevel").isEnabled());
    QVERIFY(kit.Work.TheImage != nullptr);
    QCOMPARE(kit.Work.TheImage, shown.Picture());
    QCOMPARE(kit.Work.TheImage->ImageWidth(), 30);
    QCOMPARE(kit.Work.TheImage->ImagePixel(3, 3), Brick);
    QCOMPARE(PartOf<QLabel>(shown.Screen, "lblImageInfo").text(), QStringLiteral("30 × 20 pixels"));
    QVERIFY(kit.User.told.empty());
    // Beside the window, whole or not at all.
    QTRY_VERIFY(fs::exists(LastImport()));
    QCOMPARE(LoadImage(LastImport()).Image.ImageWidth(), 30);
}

void SourceScreenTest::BrowsingLoadsAndShowsAtOnce() {
    DeskKit kit;
    SourceScene shown(kit);
    const fs::path file = Write("photo.jpg", SavedAs(Plain(40, 10, Brick), ".jpg[Q=98]"));
    kit.User.files = {file};
    ClickIn(shown.Screen, "cmdBrowse");
    QTRY_VERIFY(shown.Picture() != nullptr);
    QCOMPARE(shown.Picture()->ImageHeight(), 10);
    QCOMPARE(shown.Name(), QString::fromStdString(file.string()));
    const FileChoice& asked = kit.User.openDialogs.at(0);
    QVERIFY(asked.Filter.find("*.heic") != std::string::npos);
    RecordingProgress progress;
    const FilePreview preview = asked.Preview(file, progress);
    QCOMPARE(preview.Width, 40);
    QCOMPARE(preview.Pixels.size(), std::size_t{400});
    QCOMPARE(preview.Words, std::string("40 × 10 pixels"));
    QVERIFY(asked.Preview(m_folder->path().toStdString(), progress).Pixels.empty());
    // Cancelled: everything as it was.
    kit.User.files = {std::nullopt};
    ClickIn(shown.Screen, "cmdBrowse");
    QVERIFY(shown.Picture() != nullptr);
}

void SourceScreenTest::BrowsingComesBackToTheSameFolder() {
    DeskKit kit;
    {
        SourceScene shown(kit);
        kit.User.files = {Write("a.png", SavedAs(Plain(3, 3, Brick), ".png"))};
        ClickIn(shown.Screen, "cmdBrowse");
    }
    SourceScene again(kit);
    kit.User.files = {std::nullopt};
    ClickIn(again.Screen, "cmdBrowse");
    QCOMPARE(kit.User.openDialogs.back().Folder, fs::path(m_folder->path().toStdString()));
}

void SourceScreenTest::ATypedNameTakesTheOldPictureAway() {
    DeskKit kit;
    SourceScene shown(kit);
    shown.Screen.TakeFile(Write("a.png", SavedAs(Plain(3, 3, Brick), ".png")));
    QTRY_VERIFY(shown.Picture() != nullptr);
    TypeIn(shown.Screen, "txtFileName",
           QString::fromStdString(Write("b.png", SavedAs(Plain(5, 5, Brick), ".png")).string()));
    QVERIFY(shown.Picture() == nullptr);
    QVERIFY(shown.Screen.ValidateScreen());
    QCOMPARE(kit.Work.TheImage->ImageWidth(), 5);
}

void SourceScreenTest::TheClipboardIsPasted() {
    DeskKit kit;
    SourceScene shown(kit);
    QImage image(6, 4, QImage::Format_ARGB32);
    image.fill(qRgb(189, 57, 33));
    image.setPixel(0, 0, qRgba(9, 9, 9, 0));
    QGuiApplication::clipboard()->setImage(image);
    ClickIn(shown.Screen, "optClipboard");
    QVERIFY(shown.Picture() != nullptr);
    QCOMPARE(shown.Picture()->ImagePixel(0, 0), TransparentPixel);
    QCOMPARE(shown.Picture()->ImagePixel(1, 0), Brick);
    // Another image by now: the same option takes it.
    QGuiApplication::clipboard()->setImage(image.copy(0, 0, 2, 2));
    ClickIn(shown.Screen, "optClipboard");
    QCOMPARE(shown.Picture()->ImageWidth(), 2);
    QVERIFY(shown.Screen.ValidateScreen());
    QCOMPARE(kit.Work.TheImage->ImageWidth(), 2);
}

void SourceScreenTest::AnEmptyClipboardIsTold() {
    DeskKit kit;
    SourceScene shown(kit);
    ClickIn(shown.Screen, "optClipboard");
    QCOMPARE(kit.User.ToldTexts(), std::vector<std::string>{"There is no image on the clipboard."});
    QVERIFY(shown.Picture() == nullptr);
}

void SourceScreenTest::EachOptionEmptiesPreviewAndName() {
    DeskKit kit;
    const fs::path file = Write("a.png", SavedAs(Plain(3, 3, Brick), ".png"));
    (void)Write("LastImport.jpg", SavedAs(Plain(7, 7, Brick), ".jpg"));
    for (const char* option : {"optFile", "optClipboard", "optScan", "optLastImage"}) {
        SourceScene shown(kit);
        shown.Screen.TakeFile(file);
        QTRY_VERIFY(shown.Picture() != nullptr);
        ClickIn(shown.Screen, option);
        QVERIFY2(shown.Picture() == nullptr, option);
        QVERIFY2(shown.Name().isEmpty(), option);
    }
}

void SourceScreenTest::TheLastImageIsOfferedOnceThereIsOne() {
    DeskKit kit;
    {
        SourceScene first(kit);
        QVERIFY(!PartOf<QRadioButton>(first.Screen, "optLastImage").isEnabled());
        first.Screen.TakeFile(Write("a.png", SavedAs(Plain(11, 3, Brick), ".png")));
        QVERIFY(first.Screen.ValidateScreen());
        QTRY_VERIFY(fs::exists(LastImport()));
    }
    DeskKit next;
    SourceScene shown(next);
    QVERIFY(PartOf<QRadioButton>(shown.Screen, "optLastImage").isEnabled());
    ClickIn(shown.Screen, "optLastImage");
    QTRY_VERIFY(shown.Picture() != nullptr);
    QCOMPARE(shown.Picture()->ImageWidth(), 11);
    // It is there already, and is not saved once more.
    const QSignalSpy saves(&SaveOf(shown), &LatestJob::Began);
    QVERIFY(shown.Screen.ValidateScreen());
    QCOMPARE(saves.count(), 0);
    shown.Screen.TakeFile(Write("b.png", SavedAs(Plain(12, 3, Brick), ".png")));
    QTRY_COMPARE(shown.Picture()->ImageWidth(), 12);
    QVERIFY(shown.Screen.ValidateScreen());
    QCOMPARE(saves.count(), 1);
    QTRY_VERIFY(!SaveOf(shown).IsRunning());
    (void)Write("LastImport.jpg", {1, 2, 3});
    DeskKit damaged;
    SourceScene without(damaged);
    QVERIFY(!PartOf<QRadioButton>(without.Screen, "optLastImage").isEnabled());
}

void SourceScreenTest::TheLastImageIsNotOfferedWhereItCouldNotBeSaved() {
    DeskKit kit;
    SourceScene shown(kit);
    auto& offer = PartOf<QRadioButton>(shown.Screen, "optLastImage");
    shown.Screen.TakeFile(Write("a.png", SavedAs(Plain(11, 3, Brick), ".png")));
    QTRY_VERIFY(shown.Picture() != nullptr);
    const QString folder = m_folder->path();
    fs::remove_all(folder.toStdString());
    QSignalSpy saved(&SaveOf(shown), &LatestJob::Ended);
    QVERIFY(shown.Screen.ValidateScreen());
    shown.Screen.DisplayScreen(true);
    QVERIFY(!offer.isEnabled());
    QTRY_COMPARE(saved.count(), 1);
    shown.Screen.DisplayScreen(true);
    QVERIFY(!offer.isEnabled());
    // The next time it is tried again.
    QVERIFY(fs::create_directory(folder.toStdString()));
    QVERIFY(shown.Screen.ValidateScreen());
    QTRY_COMPARE(saved.count(), 2);
    QVERIFY(offer.isEnabled());
    QCOMPARE(LoadImage(LastImport()).Image.ImageWidth(), 11);
}

void SourceScreenTest::TheLatestOfTwoSavesStays() {
    DeskKit kit;
    {
        SourceScene shown(kit);
        // The first takes far longer to encode than the second.
        shown.Screen.TakeFile(Write("large.png", SavedAs(Plain(3000, 2000, Brick), ".png")));
        QVERIFY(shown.Screen.ValidateScreen());
        shown.Screen.TakeFile(Write("small.png", SavedAs(Plain(5, 5, Brick), ".png")));
        QTRY_COMPARE(shown.Picture()->ImageWidth(), 5);
        QVERIFY(shown.Screen.ValidateScreen());
        QTRY_VERIFY(!SaveOf(shown).IsRunning());
        // The screen goes once neither writes any more.
    }
    QCOMPARE(LoadImage(LastImport()).Image.ImageWidth(), 5);
}

void SourceScreenTest::FieldsOfOtherSourcesAreOff() {
    DeskKit kit;
    SourceScene shown(kit);
    const auto enabled = [&shown](const char* name) {
        return PartOf<QWidget>(shown.Screen, name).isEnabled();
    };
    QVERIFY(enabled("txtFileName") && enabled("cmdBrowse"));
    QVERIFY(!enabled("cmbScanSource") && !enabled("cmdAcquire"));
    ClickIn(shown.Screen, "optScan");
    QVERIFY(!enabled("txtFileName") && !enabled("cmdBrowse"));
    // The keyboard chooses as the mouse does.
    PartOf<QRadioButton>(shown.Screen, "optScan").setFocus();
    QTest::keyClick(&PartOf<QRadioButton>(shown.Screen, "optScan"), Qt::Key_Up);
    QVERIFY(PartOf<QRadioButton>(shown.Screen, "optClipboard").isChecked());
    QCOMPARE(kit.User.told.size(), std::size_t{1});
}

} // namespace zol::test

QTEST_MAIN(zol::test::SourceScreenTest)
#include "test_SourceScreen.moc"
