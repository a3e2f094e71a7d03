// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    return 0;
}
