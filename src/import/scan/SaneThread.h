// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "import/scan/SaneLibrary.h"
#include "import/scan/ScanCall.h"

namespace zol {

/// The one thread that calls SANE; it starts with the first task. Tasks run one after the other.
class SaneThread {
public:
    using Task = std::function<void(SaneLibrary& sane)>;

    /// `fileName` of the library; the end waits no longer than `toEnd` for a task that hangs in a
    /// driver.
    SaneThread(std::string fileName, ScanCall::Duration toEnd)
        : m_fileName(std::move(fileName)),
          m_toEnd(toEnd) {}
    ~SaneThread();
    SaneThread(const SaneThread&) = delete;
    SaneThread& operator=(const SaneThread&) = delete;

    /// Tasks throw nothing. Those that have not begun at the end never do.
    void Post(Task task);

private:
    /// Shared, since a thread that hangs is left behind.
    struct Queue {
        std::mutex Mutex;
        std::condition_variable Changed;
        std::deque<Task> Tasks;
        bool IsEnding = false;
        bool HasEnded = false;
    };

    static void Run(const std::shared_ptr<Queue>& queue, const std::string& fileName);
    [[nodiscard]] static Task Next(Queue& queue);

    std::string m_fileName;
    ScanCall::Duration m_toEnd;
    std::shared_ptr<Queue> m_queue = std::make_shared<Queue>();
    std::thread m_thread;
};

} // namespace zol
