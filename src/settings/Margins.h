// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace zol {

/// The margins of printouts as the user reads and types them. Options hold inches.
namespace Margins {

/// The format "STANDARD": two places, and a separator between thousands, both the locale's.
[[nodiscard]] QString FormatStandard(double value);
/// A margin for a field in that unit.
[[nodiscard]] QString Text(double inches, bool usesInches);
/// What a field says after the unit has changed to inches or to centimetres.
[[nodiscard]] QString Convert(const QString& text, bool toInches);
/// Inches of a field. A field that shows `present` as it stands gives just that, so that a margin
/// loses nothing by being looked at.
[[nodiscard]] double Inches(const QString& text, bool usesInches, double present);

} // namespace Margins
} // namespace zol
