// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <vector>

#include "import/scan/ScannerDoor.h"

namespace zol {

/// What two threads share of one call to a scanner: the one that asked and waits, and the
/// scanner's, which works. Either may come to its end first.
class ScanCall {
public:
    using Duration = std::chrono::milliseconds;

    /// How the waiting ended.
    enum class End { Done, Cancelled, NotBegun };

    // For the one that waits.

    /// Waits until the work is done, handing rows to the watcher. A work that does not begin
    /// within `toBegin` is given up. One that is cancelled is left to itself at once; if it can
    /// be interrupted, it is after it had `toStop` to end.
    [[nodiscard]] End Wait(ScanWatcher& watcher, Duration toBegin, Duration toStop);

    // For the one that works.

    /// False: nobody waits for it any more.
    [[nodiscard]] bool Begin();
    [[nodiscard]] bool IsCancelled() const { return m_isCancelled; }
    /// Copies the rows; waits a little where the other thread does not keep up.
    void Send(const ScanRows& rows);
    /// What frees the work from a device that does not answer; an empty one takes it back, and
    /// then it is not called any more.
    void SetInterrupt(std::function<void()> interrupt);
    void Finish();

private:
    class Leave;
    struct Rows {
        ScanRows Are;
        std::vector<Colour> Pixels;
    };

    void HandOver(ScanWatcher& watcher, std::unique_lock<std::mutex>& lock);
    void Cancel(std::unique_lock<std::mutex>& lock, Duration toStop);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Rows> m_rows;
    std::function<void()> m_interrupt;
    std::atomic<bool> m_isCancelled = false;
    bool m_hasBegun = false;
    bool m_isDone = false;
};

} // namespace zol
