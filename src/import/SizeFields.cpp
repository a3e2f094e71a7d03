// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/SizeFields.h"

#include <algorithm>

#include "import/ImportMessages.h"
#include "model/PatternInfo.h"
#include "model/Rounding.h"
#include "model/ZOLTypes.h"

namespace zol {

SizeFields::SizeFields(const ImportSize& size, StitchSize pattern)
    : m_size(size),
      m_patternClothCountX(std::max(size.ClothCountX, 1)),
      m_patternClothCountY(std::max(size.ClothCountY, 1)) {
    // A pattern may say that its cloth has no threads; nothing can be measured on that.
    m_size.ClothCountX = m_patternClothCountX;
    m_size.ClothCountY = m_patternClothCountY;
    ShowInFields(pattern);
}

void SizeFields::SetImage(int width, int height) {
    m_imageWidth = std::max(width, 1);
    m_imageHeight = std::max(height, 1);
}

void SizeFields::ChangeWidth(double width) {
    m_width = width;
    if (m_keepsAspect) {
        SetProportionalHeight();
    }
}

void SizeFields::ChangeHeight(double height) {
    m_height = height;
}

void SizeFields::KeepAspect(bool keep) {
    m_keepsAspect = keep;
    if (keep) {
        m_fillsEditBox = false;
        SetProportionalHeight();
    }
}

void SizeFields::FollowAspect() {
    if (m_keepsAspect && !m_fillsEditBox) {
        SetProportionalHeight();
    }
}

void SizeFields::UseUnits(bool units) {
    if (units == m_size.UseUnits) {
        return;
    }
    m_size.UseUnits = units;
    const auto convert = [this, units](double value, int clothCount) {
        return AsShown(units ? m_size.UnitsOf(value, clothCount)
                             : m_size.StitchesOfUnits(value, clothCount));
    };
    m_width = convert(m_width, m_size.ClothCountX);
    m_height = convert(m_height, m_size.ClothCountY);
}

void SizeFields::ChangeClothCount(int count) {
    m_clothIsWrong = count < 1;
    if (!m_clothIsWrong) {
        m_size.ClothCountX = count;
        m_size.ClothCountY = count;
    }
}

void SizeFields::UseEditBox(bool use) {
    m_usesEditBox = use && m_editBox.has_value();
    m_fillsEditBox = m_usesEditBox;
    if (m_usesEditBox) {
        m_clothIsWrong = false;
        m_size.ClothCountX = m_patternClothCountX;
        m_size.ClothCountY = m_patternClothCountY;
        ShowInFields(*m_editBox);
    }
}

void SizeFields::ShowInFields(StitchSize stitches) {
    const auto field = [this](int count, int clothCount) {
        return AsShown(m_size.UseUnits ? m_size.UnitsOf(count, clothCount) : count);
    };
    m_width = field(stitches.Width, m_size.ClothCountX);
    m_height = field(stitches.Height, m_size.ClothCountY);
}

void SizeFields::SetProportionalHeight() {
    const std::optional<int> limit =
        m_usesEditBox ? std::optional(m_editBox->Height) : std::nullopt;
    const ProportionalSize fields =
        zol::SetProportionalHeight(m_size, m_width, m_imageWidth, m_imageHeight, limit);
    if (fields.WidthChanged) {
        m_width = AsShown(fields.Width);
    }
    m_height = AsShown(fields.Height);
    // A picture much wider than high still is a row of stitches.
    if (fields.Height > 0 && m_height <= 0) {
        m_height = m_size.UseUnits ? AsShown(m_size.UnitsOf(1, m_size.ClothCountY)) : 1;
    }
}

double SizeFields::AsShown(double value) const {
    return LeadingNumber(m_size.FieldText(value));
}

bool SizeFields::IsTooLarge() const {
    const auto stitches = m_size.StitchesOf(m_width, m_height);
    return !stitches || std::max(stitches->Width, stitches->Height) > PatternInfo::MaxSide;
}

std::optional<SizeFields::Fault> SizeFields::FindFault() const {
    if (const auto message = ImportMessages::ValidateSize(m_width, m_height)) {
        return Fault{m_width > 0 ? Field::Height : Field::Width, *message, {}};
    }
    if (m_clothIsWrong) {
        return Fault{Field::ClothCount, std::string(ImportMessages::ClothCountWrong), {}};
    }
    if (!m_fillsEditBox && IsTooLarge()) {
        return Fault{Field::Width, std::string(ImportMessages::TooLarge),
                     "A pattern can have up to " + std::to_string(PatternInfo::MaxSide) +
                         " stitches across and down, and " + std::to_string(MaxSquares) +
                         " squares in all."};
    }
    return std::nullopt;
}

std::optional<StitchSize> SizeFields::Stitches() const {
    if (FindFault()) {
        return std::nullopt;
    }
    // Lengths of three places need not come back to the same number of stitches.
    return m_fillsEditBox ? m_editBox : m_size.StitchesOf(m_width, m_height);
}

} // namespace zol
