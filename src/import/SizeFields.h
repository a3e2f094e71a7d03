// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

#include "import/ImportSize.h"

namespace zol {

/// The fields of the size screen and how they move each other: aspect, units, cloth, edit box.
/// Values are what the fields say, in stitches or in units of length; a value that follows from
/// another one has the places that its field shows.
class SizeFields {
public:
    enum class Field { Width, Height, ClothCount };
    /// What is wrong with a field.
    struct Fault {
        Field Where = Field::Width;
        std::string Text;
        std::string More; ///< what can be done; may be empty
    };

    SizeFields() = default;
    /// `size` says how the fields start and brings the cloth of the pattern; `pattern` is as large
    /// as the pattern.
    SizeFields(const ImportSize& size, StitchSize pattern);

    /// The picture whose aspect is kept.
    void SetImage(int width, int height);
    /// The size of the design's edit box; nothing without one.
    void SetEditBox(std::optional<StitchSize> editBox) { m_editBox = editBox; }

    [[nodiscard]] const ImportSize& Size() const { return m_size; }
    [[nodiscard]] double Width() const { return m_width; }
    [[nodiscard]] double Height() const { return m_height; }
    [[nodiscard]] bool KeepsAspect() const { return m_keepsAspect; }
    [[nodiscard]] bool UsesEditBox() const { return m_usesEditBox; }
    [[nodiscard]] bool HasEditBox() const { return m_editBox.has_value(); }
    [[nodiscard]] bool IsWidthEnabled() const { return !m_usesEditBox; }
    [[nodiscard]] bool IsHeightEnabled() const { return !m_usesEditBox && !m_keepsAspect; }
    /// The text of a field.
    [[nodiscard]] std::string FieldText(double value) const { return m_size.FieldText(value); }

    /// Typed; the height goes with the width if the aspect is kept.
    void ChangeWidth(double width);
    void ChangeHeight(double height);
    /// Ticking it lets the height go with the width, in the edit box as far as the box reaches.
    void KeepAspect(bool keep);
    /// For the screen coming into view: another picture may have another aspect. What fills the
    /// edit box stays.
    void FollowAspect();
    void UseUnits(bool units);
    /// The same count both ways; below 1 it counts only as a fault.
    void ChangeClothCount(int count);
    /// Ticking it takes the pattern's cloth and fills the edit box exactly. Without an edit box
    /// nothing happens.
    void UseEditBox(bool use);

    /// The first fault in the order of the fields; after them, a size that no pattern can have.
    [[nodiscard]] std::optional<Fault> FindFault() const;
    /// Sides that round to 0 are 1. Nothing while a fault stands in its way.
    [[nodiscard]] std::optional<StitchSize> Stitches() const;

private:
    void SetProportionalHeight();
    void ShowInFields(StitchSize stitches);
    [[nodiscard]] double AsShown(double value) const;
    [[nodiscard]] bool IsTooLarge() const;

    ImportSize m_size;
    int m_patternClothCountX = 14;
    int m_patternClothCountY = 14;
    int m_imageWidth = 1;
    int m_imageHeight = 1;
    std::optional<StitchSize> m_editBox;
    double m_width = 0;
    double m_height = 0;
    bool m_keepsAspect = true;
    bool m_usesEditBox = false;
    bool m_fillsEditBox = false;
    bool m_clothIsWrong = false;
};

} // namespace zol
