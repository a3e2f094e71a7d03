// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "flosses/Palette.h"
#include "model/ByteStream.h"
#include "model/DupStitch.h"
#include "model/FrenchKnot.h"
#include "model/KeyedTable.h"
#include "model/PatternHeader.h"
#include "model/PatternRecords.h"
#include "model/ProgramContext.h"
#include "model/Revision.h"
#include "model/ZOLTypes.h"

namespace zol {

/// A design: a grid of squares with one primary stitch each, tables of further stitches and
/// French knots, backstitch lines, properties and the palette. Every change goes through its
/// operations. Squares count from 1 (X the column, Y the row); rectangles are inclusive.
///
/// Readers see a square as a list: index 0 the primary stitch, then the DupStitch's, then the
/// knots that touch it. A clear knot flag hides a square's knots from every reader.
class Pattern {
public:
    static constexpr int Everything = 0;    ///< DeleteStitch: all in the square
    static constexpr int WholePattern = -1; ///< X1 of a range: the whole grid

    /// A pattern of no squares; Initialize or Load fills it. The context must outlive it.
    explicit Pattern(ProgramContext& context);
    ~Pattern();
    Pattern(const Pattern&) = delete;
    Pattern& operator=(const Pattern&) = delete;
    Pattern(Pattern&&) noexcept;
    Pattern& operator=(Pattern&&) noexcept;

    /// Clears and sizes the whole pattern, with default properties and the startup palette.
    /// Throws RunTimeError: 9 for a size below 1, 7 above MaxSquares.
    void Initialize(int width, int height, int clothCountX, int clothCountY);

    // --- Stitches (PatternStitches.cpp) --------------------------------------------------
    void SetStitch(int x, int y, int stitchType, int paletteIndex, int position);
    /// Kind 0 clears the square and the nine knots around it.
    void DeleteStitch(int x, int y, int stitchType);
    /// Stitches and knots of a square; -1 outside the grid.
    [[nodiscard]] int GetStitchCount(int x, int y) const;
    /// 255 if there is no such index.
    [[nodiscard]] int GetStitchType(int x, int y, int index) const;
    /// Floss of the primary stitch alone.
    [[nodiscard]] int GetStitchPaletteIndex(int x, int y) const;
    /// Floss number of a stitch; 0 if there is no such index.
    [[nodiscard]] int GetStitchColorIndex(int x, int y, int index) const;
    /// The floss number if `asIndex`, else its colour; 0 if there is no such index.
    [[nodiscard]] std::uint32_t GetStitchColor(int x, int y, int index, bool asIndex) const;
    [[nodiscard]] int GetStitchImage(int x, int y, int index) const;
    [[nodiscard]] int GetStitchSymbol(int x, int y, int index) const;
    /// Position 1 to 9 of a knot, 0 if the stitch is none.
    [[nodiscard]] int GetFrenchKnotPoint(int x, int y, int index) const;
    [[nodiscard]] int GetFrenchKnotOrientation(int x, int y, int index) const;
    /// Number of knots that touch the square; element p of the result tells position p (1 to 9).
    int GetFrenchKnotGPs(int x, int y, std::array<bool, 10>& positions) const;

    /// The cells column by column: square (x, y) stands at (x - 1) * Height + y - 1. For painters
    /// and counters that walk many squares.
    [[nodiscard]] const std::vector<StitchCell>& Cells() const { return m_grid; }
    [[nodiscard]] const StitchCell& Cell(int x, int y) const { return m_grid[CellAt(x, y)]; }
    [[nodiscard]] bool IsInGrid(int x, int y) const {
        return x >= 1 && y >= 1 && x <= m_width && y <= m_height;
    }
    /// Whether a knot can stand there: lattice points run from 1 to twice the size plus 1.
    [[nodiscard]] bool IsOnLattice(LatticePos point) const;
    [[nodiscard]] const KeyedTable<DupStitch>& DupStitches() const { return m_dupStitches; }
    [[nodiscard]] const KeyedTable<FrenchKnot>& FrenchKnots() const { return m_frenchKnots; }

    [[nodiscard]] int GetPatternWidth() const { return m_width; }
    [[nodiscard]] int GetPatternHeight() const { return m_height; }
    [[nodiscard]] int GetPatternClothCountX() const { return m_clothCountX; }
    [[nodiscard]] int GetPatternClothCountY() const { return m_clothCountY; }
    void SetPatternClothCountX(int count) { m_clothCountX = static_cast<std::int16_t>(count); }
    void SetPatternClothCountY(int count) { m_clothCountY = static_cast<std::int16_t>(count); }

    [[nodiscard]] bool IsChanged() const;
    void SetChanged(bool changed);

    // --- Counts (PatternCounts.cpp) ------------------------------------------------------
    /// X1 = -1 counts the whole pattern. Lengths are inches.
    void CountStitches(int x1 = WholePattern, int y1 = 0, int x2 = 0, int y2 = 0);
    /// Of the last CountStitches: 0 stitches, 1 lines, 2 both, 3 line inches, 4 stitch inches.
    [[nodiscard]] double GetColorCount(int which, int paletteIndex) const;
    int GetPaletteStitchCount(int paletteIndex, int x1, int y1, int x2, int y2);

    // --- Lines (PatternLines.cpp) --------------------------------------------------------
    [[nodiscard]] int GetBackStitchCount() const { return static_cast<int>(m_lines.size()); }
    /// `index` from 1; a line of zeros outside.
    [[nodiscard]] BackStitchLine GetBackStitchLine(int index) const;
    /// Normalises ends that name a square one step outside; refuses what still lies outside. The
    /// line comes back as it was normalised.
    void AddBackStitchLine(BackStitchLine& line);
    /// Refuses a line of no length; sets `Changed`.
    void SetBackstitchLine(BackStitchLine line);
    void RemoveBackStitchLine(int index);
    void ChangeBSColor(int index, int paletteIndex);
    void ChangeBSStyle(int index, int lineStyle);
    /// Restyles all lines of a floss by the index of the style's picture (1 to 6).
    void Changebackstitchline(int paletteIndex, int pictureIndex);
    [[nodiscard]] bool IsLineInRect(int index, int x1, int y1, int x2, int y2) const;
    /// Position -1 compares squares alone.
    [[nodiscard]] bool DoesLineStartAt(int index, int x, int y, int position) const;
    [[nodiscard]] int GetLeftMostLine() const;
    [[nodiscard]] int GetRightMostLine() const;
    [[nodiscard]] int GetTopMostLine() const;
    [[nodiscard]] int GetBottomMostLine() const;
    void FixBackStitchLines();
    [[nodiscard]] const std::vector<BackStitchLine>& Lines() const { return m_lines; }
    /// Two tables of lines that differ never have the same, whichever pattern is theirs. Not 0.
    [[nodiscard]] std::uint64_t LinesRevision() const { return m_linesRevision.Number(); }

    // --- Areas (PatternAreas.cpp, PatternFlosses.cpp, PatternPaint.cpp) ------------------
    [[nodiscard]] SquareRect GetPatternRect() const;
    [[nodiscard]] SquareRect GetPatternAreaRect() const;
    /// Columns and rows that the design reaches by GetPatternAreaRect; 0 for an empty pattern.
    [[nodiscard]] int GetDesignWidth() const;
    [[nodiscard]] int GetDesignHeight() const;
    void TrimARec(int top, int& left, int bottom, int& right) const;
    void MoveArea(int x1, int y1, int x2, int y2, int deltaX, int deltaY);
    /// 0 vertical, 1 horizontal, 2 both.
    void Center(int mode);
    void ShrinkToFit();
    /// Does not set `Changed`. A size of 0 leaves a pattern without squares. Throws as Initialize
    /// for a size below 0 or above MaxSquares.
    void Resize(int width, int height, int clothCountX, int clothCountY);
    /// The palette override is the floss that everything takes, or one of CopiedFlosses.
    void CopySectionToTarget(Pattern& target, int targetX, int targetY, int sourceX, int sourceY,
                             int sourceWidth, int sourceHeight, int paletteOverride) const;
    void Paint(int x, int y, int stitchType, int newIndex, int oldIndex);
    [[nodiscard]] SquareRect GetPaintRect() const { return m_paintRect; }
    void ClearPaintRect();
    void RemoveColor(int paletteIndex, int x1, int y1, int x2, int y2);
    void ChangeColor(int oldIndex, int newIndex, int x1, int y1, int x2, int y2);
    /// Element i of the map is the new number of floss i; element 0 is not used.
    void MapPalette(const std::vector<std::uint8_t>& map);
    void ClearUnusedPaletteColors();

    // --- Properties, notes, IDs (PatternProperties.cpp) ----------------------------------
    std::string Title;
    std::string Author;
    std::string Copyright;
    std::string Fabric;
    std::string Instructions; ///< RTF if it begins with "{\\rtf", else plain text
    std::string FileName;     ///< UTF-8 path of the last file

    [[nodiscard]] bool AllowFlossMapping() const { return m_allowFlossMapping; }
    void SetNoMapping();
    void ClearNoMapping();
    void ClearFlags() { m_header.PatternFlags = 0; }
    [[nodiscard]] const PatternHeader& GetHeader() const { return m_header; }
    void Setheader(const PatternHeader& header) { m_header = header; }

    /// Adds an ID unless it is 0 or there already.
    void AddPatternID(std::uint32_t id, const std::string& source);
    [[nodiscard]] std::uint32_t GetPatternID(int index) const;
    [[nodiscard]] int GetPatternIDCount() const { return static_cast<int>(m_ids.size()); }
    [[nodiscard]] std::string GetPatternSource(int index) const;

    void AddAPatternNote(int x, int y, int width, int height, const std::string& text);
    /// `index` from 1; an empty note outside.
    [[nodiscard]] PatternNote GetPatternNote(int index) const;
    [[nodiscard]] int GetPatternNoteCount() const { return static_cast<int>(m_notes.size()); }

    [[nodiscard]] zol::Palette& GetPalette() { return m_palette; }
    [[nodiscard]] const zol::Palette& GetPalette() const { return m_palette; }
    [[nodiscard]] ProgramContext& Context() const { return *m_context; }

    // --- Undo recorder -------------------------------------------------------------------
    /// The recorder stays over loads; null for none.
    void SetUndoRecorder(UndoRecorder* recorder) { m_recorder = recorder; }
    [[nodiscard]] bool IsRecording() const { return m_recording; }
    void SetRecording(bool on) { m_recording = on; }
    /// Notes and puts back a square exactly, also what the lists of readers do not show: a knot
    /// under a clear flag, stitches that SetStitch would not bring together. Outside the grid the
    /// state is empty, and putting one back does nothing.
    [[nodiscard]] SquareState GetSquareState(int x, int y) const;
    void SetSquareState(const SquareState& state);

    // --- Files (PatternFile.cpp) ---------------------------------------------------------
    /// A file of its own. 0, ErrNoSuchFile, ErrChecksumMismatch or a run-time error number; the
    /// message door has then heard what the user sees of it here. The old content stays after a
    /// failure; recorder and context stay always.
    [[nodiscard]] int Load(const std::filesystem::path& fileName);
    /// A stream inside an open file: `offset` 0 or the 1-based position of its first byte, `end`
    /// 0 or the position of its last. Without the release 6 magic the load fails with 321.
    [[nodiscard]] int Load(const std::string& fileName, ByteReader& stream, std::uint64_t offset,
                           std::uint64_t end);
    /// Writes a file of its own, whole or not at all; an empty name means FileName. If `backup` is
    /// given the old file takes it. 0 or an error number, told at the door; FileName then stays.
    [[nodiscard]] int Save(const std::filesystem::path& fileName,
                           const std::filesystem::path& backup = {});
    /// Writes the stream into an open file; `offset` 0 means its present position. The file then
    /// stands behind the checksum field. `fileName` becomes FileName.
    [[nodiscard]] int Save(const std::string& fileName, ByteWriter& stream, std::uint64_t offset);

private:
    friend class PatternReader;
    friend class PatternWriter;

    [[nodiscard]] std::size_t CellAt(int x, int y) const {
        return static_cast<std::size_t>(x - 1) * static_cast<std::size_t>(m_height) +
               static_cast<std::size_t>(y - 1);
    }
    [[nodiscard]] StitchCell& CellRef(int x, int y) { return m_grid[CellAt(x, y)]; }
    /// What readers see at an index of a square; kind 255 and floss 0 past the end.
    struct ListedStitch {
        int kind = NoStitch;
        int paletteIndex = 0;
        int knotPosition = 0;
        int orientation = 0;
    };
    /// The squares that a lattice point touches: 1, 2 or 4 of them, fewer at the grid's edge.
    struct KnotSquares {
        std::array<SquarePos, 4> squares;
        std::size_t count = 0;
    };
    struct FlossRemoval;

    static void CheckSize(int width, int height);
    void SizeGrid(int width, int height);
    void Record(int x, int y);
    /// False for a knot and for requests: SetStitch without a position does not store them.
    [[nodiscard]] static bool IsStoredPlainly(int stitchType);
    /// Whether a new stitch takes away an old one of that kind.
    [[nodiscard]] static bool Replaces(std::uint8_t fresh, std::uint8_t old);
    void PlaceStitch(int x, int y, std::uint8_t kind, std::uint8_t paletteIndex);
    void AddToDup(int x, int y, std::uint8_t kind, std::uint8_t paletteIndex);
    void SetKnot(LatticePos point, int paletteIndex);
    void PutKnotsBack(const SquareState& state);
    void DeleteOneKind(int x, int y, int stitchType);
    void DeleteAll(int x, int y);
    void DeletePrimary(int x, int y);
    [[nodiscard]] const DupStitch* DupAt(int x, int y) const;
    [[nodiscard]] int ListedStitches(int x, int y) const;
    [[nodiscard]] ListedStitch StitchAt(int x, int y, int index) const;
    [[nodiscard]] int GetFrenchKnotCount(int x, int y) const;
    [[nodiscard]] int CountKnotsAround(int x, int y) const;
    [[nodiscard]] const FrenchKnot* KnotAt(int x, int y, int index, int& position) const;
    [[nodiscard]] KnotSquares SquaresOfKnot(int lx, int ly) const;
    void RefreshKnotFlag(int x, int y);
    void SetKnotFlags(int lx, int ly);
    void ClearKnotFlags(int lx, int ly);
    [[nodiscard]] static bool IsKnotInRange(const FrenchKnot& knot, const SquareRect& range);
    /// Inches of one square's diagonal; 0 for a cloth without a count.
    [[nodiscard]] double GetDiagonal() const;
    /// Lines that are about to be changed, with a new revision; LineAt null outside.
    [[nodiscard]] std::vector<BackStitchLine>& LinesToChange();
    [[nodiscard]] BackStitchLine* LineAt(int index);
    [[nodiscard]] bool IsUsed(int x, int y) const;
    [[nodiscard]] SquareRect GetStitchRect() const;
    [[nodiscard]] bool IsColumnUsed(int x, int top, int bottom) const;
    [[nodiscard]] SquareRect InGrid(const SquareRect& rect) const;
    void MoveStitches(int x, int y, int toX, int toY);
    [[nodiscard]] std::vector<FrenchKnot> TakeKnots(const SquareRect& area);
    void RemoveFlosses(const FlossRemoval& removal);
    void RemoveColorInRange(std::uint8_t paletteIndex, const SquareRect& range);
    /// Takes over what a reader filled; recorder, its flag and the context stay.
    void TakeContentOf(Pattern& fresh);

    ProgramContext* m_context;
    std::int16_t m_width = 0;
    std::int16_t m_height = 0;
    std::int16_t m_clothCountX = 0;
    std::int16_t m_clothCountY = 0;
    std::vector<StitchCell> m_grid;
    KeyedTable<DupStitch> m_dupStitches;
    KeyedTable<FrenchKnot> m_frenchKnots;
    std::vector<BackStitchLine> m_lines;
    Revision m_linesRevision;
    zol::Palette m_palette;
    PatternHeader m_header;
    bool m_allowFlossMapping = true;
    bool m_changed = false;
    std::vector<PatternIDRecord> m_ids;
    std::vector<PatternNote> m_notes;
    SquareRect m_paintRect;
    PatternCounts m_counts;
    UndoRecorder* m_recorder = nullptr;
    bool m_recording = true;
};

/// Gives each entry of the pattern's palette the colour that the current catalogue has for its
/// master identity. Without a catalogue nothing changes.
void RefreshFlossColors(Pattern& pattern);

} // namespace zol
