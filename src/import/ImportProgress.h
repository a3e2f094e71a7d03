// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>

#include "model/Doors.h"

namespace zol {

/// The bar of one walk over a picture: it moves once a hundredth of the picture, and there the
/// walk asks whether it may go on. With fewer than 100 pixels the hundredth is 0, the counter
/// steps below it and never comes to zero, so the bar stays still.
class ImportProgress {
public:
    static constexpr int Maximum = 100;

    /// The door may be null.
    ImportProgress(ProgressDoor* door, const std::string& text, std::int64_t pixels)
        : m_door(door),
          m_hundredth(pixels / 100),
          m_counter(m_hundredth) {
        if (m_door != nullptr) {
            m_door->StartStatus(text, Maximum);
            m_mayGoOn = m_door->MayGoOn();
        }
    }

    /// Counts one pixel. False once the user has cancelled.
    [[nodiscard]] bool Step() {
        if (--m_counter == 0) {
            Advance();
        }
        return m_mayGoOn;
    }
    [[nodiscard]] bool MayGoOn() const { return m_mayGoOn; }

private:
    void Advance() {
        m_counter = m_hundredth;
        if (m_door == nullptr) {
            return;
        }
        if (m_value < Maximum) {
            m_door->UpdateStatus(++m_value);
        }
        m_mayGoOn = m_door->MayGoOn();
    }

    ProgressDoor* m_door;
    std::int64_t m_hundredth;
    std::int64_t m_counter;
    int m_value = 0;
    bool m_mayGoOn = true;
};

/// Takes the bar away, however the work ends.
class ImportStatusScope {
public:
    explicit ImportStatusScope(ProgressDoor* door) : m_door(door) {}
    ~ImportStatusScope() {
        if (m_door != nullptr) {
            m_door->StopStatus();
        }
    }
    ImportStatusScope(const ImportStatusScope&) = delete;
    ImportStatusScope& operator=(const ImportStatusScope&) = delete;

private:
    ProgressDoor* m_door;
};

} // namespace zol
