// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGuiApplication>
#include <QSocketNotifier>

#include <csignal>
#include <functional>
#include <memory>
#include <vector>

namespace zol {

/// Keeps the work when the end comes from outside: the desktop's session is about to end, or the
/// system sends SIGTERM, SIGHUP or SIGINT. After a signal the program ends as the signal wants; a
/// second one of its kind ends it at once. One at a time; what was set up before comes back.
class SessionEnd : public QObject {
public:
    /// `keepWork` runs in the event loop, never inside a signal's handler.
    SessionEnd(QGuiApplication& application, std::function<void()> keepWork);
    ~SessionEnd() override;
    SessionEnd(const SessionEnd&) = delete;
    SessionEnd& operator=(const SessionEnd&) = delete;

private:
    struct Before {
        int Signal;
        struct sigaction Action;
    };

    void WatchSignals();
    void EndBySignal();

    std::function<void()> m_keepWork;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::vector<Before> m_before;
    int m_readEnd = -1;
    int m_writeEnd = -1;
};

} // namespace zol
