// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/RowsAndColumns.h"

#include "grid/FileCommandTexts.h"
#include "grid/basEditBox.h"
#include "model/PatternSize.h"
#include "model/Rounding.h"
#include "model/RunTimeError.h"

namespace zol::RowsAndColumns {

namespace {

std::string Number(double value) {
    const std::string text = FormatUpTo(value, 10);
    return text.back() == '.' ? text.substr(0, text.size() - 1) : text;
}

std::optional<Fault> ValidateColumns(int width, bool deleting, double start, double howMany) {
    if (start > width) {
        return Fault{"After row must be " + std::to_string(width) + " or less", Field::Start};
    }
    if (!deleting && howMany + width > MaxDialogSize) {
        return Fault{"Adding " + Number(howMany) + " rows would exceed the maximum pattern width",
                     Field::HowMany};
    }
    if (deleting && start + howMany - 1 > width) {
        return Fault{"Deleting " + Number(howMany) + " rows exceeds the pattern width",
                     Field::HowMany};
    }
    return std::nullopt;
}

std::optional<Fault> ValidateRows(int height, bool deleting, double start, double howMany) {
    if (start > height) {
        return Fault{"After column must be " + std::to_string(height) + " or less", Field::Start};
    }
    if (!deleting && howMany + height > MaxDialogSize) {
        return Fault{"Adding " + Number(howMany) +
                         " columns would exceed the maximum pattern height",
                     Field::HowMany};
    }
    if (deleting && start + howMany - 1 > height) {
        return Fault{"Deleting " + Number(howMany) + " rows exceeds the pattern height",
                     Field::HowMany};
    }
    return std::nullopt;
}

/// The other side has its say too: files may be longer there than the dialogs allow.
std::optional<Fault> ValidateSize(const Pattern& pattern, Band band, double howMany) {
    const bool rows = band == Band::Rows;
    const int added = RoundToInt(howMany);
    const int number = PatternSize::Fault(pattern.GetPatternWidth() + (rows ? 0 : added),
                                          pattern.GetPatternHeight() + (rows ? added : 0));
    if (number == ErrNone) {
        return std::nullopt;
    }
    return Fault{RunTimeErrorText(number), Field::HowMany, FileCommandTexts::SizeRefused};
}

void ResizeBy(Pattern& pattern, Band band, int change) {
    const bool rows = band == Band::Rows;
    pattern.Resize(pattern.GetPatternWidth() + (rows ? 0 : change),
                   pattern.GetPatternHeight() + (rows ? change : 0),
                   pattern.GetPatternClothCountX(), pattern.GetPatternClothCountY());
    pattern.SetChanged(true);
}

/// Moves everything from a row or column to the edge.
void MoveFrom(Pattern& pattern, Band band, int first, int delta) {
    const int width = pattern.GetPatternWidth();
    const int height = pattern.GetPatternHeight();
    if (band == Band::Rows) {
        pattern.MoveArea(1, first, width, height, 0, delta);
    } else {
        pattern.MoveArea(first, 1, width, height, delta, 0);
    }
}

} // namespace

std::optional<Fault> ValidateAddRows(const Pattern& pattern, Band band, bool deleting, double start,
                                     double howMany) {
    // A fraction can come by the clipboard; what counts is the number that is acted on.
    start = RoundHalfEven(start);
    howMany = RoundHalfEven(howMany);
    const std::string words = band == Band::Rows ? "rows" : "columns";
    if (howMany == 0) {
        return Fault{"You must specify how many " + words + " to add", Field::HowMany};
    }
    if (start == 0) {
        return Fault{"You must specify the starting " + words.substr(0, words.size() - 1),
                     Field::Start};
    }
    const std::optional<Fault> fault =
        band == Band::Columns ? ValidateColumns(pattern.GetPatternWidth(), deleting, start, howMany)
                              : ValidateRows(pattern.GetPatternHeight(), deleting, start, howMany);
    return fault || deleting ? fault : ValidateSize(pattern, band, howMany);
}

void Add(Pattern& pattern, Band band, int start, int howMany) {
    MoveFrom(pattern, band, start + 1, howMany);
    ResizeBy(pattern, band, howMany);
}

void Delete(Pattern& pattern, Band band, int start, int howMany) {
    const int last = start + howMany - 1;
    const SquareRect gone = band == Band::Rows
                                ? SquareRect{1, start, pattern.GetPatternWidth(), last}
                                : SquareRect{start, 1, last, pattern.GetPatternHeight()};
    basEditBox::EraseArea(pattern, gone);
    MoveFrom(pattern, band, last + 1, -howMany);
    ResizeBy(pattern, band, -howMany);
}

} // namespace zol::RowsAndColumns
