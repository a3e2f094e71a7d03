// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "app/SessionEnd.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <exception>
#include <utility>

namespace zol {

namespace {

/// Where the handler writes to, which can be given nothing but the signal's number.
std::atomic<int> signalEnd = -1;
static_assert(std::atomic<int>::is_always_lock_free);

} // namespace

extern "C" {
/// Runs between any two instructions, where little more than writing is allowed.
static void NoteSignal(int signal) {
    const int kept = errno;
    const auto byte = static_cast<unsigned char>(signal);
    [[maybe_unused]] const ssize_t written = ::write(signalEnd.load(), &byte, 1);
    errno = kept;
}
}

SessionEnd::SessionEnd(QGuiApplication& application, std::function<void()> keepWork)
    : m_keepWork(std::move(keepWork)) {
    // The session's manager may still be told by another program to go on, so nothing ends here.
    connect(&application, &QGuiApplication::commitDataRequest, this, [this] { m_keepWork(); });
    WatchSignals();
}

SessionEnd::~SessionEnd() {
    for (const Before& before : m_before) {
        ::sigaction(before.Signal, &before.Action, nullptr);
    }
    m_notifier.reset();
    if (m_readEnd >= 0) {
        signalEnd = -1;
        ::close(m_readEnd);
        ::close(m_writeEnd);
    }
}

void SessionEnd::WatchSignals() {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        return; // the signals end the program as they do without us
    }
    m_readEnd = ends[0];
    m_writeEnd = ends[1];
    signalEnd = m_writeEnd;
    m_notifier = std::make_unique<QSocketNotifier>(m_readEnd, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { EndBySignal(); });
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        Before before{signal, {}};
        ::sigaction(signal, nullptr, &before.Action);
        // A program that was started to outlive its terminal goes on doing so.
        if (before.Action.sa_handler == SIG_IGN) {
            continue;
        }
        struct sigaction noted {};
        noted.sa_handler = &NoteSignal;
        noted.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
        sigemptyset(&noted.sa_mask);
        ::sigaction(signal, &noted, nullptr);
        m_before.push_back(before);
    }
}

void SessionEnd::EndBySignal() {
    unsigned char signal = 0;
    if (::read(m_readEnd, &signal, 1) != 1) {
        return;
    }
    try {
        m_keepWork();
    } catch (const std::exception&) {
        // The last good recovery file stays, and no message may hold the end up.
    }
    // Whoever sent it learns that it was the signal that ended the program.
    std::signal(signal, SIG_DFL);
    ::raise(signal);
}

} // namespace zol
