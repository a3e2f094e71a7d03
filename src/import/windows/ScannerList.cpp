// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/ScannerList.h"

#include <QComboBox>
#include <QPushButton>

#include <algorithm>
#include <string>

#include "import/ImportMessages.h"
#include "import/windows/ScanJob.h"
#include "import/windows/frmAcquire.h"
#include "model/Doors.h"

namespace zol {

namespace {

constexpr const char* ScannerSection = "Scanner";
constexpr const char* SourceName = "Source";

} // namespace

ScannerList::ScannerList(const Outside& outside, QComboBox& list, QPushButton& acquire,
                         QObject* parent)
    : QObject(parent),
      m_outside(outside),
      m_list(list),
      m_acquire(acquire) {
    // A name that is longer than the box can be read in full.
    connect(&m_list, &QComboBox::currentTextChanged, &m_list, &QWidget::setToolTip);
    connect(&m_list, &QComboBox::activated, this, &ScannerList::Choose);
    connect(&m_job, &LatestJob::Failed, this, [this](const QString& text) {
        Show({{}, {ScanProblem::Kind::Failed, text.toStdString(), {}}});
    });
}

void ScannerList::Look() {
    m_cutOff = false;
    m_sources.clear();
    m_list.clear();
    AddLine(QStringLiteral("Looking for scanners..."));
    m_acquire.setEnabled(false);
    m_job.Start(
        [&scanners = m_outside.Scanners](ProgressDoor& progress) {
            ScanJobWatcher watcher(progress);
            return scanners.FindSources(watcher);
        },
        [this](const SourcesFound& found) { Show(found); });
}

void ScannerList::Leave() {
    m_cutOff = m_cutOff || m_job.IsRunning();
    m_job.Cancel();
}

void ScannerList::ComeBack() {
    if (m_cutOff) {
        Look();
    }
}

void ScannerList::Show(const SourcesFound& found) {
    m_sources = found.Sources;
    m_list.clear();
    for (const ScanSource& source : m_sources) {
        AddLine(QString::fromStdString(source.Words), QString::fromStdString(source.Name));
    }
    const bool failed = found.Problem.Is != ScanProblem::Kind::None;
    if (failed) {
        AddLine(QString::fromStdString(found.Problem.Text),
                QString::fromStdString(found.Problem.More));
    } else if (m_sources.empty()) {
        AddLine(QStringLiteral("No scanner was found"),
                QStringLiteral("Switch it on, connect it and look again."));
    }
    AddLine(QStringLiteral("Look for scanners again"));
    const std::string last = m_outside.Store.ReadSetting(ScannerSection, SourceName, {});
    const auto known =
        std::find_if(m_sources.begin(), m_sources.end(),
                     [&last](const ScanSource& source) { return source.Name == last; });
    m_list.setCurrentIndex(known == m_sources.end() ? 0
                                                    : static_cast<int>(known - m_sources.begin()));
    m_acquire.setEnabled(Chosen().has_value());
    if (failed) {
        m_outside.Messages.TellMore(found.Problem.Text, found.Problem.More,
                                    MessageIcon::Exclamation, ImportMessages::Title);
    }
}

void ScannerList::AddLine(const QString& text, const QString& tip) {
    m_list.addItem(text);
    m_list.setItemData(m_list.count() - 1, tip, Qt::ToolTipRole);
}

void ScannerList::Choose(int line) {
    if (line == m_list.count() - 1 && !m_job.IsRunning()) {
        Look();
    } else {
        m_acquire.setEnabled(Chosen().has_value());
    }
}

std::optional<ScanSource> ScannerList::Chosen() const {
    const int line = m_list.currentIndex();
    if (line < 0 || static_cast<std::size_t>(line) >= m_sources.size()) {
        return std::nullopt;
    }
    return m_sources[static_cast<std::size_t>(line)];
}

std::optional<Picture> ScannerList::Acquire(QWidget* over) {
    const auto source = Chosen();
    if (!source) {
        return std::nullopt;
    }
    m_outside.Store.WriteSetting(ScannerSection, SourceName, source->Name);
    frmAcquire window(m_outside.Scanners, m_outside.Store, m_outside.Context, *source, over);
    if (window.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return window.TakePicture();
}

} // namespace zol
