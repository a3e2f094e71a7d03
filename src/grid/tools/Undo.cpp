// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/Undo.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fstream>

#include "model/RunTimeError.h"
#include "model/SafeFile.h"

namespace zol {

namespace fs = std::filesystem;

namespace {

/// A longer stroke is painted anew as one rectangle: a region of thousands of single squares costs
/// more than what it spares.
constexpr std::size_t maxSingleSquares = 500;

SquareRect SquaresOf(const BackStitchLine& line) {
    return {std::min(line.StartX, line.EndX), std::min(line.StartY, line.EndY),
            std::max(line.StartX, line.EndX), std::max(line.StartY, line.EndY)};
}

} // namespace

Undo::Undo(DesignHolder& open, fs::path snapshotFile)
    : m_open(open),
      m_snapshotFile(std::move(snapshotFile)) {
    WatchOpenDesign();
}

Undo::~Undo() {
    m_open.Design().SetUndoRecorder(nullptr);
}

fs::path Undo::SnapshotPath(const fs::path& folder) {
    const char* chosen = std::getenv("ZOLUNDO");
    return chosen != nullptr && *chosen != '\0' ? fs::path(chosen) : folder / "tmppat.$$$";
}

void Undo::WatchOpenDesign() {
    ClearUndo();
    m_open.Design().SetUndoRecorder(this);
}

void Undo::BeginUndo(UndoKind kind, const std::string& label) {
    Pattern& design = m_open.Design();
    m_available = false;
    m_stepOpen = true;
    ++m_stepNumber;
    m_label = label;
    m_kind = kind;
    m_strokeRect = {std::max(design.GetPatternWidth(), 1), std::max(design.GetPatternHeight(), 1),
                    0, 0};
    m_log.clear();
    m_lineCount = design.GetBackStitchCount();
    m_recording = kind == UndoKind::Squares || kind == UndoKind::CustomStitch;
    if (kind == UndoKind::Snapshot) {
        const int number = WriteSnapshot();
        m_hasSnapshot = number == ErrNone;
        if (!m_hasSnapshot) {
            const std::string reason = design.Cells().empty()
                                           ? "A pattern without squares cannot be saved"
                                           : RunTimeErrorText(number);
            TellTrouble("The step \"" + label + "\" cannot be undone.",
                        "The copy of the pattern could not be written to " +
                            PathText(m_snapshotFile) + ": " + reason + ". The step goes on.");
        }
    }
}

void Undo::ContinueUndo(const std::string& label) {
    if (!m_available) {
        return;
    }
    m_available = false;
    m_stepOpen = true;
    m_label = label;
    m_recording = m_kind == UndoKind::Squares || m_kind == UndoKind::CustomStitch;
}

void Undo::EndUndo() {
    m_available = m_stepOpen && (m_kind != UndoKind::Snapshot || m_hasSnapshot);
    m_stepOpen = false;
    m_recording = false;
}

void Undo::ClearUndo() {
    m_stepOpen = false;
    m_available = false;
    m_recording = false;
    m_hasSnapshot = false;
    m_label.clear();
    m_log.clear();
}

void Undo::PerformUndo() {
    if (!m_available) {
        return;
    }
    switch (m_kind) {
    case UndoKind::Snapshot:
        PutSnapshotBack();
        break;
    case UndoKind::Squares:
        ReplaySquares();
        break;
    case UndoKind::Lines:
        RemoveNewLines();
        break;
    case UndoKind::CustomStitch:
        RemoveNewLines();
        ReplaySquares();
        break;
    }
    m_available = false;
}

void Undo::RecordSquare(const Pattern& pattern, int x, int y) {
    if (!m_recording || &pattern != &m_open.Design()) {
        return;
    }
    m_strokeRect = {std::min(m_strokeRect.Left, x), std::min(m_strokeRect.Top, y),
                    std::max(m_strokeRect.Right, x), std::max(m_strokeRect.Bottom, y)};
    m_log.push_back(pattern.GetSquareState(x, y));
}

void Undo::ReplaySquares() {
    Pattern& design = m_open.Design();
    // Backwards: a square that was passed twice ends on its older state.
    for (auto state = m_log.rbegin(); state != m_log.rend(); ++state) {
        design.SetSquareState(*state);
    }
    if (m_log.size() > maxSingleSquares) {
        Redraw(m_strokeRect);
        return;
    }
    for (const SquareState& state : m_log) {
        Redraw({state.At.X, state.At.Y, state.At.X, state.At.Y});
    }
}

void Undo::RemoveNewLines() {
    Pattern& design = m_open.Design();
    while (design.GetBackStitchCount() > m_lineCount) {
        const int last = design.GetBackStitchCount();
        const SquareRect covered = SquaresOf(design.GetBackStitchLine(last));
        design.RemoveBackStitchLine(last);
        // A save may have come between the line and its undo.
        design.SetChanged(true);
        Redraw(covered);
    }
}

void Undo::RefreshSnapshot() {
    ClearUndo();
    // No step depends on it, so a failure takes nothing from the user.
    (void)WriteSnapshot();
}

int Undo::WriteSnapshot() {
    Pattern& design = m_open.Design();
    SetBusy(true);
    const QuietScope quiet(design.Context());
    ByteWriter stream;
    int number = m_open.Get().WriteTo(stream);
    m_keptFlags = {design.GetHeader(), design.AllowFlossMapping(), design.FileName};
    if (number == ErrNone) {
        number = SafeFile::ReplaceUnsynced(m_snapshotFile, stream.Bytes());
        m_wroteFile = m_wroteFile || number == ErrNone;
    }
    SetBusy(false);
    return number;
}

int Undo::ReadSnapshot() {
    std::ifstream file(m_snapshotFile, std::ios::binary);
    if (!file) {
        return SafeFile::ErrorNumberOf(errno);
    }
    const QuietScope quiet(m_open.Design().Context());
    ByteReader stream(file);
    return m_open.Get().ReadFrom(stream);
}

void Undo::PutSnapshotBack() {
    SetBusy(true);
    if (m_view != nullptr) {
        m_view->DropFloating();
    }
    Pattern& design = m_open.Design();
    const int order = design.GetPalette().GetSortOrder();
    const int number = ReadSnapshot();
    if (number == ErrNone) {
        design.GetPalette().Sort(order);
        m_keptFlags.AllowFlossMapping ? design.ClearNoMapping() : design.SetNoMapping();
        design.Setheader(m_keptFlags.Header);
        // A step that began the design anew took its file's name away. A name that it was saved
        // under since then stays.
        if (design.FileName.empty()) {
            design.FileName = m_keptFlags.FileName;
        }
        design.SetChanged(true);
        if (m_view != nullptr) {
            m_view->DesignChanged();
        }
    }
    SetBusy(false);
    if (number != ErrNone) {
        TellTrouble("The step \"" + m_label + "\" could not be undone.",
                    "The copy of the pattern could not be read from " + PathText(m_snapshotFile) +
                        ": " + RunTimeErrorText(number) + ". The pattern is as it was.");
    }
}

void Undo::DeleteUndoFile() {
    std::error_code ignored;
    // What "ZOLUNDO" names may be a device, which is not ours to take away.
    if (m_wroteFile && fs::is_regular_file(m_snapshotFile, ignored)) {
        fs::remove(m_snapshotFile, ignored);
    }
    m_wroteFile = false;
}

void Undo::Redraw(const SquareRect& rect) {
    if (m_view != nullptr) {
        m_view->RedrawSquares(rect);
    }
}

void Undo::SetBusy(bool busy) {
    if (m_view != nullptr) {
        m_view->SetBusy(busy);
    }
}

void Undo::TellTrouble(const std::string& what, const std::string& why) const {
    if (MessageDoor* messages = m_open.Design().Context().Messages) {
        messages->TellMore(what, why, MessageIcon::Exclamation, {});
    }
}

} // namespace zol
