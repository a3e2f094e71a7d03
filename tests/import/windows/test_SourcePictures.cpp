// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QRadioButton>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

#include "import/PictureOps.h"
#include "import/SamplePictures.h"
#include "import/windows/PictureView.h"
#include "import/windows/WizardKit.h"
#include "support/TestFiles.h"

namespace zol::test {

namespace fs = std::filesystem;

/// Pictures that are odd, damaged or none at all, through the wizard's first screen: what can be
/// read arrives, and what cannot is told and takes nothing away.
class SourcePicturesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ATypedFileThatCannotBeReadStaysToBeMended_data() { AddBadPictures(); }
    void ATypedFileThatCannotBeReadStaysToBeMended();
    void ADroppedFileThatCannotBeReadTakesNothingAway_data() { AddBadPictures(); }
    void ADroppedFileThatCannotBeReadTakesNothingAway();
    void AFileThatIsChosenAndCannotBeReadTakesNothingAway();
    void GoingOnWhileABadFileIsReadStays();
    void ABadFileLeavesAnotherSourceChosen();
    void OddPicturesArrive_data();
    void OddPicturesArrive();

private:
    static void AddBadPictures();
    [[nodiscard]] fs::path Write(const std::string& name, const QByteArray& bytes) const {
        fs::path file = m_folder / name;
        WriteBytes(file, {bytes.begin(), bytes.end()});
        return file;
    }
    TempFolder m_folder;
};

namespace {

const Colour Brick = MakeColour(189, 57, 33); // one that 16 bits a pixel can hold

vips::VImage Plain(int width, int height, Colour colour) {
    return VipsPicture(width, height, [colour](int, int) { return colour; });
}

QByteArray Bytes(const std::vector<std::uint8_t>& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

void Drop(frmImportWizard& wizard, const fs::path& file) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file.string()))});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&wizard, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&wizard, &drop);
    QCoreApplication::processEvents(); // it is taken after the drop has returned
}

/// The first screen's picture.
SharedPicture Shown(WizardKit& kit) {
    return kit.Part<PictureView>("LPicPreview").Shown();
}

/// A wizard that shows a picture, and what must stay of it.
struct ShownPicture {
    ShownPicture() {
        Drop(*Kit.Wizard, Kit.PictureFile());
        QTRY_VERIFY(Shown(Kit) != nullptr);
        Before = Shown(Kit);
        Name = Kit.Part<QLineEdit>("txtFileName").text();
    }
    /// Nothing has gone, and the picture can be imported.
    void VerifyItStayed() {
        QCOMPARE(Shown(Kit), Before);
        QCOMPARE(Kit.Part<QLineEdit>("txtFileName").text(), Name);
        QCOMPARE(Kit.Wizard->CurrentScreen(), 0);
        QVERIFY(Kit.Text("lblImageInfo").startsWith(QStringLiteral("40")));
        const std::size_t told = Kit.User.told.size();
        Kit.Click("cmdNext");
        QCOMPARE(Kit.Wizard->CurrentScreen(), 1);
        QCOMPARE(Kit.User.told.size(), told);
        QCOMPARE(Kit.Part<PictureView>("lpicCrop").Shown(), Before);
    }

    WizardKit Kit;
    SharedPicture Before;
    QString Name;
};

} // namespace

void SourcePicturesTest::AddBadPictures() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("told");
    const QByteArray png = Bytes(SavedAs(
        VipsPicture(64, 64, [](int x, int y) { return MakeColour(unsigned(x * y) % 251U, 3, 9); }),
        ".png"));
    QTest::newRow("empty") << QByteArray() << QStringLiteral("Error ");
    QTest::newRow("text") << QByteArray("This is no picture at all.")
                          << QStringLiteral("Error 321: ");
    QTest::newRow("drawing") << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" "
                                           "width=\"90000000\" height=\"90000000\"/>")
                             << QStringLiteral("Error 321: ");
    QTest::newRow("cut") << png.left(png.size() / 2) << QStringLiteral("Error 57: ");
    // 100 000 by 100 000 pixels, by its header.
    QByteArray huge("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\x01\x86\xa0\0\x01\x86\xa0\x08\x02\0\0\0", 29);
    huge += QByteArray::fromHex("9ff0fdb1");
    huge += png.mid(33);
    QTest::newRow("enormous") << huge << QStringLiteral("Error ");
}

void SourcePicturesTest::ATypedFileThatCannotBeReadStaysToBeMended() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, told);
    WizardKit kit;
    const fs::path file = Write("bad.png", bytes);
    TypeIn(*kit.Wizard, "txtFileName", QString::fromStdString(file.string()));
    kit.Click("cmdNext");
    QCOMPARE(kit.User.told.size(), std::size_t{1});
    const auto text = QString::fromStdString(kit.User.told[0].text);
    QVERIFY2(text.startsWith(told), qPrintable(text));
    QVERIFY(text.size() > told.size() + 5);
    QVERIFY(kit.User.told[0].more.find("bad.png") != std::string::npos);
    QCOMPARE(kit.Wizard->CurrentScreen(), 0);
    QVERIFY(Shown(kit) == nullptr);
    const auto& field = kit.Part<QLineEdit>("txtFileName");
    QCOMPARE(field.text(), QString::fromStdString(file.string()));
    QVERIFY(field.hasFocus());
    QVERIFY(!kit.Wizard->HasWork());
}

void SourcePicturesTest::ADroppedFileThatCannotBeReadTakesNothingAway() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, told);
    ShownPicture shown;
    Drop(*shown.Kit.Wizard, Write("bad.png", bytes));
    QTRY_COMPARE(shown.Kit.User.told.size(), std::size_t{1});
    const auto text = QString::fromStdString(shown.Kit.User.told[0].text);
    QVERIFY2(text.startsWith(told), qPrintable(text));
    QVERIFY(shown.Kit.User.told[0].more.find("bad.png") != std::string::npos);
    QVERIFY(shown.Kit.User.told[0].more.find("stays") != std::string::npos);
    shown.VerifyItStayed();
}

void SourcePicturesTest::AFileThatIsChosenAndCannotBeReadTakesNothingAway() {
    ShownPicture shown;
    shown.Kit.User.files = {Write("bad.png", "This is no picture at all.")};
    shown.Kit.Click("cmdBrowse");
    QTRY_COMPARE(shown.Kit.User.told.size(), std::size_t{1});
    shown.VerifyItStayed();
}

void SourcePicturesTest::GoingOnWhileABadFileIsReadStays() {
    ShownPicture shown;
    shown.Kit.Wizard->TakeFile(Write("bad.png", "This is no picture at all."));
    shown.Kit.Click("cmdNext");
    QCOMPARE(shown.Kit.User.told.size(), std::size_t{1});
    shown.VerifyItStayed();
}

void SourcePicturesTest::ABadFileLeavesAnotherSourceChosen() {
    WizardKit kit;
    kit.Click("optScan");
    Drop(*kit.Wizard, Write("bad.png", "This is no picture at all."));
    QTRY_COMPARE(kit.User.told.size(), std::size_t{1});
    QVERIFY(kit.Part<QRadioButton>("optScan").isChecked());
    QVERIFY(kit.Part<QLineEdit>("txtFileName").text().isEmpty());
    // One that can be read is a file, whatever was chosen.
    Drop(*kit.Wizard, kit.PictureFile());
    QTRY_VERIFY(Shown(kit) != nullptr);
    QVERIFY(kit.Part<QRadioButton>("optFile").isChecked());
    QVERIFY(kit.Part("txtFileName").isEnabled());
}

void SourcePicturesTest::OddPicturesArrive_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<Colour>("colour");
    const auto row = [](const char* name, const std::vector<std::uint8_t>& bytes, QSize size,
                        QPoint place = {0, 0}, Colour colour = Brick) {
        QTest::newRow(name) << Bytes(bytes) << size << place << colour;
    };
    using vips::VImage;
    row("one pixel", SavedAs(Plain(1, 1, Brick), ".png"), {1, 1});
    row("16 bits a channel",
        SavedAs((Plain(9, 7, Brick).cast(VIPS_FORMAT_USHORT) * 257)
                    .cast(VIPS_FORMAT_USHORT)
                    .copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_RGB16)),
                ".png"),
        {9, 7});
    // The left half is transparent.
    const VImage covered = VipsPicture(9, 7, [](int x, int) { return x < 4 ? 0U : 0xFFFFFFU; });
    row("alpha", SavedAs(Plain(9, 7, Brick).bandjoin(covered.extract_band(0)), ".png"), {9, 7},
        {2, 3}, TransparentPixel);
    row("alpha, covered", SavedAs(Plain(9, 7, Brick).bandjoin(covered.extract_band(0)), ".png"),
        {9, 7}, {6, 3});
    // Upright the upper left pixel is black.
    const VImage marked =
        VipsPicture(9, 7, [](int x, int y) { return x + y == 0 ? Colour{0} : Brick; });
    row("rotated", SavedLying(marked, 6, ".tif"), {9, 7}, {0, 0}, 0);
    row("rotated photo", SavedLying(Plain(9, 7, MakeColour(0, 0, 0)), 8, ".jpg"), {9, 7}, {4, 4},
        0);
    // Two pictures of 9 by 7, one below the other.
    VImage pages =
        VipsPicture(9, 14, [](int, int y) { return y < 7 ? Brick : Colour{0}; }).copy_memory();
    pages.set(VIPS_META_PAGE_HEIGHT, 7);
    row("animated", SavedAs(pages, ".gif"), {9, 7}, {4, 6});
    // No ink at all.
    const VImage cmyk =
        VipsPicture(9, 7, [](int, int) { return Colour{0}; })
            .bandjoin(0)
            .copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_CMYK));
    row("CMYK", SavedAs(cmyk, ".tif"), {9, 7}, {4, 4}, EraseColor);
}

void SourcePicturesTest::OddPicturesArrive() {
    QFETCH(QByteArray, bytes);
    QFETCH(QSize, size);
    QFETCH(QPoint, place);
    QFETCH(Colour, colour);
    for (const bool typed : {true, false}) {
        WizardKit kit;
        const fs::path file = Write("odd", bytes);
        if (typed) {
            TypeIn(*kit.Wizard, "txtFileName", QString::fromStdString(file.string()));
        } else {
            Drop(*kit.Wizard, file);
        }
        kit.Click("cmdNext");
        QVERIFY(kit.User.told.empty());
        QCOMPARE(kit.Wizard->CurrentScreen(), 1);
        const SharedPicture shown = kit.Part<PictureView>("lpicCrop").Shown();
        QCOMPARE(QSize(shown->ImageWidth(), shown->ImageHeight()), size);
        QCOMPARE(shown->ImagePixel(place.x(), place.y()), colour);
    }
}

} // namespace zol::test

QTEST_MAIN(zol::test::SourcePicturesTest)
#include "test_SourcePictures.moc"
