// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/basEditBox.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace zol::basEditBox {

namespace {

void CopySquare(const Pattern& source, int x, int y, Pattern& target, int targetX, int targetY,
                std::optional<int> recolor) {
    const int count = source.GetStitchCount(x, y);
    for (int index = 0; index < count; ++index) {
        const int kind = source.GetStitchType(x, y, index);
        const int floss = recolor.value_or(source.GetStitchColorIndex(x, y, index));
        const KnotStyleScope scope(target.Context(), source.GetFrenchKnotOrientation(x, y, index));
        target.SetStitch(targetX, targetY, kind, floss, source.GetFrenchKnotPoint(x, y, index));
    }
}

void CopyLines(const Pattern& source, const SquareRect& rect, Pattern& target,
               std::optional<int> recolor) {
    for (int index = 1; index <= source.GetBackStitchCount(); ++index) {
        if (!source.IsLineInRect(index, rect.Left, rect.Top, rect.Right, rect.Bottom)) {
            continue;
        }
        BackStitchLine line = source.GetBackStitchLine(index);
        line.StartX = static_cast<std::int16_t>(line.StartX - rect.Left + 1);
        line.EndX = static_cast<std::int16_t>(line.EndX - rect.Left + 1);
        line.StartY = static_cast<std::int16_t>(line.StartY - rect.Top + 1);
        line.EndY = static_cast<std::int16_t>(line.EndY - rect.Top + 1);
        if (recolor) {
            line.PaletteIndex = static_cast<std::uint8_t>(*recolor);
        }
        target.SetBackstitchLine(line);
    }
}

/// Tells of squares taken, once for each tenth of them.
class Tenths {
public:
    Tenths(ProgressDoor* progress, const std::string& text, int total)
        : m_progress(progress),
          m_total(total) {
        if (m_progress != nullptr) {
            m_progress->StartStatus(text, total);
        }
    }
    ~Tenths() {
        if (m_progress != nullptr) {
            m_progress->StopStatus();
        }
    }
    Tenths(const Tenths&) = delete;
    Tenths& operator=(const Tenths&) = delete;

    void Took(int squares) {
        m_done += squares;
        if (m_progress != nullptr && std::int64_t{m_done} * 10 >= std::int64_t{m_total} * m_next) {
            m_next = static_cast<int>(std::int64_t{m_done} * 10 / m_total) + 1;
            m_progress->UpdateStatus(m_done);
        }
    }

private:
    ProgressDoor* m_progress;
    int m_total;
    int m_done = 0;
    int m_next = 1; ///< the tenth that is told of next
};

} // namespace

Pattern PickUpSelection(const Pattern& source, const SquareRect& rect, std::optional<int> recolor,
                        ProgressDoor* progress) {
    Pattern content(source.Context());
    content.Initialize(rect.Right - rect.Left + 1, rect.Bottom - rect.Top + 1,
                       source.GetPatternClothCountX(), source.GetPatternClothCountY());
    if (!source.AllowFlossMapping()) {
        content.SetNoMapping();
        for (int index = 1; index <= source.GetPatternIDCount(); ++index) {
            content.AddPatternID(source.GetPatternID(index), source.GetPatternSource(index));
        }
    }
    source.GetPalette().CreateCopy(content.GetPalette());
    const int height = rect.Bottom - rect.Top + 1;
    Tenths tenths(progress, "Selecting Area", (rect.Right - rect.Left + 1) * height);
    for (int x = rect.Left; x <= rect.Right; ++x) {
        for (int y = rect.Top; y <= rect.Bottom; ++y) {
            CopySquare(source, x, y, content, x - rect.Left + 1, y - rect.Top + 1, recolor);
        }
        tenths.Took(height);
    }
    CopyLines(source, rect, content, recolor);
    return content;
}

void EraseArea(Pattern& pattern, const SquareRect& rect) {
    const int right = std::min(rect.Right, pattern.GetPatternWidth());
    const int bottom = std::min(rect.Bottom, pattern.GetPatternHeight());
    for (int x = std::max(rect.Left, 1); x <= right; ++x) {
        for (int y = std::max(rect.Top, 1); y <= bottom; ++y) {
            pattern.DeleteStitch(x, y, Pattern::Everything);
        }
    }
    for (int index = pattern.GetBackStitchCount(); index >= 1; --index) {
        if (pattern.IsLineInRect(index, rect.Left, rect.Top, rect.Right, rect.Bottom)) {
            pattern.RemoveBackStitchLine(index);
        }
    }
}

void WriteBack(const Pattern& content, Pattern& target, int left, int top) {
    content.CopySectionToTarget(target, left, top, 1, 1, content.GetPatternWidth(),
                                content.GetPatternHeight(), MergeFlosses);
}

void PutBack(const Pattern& content, Pattern& pattern, int left, int top) {
    content.CopySectionToTarget(pattern, left, top, 1, 1, content.GetPatternWidth(),
                                content.GetPatternHeight(), KeepFlosses);
}

void MergeUsedFlosses(const Pattern& content, Palette& palette) {
    const Palette& flosses = content.GetPalette();
    std::vector<bool> merged(static_cast<std::size_t>(flosses.GetEntriesCount()) + 1, false);
    const auto merge = [&](int floss) {
        if (floss >= 1 && floss <= flosses.GetEntriesCount() &&
            !merged[static_cast<std::size_t>(floss)]) {
            merged[static_cast<std::size_t>(floss)] = true;
            flosses.MergePaletteEntrytoTarget(palette, floss);
        }
    };
    // In the order in which they are copied: what a floss matches depends on what came before it.
    for (int x = 1; x <= content.GetPatternWidth(); ++x) {
        for (int y = 1; y <= content.GetPatternHeight(); ++y) {
            for (int index = 0; index < content.GetStitchCount(x, y); ++index) {
                if (content.GetStitchType(x, y, index) != NoStitch) {
                    merge(content.GetStitchColorIndex(x, y, index));
                }
            }
        }
    }
    for (int index = 1; index <= content.GetBackStitchCount(); ++index) {
        if (content.IsLineInRect(index, 1, 1, content.GetPatternWidth(),
                                 content.GetPatternHeight())) {
            merge(content.GetBackStitchLine(index).PaletteIndex);
        }
    }
}

void TransformArea(Pattern& pattern, const SquareRect& rect, TransformOperation operation) {
    const Pattern lifted = PickUpSelection(pattern, rect);
    EraseArea(pattern, rect);
    const Pattern turned = StitchTransform::Apply(lifted, operation);
    const SquareRect place = StitchTransform::Rect(rect, operation);
    PutBack(turned, pattern, place.Left, place.Top);
}

} // namespace zol::basEditBox
