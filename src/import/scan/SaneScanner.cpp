// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/scan/SaneScanner.h"

#include <exception>
#include <new>
#include <utility>

#include "import/scan/SaneSession.h"
#include "import/scan/SaneThread.h"
#include "import/scan/SaneWords.h"
#include "import/scan/ScanCall.h"

namespace zol {

namespace {

constexpr const char* SystemLibrary = "libsane.so.1";

template<typename Result>
Result Failure(const ScanProblem& problem) {
    Result result;
    result.Problem = problem;
    return result;
}

/// Nothing that a scan throws may end the program: what a device sends decides how much memory
/// is asked for.
template<typename Result, typename Work>
Result Guarded(const Work& work, SaneLibrary& sane, ScanCall& call) {
    try {
        return work(sane, call);
    } catch (const std::bad_alloc&) {
        return Failure<Result>(SaneWords::OfStatus(SANE_STATUS_NO_MEM, {}));
    } catch (const std::exception& error) {
        return Failure<Result>(SaneWords::Damaged(error.what()));
    }
}

} // namespace

SaneScanner::SaneScanner() : SaneScanner(SystemLibrary) {}

SaneScanner::SaneScanner(std::string libraryName)
    : SaneScanner(std::move(libraryName), Patience()) {}

SaneScanner::SaneScanner(std::string libraryName, Patience patience)
    : m_patience(patience),
      m_thread(std::make_unique<SaneThread>(std::move(libraryName), patience.ToEnd)) {}

SaneScanner::~SaneScanner() = default;

template<typename Result, typename Work>
Result SaneScanner::Ask(Work work, ScanWatcher& watcher) {
    // Held by both threads: the other one may go on after this one has stopped waiting.
    auto call = std::make_shared<ScanCall>();
    auto result = std::make_shared<Result>();
    m_thread->Post([call, result, work = std::move(work)](SaneLibrary& sane) {
        if (call->Begin()) {
            *result = Guarded<Result>(work, sane, *call);
        }
        call->Finish();
    });
    switch (call->Wait(watcher, m_patience.ToBegin, m_patience.ToStop)) {
    case ScanCall::End::Done:
        return std::move(*result);
    case ScanCall::End::NotBegun:
        return Failure<Result>(SaneWords::NoAnswer());
    case ScanCall::End::Cancelled:
        break;
    }
    return Failure<Result>(SaneWords::Cancelled());
}

SourcesFound SaneScanner::FindSources(ScanWatcher& watcher) {
    return Ask<SourcesFound>(
        [](SaneLibrary& sane, ScanCall& /*call*/) { return SaneSession::FindSources(sane); },
        watcher);
}

AbilitiesFound SaneScanner::AskAbilities(const std::string& source, ScanWatcher& watcher) {
    return Ask<AbilitiesFound>(
        [source](SaneLibrary& sane, ScanCall& /*call*/) {
            return SaneSession::AskAbilities(sane, source);
        },
        watcher);
}

ScanResult SaneScanner::Acquire(const ScanRequest& request, ScanWatcher& watcher) {
    return Ask<ScanResult>(
        [request](SaneLibrary& sane, ScanCall& call) {
            return SaneSession::Acquire(sane, request, call);
        },
        watcher);
}

} // namespace zol
