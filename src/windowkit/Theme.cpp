// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/Theme.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include <QApplication>
#include <QEvent>

#include "windowkit/IconStyle.h"
#include "windowkit/QuietStyle.h"

namespace zol::Theme {

namespace {

/// The colours of one look, from which a palette is made.
struct Shades {
    QRgb window, text, base, alternate, button, faded, hint, tipGround, tipText;
};

// No pure black and no pure white: these belong to the chart.
constexpr Shades LightShades{0xFFF0EFED, 0xFF26282B, 0xFFFBFAF8, 0xFFF4F2EF, 0xFFECEAE7,
                             0xFF9C9C9D, 0xFF66686C, 0xFF2E3033, 0xFFF2F0ED};
constexpr Shades DarkShades{0xFF2B2C2E, 0xFFE4E3E0, 0xFF232426, 0xFF292A2C, 0xFF363739,
                            0xFF7C7D7F, 0xFFA6A7A8, 0xFF3D3E41, 0xFFF0EFEC};

constexpr QColor LightAccent(0xB2, 0x3A, 0x48);
constexpr QColor DarkAccent(0xE0, 0x7A, 0x86);

/// Light that a colour gives off, from 0 to 1, as the eye weighs red, green and blue.
double Luminance(const QColor& color) {
    const auto linear = [](double share) {
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// The colour of text on the accent: the better of the two that a theme is made of.
QColor TextOn(const QColor& ground) {
    const QColor light(0xFF, 0xFF, 0xFF);
    const QColor dark(0x1B, 0x1B, 0x1C);
    return Contrast(light, ground) >= Contrast(dark, ground) ? light : dark;
}

void SetAccent(QPalette& palette) {
    const QColor accent = Accent(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Highlight, accent);
        palette.setColor(group, QPalette::HighlightedText, TextOn(accent));
        palette.setColor(group, QPalette::Link, accent);
    }
}

/// What the application is asked for, if it is.
std::optional<Look> WantedLook() {
    const QString look = qEnvironmentVariable("KORVANTA_THEME").toLower();
    if (look == QLatin1String("light")) {
        return Look::Light;
    }
    return look == QLatin1String("dark") ? std::optional(Look::Dark) : std::nullopt;
}

/// Qt falls back on these two where a desktop brings no style of its own.
bool IsFallback(const QString& style) {
    return style.isEmpty() || style.compare(QLatin1String("fusion"), Qt::CaseInsensitive) == 0 ||
           style.compare(QLatin1String("windows"), Qt::CaseInsensitive) == 0;
}

/// Keeps what is selected in the accent when the system's colours change.
class AccentKeeper : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ApplicationPaletteChange && watched == parent()) {
            Keep();
        }
        return QObject::eventFilter(watched, event);
    }

    static void Keep() {
        QPalette palette = QApplication::palette();
        // Setting the palette changes it, which leads here again.
        if (palette.color(QPalette::Active, QPalette::Highlight) != Accent(palette)) {
            SetAccent(palette);
            QApplication::setPalette(palette);
        }
    }
};

} // namespace

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

QColor Accent(const QPalette& palette) {
    return IsDark(palette) ? DarkAccent : LightAccent;
}

QColor AccentOn(const QColor& ground) {
    return Contrast(LightAccent, ground) >= Contrast(DarkAccent, ground) ? LightAccent : DarkAccent;
}

QColor Desk(const QPalette& palette) {
    return palette.color(QPalette::Window).darker(IsDark(palette) ? 125 : 112);
}

QColor Edge(const QPalette& palette) {
    return palette.color(QPalette::Window).darker(IsDark(palette) ? 180 : 145);
}

double Contrast(const QColor& one, const QColor& other) {
    const double first = Luminance(one) + 0.05;
    const double second = Luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

QColor Mix(const QColor& from, const QColor& to, double share) {
    const auto mixed = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {mixed(from.red(), to.red()), mixed(from.green(), to.green()),
            mixed(from.blue(), to.blue())};
}

QPalette Palette(Look look) {
    const Shades& shades = look == Look::Dark ? DarkShades : LightShades;
    QPalette palette(QColor(shades.button), QColor(shades.window));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(shades.text));
        palette.setColor(QPalette::Disabled, role, QColor(shades.faded));
    }
    palette.setColor(QPalette::Base, QColor(shades.base));
    palette.setColor(QPalette::AlternateBase, QColor(shades.alternate));
    palette.setColor(QPalette::PlaceholderText, QColor(shades.hint));
    palette.setColor(QPalette::ToolTipBase, QColor(shades.tipGround));
    palette.setColor(QPalette::ToolTipText, QColor(shades.tipText));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(shades.faded));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, QColor(shades.window));
    SetAccent(palette);
    return palette;
}

void Apply(QApplication& application) {
    // The application owns its style and its children.
    const std::optional<Look> wanted = WantedLook();
    const QString style = QApplication::style()->name();
    if (wanted || IsFallback(style)) {
        // Judged before Fusion, which may bring a palette of its own, is set.
        const Look system = IsDark(QApplication::palette()) ? Look::Dark : Look::Light;
        QApplication::setStyle(QuietStyle::OverFusion());
        QApplication::setPalette(Palette(wanted.value_or(system)));
    } else {
        QApplication::setStyle(IconStyle::Over(style));
    }
    AccentKeeper::Keep();
    application.installEventFilter(new AccentKeeper(&application));
}

} // namespace zol::Theme
