// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <vector>

namespace zol {

/// What passes while a benchmark runs. Work that never waits is timed by its own thread's clock,
/// since others that keep the machine busy shall not count; work that waits for a disk, by the
/// clock on the wall.
enum class Timing { Thread, Wall };

/// Times work and its floor by turns, so that both see the same machine, and reports the ratio of
/// the medians as the counter "ratio", beside the "goal" that it should stay below (0 for none).
/// The floor is run twice and the second time counts: it finds its data in the caches, the work
/// does not.
class Ratio {
public:
    Ratio(benchmark::State& state, double goal, Timing timing = Timing::Thread)
        : m_state(state),
          m_goal(goal),
          m_clock(timing == Timing::Wall ? CLOCK_MONOTONIC : CLOCK_THREAD_CPUTIME_ID) {}

    /// One turn per iteration: prepare() is not timed.
    template<typename Floor, typename Prepare, typename Work>
    void Measure(Floor floor, Prepare prepare, Work work) {
        std::vector<double> floors;
        std::vector<double> works;
        for ([[maybe_unused]] auto turn : m_state) {
            floor();
            floors.push_back(Seconds(floor));
            prepare();
            works.push_back(Seconds(work));
            m_state.SetIterationTime(works.back());
        }
        m_state.counters["ratio"] = Median(works) / Median(floors);
        if (m_goal > 0) {
            m_state.counters["goal"] = m_goal;
        }
        m_state.counters["floor_us"] = Median(floors) * 1e6;
        m_state.counters["work_us"] = Median(works) * 1e6;
    }
    template<typename Floor, typename Work>
    void Measure(Floor floor, Work work) {
        Measure(
            floor, [] {}, work);
    }

private:
    [[nodiscard]] double Now() const {
        timespec now{};
        clock_gettime(m_clock, &now);
        return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
    }
    template<typename Work>
    double Seconds(Work& work) const {
        const double begin = Now();
        work();
        benchmark::ClobberMemory();
        return Now() - begin;
    }
    static double Median(std::vector<double> times) {
        const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
        std::nth_element(times.begin(), middle, times.end());
        return *middle;
    }

    benchmark::State& m_state;
    double m_goal;
    clockid_t m_clock;
};

/// How every benchmark with a ratio is run: BENCHMARK(Name)->Apply(AsRatio).
inline void AsRatio(benchmark::internal::Benchmark* benchmark) {
    benchmark->UseManualTime()->MinTime(0.5)->Unit(benchmark::kMillisecond);
}

} // namespace zol
