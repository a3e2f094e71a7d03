// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "print/PrintFuncs.h"

namespace zol {

/// Gives a job its range and page back that somebody prints other pages of. A cancel of those
/// pages stops no later ones.
class KeptRange {
public:
    explicit KeptRange(PrintFuncs& job)
        : m_job(&job),
          m_range(job.Range()),
          m_isPreview(job.PreviewMode()) {}
    ~KeptRange() {
        m_job->SetRange(m_range);
        m_job->SetPreviewMode(m_isPreview);
        m_job->SetPrintCancelled(false);
    }
    KeptRange(const KeptRange&) = delete;
    KeptRange& operator=(const KeptRange&) = delete;

private:
    PrintFuncs* m_job;
    PrintRange m_range;
    bool m_isPreview;
};

} // namespace zol
