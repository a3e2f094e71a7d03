// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/frmFlossUsage.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLocale>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

#include "model/RunTimeError.h"
#include "model/SafeFile.h"
#include "print/FlossUsageText.h"
#include "print/basExport.h"
#include "print/windows/FlossUsageModel.h"
#include "print/windows/PrinterChoice.h"
#include "print/windows/ui_frmFlossUsage.h"
#include "windowkit/DialogSize.h"
#include "windowkit/WaitCursor.h"

namespace zol {

namespace {

const char* const ReportName = "Korvanta Floss Usage Report";

/// Rows with air above and below their texts.
class AiryRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 6);
    }
};

QString Counted(std::int64_t count, const char* one, const char* many) {
    return QLocale().toString(static_cast<qlonglong>(count)) + QLatin1Char(' ') +
           QLatin1String(count == 1 ? one : many);
}

QString TotalsText(const FlossUsageTotals& totals, bool inches) {
    if (totals.Flosses == 0) {
        return QStringLiteral("Nothing is stitched yet.");
    }
    return QStringLiteral("%1 in %2, and %3 %4 of backstitch: %5 to buy")
        .arg(Counted(totals.Stitches, "stitch", "stitches"),
             Counted(totals.Flosses, "floss", "flosses"),
             QLocale().toString(totals.BackStitchLength, 'f', 1),
             inches ? QStringLiteral("inches") : QStringLiteral("cm"),
             Counted(totals.Skeins, "skein", "skeins"));
}

} // namespace

frmFlossUsage::frmFlossUsage(PrintDesk desk, QWidget* parent)
    : QDialog(parent),
      m_desk(std::move(desk)),
      m_inches(m_desk.Settings.UsesInches()),
      m_ui(std::make_unique<Ui::frmFlossUsage>()) {
    m_ui->setupUi(this);
    FillList();
    AddListActions();
    connect(m_ui->cmdPrint, &QPushButton::clicked, this, &frmFlossUsage::Print);
    connect(m_ui->cmdCopy, &QPushButton::clicked, this, [this] { Copy(m_model->Rows()); });
    connect(m_ui->cmdSave, &QPushButton::clicked, this, &frmFlossUsage::SaveCsv);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QDialog::reject);
    RememberSize(*this, m_desk.Store);
}

frmFlossUsage::~frmFlossUsage() = default;

void frmFlossUsage::FillList() {
    const WaitCursor waiting;
    m_model = new FlossUsageModel(GetFlossUsages(m_desk.Open.Design(), m_inches), m_inches, this);
    QTreeView& list = *m_ui->lvFlossUsage;
    list.setModel(m_model);
    list.setItemDelegate(new AiryRows(&list));
    // The palette's order, until a column is chosen.
    list.header()->setSortIndicator(-1, Qt::AscendingOrder);
    list.setSortingEnabled(true);
    list.header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list.header()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_ui->lblTotals->setText(TotalsText(TotalsOf(m_model->Rows()), m_inches));
    for (QPushButton* button : {m_ui->cmdCopy, m_ui->cmdSave}) {
        button->setEnabled(!m_model->Rows().empty());
    }
}

void frmFlossUsage::AddListActions() {
    QTreeView& list = *m_ui->lvFlossUsage;
    const auto add = [&list](const QString& text, const QKeySequence& keys) {
        auto* action = new QAction(text, &list);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        list.addAction(action);
        return action;
    };
    connect(add(QStringLiteral("Copy"), QKeySequence::Copy), &QAction::triggered, this, [this] {
        const std::vector<FlossUsageRow> selected = SelectedRows();
        Copy(selected.empty() ? m_model->Rows() : selected);
    });
    connect(add(QStringLiteral("Select All"), QKeySequence::SelectAll), &QAction::triggered, &list,
            &QTreeView::selectAll);
    for (int column = 0; column < m_model->columnCount(); ++column) {
        const QString heading =
            m_model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        QAction* action = add(QStringLiteral("Sort by ") + heading,
                              QKeySequence(QStringLiteral("Ctrl+%1").arg(column + 1)));
        connect(action, &QAction::triggered, this, [this, column] { SortBy(column); });
    }
}

void frmFlossUsage::SortBy(int column) {
    const QHeaderView& header = *m_ui->lvFlossUsage->header();
    const bool again = header.sortIndicatorSection() == column &&
                       header.sortIndicatorOrder() == Qt::AscendingOrder;
    m_ui->lvFlossUsage->sortByColumn(column, again ? Qt::DescendingOrder : Qt::AscendingOrder);
}

std::vector<FlossUsageRow> frmFlossUsage::SelectedRows() const {
    QModelIndexList selected = m_ui->lvFlossUsage->selectionModel()->selectedRows();
    std::sort(selected.begin(), selected.end());
    std::vector<FlossUsageRow> rows;
    for (const QModelIndex& index : selected) {
        rows.push_back(m_model->Rows()[static_cast<std::size_t>(index.row())]);
    }
    return rows;
}

void frmFlossUsage::Copy(const std::vector<FlossUsageRow>& rows) const {
    QGuiApplication::clipboard()->setText(QString::fromStdString(FlossUsageTabbed(rows, m_inches)));
}

void frmFlossUsage::SaveCsv() {
    const std::filesystem::path pattern = PathOf(m_desk.Open.Get().FileName());
    FileChoice choice;
    choice.Title = "Save Floss Usage";
    choice.Filter = "Table of Values|*.csv";
    choice.DefaultExtension = "csv";
    choice.Folder = pattern.parent_path();
    choice.SuggestedName = ExportProposal(pattern);
    const auto file = m_desk.Files.AskSaveFile(choice);
    if (!file) {
        return;
    }
    const std::string csv = FlossUsageCsv(m_model->Rows(), m_inches);
    const int number =
        SafeFile::Replace(*file, {reinterpret_cast<const std::uint8_t*>(csv.data()), csv.size()});
    if (number != ErrNone) {
        m_desk.Messages.TellMore(RunTimeErrorText(number),
                                 "The table was not saved, and a file of that name is as it was. "
                                 "Choose another place, or make room there.",
                                 MessageIcon::Exclamation, windowTitle().toStdString());
    }
}

void frmFlossUsage::Print() {
    if (!PrinterChoice::NeedPrinter(m_desk) || !PrinterChoice::ChoosePrinter(m_desk, this) ||
        !PrinterChoice::MayPrint(m_desk)) {
        return;
    }
    PageDevice* printer = m_desk.Printers.Printer();
    m_desk.Printers.NameDocument(QLatin1String(ReportName));
    bool isPrinted = false;
    std::string fault = RunTimeErrorText(ErrDeviceIO);
    if (printer != nullptr) {
        const WaitCursor waiting;
        isPrinted =
            PrintFlossUsage(m_desk.Open.Design(), m_model->Rows(), m_desk.OptionsNow(), *printer);
        if (!isPrinted) {
            printer->KillDoc();
            fault = WhyRefused(*printer);
        }
    }
    if (!isPrinted) {
        m_desk.Messages.TellMore(fault,
                                 "The report was not printed. Look whether the printer is there "
                                 "and takes jobs.",
                                 MessageIcon::Exclamation, "Print");
    }
}

} // namespace zol
