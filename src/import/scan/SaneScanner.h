// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "import/scan/ScannerDoor.h"

namespace zol {

class SaneThread;

/// Scanners through SANE. Nothing of SANE is loaded before the first call. Calls may come from
/// several threads; they are carried out one after the other.
class SaneScanner : public ScannerDoor {
public:
    /// How long to wait for a driver that does not answer.
    struct Patience {
        std::chrono::milliseconds ToBegin{30000}; ///< behind an earlier call that was left
        std::chrono::milliseconds ToStop{1000};   ///< after a cancel
        std::chrono::milliseconds ToEnd{2000};    ///< when the program ends
    };

    SaneScanner();
    /// `libraryName` as the dynamic linker takes it.
    explicit SaneScanner(std::string libraryName);
    SaneScanner(std::string libraryName, Patience patience);
    ~SaneScanner() override;
    SaneScanner(const SaneScanner&) = delete;
    SaneScanner& operator=(const SaneScanner&) = delete;

    [[nodiscard]] SourcesFound FindSources(ScanWatcher& watcher) override;
    [[nodiscard]] AbilitiesFound AskAbilities(const std::string& source,
                                              ScanWatcher& watcher) override;
    [[nodiscard]] ScanResult Acquire(const ScanRequest& request, ScanWatcher& watcher) override;

private:
    template<typename Result, typename Work>
    Result Ask(Work work, ScanWatcher& watcher);

    Patience m_patience;
    std::unique_ptr<SaneThread> m_thread;
};

} // namespace zol
