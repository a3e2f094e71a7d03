// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/frmExportWizard.h"

#include <QBuffer>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include "print/RtfLegend.h"
#include "print/windows/ExportedPicture.h"
#include "print/windows/ReportScene.h"
#include "support/DialogHands.h"
#include "support/FileHurdles.h"

namespace zol::test {

class ExportWizardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BeginsWithWhatWasChosenAndNothingToSave();
    void ExportPaintsThePicture();
    void AZoomOfOneIsAPixelASquare();
    void ThePictureFollowsTheSettings();
    void WhatNoMemoryHoldsIsTold();
    void AZoomOfNothingCannotBeExported();
    void TheSelectedAreaIsThatPiece();
    void WithoutAnEditBoxThereIsNoSelectedArea();
    void PicturesAreSaved_data();
    void PicturesAreSaved();
    void TheDialogsAreWordedAsTold();
    void TheClipboardTakesPictureAndLegend();
    void TheLegendIsSaved();
    void AFailedSaveIsToldAndTheWindowStays();
    void NoRightAndNoRoomKeepTheOldFile_data();
    void NoRightAndNoRoomKeepTheOldFile();
    void CancellingAFileDialogIsSilent();
    void ADesignWithoutStitchesOrFlossesIsExported();
    void AnEnormousPictureCanBeCancelled();
};

namespace {

struct Wizard : ReportScene {
    /// Shows a new wizard in place of the old one.
    frmExportWizard& Open() {
        window = std::make_unique<frmExportWizard>(Desk(), chosen);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        return *window;
    }
    /// Clicks Export and waits for the picture.
    void Export() {
        ClickIn(*window, "cmdExport");
        QTRY_VERIFY(PartOf<QPushButton>(*window, "cmdSaveImage").isEnabled());
    }
    [[nodiscard]] QImage Shown() const {
        return PartOf<ExportedPicture>(*window, "picPattern").Picture();
    }
    /// What the settings promise.
    [[nodiscard]] QImage Promised() const {
        return chosen.PictureOf(*pattern, {1, 1, 12, 8}, settings).Raster(nullptr);
    }
    [[nodiscard]] QString Text(const char* label) const {
        return PartOf<QLabel>(*window, label).text();
    }

    basExport chosen;
    std::unique_ptr<frmExportWizard> window;
};

} // namespace

void ExportWizardTest::BeginsWithWhatWasChosenAndNothingToSave() {
    Wizard wizard;
    wizard.chosen = {PrintColorSymbols, 7, true, true, true, {}};
    frmExportWizard& window = wizard.Open();
    QCOMPARE(window.windowTitle(), QStringLiteral("Export Pattern"));
    auto& styles = PartOf<QComboBox>(window, "cmbSDA");
    QStringList texts;
    QList<int> values;
    for (int i = 0; i < styles.count(); ++i) {
        texts << styles.itemText(i);
        values << styles.itemData(i).toInt();
    }
    QCOMPARE(texts.join(QLatin1Char('|')),
             QStringLiteral("Colored Squares|Colored Stitches|B&W Symbols|Colored Symbols|Blocks & "
                            "Symbols"));
    QCOMPARE(values, QList<int>({1, 5, 2, 3, 4}));
    QCOMPARE(styles.currentData().toInt(), 3);
    QCOMPARE(PartOf<QLineEdit>(window, "txtPixelsPerSquare").text(), QStringLiteral("7"));
    QVERIFY(PartOf<QCheckBox>(window, "chkDisplayGridlines").isChecked());
    QVERIFY(PartOf<QCheckBox>(window, "chkClipboard").isChecked());
    QVERIFY(!PartOf<QPushButton>(window, "cmdSaveImage").isEnabled());
    QVERIFY(!PartOf<QPushButton>(window, "cmdSaveInfo").isEnabled());
    QCOMPARE(wizard.Text("lblZoom"), QStringLiteral("Zoom Setting:"));
    QCOMPARE(wizard.Text("lblSize"), QStringLiteral("84 x 56 pixels"));
    QCOMPARE(PartOf<QPushButton>(window, "cmdExport").text(), QStringLiteral("&Export"));
    QCOMPARE(PartOf<QPushButton>(window, "cmdSaveImage").text(), QStringLiteral("Save &Image"));
    QCOMPARE(PartOf<QPushButton>(window, "cmdSaveInfo").text(), QStringLiteral("Save &Legend"));
    QCOMPARE(PartOf<QCheckBox>(window, "chkDisplayGridlines").text(),
             QStringLiteral("Display Grid"));
    QCOMPARE(PartOf<QCheckBox>(window, "chkSelectedOnly").text(),
             QStringLiteral("Selected Area Only"));
    QCOMPARE(PartOf<QCheckBox>(window, "chkClipboard").text(), QStringLiteral("Save to Clipboard"));
}

void ExportWizardTest::ExportPaintsThePicture() {
    Wizard wizard;
    frmExportWizard& window = wizard.Open();
    TypeIn(window, "txtPixelsPerSquare", QStringLiteral("80"));
    QTest::keyClick(&window, Qt::Key_Return); // Export is what Enter does
    QTRY_VERIFY(PartOf<QPushButton>(window, "cmdSaveImage").isEnabled());
    QVERIFY(PartOf<QPushButton>(window, "cmdSaveInfo").isEnabled());
    QCOMPARE(wizard.chosen.ExportZoom, 80);
    QVERIFY(wizard.Shown() == wizard.Promised());
    QCOMPARE(wizard.Shown().size(), QSize(960, 640));
    // It is larger than its holder, which scrolls, and shows its pixels.
    auto& holder = PartOf<QScrollArea>(window, "picHolder");
    QVERIFY(holder.isVisible());
    QVERIFY(holder.horizontalScrollBar()->maximum() > 0);
    QVERIFY(holder.verticalScrollBar()->maximum() > 0);
    const QImage seen = holder.viewport()->grab(QRect(0, 0, 100, 100)).toImage();
    QCOMPARE(seen.convertToFormat(QImage::Format_RGB32).pixel(40, 40), qRgb(200, 10, 20));
}

void ExportWizardTest::AZoomOfOneIsAPixelASquare() {
    Wizard wizard;
    wizard.chosen.ExportZoom = 1;
    wizard.Open();
    wizard.Export();
    QCOMPARE(wizard.Shown().size(), QSize(12, 8));
    QCOMPARE(wizard.Shown().pixel(1, 0), qRgb(200, 10, 20));
    QCOMPARE(wizard.Shown().pixel(2, 0), qRgb(255, 255, 255));
}

void ExportWizardTest::ThePictureFollowsTheSettings() {
    Wizard wizard;
    frmExportWizard& window = wizard.Open();
    ClickIn(window, "chkDisplayGridlines");
    QTest::qWait(0);
    QVERIFY(wizard.Shown().isNull()); // nothing is painted before it is asked for
    wizard.Export();
    const QImage before = wizard.Shown();
    QVERIFY(before == wizard.Promised());
    ClickIn(window, "chkDisplayGridlines");
    QTRY_VERIFY(wizard.Shown() == wizard.Promised());
    QVERIFY(wizard.Shown() != before);
    auto& styles = PartOf<QComboBox>(window, "cmbSDA");
    QTest::keyClick(&styles, Qt::Key_Down);
    QCOMPARE(wizard.chosen.ExportDisplayAs, 5);
    QTRY_VERIFY(wizard.Shown() == wizard.Promised());
    TypeIn(window, "txtPixelsPerSquare", QStringLiteral("13"));
    QTRY_VERIFY(wizard.Shown() == wizard.Promised());
    QCOMPARE(wizard.Shown().width(), 13 * 12);
    QCOMPARE(wizard.Text("lblState"), QString());
}

void ExportWizardTest::WhatNoMemoryHoldsIsTold() {
    Wizard wizard;
    wizard.pattern->Resize(999, 999, 14, 14);
    frmExportWizard& window = wizard.Open();
    TypeIn(window, "txtPixelsPerSquare", QStringLiteral("9999"));
    QCOMPARE(wizard.Text("lblSize"), QStringLiteral("Too large for the memory"));
    ClickIn(window, "cmdExport");
    QCOMPARE(wizard.user.told.size(), std::size_t{1});
    QCOMPARE(wizard.user.told[0].text,
             std::string("There is not enough Memory to export the current pattern at the current "
                         "zoom level.  Please choose a lower zoom setting."));
    QVERIFY(PartOf<QLineEdit>(window, "txtPixelsPerSquare").hasFocus());
    QVERIFY(!PartOf<QPushButton>(window, "cmdSaveImage").isEnabled());
    // With a picture there, it stays and is said to be out of date.
    TypeIn(window, "txtPixelsPerSquare", QStringLiteral("2"));
    wizard.Export();
    TypeIn(window, "txtPixelsPerSquare", QStringLiteral("9999"));
    QTRY_VERIFY(wizard.Text("lblState").contains(QStringLiteral("earlier settings")));
    QVERIFY(!wizard.Shown().isNull());
    QCOMPARE(wizard.user.told.size(), std::size_t{1});
}

void ExportWizardTest::AZoomOfNothingCannotBeExported() {
    Wizard wizard;
    frmExportWizard& window = wizard.Open();
    for (const char* text : {"0", ""}) {
        TypeIn(window, "txtPixelsPerSquare", QLatin1String(text));
        QVERIFY(!PartOf<QPushButton>(window, "cmdExport").isEnabled());
        QCOMPARE(wizard.Text("lblSize"), QStringLiteral("Pixels for a square, 1 or more"));
    }
    TypeIn(window, "txtPixelsPerSquare", QStringLiteral("-a3.b"));
    QCOMPARE(PartOf<QLineEdit>(window, "txtPixelsPerSquare").text(), QStringLiteral("3"));
    QVERIFY(PartOf<QPushButton>(window, "cmdExport").isEnabled());
}

void ExportWizardTest::TheSelectedAreaIsThatPiece() {
    Wizard wizard;
    const auto part = wizard.scene.MakePattern(3, 2);
    PrintScene::AddFloss(*part, MakeColour(1, 2, 3), "1", 1, "x");
    part->SetStitch(3, 2, StitchWhole, 1, 5);
    wizard.selection = SelectedArea{part.get(), {9, 4}};
    wizard.chosen.ExportZoom = 8;
    wizard.chosen.ExportGridlines = true;
    wizard.settings.NormalGLColor = 0x808080;
    frmExportWizard& window = wizard.Open();
    ClickIn(window, "chkSelectedOnly");
    QCOMPARE(wizard.Text("lblSize"), QStringLiteral("24 x 16 pixels"));
    wizard.Export();
    QVERIFY(wizard.chosen.ExportSelected);
    PatternPicture expected = wizard.chosen.PictureOf(*part, {1, 1, 3, 2}, wizard.settings);
    const QImage unshifted = expected.Raster(nullptr);
    expected.Paint.NumberOffsetX = 8;
    expected.Paint.NumberOffsetY = 3;
    QVERIFY(wizard.Shown() == expected.Raster(nullptr));
    QVERIFY(wizard.Shown() != unshifted); // the tenth line of the whole is the bold one
}

void ExportWizardTest::WithoutAnEditBoxThereIsNoSelectedArea() {
    Wizard wizard;
    wizard.chosen.ExportSelected = true;
    frmExportWizard& window = wizard.Open();
    QVERIFY(!PartOf<QCheckBox>(window, "chkSelectedOnly").isEnabled());
    QVERIFY(!PartOf<QCheckBox>(window, "chkSelectedOnly").isChecked());
    wizard.Export();
    QCOMPARE(wizard.Shown().size(), QSize(120, 80));
}

void ExportWizardTest::PicturesAreSaved_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("bitmap") << QStringLiteral("out.bmp") << QByteArray("BM");
    QTest::newRow("png") << QStringLiteral("out.png") << QByteArray("\x89PNG\r\n");
    QTest::newRow("svg") << QStringLiteral("out.SVG") << QByteArray("<?xml");
    QTest::newRow("pdf") << QStringLiteral("out.pdf") << QByteArray("%PDF-1.");
}

void ExportWizardTest::PicturesAreSaved() {
    QFETCH(const QString, name);
    QFETCH(const QByteArray, start);
    Wizard wizard;
    frmExportWizard& window = wizard.Open();
    wizard.Export();
    const auto path = wizard.scene.Path(name.toStdString());
    wizard.user.files = {path};
    ClickIn(window, "cmdSaveImage");
    QTRY_VERIFY(PartOf<QPushButton>(window, "cmdSaveImage").isEnabled());
    QVERIFY(wizard.user.told.empty());
    const std::string bytes = ReadFile(path);
    QVERIFY(QByteArray::fromStdString(bytes).startsWith(start));
    // The same bytes as the command line's, but for a PDF's date.
    if (!name.endsWith(QLatin1String("pdf"))) {
        QBuffer buffer;
        QVERIFY(buffer.open(QIODevice::WriteOnly));
        const PatternPicture picture =
            wizard.chosen.PictureOf(*wizard.pattern, {1, 1, 12, 8}, wizard.settings);
        QVERIFY(WritePicture(picture, {}, PictureFormatOf(path), buffer, nullptr));
        QVERIFY(buffer.data().toStdString() == bytes);
    }
    if (name.endsWith(QLatin1String("bmp")) || name.endsWith(QLatin1String("png"))) {
        QVERIFY(
            QImage(QString::fromStdString(path.string())).convertToFormat(QImage::Format_RGB32) ==
            wizard.Promised());
    }
}

void ExportWizardTest::TheDialogsAreWordedAsTold() {
    Wizard wizard;
    wizard.Open();
    wizard.Export();
    wizard.user.files = {std::nullopt, std::nullopt};
    ClickIn(*wizard.window, "cmdSaveImage");
    ClickIn(*wizard.window, "cmdSaveInfo");
    QCOMPARE(wizard.user.saveDialogs.size(), std::size_t{2});
    const FileChoice& image = wizard.user.saveDialogs[0];
    QCOMPARE(image.Title, std::string("Export a Korvanta Pattern"));
    QCOMPARE(image.DefaultExtension, std::string("bmp"));
    QVERIFY(image.Filter.starts_with("Windows BMP File|*.bmp|"));
    QCOMPARE(image.SuggestedName, std::string("my"));
    QVERIFY(image.Folder == wizard.scene.Folder());
    const FileChoice& legend = wizard.user.saveDialogs[1];
    QCOMPARE(legend.Title, std::string("Export Korvanta Pattern Legend"));
    QCOMPARE(legend.DefaultExtension, std::string("rtf"));
    QCOMPARE(legend.Filter, std::string("Rich Text File|*.rtf"));
}

void ExportWizardTest::TheClipboardTakesPictureAndLegend() {
    Wizard wizard;
    frmExportWizard& window = wizard.Open();
    wizard.Export();
    ClickIn(window, "chkClipboard");
    ClickIn(window, "cmdSaveImage");
    QVERIFY(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32) ==
            wizard.Promised());
    ClickIn(window, "cmdSaveInfo");
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    const PrintOptions options = PrintOptionsOf(wizard.settings);
    QCOMPARE(content->data(QStringLiteral("text/rtf")).toStdString(),
             RtfLegend::Write(*wizard.pattern, options));
    QCOMPARE(content->data(QStringLiteral("application/rtf")),
             content->data(QStringLiteral("text/rtf")));
    QVERIFY(content->text().contains(QStringLiteral("\tTitle:\tRose\n")));
    QCOMPARE(wizard.user.ToldTexts(),
             (std::vector<std::string>{"Picture Saved to ClipBoard",
                                       "Pattern Info Saved to Clipboard"}));
    QVERIFY(wizard.user.saveDialogs.empty());
}

void ExportWizardTest::TheLegendIsSaved() {
    Wizard wizard;
    frmExportWizard& window = wizard.Open();
    wizard.Export();
    wizard.user.files = {wizard.scene.Path("out.rtf")};
    ClickIn(window, "cmdSaveInfo");
    QCOMPARE(ReadFile(wizard.scene.Path("out.rtf")),
             RtfLegend::Write(*wizard.pattern, PrintOptionsOf(wizard.settings)));
    QVERIFY(wizard.user.told.empty());
}

void ExportWizardTest::AFailedSaveIsToldAndTheWindowStays() {
    Wizard wizard;
    frmExportWizard& window = wizard.Open();
    wizard.Export();
    wizard.user.files = {"/dev/full", wizard.scene.Path("none/out.png"),
                         wizard.scene.Path("none/out.rtf")};
    for (const char* button : {"cmdSaveImage", "cmdSaveImage", "cmdSaveInfo"}) {
        ClickIn(window, button);
        QTRY_VERIFY(PartOf<QPushButton>(window, "cmdSaveImage").isEnabled());
    }
    QCOMPARE(wizard.user.ToldTexts(),
             (std::vector<std::string>{"Disk full", "Path not found", "Path not found"}));
    QVERIFY(window.isVisible());
}

void ExportWizardTest::NoRightAndNoRoomKeepTheOldFile_data() {
    QTest::addColumn<QByteArray>("name");
    for (const char* name : {"out.bmp", "out.png", "out.svg", "out.pdf", "out.rtf"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void ExportWizardTest::NoRightAndNoRoomKeepTheOldFile() {
    QFETCH(const QByteArray, name);
    Wizard wizard;
    frmExportWizard& window = wizard.Open();
    wizard.Export();
    const std::filesystem::path folder = wizard.scene.Folder() / "out";
    std::filesystem::create_directory(folder);
    const std::filesystem::path file = folder / name.toStdString();
    WriteFile(file, "old");
    wizard.user.files = {file, file};
    const char* const button = name.endsWith("rtf") ? "cmdSaveInfo" : "cmdSaveImage";
    const auto save = [&] {
        ClickIn(window, button);
        QTRY_VERIFY(PartOf<QPushButton>(window, "cmdSaveImage").isEnabled());
    };
    {
        const ReadOnlyFolder locked(folder);
        save();
    }
    {
        const FullDisk disk(60);
        save();
    }
    QCOMPARE(wizard.user.ToldTexts(), (std::vector<std::string>{"Permission denied", "Disk full"}));
    QVERIFY(wizard.user.told[1].more.find("is as it was") != std::string::npos);
    QCOMPARE(ReadFile(file), std::string("old"));
    QCOMPARE(QDir(QString::fromStdString(folder.string())).entryList(QDir::Files).size(), 1);
    QVERIFY(window.isVisible());
}

void ExportWizardTest::CancellingAFileDialogIsSilent() {
    Wizard wizard;
    frmExportWizard& window = wizard.Open();
    wizard.Export();
    wizard.user.files = {std::nullopt, std::nullopt};
    ClickIn(window, "cmdSaveImage");
    ClickIn(window, "cmdSaveInfo");
    QVERIFY(wizard.user.told.empty());
    QVERIFY(wizard.user.unanswered.empty());
    QVERIFY(window.isVisible());
    ClickIn(window, "cmdClose");
    QVERIFY(!window.isVisible());
}

void ExportWizardTest::ADesignWithoutStitchesOrFlossesIsExported() {
    Wizard wizard;
    wizard.pattern = wizard.scene.MakePattern(12, 8);
    wizard.open.Put(std::make_unique<PatternDesign>(*wizard.pattern, std::string()));
    frmExportWizard& window = wizard.Open();
    wizard.Export();
    QVERIFY(wizard.Shown() == wizard.Promised());
    wizard.user.files = {wizard.scene.Path("out.rtf")};
    ClickIn(window, "cmdSaveInfo");
    QVERIFY(ReadFile(wizard.scene.Path("out.rtf")).find("Description\\par\r\n}") !=
            std::string::npos);
    QCOMPARE(wizard.user.saveDialogs[0].SuggestedName, std::string());
}

void ExportWizardTest::AnEnormousPictureCanBeCancelled() {
    Wizard wizard;
    wizard.pattern->Resize(999, 999, 14, 14);
    frmExportWizard& window = wizard.Open();
    wizard.Export();
    const QImage before = wizard.Shown();
    TypeIn(window, "txtPixelsPerSquare", QStringLiteral("14")); // 780 MB
    auto& cancel = PartOf<QPushButton>(window, "cmdCancelStatus");
    QTRY_VERIFY(cancel.isVisible());
    QTest::mouseClick(&cancel, Qt::LeftButton);
    QTRY_VERIFY(!cancel.isVisible());
    QVERIFY(wizard.Shown() == before);
    QVERIFY(wizard.Text("lblState").contains(QStringLiteral("earlier settings")));
    QVERIFY(PartOf<QPushButton>(window, "cmdSaveImage").isEnabled());
}

} // namespace zol::test

QTEST_MAIN(zol::test::ExportWizardTest)
#include "test_frmExportWizard.moc"
