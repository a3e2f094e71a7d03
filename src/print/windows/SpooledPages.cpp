// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/SpooledPages.h"

#include "model/RunTimeError.h"
#include "model/SafeFile.h"
#include "print/PageText.h"

namespace zol {

namespace {

constexpr char SpoolName[] = "chart.pdf";

} // namespace

SpooledPages::~SpooledPages() {
    SpooledPages::KillDoc();
}

int SpooledPages::Width() const {
    return PaperTwips(m_paper).width();
}

int SpooledPages::Height() const {
    return PaperTwips(m_paper).height();
}

int SpooledPages::ScaleWidth() const {
    return PrintableTwips(m_paper).width();
}

int SpooledPages::ScaleHeight() const {
    return PrintableTwips(m_paper).height();
}

QPainter* SpooledPages::Painter() {
    return m_painter.isActive() || Open() ? &m_painter : nullptr;
}

bool SpooledPages::Open() {
    m_errorText.clear();
    m_folder = std::make_unique<QTemporaryDir>();
    m_output = std::make_unique<CheckedOutput>();
    const auto file = PathOf(m_folder->filePath(QLatin1String(SpoolName)).toStdString());
    const int number = m_folder->isValid() ? m_output->CreateFile(file) : ErrPathAccess;
    if (number != ErrNone) {
        m_errorText = RunTimeErrorText(number);
        m_folder.reset();
        return false;
    }
    m_writer = std::make_unique<QPdfWriter>(m_output.get());
    m_writer->setResolution(TwipsPerInch);
    m_writer->setPageLayout(m_paper);
    m_writer->setTitle(m_title);
    m_writer->setCreator(QStringLiteral("Korvanta 6"));
    return m_painter.begin(m_writer.get());
}

bool SpooledPages::NewPage() {
    return Painter() != nullptr && m_writer->newPage() && m_output->ErrorNumber() == ErrNone;
}

int SpooledPages::Close() {
    m_painter.end();
    m_writer.reset();
    const int number = m_output->Finish();
    m_output.reset();
    return number;
}

bool SpooledPages::EndDoc() {
    if (Painter() == nullptr) {
        return false;
    }
    const int number = Close();
    m_errorText =
        number == ErrNone
            ? m_handOver(PathOf(m_folder->filePath(QLatin1String(SpoolName)).toStdString()))
            : RunTimeErrorText(number);
    m_folder.reset();
    return m_errorText.empty();
}

void SpooledPages::KillDoc() {
    if (m_output != nullptr) {
        const int number = Close();
        if (number != ErrNone && m_errorText.empty()) {
            m_errorText = RunTimeErrorText(number);
        }
        m_folder.reset();
    }
}

} // namespace zol
