// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QApplication;

namespace zol {

/// What lists, number fields and button rows do alike in every window, whatever desktop the program
/// runs on:
/// - A list or a number field takes the wheel only while it has the keys. One that comes under the
///   pointer while a page is scrolled keeps its value, and the page goes on.
/// - OK, Cancel and their like have no letter of their own, which some desktops give them: Enter
/// and
///   Escape stand for them, and the letters are those of the window's own controls. Message boxes,
///   which have no other controls, keep theirs.
class DialogManners : public QObject {
    Q_OBJECT

public:
    /// For all windows of the application, which owns it.
    static void Teach(QApplication& application);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};

} // namespace zol
