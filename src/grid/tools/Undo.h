// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "model/Doors.h"
#include "model/OpenDesign.h"
#include "model/ZOLTypes.h"

namespace zol {

/// What an undo step remembers.
enum class UndoKind : std::uint8_t {
    Snapshot = 0,     ///< the whole design, in a file
    Squares = 1,      ///< the squares of a stroke
    Lines = 2,        ///< how many lines there were
    CustomStitch = 3, ///< squares and lines
};

/// Told by an undo what has to be painted anew.
class UndoView {
public:
    virtual ~UndoView() = default;
    virtual void SetBusy(bool busy) = 0;
    /// Before a snapshot comes back: whatever floats over the grid is let go, not written back.
    virtual void DropFloating() = 0;
    virtual void RedrawSquares(const SquareRect& rect) = 0;
    /// The whole design has been replaced; its size may differ.
    virtual void DesignChanged() = 0;
};

/// One level of undo, and no redo. Every command that changes the pattern opens a step and closes
/// it; the next step replaces it. The holder and what stands open in it outlive this.
class Undo : public UndoRecorder {
public:
    /// `snapshotFile` is where snapshots go. What stands open is watched from here on.
    Undo(DesignHolder& open, std::filesystem::path snapshotFile);
    ~Undo() override;
    Undo(const Undo&) = delete;
    Undo& operator=(const Undo&) = delete;

    /// Null for none.
    void SetView(UndoView* view) { m_view = view; }
    /// Becomes the recorder of the pattern that stands open now. To be called whenever the holder
    /// has been given another design; a step of the old one is forgotten.
    void WatchOpenDesign();
    /// Where snapshots go: "ZOLUNDO" from the environment if it is set, else "tmppat.$$$" in the
    /// folder given.
    [[nodiscard]] static std::filesystem::path SnapshotPath(const std::filesystem::path& folder);

    /// A snapshot that cannot be written is told at the message door; the command goes on, and
    /// its step will not be offered.
    void BeginUndo(UndoKind kind, const std::string& label);
    /// The last finished step goes on under another name: undoing it takes both back. Without a
    /// finished step nothing happens. To be closed by EndUndo.
    void ContinueUndo(const std::string& label);
    /// Without an open step nothing happens.
    void EndUndo();
    /// Another number for each BeginUndo.
    [[nodiscard]] int StepNumber() const { return m_stepNumber; }
    /// Takes the last finished step back. Nothing happens without one.
    void PerformUndo();
    void ClearUndo();
    /// Forgets the last step and writes a snapshot that belongs to none, so that the file is never
    /// of an older design.
    void RefreshSnapshot();
    void DeleteUndoFile();

    [[nodiscard]] bool IsAvailable() const { return m_available; }
    /// Empty if nothing can be undone.
    [[nodiscard]] std::string GetUndoLabel() const { return m_available ? m_label : std::string(); }
    /// The squares touched since BeginUndo; empty (Left > Right) if there are none.
    [[nodiscard]] SquareRect StrokeRect() const { return m_strokeRect; }

    /// A line went outside any step; a step that counts lines goes by the new count. True if the
    /// line is older than the step.
    bool LineRemoved(int index) {
        if (index > m_lineCount) {
            return false;
        }
        --m_lineCount;
        return true;
    }
    /// A line that no step added now stands behind the others, so a step that would take the last
    /// lines away is given up.
    void OldLineAdded() {
        if (m_kind == UndoKind::Lines || m_kind == UndoKind::CustomStitch) {
            ClearUndo();
        }
    }

    /// LogSquare: the pattern tells each square just before it changes.
    void RecordSquare(const Pattern& pattern, int x, int y) override;

private:
    /// What a load would not bring back.
    struct KeptFlags {
        PatternHeader Header;
        bool AllowFlossMapping = true;
        std::string FileName;
    };

    [[nodiscard]] int WriteSnapshot();
    [[nodiscard]] int ReadSnapshot();
    void TellTrouble(const std::string& what, const std::string& why) const;
    void PutSnapshotBack();
    void ReplaySquares();
    void RemoveNewLines();
    void Redraw(const SquareRect& rect);
    void SetBusy(bool busy);

    DesignHolder& m_open;
    std::filesystem::path m_snapshotFile;
    UndoView* m_view = nullptr;
    bool m_stepOpen = false;
    int m_stepNumber = 0;
    bool m_available = false;
    bool m_recording = false;
    bool m_hasSnapshot = false; ///< of this step
    bool m_wroteFile = false;
    UndoKind m_kind = UndoKind::Snapshot;
    std::string m_label;
    int m_lineCount = 0;
    KeptFlags m_keptFlags;
    SquareRect m_strokeRect;
    std::vector<SquareState> m_log;
};

/// Keeps an undo step open for as long as it lives.
class UndoStep {
public:
    UndoStep(Undo& steps, UndoKind kind, const std::string& label) : m_steps(&steps) {
        steps.BeginUndo(kind, label);
    }
    ~UndoStep() {
        if (m_steps != nullptr) {
            m_steps->EndUndo();
        }
    }
    [[nodiscard]] static UndoStep Continue(Undo& steps, const std::string& label) {
        steps.ContinueUndo(label);
        return UndoStep(steps);
    }
    UndoStep(UndoStep&& other) noexcept : m_steps(std::exchange(other.m_steps, nullptr)) {}
    UndoStep(const UndoStep&) = delete;
    UndoStep& operator=(const UndoStep&) = delete;
    UndoStep& operator=(UndoStep&&) = delete;

private:
    explicit UndoStep(Undo& steps) : m_steps(&steps) {}

    Undo* m_steps;
};

} // namespace zol
