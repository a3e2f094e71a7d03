// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "import/scan/ScannerDoor.h"

namespace zol::test {

/// A scanner that does as the test says. Set it up before anything is asked of it; the operations
/// may be called while calls of another thread go on.
class ScriptedScanner : public ScannerDoor {
public:
    /// From now on calls wait, a scan half-way through its rows, until they are let go or
    /// cancelled.
    void Hold() { SetHeld(true); }
    void LetGo() { SetHeld(false); }
    [[nodiscard]] std::vector<ScanRequest> Requests() const {
        const std::lock_guard lock(m_mutex);
        return m_requests;
    }
    /// How often sources were looked for.
    [[nodiscard]] int Looks() const {
        const std::lock_guard lock(m_mutex);
        return m_looks;
    }
    /// Whether a call is under way that is held.
    [[nodiscard]] bool IsWaiting() const {
        const std::lock_guard lock(m_mutex);
        return m_waiting;
    }
    [[nodiscard]] bool IsCancelled() const {
        const std::lock_guard lock(m_mutex);
        return m_cancelled;
    }

    SourcesFound FindSources(ScanWatcher& watcher) override {
        {
            const std::lock_guard lock(m_mutex);
            ++m_looks;
        }
        return Wait(watcher) ? found : SourcesFound{{}, Cancelled()};
    }
    AbilitiesFound AskAbilities(const std::string& /*source*/, ScanWatcher& watcher) override {
        return Wait(watcher) ? abilities : AbilitiesFound{{}, Cancelled()};
    }
    ScanResult Acquire(const ScanRequest& request, ScanWatcher& watcher) override {
        ScanResult result = request.Preview ? preview : NextScan();
        {
            const std::lock_guard lock(m_mutex);
            m_requests.push_back(request);
        }
        const int height = result.Image.ImageHeight();
        SendRows(result.Image, 0, height / 2, watcher);
        if (!Wait(watcher)) {
            return {{}, Cancelled()};
        }
        SendRows(result.Image, height / 2, height, watcher);
        return result;
    }

    SourcesFound found;
    AbilitiesFound abilities;
    ScanResult preview;
    std::deque<ScanResult> scans; ///< one a scan; the last one stays

private:
    static ScanProblem Cancelled() {
        return {ScanProblem::Kind::Cancelled, "The scan was cancelled.", {}};
    }
    ScanResult NextScan() {
        ScanResult result = scans.empty() ? ScanResult{} : scans.front();
        if (scans.size() > 1) {
            scans.pop_front();
        }
        return result;
    }
    static void SendRows(const Picture& image, int from, int to, ScanWatcher& watcher) {
        if (from >= to) {
            return;
        }
        const auto count =
            static_cast<std::size_t>(to - from) * static_cast<std::size_t>(image.ImageWidth());
        watcher.TakeRows({image.ImageWidth(),
                          image.ImageHeight(),
                          from,
                          {image.Row(from), count},
                          static_cast<double>(to) / image.ImageHeight()});
    }
    void SetHeld(bool held) {
        {
            const std::lock_guard lock(m_mutex);
            m_held = held;
        }
        m_changed.notify_all();
    }
    /// False: the call was cancelled.
    bool Wait(ScanWatcher& watcher) {
        std::unique_lock lock(m_mutex);
        while (m_held && watcher.MayGoOn()) {
            m_waiting = true;
            m_changed.wait_for(lock, std::chrono::milliseconds(5));
        }
        m_waiting = false;
        m_cancelled = !watcher.MayGoOn();
        return !m_cancelled;
    }

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<ScanRequest> m_requests;
    int m_looks = 0;
    bool m_held = false;
    bool m_waiting = false;
    bool m_cancelled = false;
};

} // namespace zol::test
