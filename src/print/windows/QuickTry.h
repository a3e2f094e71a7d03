// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>

#include "model/Doors.h"

namespace zol {

/// Lets work go on for a moment only. What is done by then needs no window that shows progress.
class QuickTry : public ProgressDoor {
public:
    explicit QuickTry(int milliseconds) : m_milliseconds(milliseconds) { m_timer.start(); }

    void StartStatus(const std::string& /*text*/, int /*maximum*/) override {}
    void UpdateStatus(int /*value*/) override {}
    void StopStatus() override {}
    [[nodiscard]] bool MayGoOn() override { return m_timer.elapsed() < m_milliseconds; }

private:
    int m_milliseconds;
    QElapsedTimer m_timer;
};

} // namespace zol
