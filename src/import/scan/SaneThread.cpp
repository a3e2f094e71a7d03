// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/scan/SaneThread.h"

#include <utility>

namespace zol {

SaneThread::~SaneThread() {
    if (!m_thread.joinable()) {
        return;
    }
    std::unique_lock lock(m_queue->Mutex);
    m_queue->IsEnding = true;
    m_queue->Changed.notify_all();
    const bool ended =
        m_queue->Changed.wait_for(lock, m_toEnd, [this] { return m_queue->HasEnded; });
    lock.unlock();
    // A driver that never returns must not keep the program from ending.
    if (ended) {
        m_thread.join();
    } else {
        m_thread.detach();
    }
}

void SaneThread::Post(Task task) {
    const std::lock_guard lock(m_queue->Mutex);
    m_queue->Tasks.push_back(std::move(task));
    m_queue->Changed.notify_all();
    if (!m_thread.joinable()) {
        m_thread = std::thread([queue = m_queue, fileName = m_fileName] { Run(queue, fileName); });
    }
}

void SaneThread::Run(const std::shared_ptr<Queue>& queue, const std::string& fileName) {
    {
        SaneLibrary sane(fileName);
        while (const Task task = Next(*queue)) {
            task(sane);
        }
    }
    const std::lock_guard lock(queue->Mutex);
    queue->HasEnded = true;
    queue->Changed.notify_all();
}

/// Nothing at the end.
SaneThread::Task SaneThread::Next(Queue& queue) {
    std::unique_lock lock(queue.Mutex);
    queue.Changed.wait(lock, [&queue] { return queue.IsEnding || !queue.Tasks.empty(); });
    if (queue.IsEnding) {
        return {};
    }
    Task task = std::move(queue.Tasks.front());
    queue.Tasks.pop_front();
    return task;
}

} // namespace zol
