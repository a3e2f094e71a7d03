// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <memory>

#include "gui/RunningProgram.h"
#include "import/windows/PictureView.h"
#include "import/windows/frmImportWizard.h"
#include "print/ChartReading.h"
#include "print/Paper.h"
#include "print/PdfReading.h"
#include "support/DialogHands.h"

namespace zol::test {

/// The program's main road: a photo goes through the wizard's six screens, Undo brings back what
/// was there, the import is resumed, and the design is printed and saved as a PDF, whose pages are
/// read back.
class PictureToChartTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void PhotoBecomesAPrintedChart();
    void CancelLeavesTheDesign();

private:
    static constexpr int MostColors = 12;
    static constexpr int Columns = 60;

    /// Chooses a command and works in the dialog that it opens; a dialog that is left open is
    /// closed, so that a failing test ends.
    void InDialog(const char* command, const std::function<void(QDialog&)>& work);
    static void GoOn(frmImportWizard& wizard, int screen);
    void ChooseThePhoto(frmImportWizard& wizard) const;
    static void CropIt(frmImportWizard& wizard);
    static void EraseACorner(frmImportWizard& wizard);
    static void SizeIt(frmImportWizard& wizard);
    static void BrightenIt(frmImportWizard& wizard);
    static void MapIt(frmImportWizard& wizard);
    void Import();
    void UndoAndResume();
    void SavePdf();
    void Print();
    [[nodiscard]] std::filesystem::path Pdf() const { return *m_home / "chart.pdf"; }

    std::unique_ptr<ProgramHome> m_home;
    std::unique_ptr<RunningProgram> m_program;
};

void PictureToChartTest::init() {
    m_home = std::make_unique<ProgramHome>();
    m_program = std::make_unique<RunningProgram>(*m_home);
    QVERIFY(m_program->Start());
}

void PictureToChartTest::cleanup() {
    QVERIFY(m_program->User.unanswered.empty());
    m_program->User.answers = {MessageAnswer::No};
    m_program->End();
    m_program.reset();
    m_home.reset();
}

void PictureToChartTest::InDialog(const char* command, const std::function<void(QDialog&)>& work) {
    bool worked = false;
    QTimer::singleShot(0, qApp, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            return;
        }
        worked = true;
        work(*dialog);
        if (dialog->isVisible() && QTest::currentTestFailed()) {
            dialog->reject();
        }
    });
    m_program->Choose(command);
    QVERIFY2(worked, "no dialog came up");
}

void PictureToChartTest::PhotoBecomesAPrintedChart() {
    using Chapter = void (PictureToChartTest::*)();
    for (const Chapter chapter : {&PictureToChartTest::Import, &PictureToChartTest::UndoAndResume,
                                  &PictureToChartTest::SavePdf, &PictureToChartTest::Print}) {
        (this->*chapter)();
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

void PictureToChartTest::GoOn(frmImportWizard& wizard, int screen) {
    auto& next = PartOf<QPushButton>(wizard, "cmdNext");
    QTRY_VERIFY(next.isEnabled());
    ClickIn(wizard, "cmdNext");
    QTRY_COMPARE(wizard.CurrentScreen(), screen);
}

void PictureToChartTest::ChooseThePhoto(frmImportWizard& wizard) const {
    const std::filesystem::path photo =
        std::filesystem::path(SourceFolder) / "data" / "samples" / "pictures" / "still-life.jpg";
    TypeIn(wizard, "txtFileName", QString::fromStdString(photo.string()));
    GoOn(wizard, 1);
}

void PictureToChartTest::CropIt(frmImportWizard& wizard) {
    auto& view = PartOf<PictureView>(wizard, "lpicCrop");
    QTRY_VERIFY(view.Shown() != nullptr);
    const int width = view.Shown()->ImageWidth();
    const int height = view.Shown()->ImageHeight();
    const auto at = [&](double x, double y) {
        return view.OnViewport(QPointF(width * x, height * y)).toPoint();
    };
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, at(0.1, 0.1));
    QTest::mouseMove(view.viewport(), at(0.5, 0.5));
    QTest::mouseMove(view.viewport(), at(0.9, 0.9));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, at(0.9, 0.9));
    ClickIn(wizard, "cmdCrop");
    QTRY_VERIFY(view.Shown()->ImageWidth() < width);
    QVERIFY(view.Shown()->ImageWidth() > width / 2);
    GoOn(wizard, 2);
}

void PictureToChartTest::EraseACorner(frmImportWizard& wizard) {
    auto& view = PartOf<PictureView>(wizard, "lpicErase");
    QTRY_VERIFY(view.Shown() != nullptr);
    const auto at = [&view](double x, double y) {
        return view.OnViewport(QPointF(x, y)).toPoint();
    };
    // Several strokes beside each other, so that whole squares of the design stay empty.
    for (int stroke = 0; stroke < 5; ++stroke) {
        const double y = 2 + 6.0 * stroke;
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, at(2, y));
        QTest::mouseMove(view.viewport(), at(30, y));
        QTest::mouseMove(view.viewport(), at(60, y));
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, at(60, y));
    }
    QCOMPARE(view.Shown()->ImagePixel(10, 10), EraseColor);
    GoOn(wizard, 3);
}

void PictureToChartTest::SizeIt(frmImportWizard& wizard) {
    ClickIn(wizard, "optStitches");
    TypeIn(wizard, "txtWidth", QString::number(Columns));
    auto& view = PartOf<PictureView>(wizard, "lpicResized");
    QTRY_VERIFY(view.Shown() != nullptr && view.Shown()->ImageWidth() == Columns);
    GoOn(wizard, 4);
}

void PictureToChartTest::BrightenIt(frmImportWizard& wizard) {
    auto& before = PartOf<PictureView>(wizard, "lpicOrigColor");
    auto& after = PartOf<PictureView>(wizard, "lpicNewColor");
    QTRY_VERIFY(before.Shown() != nullptr && after.Shown() != nullptr);
    const Picture old = *before.Shown();
    auto& slider = PartOf<QSlider>(wizard, "sliAdjuster");
    slider.setFocus();
    QTest::keyClick(&slider, Qt::Key_PageUp);
    QVERIFY(slider.value() != 0);
    QTRY_VERIFY(!(*after.Shown() == old));
    const Picture brightened = *after.Shown();
    ClickIn(wizard, "cmdApplyColor");
    QTRY_VERIFY(*before.Shown() == brightened);
    GoOn(wizard, 5);
}

void PictureToChartTest::MapIt(frmImportWizard& wizard) {
    auto& family = PartOf<QComboBox>(wizard, "cmbFlossFamily");
    QVERIFY(family.count() > 1);
    family.setFocus();
    QTest::keyClick(&family, Qt::Key_Down);
    QTRY_VERIFY(family.currentIndex() >= 0);
    TypeIn(wizard, "txtMaxColors", QString::number(MostColors));
    ClickIn(wizard, "cmdPreviewPattern");
    auto& flosses = PartOf<QAbstractItemView>(wizard, "lstFlosses");
    QTRY_VERIFY(flosses.model()->rowCount() > 0);
    QVERIFY(flosses.model()->rowCount() <= MostColors);
    QTRY_VERIFY(PartOf<QPushButton>(wizard, "cmdNext").isEnabled());
    QCOMPARE(PartOf<QPushButton>(wizard, "cmdNext").text(), QStringLiteral("&Finish"));
}

void PictureToChartTest::Import() {
    InDialog("mnuImport", [this](QDialog& dialog) {
        auto& wizard = dynamic_cast<frmImportWizard&>(dialog);
        ChooseThePhoto(wizard);
        for (const auto screen : {&CropIt, &EraseACorner, &SizeIt, &BrightenIt, &MapIt}) {
            if (!QTest::currentTestFailed()) {
                screen(wizard);
            }
        }
        if (QTest::currentTestFailed()) {
            return;
        }
        ClickIn(wizard, "cmdNext");
        QVERIFY(!wizard.isVisible());
    });
    Pattern& design = m_program->Design();
    QCOMPARE(design.GetPatternWidth(), Columns);
    QVERIFY(design.GetPalette().GetEntriesCount() <= MostColors);
    QCOMPARE(design.GetStitchCount(1, 1), 0);
    int stitches = 0;
    for (int x = 1; x <= design.GetPatternWidth(); ++x) {
        for (int y = 1; y <= design.GetPatternHeight(); ++y) {
            stitches += design.GetStitchCount(x, y);
        }
    }
    const int squares = design.GetPatternWidth() * design.GetPatternHeight();
    QVERIFY(stitches > squares * 9 / 10 && stitches < squares);
    QVERIFY(design.IsChanged());
}

void PictureToChartTest::UndoAndResume() {
    const Symbols imported = SymbolsOf(m_program->Design());
    m_program->Choose("mnuEditUndo");
    QCOMPARE(m_program->Design().GetPatternWidth(), 100);
    QVERIFY(SymbolsOf(m_program->Design()).empty());
    m_program->User.answers = {MessageAnswer::Yes};
    InDialog("mnuImport", [](QDialog& dialog) {
        auto& wizard = dynamic_cast<frmImportWizard&>(dialog);
        QCOMPARE(wizard.CurrentScreen(), 5);
        QTRY_VERIFY(PartOf<QPushButton>(wizard, "cmdNext").isEnabled());
        ClickIn(wizard, "cmdNext");
        QVERIFY(!wizard.isVisible());
    });
    QCOMPARE(m_program->User.AskedTexts().back(),
             std::string("Would you like to resume the last Import?"));
    QCOMPARE(SymbolsOf(m_program->Design()), imported);
}

void PictureToChartTest::SavePdf() {
    m_program->User.files = {Pdf()};
    InDialog("mnuFileSavePdf", [](QDialog& dialog) {
        TypeIn(dialog, "txtGSPI", QStringLiteral("7"));
        ClickIn(dialog, "cmdSavePdf");
        QTRY_VERIFY(!dialog.isVisible());
    });
    Pattern& design = m_program->Design();
    PrintOptions options = PrintOptionsOf(m_program->Parts().Settings);
    options.GSPI = 7;
    Paper paper{QPageSize(QPageSize::A4)};
    PrintFuncs job(options, &paper);
    job.SetPattern(design);
    QVERIFY(job.GetPageCount() > 1);
    const Symbols wanted = SymbolsOf(design);
    QVERIFY(wanted.size() > 1000);
    QCOMPARE(SymbolsIn(Pdf(), job), wanted);
    job.CountKeyPages();
    QCOMPARE(PdfPageCount(Pdf()), job.GetPageCount());
}

void PictureToChartTest::Print() {
    InDialog("mnuFilePrintPreview", [](QDialog& dialog) {
        TypeIn(dialog, "txtGSPI", QStringLiteral("7"));
        ClickIn(dialog, "cmdPrint");
        QTRY_VERIFY(!dialog.isVisible());
    });
    const PicturePrinter& printer = m_program->Printers.device;
    QCOMPARE(printer.ended, 1);
    QCOMPARE(static_cast<int>(printer.printed.size()), PdfPageCount(Pdf()));
    QVERIFY(std::all_of(printer.printed.begin(), printer.printed.end(), [](const QImage& page) {
        QImage blank = page;
        blank.fill(Qt::white);
        return !(page == blank);
    }));
}

void PictureToChartTest::CancelLeavesTheDesign() {
    InDialog("mnuImport", [this](QDialog& dialog) {
        auto& wizard = dynamic_cast<frmImportWizard&>(dialog);
        // Nothing was chosen yet.
        ClickIn(wizard, "cmdNext");
        QCOMPARE(m_program->User.ToldTexts().back(),
                 std::string("You must select an image to import"));
        QCOMPARE(wizard.CurrentScreen(), 0);
        ChooseThePhoto(wizard);
        QTest::keyClick(&wizard, Qt::Key_Escape);
        QTRY_VERIFY(!wizard.isVisible());
    });
    QCOMPARE(m_program->Design().GetPatternWidth(), 100);
    QVERIFY(!m_program->Design().IsChanged());
}

} // namespace zol::test

QTEST_MAIN(zol::test::PictureToChartTest)
#include "test_PictureToChart.moc"
