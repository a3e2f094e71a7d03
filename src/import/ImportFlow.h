// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

namespace zol {

/// The screens of an import by number, in the order in which they follow each other.
namespace ImportScreens {

inline constexpr int Source = 0;
inline constexpr int Crop = 1;
inline constexpr int Erase = 2;
inline constexpr int Size = 3;
inline constexpr int ColorAdjust = 4;
inline constexpr int ColorMapping = 5;
inline constexpr int Count = 6;

} // namespace ImportScreens

/// Which screen of the import is shown and which one follows. Whether a screen's work will do is
/// the screen's own business.
class ImportFlow {
public:
    /// A screen that is to be shown.
    struct Change {
        int Screen = 0;
        bool KeepPicture = false; ///< as it was left; else with the picture that travels

        friend bool operator==(const Change&, const Change&) = default;
    };

    /// From 0.
    [[nodiscard]] int CurrentScreen() const { return m_currentScreen; }
    [[nodiscard]] bool CanGoBack() const { return m_currentScreen > 0; }
    [[nodiscard]] bool IsOnLastScreen() const {
        return m_currentScreen == ImportScreens::Count - 1;
    }

    /// On to the next screen, which starts from the picture that travels; nothing if the work of
    /// this one will not do. From the last screen the import itself follows, for which nothing is
    /// shown either: the last screen stays, so that it is there again when the import is resumed.
    [[nodiscard]] std::optional<Change> Next(bool valid);
    /// Back to the screen before, whatever the work of this one is worth. The screen before shows
    /// what it held if this one's work was handed on. Nothing on the first screen.
    [[nodiscard]] std::optional<Change> Back(bool valid);

private:
    int m_currentScreen = 0;
};

} // namespace zol
