// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

#include "model/Pattern.h"

namespace zol {

/// Inserting and deleting rows and columns of a pattern.
namespace RowsAndColumns {

enum class Band { Rows, Columns };
enum class Field { HowMany, Start };

/// What is wrong with a request, in the words of the dialog, and the field that it lies in.
struct Fault {
    std::string Text;
    Field Where;
    std::string More = {}; ///< what stands below the message
};

/// Nothing if `howMany` rows or columns can be added after, or deleted from, number `start`, both
/// taken to the nearest integer. The words "row" and "column" of the messages are crossed against
/// the choice and stay so.
[[nodiscard]] std::optional<Fault> ValidateAddRows(const Pattern& pattern, Band band, bool deleting,
                                                   double start, double howMany);

/// Adds empty rows or columns after number `start`. What the move pushes over the old edge falls
/// off, lines excepted.
void Add(Pattern& pattern, Band band, int start, int howMany);
/// Deletes rows or columns from number `start` on.
void Delete(Pattern& pattern, Band band, int start, int howMany);

} // namespace RowsAndColumns
} // namespace zol
