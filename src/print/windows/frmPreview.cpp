// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/frmPreview.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QShortcut>

#include <algorithm>

#include "model/Rounding.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"
#include "print/KeptRange.h"
#include "print/PagePicture.h"
#include "print/Paper.h"
#include "print/windows/JobPrinting.h"
#include "print/windows/PdfSaving.h"
#include "print/windows/PrinterChoice.h"
#include "print/windows/frmPrinting.h"
#include "print/windows/ui_frmPreview.h"
#include "windowkit/DialogSize.h"
#include "windowkit/IconFamily.h"
#include "windowkit/NumericFilter.h"

namespace zol {

namespace {

constexpr char Title[] = "Pattern Preview";
constexpr char ExportTitle[] = "Export Pattern Print Page";
constexpr int ExportDots = 300; ///< to the inch of an exported page
/// While the wheel turns or the window is drawn larger, the old picture is scaled.
constexpr int RepaintDelay = 120;

} // namespace

frmPreview::frmPreview(PrintDesk& desk, PrintFuncs& job, QWidget* parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmPreview>()),
      m_desk(desk),
      m_job(job),
      m_page(job.PrintFromPage()) {
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_ui->cmdZoomIn->setIcon(IconFamily::Icon(QStringLiteral("zoom-in")));
    m_ui->cmdZoomOut->setIcon(IconFamily::Icon(QStringLiteral("zoom-out")));
    m_ui->cmbZoom->addItems(PreviewZoom::Choices());
    m_ui->cmbZoom->setCompleter(nullptr);
    new NumericFilter(m_ui->txtPage, 5, 0);
    m_repaint.setSingleShot(true);
    m_repaint.setInterval(RepaintDelay);
    ConnectControls();
    SetUpKeys();
    ShowNumbers();
    resize(900, 680);
    RememberSize(*this, m_desk.Store);
    m_ui->Picture2->setFocus();
}

frmPreview::~frmPreview() = default;

void frmPreview::ConnectControls() {
    connect(m_ui->cmdPrevious, &QPushButton::clicked, this, [this] { ShowPage(m_page - 1); });
    connect(m_ui->cmdNextPage, &QPushButton::clicked, this, [this] { ShowPage(m_page + 1); });
    connect(m_ui->txtPage, &QLineEdit::editingFinished, &m_whole, [this] { ShowTypedPage(); });
    connect(m_ui->cmbZoom, &QComboBox::textActivated, &m_whole,
            [this](const QString& text) { TakeZoom(text); });
    connect(m_ui->cmbZoom->lineEdit(), &QLineEdit::editingFinished, &m_whole,
            [this] { TakeZoom(m_ui->cmbZoom->currentText()); });
    connect(m_ui->cmdZoomIn, &QToolButton::clicked, this, [this] { StepZoom(1, std::nullopt); });
    connect(m_ui->cmdZoomOut, &QToolButton::clicked, this, [this] { StepZoom(-1, std::nullopt); });
    connect(m_ui->Picture2, &PageView::ZoomWanted, this,
            [this](double steps, const QPoint& anchor) { StepZoom(steps, anchor); });
    connect(m_ui->Picture2, &PageView::Resized, this, [this] { Resize(); });
    connect(m_ui->cmdPrintPage, &QPushButton::clicked, this, &frmPreview::PrintPage);
    connect(m_ui->cmdExport, &QPushButton::clicked, this, &frmPreview::Export);
    connect(m_ui->cmdSavePdf, &QPushButton::clicked, this, &frmPreview::SavePdf);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &frmPreview::accept);
    connect(&m_repaint, &QTimer::timeout, this, &frmPreview::PaintShown);
}

void frmPreview::SetUpKeys() {
    const auto onKey = [this](const QKeySequence& key, auto run) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, run);
    };
    onKey(Qt::Key_PageUp, [this] { TurnOver(-1); });
    onKey(Qt::Key_PageDown, [this] { TurnOver(1); });
    onKey(Qt::CTRL | Qt::Key_Home, [this] { ShowPage(m_job.PrintFromPage()); });
    onKey(Qt::CTRL | Qt::Key_End, [this] { ShowPage(m_job.PrintToPage()); });
    onKey(QKeySequence::ZoomIn, [this] { StepZoom(1, std::nullopt); });
    onKey(QKeySequence::ZoomOut, [this] { StepZoom(-1, std::nullopt); });
    onKey(Qt::CTRL | Qt::Key_0, [this] { TakeZoom(PreviewZoom::Choices().front()); });
}

void frmPreview::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    Resize();
}

QSize frmPreview::PaperSize() const {
    const Paper without{QPageSize(QPageSize::A4)};
    const PageDevice* paper = m_job.Printer() != nullptr ? m_job.Printer() : &without;
    return {paper->Width(), paper->Height()};
}

void frmPreview::ShowPage(int page) {
    page = std::clamp(page, m_job.PrintFromPage(),
                      std::max(m_job.PrintFromPage(), m_job.PrintToPage()));
    if (page != m_page) {
        const PagePicture picture = Paint(page, m_dots);
        if (!picture.Image.isNull()) {
            m_page = page;
            m_ui->Picture2->Paper().SetPage(picture.Image);
            m_ui->Picture2->ScrollToTop();
        } else if (!picture.ErrorText.empty()) {
            TellFault(picture.ErrorText, "The page that was shown before is still there.");
        }
    }
    ShowNumbers();
}

void frmPreview::TurnOver(int pages) {
    QScrollBar& bar = *m_ui->Picture2->verticalScrollBar();
    const int end = pages > 0 ? bar.maximum() : bar.minimum();
    if (bar.value() != end) {
        bar.triggerAction(pages > 0 ? QAbstractSlider::SliderPageStepAdd
                                    : QAbstractSlider::SliderPageStepSub);
    } else {
        ShowPage(m_page + pages);
    }
}

void frmPreview::ShowTypedPage() {
    bool isNumber = false;
    const int typed = m_ui->txtPage->text().toInt(&isNumber);
    ShowPage(isNumber ? typed + m_page - m_job.NumberOfPage(m_page) : m_page);
}

void frmPreview::ShowNumbers() {
    const int from = m_job.PrintFromPage();
    const int to = m_job.PrintToPage();
    const bool isKey = m_job.PatternPages() != 0 && m_page > m_job.PatternPages();
    m_ui->txtPage->setText(QString::number(m_job.NumberOfPage(m_page)));
    m_ui->lblOfPages->setText(
        from == m_job.NumberOfPage(from) && from == 1 ? tr("of %1").arg(to)
        : from == to                                  ? QString()
                     : tr("of %1 to %2").arg(m_job.NumberOfPage(from)).arg(m_job.NumberOfPage(to)));
    m_ui->lblPageName->setText(isKey ? QString::fromStdString(m_desk.Context.ColorWord()) +
                                           tr(" Key Page %1").arg(m_page - m_job.PatternPages())
                                     : tr("Pattern Page %1").arg(m_page));
    m_ui->cmdPrevious->setEnabled(m_page > from);
    m_ui->cmdNextPage->setEnabled(m_page < to);
}

void frmPreview::TakeZoom(const QString& text) {
    m_zoom.Take(text);
    Resize();
}

void frmPreview::StepZoom(double steps, std::optional<QPoint> anchor) {
    m_zoom.Step(steps, PreviewZoom::PercentOf(m_dots, devicePixelRatioF()));
    Resize(anchor);
}

void frmPreview::Resize(std::optional<QPoint> anchor) {
    const QSize paper = PaperSize();
    const QSize room = m_ui->Picture2->Room(m_zoom.CurrentMode() == PreviewZoom::Mode::FitWidth);
    m_dots = m_zoom.DotsPerInch(paper, room, devicePixelRatioF());
    const double twips = static_cast<double>(PageDevice::TwipsPerInch) / m_dots;
    const QSize pixels(RoundToInt(paper.width() / twips), RoundToInt(paper.height() / twips));
    m_ui->Picture2->SetPaperSize(pixels, anchor);
    m_ui->cmbZoom->setEditText(m_zoom.Text());
    if (m_ui->Picture2->Paper().Page().size() != pixels) {
        m_repaint.start(m_ui->Picture2->Paper().Page().isNull() ? 0 : RepaintDelay);
    }
}

void frmPreview::PaintShown() {
    const PagePicture picture = Paint(m_page, m_dots);
    if (!picture.Image.isNull()) {
        m_ui->Picture2->Paper().SetPage(picture.Image);
        return;
    }
    if (!picture.ErrorText.empty()) {
        TellFault(picture.ErrorText, "The pages cannot be shown.");
    }
    if (m_ui->Picture2->Paper().Page().isNull()) {
        reject(); // cancelled before anything was to be seen
    }
}

PagePicture frmPreview::Paint(int page, int dotsPerInch) {
    m_repaint.stop();
    const KeptRange kept(m_job);
    m_job.SetPreviewMode(true);
    PagePicture picture;
    frmPrinting(this).RunLate(
        [&](ProgressDoor& progress) {
            picture = PaintShownPage(m_job, page, dotsPerInch, &progress);
        },
        m_patience);
    return picture;
}

void frmPreview::TellFault(const std::string& fault, const std::string& more) {
    m_desk.Messages.TellMore(fault, more, MessageIcon::Exclamation, Title);
}

void frmPreview::PrintPage() {
    // The pages are laid out for the printer that was there when they were chosen, if any; whether
    // it still is, printing asks.
    if (m_desk.Printers.Printer() == nullptr) {
        PrinterChoice::TellNoPrinter(m_desk);
        return;
    }
    const KeptRange kept(m_job);
    m_job.SetRange({m_page, m_page, m_page, m_job.Range().KeyOnly});
    PrintOnPrinter(m_desk, m_job, this);
}

void frmPreview::Export() {
    FileChoice choice;
    choice.Title = ExportTitle;
    choice.Filter = "PNG Picture|*.png|Windows BMP File|*.bmp";
    choice.DefaultExtension = "png";
    const std::filesystem::path design = PathOf(m_desk.Open.Get().FileName());
    choice.Folder =
        design.has_parent_path() ? design.parent_path() : PathOf(m_desk.Settings.LastPatSaveLoc);
    choice.SuggestedName = (design.empty() ? std::string("chart") : PathText(design.stem())) +
                           " page " + std::to_string(m_job.NumberOfPage(m_page)) + ".png";
    const auto file = m_desk.Files.AskSaveFile(choice);
    if (!file) {
        return;
    }
    const PagePicture picture = Paint(m_page, ExportDots);
    std::string fault = picture.ErrorText;
    if (!picture.Image.isNull()) {
        const WholeFileResult written = SavePagePicture(picture.Image, *file);
        fault = written.IsWritten ? std::string() : RunTimeErrorText(written.Number);
    }
    if (!fault.empty()) {
        m_desk.Messages.TellMore(fault, "The page was not saved. A file of that name is as it was.",
                                 MessageIcon::Exclamation, ExportTitle);
    }
}

void frmPreview::SavePdf() {
    SaveJobAsPdf(m_desk, m_job, this);
}

} // namespace zol
