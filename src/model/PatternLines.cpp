// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>

#include "model/Pattern.h"

namespace zol {

namespace {

bool IsLeftColumn(int position) {
    return PositionColumn(position) == 0;
}
bool IsRightColumn(int position) {
    return PositionColumn(position) == 2;
}
bool IsTopRow(int position) {
    return PositionRow(position) == 0;
}
bool IsBottomRow(int position) {
    return PositionRow(position) == 2;
}

/// An end on the grid's edge may name the square one step outside; it is given the name that the
/// same point has inside.
void NormaliseEnd(std::int16_t& x, std::int16_t& y, std::int16_t& position, int width, int height) {
    if (IsRightColumn(position) && x == 0) {
        x = 1;
        position = static_cast<std::int16_t>(position - 2);
    }
    if (IsBottomRow(position) && y == 0) {
        y = 1;
        position = static_cast<std::int16_t>(position - 6);
    }
    if (IsLeftColumn(position) && x == width + 1) {
        x = static_cast<std::int16_t>(width);
        position = static_cast<std::int16_t>(position + 2);
    }
    if (IsTopRow(position) && y == height + 1) {
        y = static_cast<std::int16_t>(height);
        position = static_cast<std::int16_t>(position + 6);
    }
}

/// Whether a point of a square lies in the rectangle; one on its edge may be named from outside.
bool IsEndInRect(int x, int y, int position, const SquareRect& rect) {
    if (x > rect.Right && !(x - 1 == rect.Right && IsLeftColumn(position))) {
        return false;
    }
    if (x < rect.Left && !(x + 1 == rect.Left && IsRightColumn(position))) {
        return false;
    }
    if (y < rect.Top && !(y + 1 == rect.Top && IsBottomRow(position))) {
        return false;
    }
    return y <= rect.Bottom || (y - 1 == rect.Bottom && IsTopRow(position));
}

int LeftReach(int x, int position) {
    return IsRightColumn(position) ? x + 1 : x;
}
int RightReach(int x, int position) {
    return IsLeftColumn(position) ? x - 1 : x;
}
int TopReach(int y, int position) {
    return IsBottomRow(position) ? y + 1 : y;
}
int BottomReach(int y, int position) {
    return IsTopRow(position) ? y - 1 : y;
}

} // namespace

std::vector<BackStitchLine>& Pattern::LinesToChange() {
    m_linesRevision.Renew();
    return m_lines;
}

BackStitchLine* Pattern::LineAt(int index) {
    return index >= 1 && index <= GetBackStitchCount()
               ? &LinesToChange()[static_cast<std::size_t>(index - 1)]
               : nullptr;
}

BackStitchLine Pattern::GetBackStitchLine(int index) const {
    return index >= 1 && index <= GetBackStitchCount()
               ? m_lines[static_cast<std::size_t>(index - 1)]
               : BackStitchLine();
}

void Pattern::AddBackStitchLine(BackStitchLine& line) {
    if (!IsPosition(line.StartPos) || !IsPosition(line.EndPos)) {
        return;
    }
    NormaliseEnd(line.StartX, line.StartY, line.StartPos, m_width, m_height);
    NormaliseEnd(line.EndX, line.EndY, line.EndPos, m_width, m_height);
    if (!IsInGrid(line.StartX, line.StartY) || !IsInGrid(line.EndX, line.EndY)) {
        return;
    }
    LinesToChange().push_back(line);
}

void Pattern::SetBackstitchLine(BackStitchLine line) {
    if (LatticeOf(line.StartX, line.StartY, line.StartPos) ==
        LatticeOf(line.EndX, line.EndY, line.EndPos)) {
        return;
    }
    m_changed = true;
    AddBackStitchLine(line);
}

void Pattern::RemoveBackStitchLine(int index) {
    if (index >= 1 && index <= GetBackStitchCount()) {
        LinesToChange().erase(m_lines.begin() + (index - 1));
    }
}

void Pattern::ChangeBSColor(int index, int paletteIndex) {
    if (BackStitchLine* line = LineAt(index)) {
        line->PaletteIndex = static_cast<std::uint8_t>(paletteIndex);
    }
}

void Pattern::ChangeBSStyle(int index, int lineStyle) {
    if (BackStitchLine* line = LineAt(index)) {
        line->LineStyle = static_cast<std::uint8_t>(lineStyle);
    }
}

void Pattern::Changebackstitchline(int paletteIndex, int pictureIndex) {
    static constexpr std::array<std::uint8_t, 7> styleOfPicture{
        LineStraight, LineStraight, LineDashed, LineDotted, LinePlus, LineTracks, LineSquiggle};
    if (pictureIndex < 1 || pictureIndex > 6) {
        return;
    }
    for (BackStitchLine& line : LinesToChange()) {
        if (line.PaletteIndex == paletteIndex) {
            line.LineStyle = styleOfPicture[static_cast<std::size_t>(pictureIndex)];
        }
    }
}

bool Pattern::IsLineInRect(int index, int x1, int y1, int x2, int y2) const {
    if (index < 1 || index > GetBackStitchCount()) {
        return false;
    }
    const BackStitchLine& line = m_lines[static_cast<std::size_t>(index - 1)];
    const SquareRect rect{x1, y1, x2, y2};
    return IsEndInRect(line.StartX, line.StartY, line.StartPos, rect) &&
           IsEndInRect(line.EndX, line.EndY, line.EndPos, rect);
}

bool Pattern::DoesLineStartAt(int index, int x, int y, int position) const {
    if (index < 1 || index > GetBackStitchCount()) {
        return false;
    }
    const BackStitchLine& line = m_lines[static_cast<std::size_t>(index - 1)];
    if (position == -1) {
        return (line.StartX == x && line.StartY == y) || (line.EndX == x && line.EndY == y);
    }
    const LatticePos point = LatticeOf(x, y, position);
    return point == LatticeOf(line.StartX, line.StartY, line.StartPos) ||
           point == LatticeOf(line.EndX, line.EndY, line.EndPos);
}

int Pattern::GetLeftMostLine() const {
    int left = -1;
    for (const BackStitchLine& line : m_lines) {
        const int reach =
            std::min(LeftReach(line.StartX, line.StartPos), LeftReach(line.EndX, line.EndPos));
        left = left == -1 ? reach : std::min(left, reach);
    }
    return left;
}

int Pattern::GetRightMostLine() const {
    int right = -1;
    for (const BackStitchLine& line : m_lines) {
        right = std::max(
            {right, RightReach(line.StartX, line.StartPos), RightReach(line.EndX, line.EndPos)});
    }
    return right;
}

int Pattern::GetTopMostLine() const {
    int top = -1;
    for (const BackStitchLine& line : m_lines) {
        const int reach =
            std::min(TopReach(line.StartY, line.StartPos), TopReach(line.EndY, line.EndPos));
        top = top == -1 ? reach : std::min(top, reach);
    }
    return top;
}

int Pattern::GetBottomMostLine() const {
    int bottom = -1;
    for (const BackStitchLine& line : m_lines) {
        bottom = std::max(
            {bottom, BottomReach(line.StartY, line.StartPos), BottomReach(line.EndY, line.EndPos)});
    }
    return bottom;
}

void Pattern::FixBackStitchLines() {
    const int entries = m_palette.GetEntriesCount();
    // The walk begins at 0, which is no line, and so ends one short of the last line. That bound
    // is kept: a repair gives the same pattern in every release.
    for (int index = 0; index < GetBackStitchCount(); ++index) {
        BackStitchLine* line = LineAt(index);
        if (line == nullptr) {
            continue;
        }
        if (line->PaletteIndex == 0) {
            line->PaletteIndex = 1;
        }
        if (line->PaletteIndex > entries) {
            line->PaletteIndex = static_cast<std::uint8_t>(entries);
        }
    }
}

} // namespace zol
