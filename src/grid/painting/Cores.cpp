// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/Cores.h"

#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>

namespace zol {

namespace {

/// What those that work on one task share. It outlives the call for a helper that wakes up late.
class Task {
public:
    Task(int pieces, const Cores::Work& work) : m_pieces(pieces), m_work(work) {}

    void TakePieces(int worker) {
        for (int piece = m_next++; piece < m_pieces; piece = m_next++) {
            try {
                m_work(worker, piece);
            } catch (...) {
                const std::lock_guard lock(m_mutex);
                m_error = m_error ? m_error : std::current_exception();
                m_next = m_pieces;
            }
        }
    }
    void Help() {
        int worker = 0;
        {
            const std::lock_guard lock(m_mutex);
            if (m_closed) {
                return;
            }
            ++m_busy;
            worker = ++m_helpers;
        }
        TakePieces(worker);
        const std::lock_guard lock(m_mutex);
        if (--m_busy == 0) {
            m_left.notify_one();
        }
    }
    /// Nobody begins from now on; those at work are waited for.
    void Close() {
        std::unique_lock lock(m_mutex);
        m_closed = true;
        m_left.wait(lock, [this] { return m_busy == 0; });
        if (m_error) {
            std::rethrow_exception(m_error);
        }
    }

private:
    const int m_pieces;
    const Cores::Work& m_work;
    std::atomic<int> m_next = 0;
    std::mutex m_mutex;
    std::condition_variable m_left;
    bool m_closed = false;
    int m_busy = 0;    ///< helpers at work
    int m_helpers = 0; ///< that have come
    std::exception_ptr m_error;
};

} // namespace

int Cores::Count() {
    return std::max(1, QThread::idealThreadCount());
}

void Cores::Run(int workers, int pieces, const Work& work) {
    const int helpers = std::min(workers, pieces) - 1;
    if (helpers <= 0) {
        for (int piece = 0; piece < pieces; ++piece) {
            work(0, piece);
        }
        return;
    }
    const auto task = std::make_shared<Task>(pieces, work);
    for (int i = 0; i < helpers; ++i) {
        if (!QThreadPool::globalInstance()->tryStart([task] { task->Help(); })) {
            break;
        }
    }
    task->TakePieces(0);
    task->Close();
}

} // namespace zol
