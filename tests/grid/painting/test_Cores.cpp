// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/Cores.h"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>
#include <vector>

namespace zol {
namespace {

TEST(CoresTest, ThereIsOneAtLeast) {
    EXPECT_GE(Cores::Count(), 1);
}

TEST(CoresTest, EachPieceIsDoneOnce) {
    for (const int workers : {0, 1, 2, 3, 8}) {
        std::vector<std::atomic<int>> done(1000);
        Cores::Run(workers, 1000, [&](int, int piece) { ++done[static_cast<std::size_t>(piece)]; });
        for (std::size_t i = 0; i < done.size(); ++i) {
            ASSERT_EQ(done[i], 1) << "piece " << i << " of " << workers << " workers";
        }
    }
}

TEST(CoresTest, NoPieceIsNoWork) {
    Cores::Run(4, 0, [](int, int) { FAIL(); });
    Cores::Run(4, -1, [](int, int) { FAIL(); });
}

TEST(CoresTest, OneWorkerIsTheCallerInOrder) {
    std::vector<int> order;
    Cores::Run(1, 5, [&](int worker, int piece) {
        EXPECT_EQ(worker, 0);
        order.push_back(piece);
    });
    EXPECT_EQ(order, (std::vector<int>{0, 1, 2, 3, 4}));
}

TEST(CoresTest, NoTwoAtWorkHaveTheSameNumber) {
    constexpr int workers = 4;
    std::vector<std::atomic<bool>> busy(workers);
    std::atomic<int> clashes = 0;
    Cores::Run(workers, 2000, [&](int worker, int) {
        if (worker < 0 || worker >= workers ||
            busy[static_cast<std::size_t>(worker)].exchange(true)) {
            ++clashes;
            return;
        }
        std::this_thread::yield();
        busy[static_cast<std::size_t>(worker)] = false;
    });
    EXPECT_EQ(clashes, 0);
}

TEST(CoresTest, HelpersCome) {
    if (Cores::Count() < 2) {
        GTEST_SKIP() << "the machine has one core";
    }
    // Neither piece ends before the other has begun.
    std::latch both(2);
    std::mutex mutex;
    std::set<std::thread::id> threads;
    Cores::Run(2, 2, [&](int, int) {
        both.arrive_and_wait();
        const std::lock_guard lock(mutex);
        threads.insert(std::this_thread::get_id());
    });
    EXPECT_EQ(threads.size(), 2U);
}

TEST(CoresTest, WhatAPieceThrowsReachesTheCaller) {
    for (const int workers : {1, 3}) {
        std::atomic<int> done = 0;
        const auto run = [&] {
            Cores::Run(workers, 1000, [&](int, int piece) {
                if (piece == 7) {
                    throw std::runtime_error("piece 7");
                }
                ++done;
            });
        };
        EXPECT_THROW(run(), std::runtime_error) << workers << " workers";
        EXPECT_LT(done, 1000);
        // The next task is none the worse for it.
        done = 0;
        Cores::Run(workers, 10, [&](int, int) { ++done; });
        EXPECT_EQ(done, 10);
    }
}

TEST(CoresTest, TasksWithinATaskEnd) {
    std::atomic<int> done = 0;
    Cores::Run(4, 8, [&](int, int) { Cores::Run(4, 8, [&](int, int) { ++done; }); });
    EXPECT_EQ(done, 64);
}

} // namespace
} // namespace zol
