// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/BackstitchTool.h"

#include <algorithm>
#include <cmath>

#include "model/Rounding.h"

namespace zol {

namespace {

constexpr const char* StepLabel = "Line";
constexpr double ReachInWindowPixels = 20;

LatticePos PointOf(const GridSpot& at) {
    return LatticeOf(at.Column, at.Row, at.Position);
}

GridSpot StartOf(const BackStitchLine& line) {
    return {line.StartX, line.StartY, line.StartPos, 1};
}

GridSpot EndOf(const BackStitchLine& line) {
    return {line.EndX, line.EndY, line.EndPos, 1};
}

BackStitchLine LineBetween(const GridSpot& start, const GridSpot& end) {
    BackStitchLine line;
    line.StartX = static_cast<std::int16_t>(start.Column);
    line.StartY = static_cast<std::int16_t>(start.Row);
    line.StartPos = static_cast<std::int16_t>(start.Position);
    line.EndX = static_cast<std::int16_t>(end.Column);
    line.EndY = static_cast<std::int16_t>(end.Row);
    line.EndPos = static_cast<std::int16_t>(end.Position);
    return line;
}

bool HaveSameEnds(const BackStitchLine& a, const BackStitchLine& b) {
    return BackstitchTool::PointsEqual(StartOf(a), StartOf(b)) &&
           BackstitchTool::PointsEqual(EndOf(a), EndOf(b));
}

/// The place on a line that is nearest to a point, counted from 0 at its start to 1 at its end.
/// Outside 0 to 1 the point lies past an end.
double PlaceAlong(QPoint start, QPoint end, QPoint point) {
    const double dx = end.x() - start.x();
    const double dy = end.y() - start.y();
    const double squaredLength = dx * dx + dy * dy;
    // A file may hold a line of no length, and at a small zoom a short line may have none.
    return squaredLength == 0
               ? 0
               : ((point.x() - start.x()) * dx + (point.y() - start.y()) * dy) / squaredLength;
}

} // namespace

bool BackstitchTool::PointsEqual(const GridSpot& a, const GridSpot& b) {
    return PointOf(a) == PointOf(b);
}

GridSpot BackstitchTool::EndAt(const PointerEvent& event) const {
    GridSpot at = event.At;
    if (m_desk.With.AnchorBackstitches) {
        at.Position = 1;
    }
    return at;
}

bool BackstitchTool::IsOnGrid(const GridSpot& at) const {
    const Pattern& design = m_desk.Design();
    const LatticePos point = PointOf(at);
    return point.LX >= 1 && point.LX <= 2 * design.GetPatternWidth() + 1 && point.LY >= 1 &&
           point.LY <= 2 * design.GetPatternHeight() + 1;
}

SquareRect BackstitchTool::SquaresOf(const BackStitchLine& line) const {
    // An end on a square's edge touches the neighbour, and what decorates a line reaches there.
    const Pattern& design = m_desk.Design();
    return {std::max(std::min(line.StartX, line.EndX) - 1, 1),
            std::max(std::min(line.StartY, line.EndY) - 1, 1),
            std::min(std::max(line.StartX, line.EndX) + 1, design.GetPatternWidth()),
            std::min(std::max(line.StartY, line.EndY) + 1, design.GetPatternHeight())};
}

void BackstitchTool::Press(const PointerEvent& event) {
    if (event.Button == PointerButton::Left) {
        PressLeft(event);
    } else if (event.Button == PointerButton::Right) {
        PressRight(EndAt(event));
    }
}

void BackstitchTool::PressLeft(const PointerEvent& event) {
    const GridSpot at = EndAt(event);
    if (m_desk.Design().DoesLineStartAt(SelectedLine(), at.Column, at.Row, at.Position)) {
        TakeUpSelected(at);
        return;
    }
    HideHandles();
    m_selected.reset();
    // A second press is on its way to the release that finishes the line.
    if (m_start || !IsOnGrid(at)) {
        return;
    }
    m_desk.Steps.BeginUndo(UndoKind::Lines, StepLabel);
    m_stepOpen = true;
    m_chainLines = m_chainLines || (event.Ctrl && !event.Shift);
    m_start = at;
}

void BackstitchTool::TakeUpSelected(const GridSpot& at) {
    const int index = SelectedLine();
    const Pattern& design = m_desk.Design();
    const BackStitchLine line = design.GetBackStitchLine(index);
    const bool byStart = PointsEqual(at, StartOf(line));
    const bool older = TakeAway(index);
    m_grabbed = Grabbed{line, &design, older};
    m_start = byStart ? EndOf(line) : StartOf(line);
    MoveRubberBand(byStart ? StartOf(line) : EndOf(line));
}

void BackstitchTool::PressRight(const GridSpot& at) {
    if (m_chainLines) {
        CancelLine();
        return;
    }
    HideHandles();
    m_selected.reset();
    const int index = GetLineAtPoint(at);
    int lineStyle = -1;
    if (index >= 1) {
        const BackStitchLine line = m_desk.Design().GetBackStitchLine(index);
        m_desk.View.ShowFloss(m_desk.Design().GetPalette().GetFlossLongDesc(line.PaletteIndex));
        lineStyle = line.LineStyle;
    }
    m_desk.View.OpenLineMenu(lineStyle);
}

void BackstitchTool::Move(const PointerEvent& event) {
    if (m_start) {
        MoveRubberBand(EndAt(event));
    }
}

void BackstitchTool::MoveRubberBand(const GridSpot& at) {
    const std::optional<OverlayLine> before = GetOverlay().RubberBand;
    m_rubber = at;
    if (GetOverlay().RubberBand != before) {
        m_desk.View.OverlayChanged();
    }
}

void BackstitchTool::Release(const PointerEvent& event) {
    if (event.Button != PointerButton::Left || !m_start) {
        return;
    }
    GridSpot at = EndAt(event);
    if (!IsOnGrid(at) && m_rubber) {
        // Past the cloth's edge the line ends where its band is seen to end.
        at = *m_rubber;
    }
    if (!PointsEqual(*m_start, at)) {
        FinishLine(at);
    } else {
        // A new line waits for its other end; one that has both would hang on the pointer.
        PutBackTakenUp();
    }
}

void BackstitchTool::PutBackTakenUp() {
    if (m_grabbed) {
        CancelLine();
    }
}

void BackstitchTool::FinishLine(const GridSpot& at) {
    BackStitchLine line = LineBetween(*m_start, at);
    if (m_grabbed) {
        line.PaletteIndex = m_grabbed->Line.PaletteIndex;
        line.LineStyle = m_grabbed->Line.LineStyle;
        PutDownGrabbed(line);
    } else {
        const int current = m_desk.With.CurrentPaletteIndex;
        line.PaletteIndex = static_cast<std::uint8_t>(current);
        line.LineStyle =
            static_cast<std::uint8_t>(m_desk.Design().GetPalette().GetDefaultBSType(current));
        AddNewLine(line);
    }
    m_rubber.reset();
    m_start.reset();
    if (m_chainLines) {
        m_start = at;
    }
    m_desk.View.OverlayChanged();
    m_desk.View.ShowPlace(std::to_string(at.Column) + ", " + std::to_string(at.Row));
    m_desk.View.ShowFloss(m_desk.Design().GetPalette().GetFlossLongDesc(line.PaletteIndex));
}

void BackstitchTool::AddNewLine(BackStitchLine line) {
    Undo& steps = m_desk.Steps;
    // A chain goes on in the step of its first line. Something else may have been done, or the
    // step undone, since then.
    const bool goesOn = m_stepOpen ? !steps.IsAvailable() : steps.GetUndoLabel() == StepLabel;
    if (!goesOn) {
        steps.BeginUndo(UndoKind::Lines, StepLabel);
        m_stepOpen = true;
    }
    AddAndShow(line);
    if (m_stepOpen) {
        steps.EndUndo();
        m_stepOpen = false;
    }
}

void BackstitchTool::PutDownGrabbed(const BackStitchLine& line) {
    const int before = m_desk.Design().GetBackStitchCount();
    AddAndShow(line);
    if (m_desk.Design().GetBackStitchCount() == before) {
        AddAndShow(m_grabbed->Line); // refused out there, and no reason to lose it
    }
    if (m_grabbed->OlderThanStep) {
        // Undoing a step of lines takes the last ones away, and this is none of its own.
        m_desk.Steps.OldLineAdded();
    }
    m_stepOpen = false;
    m_grabbed.reset();
}

void BackstitchTool::AddAndShow(const BackStitchLine& line) {
    m_desk.Design().SetBackstitchLine(line);
    m_desk.View.RedrawSquares(SquaresOf(line));
}

bool BackstitchTool::CancelLine() {
    const bool wasBusy = m_start || m_selected || m_chainLines;
    m_rubber.reset();
    m_start.reset();
    m_selected.reset();
    m_chainLines = false;
    m_stepOpen = false;
    if (m_grabbed && m_grabbed->From == &m_desk.Design()) {
        const BackStitchLine asItStood = m_grabbed->Line;
        PutDownGrabbed(asItStood);
    }
    m_grabbed.reset();
    if (wasBusy) {
        m_desk.View.OverlayChanged();
    }
    return wasBusy;
}

int BackstitchTool::SelectedLine() const {
    if (!m_selected || m_selected->Index > m_desk.Design().GetBackStitchCount() ||
        !HaveSameEnds(m_selected->Line, m_desk.Design().GetBackStitchLine(m_selected->Index))) {
        return 0;
    }
    return m_selected->Index;
}

int BackstitchTool::GetLineAtPoint(const GridSpot& at) {
    int nearest = -1;
    double least = 0;
    for (int index = 1; index <= m_desk.Design().GetBackStitchCount(); ++index) {
        const double distance = GetLineDistance(index, at);
        if (distance >= 0 && (nearest < 0 || distance < least)) {
            nearest = index;
            least = distance;
        }
    }
    if (nearest >= 1) {
        m_selected = Selection{nearest, m_desk.Design().GetBackStitchLine(nearest), true};
        m_desk.View.OverlayChanged();
    }
    return nearest;
}

double BackstitchTool::GetLineDistance(int index, const GridSpot& at) const {
    const GridGeometry& geometry = m_desk.View.Geometry();
    const BackStitchLine line = m_desk.Design().GetBackStitchLine(index);
    const QPoint start = geometry.PointOf(line.StartX, line.StartY, line.StartPos);
    const QPoint end = geometry.PointOf(line.EndX, line.EndY, line.EndPos);
    const QPoint point = geometry.PointOf(at.Column, at.Row, at.Position);
    const double place = PlaceAlong(start, end, point);
    if (place < 0 || place > 1) {
        return -1;
    }
    const double footX = RoundHalfEven(start.x() + place * (end.x() - start.x()));
    const double footY = RoundHalfEven(start.y() + place * (end.y() - start.y()));
    const double distance = std::hypot(point.x() - footX, point.y() - footY);
    return distance <= ReachInWindowPixels * geometry.PixelRatio() ? distance : -1;
}

void BackstitchTool::RemoveLine(int index) {
    const int chosen = index == 0 ? SelectedLine() : index;
    if (chosen >= 1 && chosen <= m_desk.Design().GetBackStitchCount()) {
        TakeAway(chosen);
    }
}

bool BackstitchTool::TakeAway(int index) {
    HideHandles();
    m_selected.reset();
    Pattern& design = m_desk.Design();
    const SquareRect covered = SquaresOf(design.GetBackStitchLine(index));
    design.RemoveBackStitchLine(index);
    design.SetChanged(true); // or closing would not ask
    m_desk.View.RedrawSquares(covered);
    return m_desk.Steps.LineRemoved(index);
}

void BackstitchTool::SetStyleOfSelected(int lineStyle) {
    const int index = SelectedLine();
    if (index == 0) {
        return;
    }
    Pattern& design = m_desk.Design();
    design.ChangeBSStyle(index, lineStyle);
    design.SetChanged(true);
    HideHandles();
    m_desk.View.RedrawSquares(SquaresOf(design.GetBackStitchLine(index)));
}

void BackstitchTool::SetColorOfSelected() {
    const int index = SelectedLine();
    if (index == 0) {
        return;
    }
    Pattern& design = m_desk.Design();
    design.ChangeBSColor(index, m_desk.With.CurrentPaletteIndex);
    design.SetChanged(true);
    m_selected->HandlesShown = true;
    m_desk.View.RedrawSquares(SquaresOf(design.GetBackStitchLine(index)));
    m_desk.View.OverlayChanged();
}

void BackstitchTool::HideHandles() {
    if (m_selected && m_selected->HandlesShown) {
        m_selected->HandlesShown = false;
        m_desk.View.OverlayChanged();
    }
}

Overlay BackstitchTool::GetOverlay() const {
    Overlay overlay;
    if (m_start && m_rubber && !PointsEqual(*m_start, *m_rubber)) {
        overlay.RubberBand = OverlayLine{PointOf(*m_start), PointOf(*m_rubber)};
    }
    if (SelectedLine() != 0 && m_selected->HandlesShown) {
        overlay.Handles =
            OverlayLine{PointOf(StartOf(m_selected->Line)), PointOf(EndOf(m_selected->Line))};
    }
    return overlay;
}

} // namespace zol
