// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/StitchStroke.h"

#include <algorithm>
#include <array>

#include "grid/tools/StitchRun.h"

namespace zol {

namespace {

bool IsSmart(int stitchType) {
    return stitchType == StitchS3Q || stitchType == StitchSQ;
}

/// Knots and smart stitches depend on the very place that is pressed.
bool IsSetByPressAlone(int stitchType) {
    return stitchType == StitchFKnot || IsSmart(stitchType);
}

/// The squares that show a stitch: its own, and for a knot on an edge those beyond the edge.
SquareRect SquaresOf(int column, int row, int stitchType, int position) {
    SquareRect rect{column, row, column, row};
    if (stitchType == StitchFKnot && IsPosition(position)) {
        rect.Left -= PositionColumn(position) == 0 ? 1 : 0;
        rect.Right += PositionColumn(position) == 2 ? 1 : 0;
        rect.Top -= PositionRow(position) == 0 ? 1 : 0;
        rect.Bottom += PositionRow(position) == 2 ? 1 : 0;
    }
    return rect;
}

SquareRect Reflect(const SquareRect& rect, const MirrorMode& mirror) {
    const SquarePos centre = mirror.GetMirrorCentre();
    if (mirror.GetMirrorAxis() == MirrorVertical) {
        return {2 * centre.X - rect.Right, rect.Top, 2 * centre.X - rect.Left, rect.Bottom};
    }
    return {rect.Left, 2 * centre.Y - rect.Bottom, rect.Right, 2 * centre.Y - rect.Top};
}

} // namespace

void StitchStroke::Begin(const PointerEvent& event, bool erases) {
    m_step.reset();
    m_button = event.Button;
    m_erases = erases;
    m_last = SquarePos{event.At.Column, event.At.Row};
    ChangeSquare(*m_last, IsSmart(m_desk.With.CurrentStitchType) ? event.At.CornerPosition
                                                                 : event.At.Position);
}

void StitchStroke::Extend(const PointerEvent& event) {
    if (!m_last) {
        return;
    }
    if (event.Button != m_button) {
        End();
        return;
    }
    SquarePos to{event.At.Column, event.At.Row};
    if (event.Shift && !event.Ctrl) {
        to.X = m_last->X;
    } else if (event.Ctrl && !event.Shift) {
        to.Y = m_last->Y;
    }
    if (m_erases || !IsSetByPressAlone(m_desk.With.CurrentStitchType)) {
        DrawRun(to, event.At.Position);
    }
    m_last = to;
}

bool StitchStroke::End() {
    const bool wasOpen = m_last.has_value();
    m_last.reset();
    if (m_step) {
        m_step.reset();
        const SquareRect stroke = m_desk.Steps.StrokeRect();
        if (!stroke.IsEmpty() && m_desk.Design().GetBackStitchCount() > 0) {
            m_desk.View.RedrawSquares(stroke);
        }
    }
    return wasOpen;
}

void StitchStroke::DrawRun(SquarePos to, int position) {
    const SquarePos from = *m_last;
    if (to == from) {
        return;
    }
    for (const SquarePos& square : StitchRun(from, to)) {
        if (square != from) {
            ChangeSquare(square, position);
        }
    }
}

void StitchStroke::ChangeSquare(SquarePos square, int position) {
    if (!m_desk.Design().IsInGrid(square.X, square.Y)) {
        return;
    }
    // Not before a square is reached: a press beside the pattern leaves the last step alone.
    if (!m_step) {
        m_step.emplace(m_desk.Steps, UndoKind::Squares, m_erases ? "Erase Stitches" : "Stitches");
    }
    if (m_erases) {
        EraseSquare(square.X, square.Y);
    } else {
        SetSquare(square.X, square.Y, position);
    }
}

void StitchStroke::SetSquare(int column, int row, int position) {
    const int type = m_desk.With.CurrentStitchType;
    const int floss = m_desk.With.CurrentPaletteIndex;
    Pattern& design = m_desk.Design();
    design.SetStitch(column, row, type, floss, position);
    const SquareRect changed = SquaresOf(column, row, type, position);
    const bool isKnot = type == StitchFKnot;
    Redraw(changed, isKnot);
    if (!m_desk.Mirror.IsMirrorActive()) {
        return;
    }
    const SquarePos centre = m_desk.Mirror.GetMirrorCentre();
    const bool hasTwin =
        m_desk.Mirror.MirrorStitch(design, column, row, type, floss, position).has_value();
    if (m_desk.Mirror.GetMirrorCentre() != centre) {
        m_desk.View.OverlayChanged();
    }
    if (hasTwin) {
        Redraw(Reflect(changed, m_desk.Mirror), isKnot);
    }
}

void StitchStroke::EraseSquare(int column, int row) {
    std::array<bool, 10> positions{};
    const bool hadKnot = m_desk.Design().GetFrenchKnotGPs(column, row, positions) > 0;
    m_desk.Design().DeleteStitch(column, row, Pattern::Everything);
    // A knot has reached into the squares around.
    const int reach = hadKnot ? 1 : 0;
    Redraw({column - reach, row - reach, column + reach, row + reach}, hadKnot);
}

void StitchStroke::Redraw(const SquareRect& rect, bool reachesOut) {
    const Pattern& design = m_desk.Design();
    const SquareRect inside{std::max(rect.Left, 1), std::max(rect.Top, 1),
                            std::min(rect.Right, design.GetPatternWidth()),
                            std::min(rect.Bottom, design.GetPatternHeight())};
    if (inside.IsEmpty()) {
        return;
    }
    if (reachesOut) {
        m_desk.View.RedrawSquares(inside);
    } else {
        m_desk.View.RedrawStitches(inside);
    }
}

} // namespace zol
