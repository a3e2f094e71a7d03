// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/scan/ScanCall.h"

#include <utility>

namespace zol {

namespace {

// How long a press of Cancel may go unseen.
constexpr ScanCall::Duration Glance{40};
// A few rows at a time; more of them waiting would be the picture once more.
constexpr std::size_t MaxWaiting = 64;

} // namespace

/// However the waiting ends, also where a watcher throws: the work has nobody any more to send
/// rows to.
class ScanCall::Leave {
public:
    explicit Leave(ScanCall& call) : m_call(call) {}
    ~Leave() {
        const std::lock_guard lock(m_call.m_mutex);
        m_call.m_isCancelled = true;
        m_call.m_changed.notify_all();
    }
    Leave(const Leave&) = delete;
    Leave& operator=(const Leave&) = delete;

private:
    ScanCall& m_call;
};

ScanCall::End ScanCall::Wait(ScanWatcher& watcher, Duration toBegin, Duration toStop) {
    const auto latestBegin = std::chrono::steady_clock::now() + toBegin;
    const Leave leave(*this);
    std::unique_lock lock(m_mutex);
    while (!m_isDone) {
        m_changed.wait_for(lock, Glance, [this] { return m_isDone || !m_rows.empty(); });
        HandOver(watcher, lock);
        if (!watcher.MayGoOn()) {
            Cancel(lock, toStop);
            return End::Cancelled;
        }
        if (!m_hasBegun && std::chrono::steady_clock::now() >= latestBegin) {
            return End::NotBegun;
        }
    }
    HandOver(watcher, lock);
    return End::Done;
}

/// The watcher may take its time, so the work goes on meanwhile.
void ScanCall::HandOver(ScanWatcher& watcher, std::unique_lock<std::mutex>& lock) {
    while (!m_rows.empty()) {
        Rows rows = std::move(m_rows.front());
        m_rows.pop_front();
        lock.unlock();
        m_changed.notify_all();
        rows.Are.Pixels = rows.Pixels;
        watcher.TakeRows(rows.Are);
        lock.lock();
    }
}

void ScanCall::Cancel(std::unique_lock<std::mutex>& lock, Duration toStop) {
    m_isCancelled = true;
    m_changed.notify_all();
    // Without an interrupt there is nothing to wait for: the work ends when it next looks.
    if (m_interrupt && !m_changed.wait_for(lock, toStop, [this] { return m_isDone; }) &&
        m_interrupt) {
        m_interrupt();
    }
}

bool ScanCall::Begin() {
    const std::lock_guard lock(m_mutex);
    m_hasBegun = true;
    return !m_isCancelled;
}

void ScanCall::Send(const ScanRows& rows) {
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_rows.size() < MaxWaiting || m_isCancelled; });
    if (!m_isCancelled) {
        m_rows.push_back({rows, {rows.Pixels.begin(), rows.Pixels.end()}});
        m_changed.notify_all();
    }
}

void ScanCall::SetInterrupt(std::function<void()> interrupt) {
    const std::lock_guard lock(m_mutex);
    m_interrupt = std::move(interrupt);
}

void ScanCall::Finish() {
    const std::lock_guard lock(m_mutex);
    m_isDone = true;
    m_changed.notify_all();
}

} // namespace zol
