// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QPalette>
#include <QString>
#include <QStringList>

/// The program's icons: one family of drawings on a square of 24, coloured by the palette at the
/// moment they are painted, so that they follow a change between light and dark by themselves.
namespace zol::IconFamily {

/// What the three tones of the drawings become.
struct Tones {
    QColor Text;   ///< strokes
    QColor Accent; ///< the one spot that explains something
    QColor Cloth;  ///< what lies behind: squares of cloth, paper lines

    friend bool operator==(const Tones&, const Tones&) = default;
};

/// Disabled icons fade into the window, selected ones take the colour of selected text.
[[nodiscard]] Tones TonesOf(const QPalette& palette, QIcon::Mode mode = QIcon::Normal);

/// "file-open", "stitch-whole"; a null icon for a name that is not in the family. Sharp at any
/// size and device pixel ratio.
[[nodiscard]] QIcon Icon(const QString& name);
/// The program's own icon, in colours of its own on every ground.
[[nodiscard]] QIcon ProgramIcon();

/// All names that Icon knows, sorted.
[[nodiscard]] QStringList Names();
/// One drawing, `side` device pixels wide and high; empty for an unknown name.
[[nodiscard]] QImage Picture(const QString& name, int side, const Tones& tones);

} // namespace zol::IconFamily
