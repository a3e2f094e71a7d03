// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QTest>

#include "windowkit/IconFamily.h"
#include "windowkit/Theme.h"

namespace zol {

using Theme::Look;

namespace {

constexpr double Readable = 4.5;
constexpr double Visible = 3.0;

void AddRowPerLook() {
    QTest::addColumn<int>("look");
    QTest::newRow("light") << static_cast<int>(Look::Light);
    QTest::newRow("dark") << static_cast<int>(Look::Dark);
}

/// Counts pixels of exactly this colour.
int CountColor(const QImage& image, const QColor& color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

} // namespace

class ThemeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qunsetenv("KORVANTA_THEME"); }

    void ContrastGoesFromOneToTwentyOne() {
        QCOMPARE(Theme::Contrast(QColor(Qt::red), QColor(Qt::red)), 1.0);
        QVERIFY(qAbs(Theme::Contrast(QColor(Qt::black), QColor(Qt::white)) - 21.0) < 0.001);
        QVERIFY(qAbs(Theme::Contrast(QColor(Qt::white), QColor(0x77, 0x77, 0x77)) - 4.48) < 0.01);
    }

    void TextCanBeReadOnItsGround_data() { AddRowPerLook(); }
    void TextCanBeReadOnItsGround() {
        QFETCH(int, look);
        const QPalette palette = Theme::Palette(static_cast<Look>(look));
        const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
            {QPalette::WindowText, QPalette::Window},
            {QPalette::Text, QPalette::Base},
            {QPalette::Text, QPalette::AlternateBase},
            {QPalette::ButtonText, QPalette::Button},
            {QPalette::HighlightedText, QPalette::Highlight},
            {QPalette::ToolTipText, QPalette::ToolTipBase},
            {QPalette::PlaceholderText, QPalette::Base},
            {QPalette::Link, QPalette::Base},
            {QPalette::Link, QPalette::Window},
        };
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            for (const auto& [text, ground] : pairs) {
                const double contrast =
                    Theme::Contrast(palette.color(group, text), palette.color(group, ground));
                QVERIFY2(
                    contrast >= Readable,
                    qPrintable(
                        QStringLiteral("role %1 on %2: %3").arg(text).arg(ground).arg(contrast)));
            }
        }
    }

    void IconsAndTheAccentCanBeSeen_data() { AddRowPerLook(); }
    void IconsAndTheAccentCanBeSeen() {
        QFETCH(int, look);
        const QPalette palette = Theme::Palette(static_cast<Look>(look));
        const IconFamily::Tones tones = IconFamily::TonesOf(palette);
        for (const auto ground : {QPalette::Window, QPalette::Button, QPalette::Base}) {
            QVERIFY(Theme::Contrast(tones.Text, palette.color(ground)) >= Readable);
            QVERIFY(Theme::Contrast(tones.Accent, palette.color(ground)) >= Visible);
            QVERIFY(Theme::Contrast(tones.Cloth, palette.color(ground)) >= Visible);
        }
        const IconFamily::Tones selected = IconFamily::TonesOf(palette, QIcon::Selected);
        QVERIFY(Theme::Contrast(selected.Text, palette.color(QPalette::Highlight)) >= Readable);
    }

    void TheAccentCanBeSeenOnAnyCloth() {
        for (int grey = 0; grey < 256; grey += 5) {
            const QColor cloth(grey, grey, grey);
            QVERIFY(Theme::Contrast(Theme::AccentOn(cloth), cloth) >= 1.3);
        }
        for (const auto& cloth : {QColor(Qt::white), QColor(0xF5, 0xEE, 0xDC), QColor(Qt::black)}) {
            QVERIFY(Theme::Contrast(Theme::AccentOn(cloth), cloth) >= Visible);
        }
    }

    void NothingIsPureBlackOrWhiteOutsideTheChart_data() { AddRowPerLook(); }
    void NothingIsPureBlackOrWhiteOutsideTheChart() {
        QFETCH(int, look);
        const QPalette palette = Theme::Palette(static_cast<Look>(look));
        for (const auto role : {QPalette::Window, QPalette::WindowText, QPalette::Base,
                                QPalette::Text, QPalette::Button, QPalette::ButtonText}) {
            QVERIFY(palette.color(role) != QColor(Qt::black));
            QVERIFY(palette.color(role) != QColor(Qt::white));
        }
    }

    void TheEnvironmentChoosesTheLook() {
        qputenv("KORVANTA_THEME", "dark");
        Theme::Apply(*qApp);
        QVERIFY(Theme::IsDark(QApplication::palette()));
        qputenv("KORVANTA_THEME", "Light");
        Theme::Apply(*qApp);
        QVERIFY(!Theme::IsDark(QApplication::palette()));
        QCOMPARE(QApplication::palette().color(QPalette::Highlight), QColor(0xB2, 0x3A, 0x48));
    }

    void WithoutItTheSystemsPaletteIsJudged() {
        for (const auto look : {Look::Dark, Look::Light}) {
            QPalette system;
            const bool dark = look == Look::Dark;
            system.setColor(QPalette::Window, dark ? QColor(30, 30, 30) : QColor(230, 230, 230));
            system.setColor(QPalette::WindowText,
                            dark ? QColor(220, 220, 220) : QColor(20, 20, 20));
            QApplication::setPalette(system);
            qputenv("KORVANTA_THEME", "mauve");
            Theme::Apply(*qApp);
            QCOMPARE(QApplication::palette().color(QPalette::Base),
                     Theme::Palette(look).color(QPalette::Base));
        }
    }

    void TheAccentFollowsTheSystemsColours() {
        Theme::Apply(*qApp);
        for (const auto look : {Look::Dark, Look::Light, Look::Dark}) {
            QPalette changed = Theme::Palette(look);
            changed.setColor(QPalette::Highlight, QColor(48, 140, 198));
            QApplication::setPalette(changed);
            QTRY_COMPARE(QApplication::palette().color(QPalette::Active, QPalette::Highlight),
                         Theme::Accent(changed));
            QVERIFY(Theme::Contrast(QApplication::palette().color(QPalette::HighlightedText),
                                    Theme::Accent(changed)) >= Readable);
        }
    }

    void TheIconOfTheSelectedMenuItemTakesTheColourOfItsText_data() { AddRowPerLook(); }
    void TheIconOfTheSelectedMenuItemTakesTheColourOfItsText() {
        QFETCH(int, look);
        qputenv("KORVANTA_THEME", look == static_cast<int>(Look::Dark) ? "dark" : "light");
        Theme::Apply(*qApp);
        QMenu menu;
        QAction* action =
            menu.addAction(IconFamily::Icon(QStringLiteral("file-save")), QStringLiteral("Save"));
        menu.popup(QPoint(0, 0));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        const QPalette palette = menu.palette();
        const auto icon = [&] {
            const QRect item = menu.actionGeometry(action);
            return menu.grab(QRect(item.left(), item.top(), item.height() + 4, item.height()))
                .toImage();
        };
        QVERIFY(CountColor(icon(), palette.color(QPalette::WindowText)) > 20);
        menu.setActiveAction(action);
        QVERIFY(CountColor(icon(), palette.color(QPalette::HighlightedText)) > 20);
        QCOMPARE(CountColor(icon(), palette.color(QPalette::WindowText)), 0);
    }
};

} // namespace zol

QTEST_MAIN(zol::ThemeTest)
#include "test_Theme.moc"
