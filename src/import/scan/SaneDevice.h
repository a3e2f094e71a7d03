// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <sane/sane.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "import/scan/SaneLibrary.h"

namespace zol {

/// A device that stands open, with its options by their names. Nothing of them is kept: setting
/// one may change or remove others, so each question goes to the device.
class SaneDevice {
public:
    /// Takes a handle over, which it closes.
    SaneDevice(const SaneLibrary& sane, SANE_Handle handle) : m_sane(sane), m_handle(handle) {}
    ~SaneDevice() { m_sane.Close(m_handle); }
    SaneDevice(const SaneDevice&) = delete;
    SaneDevice& operator=(const SaneDevice&) = delete;

    [[nodiscard]] SANE_Handle Handle() const { return m_handle; }

    /// The device has it now, and a program may set it.
    [[nodiscard]] bool Has(const char* name) const { return Find(name).has_value(); }
    /// Of the whole numbers and fractions.
    [[nodiscard]] std::optional<double> GetNumber(const char* name) const;
    [[nodiscard]] std::string GetText(const char* name) const;
    [[nodiscard]] std::optional<SANE_Unit> UnitOf(const char* name) const;
    /// The least and the greatest number it may have; nothing if it has no bounds.
    [[nodiscard]] std::optional<std::pair<double, double>> BoundsOf(const char* name) const;
    /// The numbers it may have, if they are a list, as the device orders them.
    [[nodiscard]] std::vector<double> NumbersOf(const char* name) const;
    /// The texts it may have, if they are a list. UTF-8.
    [[nodiscard]] std::vector<std::string> TextsOf(const char* name) const;

    // Setters give SANE_STATUS_UNSUPPORTED for what Has does not know.

    /// The nearest to `wanted` that the option's bounds, steps or list allow.
    SANE_Status SetNumber(const char* name, double wanted) const;
    /// One of TextsOf.
    SANE_Status SetText(const char* name, const std::string& text) const;
    SANE_Status SetFlag(const char* name, bool on) const;

private:
    struct Option {
        SANE_Int Number = 0;
        const SANE_Option_Descriptor* Is = nullptr; ///< the device's own; until the next setting
    };

    [[nodiscard]] std::optional<Option> Find(const char* name) const;
    /// Only if it is one number.
    [[nodiscard]] std::optional<Option> FindNumber(const char* name) const;

    const SaneLibrary& m_sane;
    SANE_Handle m_handle;
};

} // namespace zol
