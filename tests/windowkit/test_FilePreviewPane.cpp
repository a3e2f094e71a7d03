// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <memory>
#include <thread>

#include "support/DialogHands.h"
#include "windowkit/FilePreviewPane.h"

namespace zol::test {

/// What stands beside the files of a dialog.
class test_FilePreviewPane : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theSelectedFileIsShownInItsColors();
    void whatCannotBeShownIsSaid();
    void aFolderAndAMissingFileShowNothing();
    void anotherFileTakesTheOldPictureAwayAtOnce();
    void anOutdatedPreviewIsStoppedAndNeverShows();
    void closingTheDialogStopsThePreview();

private:
    void Open(FilePreviewPane::Maker maker);
    /// As the user's selection goes to a file.
    void Select(const char* name) { Q_EMIT m_dialog->currentChanged(Path(name)); }
    [[nodiscard]] QString Path(const char* name) const {
        return m_folder->filePath(QLatin1String(name));
    }
    [[nodiscard]] QLabel& Shown() { return PartOf<QLabel>(*m_dialog, "picPreview"); }
    [[nodiscard]] QString Words() { return PartOf<QLabel>(*m_dialog, "lblPreview").text(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QFileDialog> m_dialog;
};

namespace {

/// Two pixels: red, then blue.
FilePreview RedAndBlue() {
    return {2, 1, {0x000000FFU, 0x00FF0000U}, "2 × 1 pixels"};
}

} // namespace

void test_FilePreviewPane::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    for (const char* name : {"a.png", "b.png"}) {
        QFile file(Path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
}

void test_FilePreviewPane::cleanup() {
    m_dialog.reset();
    m_folder.reset();
}

void test_FilePreviewPane::Open(FilePreviewPane::Maker maker) {
    m_dialog = std::make_unique<QFileDialog>(nullptr, QString(), m_folder->path());
    FilePreviewPane::AddTo(*m_dialog, std::move(maker));
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
}

void test_FilePreviewPane::theSelectedFileIsShownInItsColors() {
    std::filesystem::path asked;
    Open([&asked](const std::filesystem::path& file, ProgressDoor&) {
        asked = file;
        return RedAndBlue();
    });
    QVERIFY(m_dialog->testOption(QFileDialog::DontUseNativeDialog));
    QVERIFY(PartOf<QWidget>(*m_dialog, "fraPreview").isVisible());
    QVERIFY(Shown().pixmap().isNull());
    Select("a.png");
    QTRY_COMPARE(Words(), QStringLiteral("2 × 1 pixels"));
    QCOMPARE(asked, std::filesystem::path(Path("a.png").toStdString()));
    const QImage image = Shown().pixmap().toImage();
    QCOMPARE(image.size(), QSize(2, 1));
    QCOMPARE(image.pixel(0, 0), qRgb(255, 0, 0));
    QCOMPARE(image.pixel(1, 0), qRgb(0, 0, 255));
    QCOMPARE(Shown().size(), QSize(FilePreviewPane::Side, FilePreviewPane::Side));
}

void test_FilePreviewPane::whatCannotBeShownIsSaid() {
    Open([](const std::filesystem::path&, ProgressDoor&) {
        return FilePreview{0, 0, {}, "<b>damaged</b>"};
    });
    Select("a.png");
    QTRY_COMPARE(Words(), QStringLiteral("<b>damaged</b>"));
    QCOMPARE(PartOf<QLabel>(*m_dialog, "lblPreview").textFormat(), Qt::PlainText);
    QVERIFY(Shown().pixmap().isNull());
}

void test_FilePreviewPane::aFolderAndAMissingFileShowNothing() {
    std::atomic<int> made = 0;
    Open([&made](const std::filesystem::path&, ProgressDoor&) {
        ++made;
        return RedAndBlue();
    });
    Select("a.png");
    QTRY_VERIFY(!Words().isEmpty());
    for (const char* name : {"folder", "missing.png"}) {
        Select(name);
        QVERIFY(Words().isEmpty());
        QVERIFY(Shown().pixmap().isNull());
    }
    QCOMPARE(made.load(), 1);
}

void test_FilePreviewPane::anotherFileTakesTheOldPictureAwayAtOnce() {
    Open([](const std::filesystem::path& file, ProgressDoor&) {
        FilePreview preview = RedAndBlue();
        preview.Words = file.filename().string();
        return preview;
    });
    Select("a.png");
    QTRY_COMPARE(Words(), QStringLiteral("a.png"));
    Select("b.png");
    QVERIFY(Words().isEmpty());
    QVERIFY(Shown().pixmap().isNull());
    QTRY_COMPARE(Words(), QStringLiteral("b.png"));
}

void test_FilePreviewPane::anOutdatedPreviewIsStoppedAndNeverShows() {
    std::atomic<bool> begun = false;
    std::atomic<bool> stopped = false;
    Open([&](const std::filesystem::path& file, ProgressDoor& progress) {
        FilePreview preview = RedAndBlue();
        preview.Words = file.filename().string();
        if (file.filename() == "a.png") {
            begun = true;
            while (progress.MayGoOn()) {
                std::this_thread::yield();
            }
            stopped = true;
        }
        return preview;
    });
    Select("a.png");
    QTRY_VERIFY(begun);
    // The dialog stays usable meanwhile.
    Select("b.png");
    QTRY_COMPARE(Words(), QStringLiteral("b.png"));
    // The newer one does not wait for the older, which may notice only now.
    QTRY_VERIFY(stopped);
    QCoreApplication::processEvents();
    QCOMPARE(Words(), QStringLiteral("b.png"));
}

void test_FilePreviewPane::closingTheDialogStopsThePreview() {
    std::atomic<bool> begun = false;
    std::atomic<bool> stopped = false;
    Open([&](const std::filesystem::path&, ProgressDoor& progress) {
        begun = true;
        while (progress.MayGoOn()) {
            std::this_thread::yield();
        }
        stopped = true;
        return RedAndBlue();
    });
    Select("a.png");
    QTRY_VERIFY(begun);
    m_dialog.reset();
    QVERIFY(stopped);
}

} // namespace zol::test

QTEST_MAIN(zol::test::test_FilePreviewPane)
#include "test_FilePreviewPane.moc"
