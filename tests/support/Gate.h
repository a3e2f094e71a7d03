// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSemaphore>

namespace zol::test {

/// Work on another thread that stands still until the test lets it go on, and tells the test that
/// it has begun.
struct Gate {
    QSemaphore Begun;
    QSemaphore Open;

    int PassWith(int value) {
        Begun.release();
        Open.acquire();
        return value;
    }
};

} // namespace zol::test
