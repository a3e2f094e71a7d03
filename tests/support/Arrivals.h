// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QObject>

namespace zol::test {

/// Counts what the other threads of a job sent and what has come to the window's thread by now,
/// also of runs that do not count any more: their outcome comes last and is then dropped. So a test
/// knows when nothing can follow.
class Arrivals : public QObject {
public:
    explicit Arrivals(QObject& job) { job.installEventFilter(this); }

    [[nodiscard]] int Count() const { return m_count; }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        m_count += event->type() == QEvent::User ? 1 : 0;
        return false;
    }

private:
    int m_count = 0;
};

} // namespace zol::test
