// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <utility>

#include "import/scan/ScannerDoor.h"
#include "model/Doors.h"

namespace zol {

/// Lets a call to a scanner, made by a window's job, go on as long as the job may. `take` gets the
/// rows on the job's thread.
class ScanJobWatcher : public ScanWatcher {
public:
    explicit ScanJobWatcher(ProgressDoor& progress, std::function<void(const ScanRows&)> take = {})
        : m_progress(progress),
          m_take(std::move(take)) {}

    bool MayGoOn() override { return m_progress.MayGoOn(); }
    void TakeRows(const ScanRows& rows) override {
        if (m_take) {
            m_take(rows);
        }
    }

private:
    ProgressDoor& m_progress;
    std::function<void(const ScanRows&)> m_take;
};

} // namespace zol
