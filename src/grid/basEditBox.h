// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "grid/StitchTransform.h"
#include "model/Pattern.h"
#include "model/ZOLTypes.h"

namespace zol {

/// Sets the knot style for a while: a copied knot keeps its own.
class KnotStyleScope {
public:
    KnotStyleScope(ProgramContext& context, int style)
        : m_context(context),
          m_saved(context.FrenchKnotStyle) {
        context.FrenchKnotStyle = static_cast<std::uint8_t>(style);
    }
    ~KnotStyleScope() { m_context.FrenchKnotStyle = m_saved; }
    KnotStyleScope(const KnotStyleScope&) = delete;
    KnotStyleScope& operator=(const KnotStyleScope&) = delete;

private:
    ProgramContext& m_context;
    std::uint8_t m_saved;
};

/// Block operations: lifting squares into a pattern of their own, turning them and writing them
/// back. Rectangles are squares, both corners inclusive.
namespace basEditBox {

/// The rectangle's stitches and the lines that lie in it as a pattern of its own, at the source's
/// cloth counts. With `recolor` everything takes that floss. `progress` hears of every tenth.
[[nodiscard]] Pattern PickUpSelection(const Pattern& source, const SquareRect& rect,
                                      std::optional<int> recolor = std::nullopt,
                                      ProgressDoor* progress = nullptr);

/// Removes every stitch of the rectangle and each line that lies in it.
void EraseArea(Pattern& pattern, const SquareRect& rect);

/// Writes a lifted block back with its top left at (left, top); what lies outside the pattern is
/// lost, flosses are merged.
void WriteBack(const Pattern& content, Pattern& target, int left, int top);

/// Writes a block back that was lifted from this very pattern, or is in its flosses: they keep
/// their numbers, and so their blends.
void PutBack(const Pattern& content, Pattern& pattern, int left, int top);

/// Merges the flosses that a block uses into a palette, as WriteBack does but beyond what a palette
/// may hold: the palette's count then tells how many flosses it takes.
void MergeUsedFlosses(const Pattern& content, Palette& palette);

/// Lifts the rectangle, erases it, turns the content and writes it back on the same centre.
void TransformArea(Pattern& pattern, const SquareRect& rect, TransformOperation operation);

} // namespace basEditBox
} // namespace zol
