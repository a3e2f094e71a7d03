// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "import/Picture.h"

namespace zol {

/// A scanner or camera that the system knows. All texts are UTF-8.
struct ScanSource {
    std::string Name;  ///< what the system calls it; to be handed back as it is
    std::string Words; ///< maker and model, for the user

    friend bool operator==(const ScanSource&, const ScanSource&) = default;
};

/// Part of what a scanner can see, in millimetres from its upper left corner.
struct ScanArea {
    double Left = 0.0;
    double Top = 0.0;
    double Width = 0.0;
    double Height = 0.0;

    friend bool operator==(const ScanArea&, const ScanArea&) = default;
};

/// What a source can do.
struct ScanAbilities {
    std::vector<int> Resolutions;   ///< dots an inch, rising; empty: the device knows only one
    std::vector<std::string> Modes; ///< colour modes in the device's words; empty: only one
    std::string Mode;               ///< the one that the device starts with
    std::optional<ScanArea> Bed;    ///< the largest area; nothing: no area can be chosen
};

struct ScanRequest {
    std::string Source; ///< ScanSource::Name
    /// Dots an inch; what the device has nearest to it is taken. 0 leaves it to the device.
    int Resolution = 0;
    std::string Mode;             ///< empty leaves it to the device
    std::optional<ScanArea> Area; ///< nothing: all that the device sees
    /// A quick look: the device may be rough, and the colours keep their 8 bits a channel.
    bool Preview = false;
    /// Bits a channel, taken where the device offers them; more than 8 are of no use to a pattern.
    int Depth = 8;
};

/// Why there is no result.
struct ScanProblem {
    enum class Kind { None, Cancelled, NoScanning, Failed };

    Kind Is = Kind::None;
    std::string Text; ///< one sentence: what is wrong
    std::string More; ///< what the user can do; may be empty
};

struct SourcesFound {
    std::vector<ScanSource> Sources; ///< may be empty though nothing went wrong
    ScanProblem Problem;
};

struct AbilitiesFound {
    ScanAbilities Abilities;
    ScanProblem Problem;
};

struct ScanResult {
    Picture Image; ///< empty if there is a problem
    ScanProblem Problem;

    [[nodiscard]] bool IsGood() const { return Problem.Is == ScanProblem::Kind::None; }
};

/// Rows of a picture that is being scanned. A device that scans each colour by itself sends every
/// row three times, with one more colour each time.
struct ScanRows {
    int Width = 0;
    int Height = 0; ///< of the whole picture; 0: the device cannot tell yet
    int First = 0;  ///< the first of the rows, from 0
    std::span<const Colour> Pixels;
    double Share = 0.0; ///< of the whole scan that is done, 0 to 1; 0 if it cannot be told
};

/// Watches over a call to a scanner. All of it is called on the thread that made the call.
class ScanWatcher {
public:
    virtual ~ScanWatcher() = default;
    /// False once the user has cancelled. Asked several times a second.
    [[nodiscard]] virtual bool MayGoOn() = 0;
    virtual void TakeRows(const ScanRows& /*rows*/) {}
};

/// The way to scanners and cameras. Calls last as long as the device takes, minutes even, so no
/// window makes them on its own thread; they may come from any other. One that is cancelled
/// returns soon, whatever the device does.
class ScannerDoor {
public:
    virtual ~ScannerDoor() = default;
    /// Looks anew each time.
    [[nodiscard]] virtual SourcesFound FindSources(ScanWatcher& watcher) = 0;
    [[nodiscard]] virtual AbilitiesFound AskAbilities(const std::string& source,
                                                      ScanWatcher& watcher) = 0;
    /// One picture. Its colours have the depth of an imported file, but for a preview.
    [[nodiscard]] virtual ScanResult Acquire(const ScanRequest& request, ScanWatcher& watcher) = 0;
};

} // namespace zol
