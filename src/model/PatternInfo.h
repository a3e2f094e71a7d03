// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace zol {

class Pattern;

/// The properties of a pattern as its designer chooses them.
struct PatternInfo {
    /// Knots lie on half squares, whose numbers are 16-bit: further right or down there are none.
    static constexpr int MaxSide = 16383;
    /// A pattern file holds no longer texts.
    static constexpr std::size_t MaxText = 32767;

    int Width = 100; ///< squares
    int Height = 100;
    int ClothCountX = 14; ///< squares an inch
    int ClothCountY = 14;
    std::string Title;
    std::string Author;
    std::string Copyright;
    std::string Fabric;
    std::string Instructions; ///< RTF if it begins with "{\\rtf", else plain text

    friend bool operator==(const PatternInfo&, const PatternInfo&) = default;

    [[nodiscard]] static PatternInfo Of(const Pattern& pattern);
    /// Whether a pattern with the properties `present` would lose squares.
    [[nodiscard]] bool CutsInto(const PatternInfo& present) const;
    /// Gives them to the pattern, which counts as changed. Throws as Pattern::Resize.
    void ApplyTo(Pattern& pattern) const;
};

/// What is asked before a pattern loses squares.
inline constexpr const char* ResizeWarning =
    "Warning! By resizing your pattern, you will lose any stitches which are outside the new "
    "pattern area\nAre  you sure you wish to resize the pattern?";

/// The fields of the properties that can be filled in wrongly.
enum class PatternInfoField { Width, Height, ClothCountX, ClothCountY, Instructions };

struct PatternInfoFault {
    PatternInfoField Where = PatternInfoField::Width;
    std::string Text;
    std::string More; ///< what can be done; may be empty
};

/// The number fields of the properties as they stand: the size in stitches or as a length.
struct PatternSizeFields {
    double Width = 0;
    double Height = 0;
    double ClothCountX = 0; ///< squares an inch
    double ClothCountY = 0;
    bool UseUnits = false;   ///< the size is a length
    double UnitsPerInch = 1; ///< 1, or CentimetresPerInch

    /// What is wrong with a cloth count; a size cannot be converted before that is right.
    [[nodiscard]] std::optional<PatternInfoFault> ClothFault() const;
    /// The first fault in the order of the fields; after them, a size that no pattern can have.
    /// Sides of `present` may stay as long as they are.
    [[nodiscard]] std::optional<PatternInfoFault> FindFault(const PatternInfo& present) const;

    /// Converts the size; the cloth counts have to be right.
    void SwitchUnits(bool useUnits);
    /// Size and cloth counts in whole numbers, a half to the even one; the fields have to be right.
    void PutInto(PatternInfo& info) const;
    /// The text of a size field: whole stitches, or a length with three places.
    [[nodiscard]] std::string FieldText(double value) const;

private:
    [[nodiscard]] double WidthInStitches() const;
    [[nodiscard]] double HeightInStitches() const;
    [[nodiscard]] std::optional<PatternInfoFault> SizeFault(const PatternInfo& present) const;
};

/// Whether changed instructions are too long for a pattern file.
[[nodiscard]] std::optional<PatternInfoFault> InstructionsFault(const PatternInfo& wanted,
                                                                const PatternInfo& present);

} // namespace zol
