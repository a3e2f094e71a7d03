// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <charconv>
#include <optional>
#include <string>

#include "model/Doors.h"

namespace zol::WindowPlace {

namespace {

constexpr int NormalState = 0;
constexpr int MinimizedState = 1;
constexpr int MaximizedState = 2;
/// At least so much of the window has to lie on a screen, or nobody could get hold of it.
constexpr int ReachablePixels = 60;

std::optional<int> ReadNumber(const SettingsDoor& store, const char* name) {
    const std::string text = store.ReadSetting("Options", name, {});
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number)
                                                                    : std::nullopt;
}

bool IsReachable(const QRect& place) {
    const QRect titleBar(place.left(), place.top(), place.width(), ReachablePixels);
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect seen = screen->availableGeometry() & titleBar;
        if (seen.width() >= ReachablePixels && seen.height() >= ReachablePixels / 2) {
            return true;
        }
    }
    return false;
}

/// A good part of the screen, where charts are comfortable to draw.
QRect FirstPlace() {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    QRect place(QPoint(), (room.size() * 0.85).boundedTo(QSize(1680, 1050)));
    place.moveCenter(room.center());
    return place;
}

} // namespace

void Restore(QWidget& window, const SettingsDoor& store) {
    const auto left = ReadNumber(store, "FormLeft");
    const auto top = ReadNumber(store, "FormTop");
    const auto width = ReadNumber(store, "FormWidth");
    const auto height = ReadNumber(store, "FormHeight");
    QRect place;
    if (left && top && width && height) {
        place = QRect(*left, *top, *width, *height);
    }
    window.setGeometry(place.isValid() && IsReachable(place) ? place : FirstPlace());
    // A window that was closed while minimized comes back visible.
    if (ReadNumber(store, "WinState") == MaximizedState) {
        window.setWindowState(Qt::WindowMaximized);
    }
}

void Store(const QWidget& window, SettingsDoor& store) {
    const int state = window.isMinimized()   ? MinimizedState
                      : window.isMaximized() ? MaximizedState
                                             : NormalState;
    store.WriteSetting("Options", "WinState", std::to_string(state));
    if (state != NormalState) {
        return;
    }
    const QRect place = window.geometry();
    store.WriteSetting("Options", "FormWidth", std::to_string(place.width()));
    store.WriteSetting("Options", "FormHeight", std::to_string(place.height()));
    store.WriteSetting("Options", "FormLeft", std::to_string(place.left()));
    store.WriteSetting("Options", "FormTop", std::to_string(place.top()));
}

} // namespace zol::WindowPlace
