// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "model/OpenDesign.h"
#include "settings/RunFolder.h"

namespace zol {

/// Makes what stood open out of a recovery file: the stream stands at the design's first byte, the
/// name is the file that the design came from, empty if it had none. Sorts the palette. Null if
/// the stream is damaged; the user has then heard of it.
using DesignMaker =
    std::function<std::unique_ptr<OpenDesign>(const std::string& fileName, ByteReader& stream)>;
/// By the letter of the kind, as OpenDesign::RecoveryKind gives it.
using DesignMakers = std::map<char, DesignMaker>;

/// What auto-save asks of the window.
class AutoSaveView {
public:
    virtual ~AutoSaveView() = default;
    /// Text mode, or another mode with work that is not in the pattern yet.
    [[nodiscard]] virtual bool IsInLongMode() const = 0;
    virtual void SetBusy(bool busy) = 0;
};

/// Writes the work to this run's recovery file every ten minutes, and offers what a run that ended
/// badly has left.
class basAutoSave {
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    static constexpr const char* FileName = "ASAVEDATA.$$$";
    static constexpr std::chrono::minutes Interval{10};

    /// All of it outlives this.
    basAutoSave(DesignHolder& open, RunFolder& run, Clock clock = &std::chrono::steady_clock::now);

    /// Null for none.
    void SetView(AutoSaveView* view) { m_view = view; }

    /// Offers the files of dead runs one after the other, the newest first, until one is recovered.
    /// A No deletes that one. What is recovered counts as changed, its file becomes this run's, and
    /// it is the caller's to show; null if nothing was recovered.
    [[nodiscard]] std::unique_ptr<OpenDesign> CheckForRecovery(MessageDoor& messages,
                                                               const DesignMakers& makers);
    /// Reads a recovery file. Null for an unknown kind and for a damaged file, which stays.
    [[nodiscard]] static std::unique_ptr<OpenDesign>
    RecoverAutoSave(const std::filesystem::path& file, const DesignMakers& makers);

    /// Saves if the last time is ten minutes past or `force` is set; without `force` not in a long
    /// mode. Errors are ignored, and the last good file stays. `quiet` shows no hourglass.
    void AutoSaveTick(bool force, bool quiet);
    /// Deletes this run's recovery file.
    void ClearAutoSave() const;

    [[nodiscard]] std::filesystem::path AutoSavePath() const { return m_run.Path() / FileName; }

private:
    void Write() const;

    DesignHolder& m_open;
    RunFolder& m_run;
    Clock m_clock;
    AutoSaveView* m_view = nullptr;
    std::optional<std::chrono::steady_clock::time_point> m_lastAutoSave;
};

} // namespace zol
