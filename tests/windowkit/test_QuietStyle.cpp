// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyle>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <set>

#include "windowkit/IconFamily.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

QImage Seen(QWidget& widget, const QRect& part = QRect()) {
    return widget.grab(part.isNull() ? widget.rect() : part).toImage();
}

int CountColor(const QImage& image, const QColor& color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

std::set<QRgb> ColorsOf(const QImage& image) {
    std::set<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colors.insert(image.pixel(x, y));
        }
    }
    return colors;
}

/// How far the strongest thing in a widget stands out from the window's ground.
double BestContrast(QWidget& widget) {
    const QColor window = widget.palette().color(QPalette::Window);
    double best = 1;
    for (const QRgb color : ColorsOf(Seen(widget))) {
        best = std::max(best, Theme::Contrast(QColor(color), window));
    }
    return best;
}

void AddRowPerLook() {
    QTest::addColumn<QByteArray>("look");
    QTest::newRow("light") << QByteArray("light");
    QTest::newRow("dark") << QByteArray("dark");
}

void TakeLook() {
    QFETCH(QByteArray, look);
    qputenv("KORVANTA_THEME", look);
    Theme::Apply(*qApp);
}

} // namespace

class QuietStyleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qunsetenv("KORVANTA_THEME"); }

    void AToolThatIsOnIsFramedInTheAccent_data() { AddRowPerLook(); }
    void AToolThatIsOnIsFramedInTheAccent() {
        TakeLook();
        QToolButton button;
        button.setAutoRaise(true);
        button.setCheckable(true);
        button.resize(32, 32);
        const QColor accent = Theme::Accent(button.palette());
        QCOMPARE(CountColor(Seen(button), accent), 0);
        button.setChecked(true);
        QVERIFY(CountColor(Seen(button), accent) > 80);
        button.setEnabled(false);
        const std::set<QRgb> off = ColorsOf(Seen(button));
        QCOMPARE(off.count(accent.rgb()), 0U);
        QVERIFY(off.size() > 1);
    }

    void ABarInsideADialogShowsTheGroundOfItsPage() {
        qputenv("KORVANTA_THEME", "light");
        Theme::Apply(*qApp);
        QWidget page;
        page.setPalette(QPalette(Qt::green));
        auto* bar = new QToolBar(&page);
        bar->setPalette(Theme::Palette(Theme::Look::Light));
        bar->resize(60, 30);
        const QColor ground = page.palette().color(QPalette::Window);
        QCOMPARE(Seen(page, QRect(50, 20, 1, 1)).pixelColor(0, 0), ground);
    }

    void ATabbedToToolButtonIsRinged_data() { AddRowPerLook(); }
    void ATabbedToToolButtonIsRinged() {
        TakeLook();
        QWidget window;
        std::array<QToolButton*, 2> buttons{new QToolButton(&window), new QToolButton(&window)};
        for (std::size_t i = 0; i < buttons.size(); ++i) {
            buttons[i]->setAutoRaise(true);
            buttons[i]->setFocusPolicy(Qt::StrongFocus);
            buttons[i]->setGeometry(40 * static_cast<int>(i), 0, 32, 32);
        }
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        buttons[0]->setFocus(Qt::MouseFocusReason);
        const QColor accent = Theme::Accent(window.palette());
        QCOMPARE(CountColor(Seen(*buttons[0]), accent), 0);
        QTest::keyClick(buttons[0], Qt::Key_Tab);
        QVERIFY(buttons[1]->hasFocus());
        QVERIFY(CountColor(Seen(*buttons[1]), accent) > 60);
        QCOMPARE(CountColor(Seen(*buttons[0]), accent), 0);
    }

    void AMenuItemThatIsOnIsFramedInTheAccent_data() { AddRowPerLook(); }
    void AMenuItemThatIsOnIsFramedInTheAccent() {
        TakeLook();
        QMenu menu;
        QAction* action =
            menu.addAction(IconFamily::Icon(QStringLiteral("edit-copy")), QStringLiteral("Copy"));
        action->setCheckable(true);
        menu.popup(QPoint(0, 0));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        const QColor accent = Theme::Accent(menu.palette());
        const QRect item = menu.actionGeometry(action);
        const int off = CountColor(Seen(menu, item), accent);
        action->setChecked(true);
        QVERIFY(CountColor(Seen(menu, item), accent) > off + 40);
    }

    void AScrollBarWithoutAWayToGoShowsNothing_data() { AddRowPerLook(); }
    void AScrollBarWithoutAWayToGoShowsNothing() {
        TakeLook();
        for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
            QScrollBar bar(orientation);
            bar.resize(orientation == Qt::Horizontal ? QSize(200, 16) : QSize(16, 200));
            bar.setRange(1, 1);
            bar.setEnabled(false);
            const QRgb window = bar.palette().color(QPalette::Window).rgb();
            QCOMPARE(ColorsOf(Seen(bar)), std::set<QRgb>{window});
            bar.setRange(1, 40);
            bar.setEnabled(true);
            QVERIFY(ColorsOf(Seen(bar)).size() > 2);
        }
    }

    void AScrollBarThatIsNotOpaqueLeavesItsGroundAlone() {
        qputenv("KORVANTA_THEME", "light");
        Theme::Apply(*qApp);
        QWidget desk;
        QPalette colors = desk.palette();
        colors.setColor(QPalette::Window, QColor(10, 90, 30));
        desk.setPalette(colors);
        desk.resize(200, 16);
        QScrollBar bar(Qt::Horizontal, &desk);
        bar.setPalette(QApplication::palette());
        bar.setAttribute(Qt::WA_OpaquePaintEvent, false);
        bar.setRange(1, 1);
        bar.setEnabled(false);
        bar.resize(200, 16);
        QCOMPARE(ColorsOf(Seen(desk)), std::set<QRgb>{QColor(10, 90, 30).rgb()});
    }

    void BoxesRingsAndFieldsStandOutFromTheirGround_data() { AddRowPerLook(); }
    void BoxesRingsAndFieldsStandOutFromTheirGround() {
        TakeLook();
        QCheckBox box;
        QRadioButton ring;
        QLineEdit field;
        for (QWidget* widget : std::initializer_list<QWidget*>{&box, &ring, &field}) {
            widget->resize(60, 24);
            QVERIFY2(BestContrast(*widget) >= 3, widget->metaObject()->className());
        }
        for (QWidget* widget : std::initializer_list<QWidget*>{&box, &ring}) {
            widget->setEnabled(false);
            const double faded = BestContrast(*widget);
            QVERIFY2(faded > 1.5 && faded < 3, widget->metaObject()->className());
            widget->setEnabled(true);
        }
        const QColor accent = Theme::Accent(box.palette());
        QCOMPARE(CountColor(Seen(box), accent), 0);
        box.setChecked(true);
        QVERIFY(CountColor(Seen(box), accent) > 40);
        QCOMPARE(CountColor(Seen(ring), accent), 0);
        ring.setChecked(true);
        QVERIFY(CountColor(Seen(ring), accent) > 40);
    }

    void AFieldWithArrowsHasTheFrameOfAField_data() { AddRowPerLook(); }
    void AFieldWithArrowsHasTheFrameOfAField() {
        TakeLook();
        QLineEdit field;
        QSpinBox spin;
        for (QWidget* widget : std::initializer_list<QWidget*>{&field, &spin}) {
            widget->resize(80, 24);
        }
        const QRgb edge = Seen(field).pixel(0, 12);
        QVERIFY(Theme::Contrast(QColor(edge), spin.palette().color(QPalette::Window)) >= 3);
        QCOMPARE(QColor(Seen(spin).pixel(0, 12)), QColor(edge));
    }

    void FadedTextHasNoShadow() {
        qputenv("KORVANTA_THEME", "dark");
        Theme::Apply(*qApp);
        QCOMPARE(QApplication::style()->styleHint(QStyle::SH_EtchDisabledText), 0);
    }

    void WordsHaveAirAtBothSides() {
        qputenv("KORVANTA_THEME", "light");
        Theme::Apply(*qApp);
        const QString words = QStringLiteral("Words that are longer than a button is wide");
        const QPushButton button(words);
        QVERIFY(button.sizeHint().width() >= button.fontMetrics().horizontalAdvance(words) + 24);
        QListWidget list;
        list.addItem(words);
        QVERIFY(list.sizeHintForColumn(0) >= list.fontMetrics().horizontalAdvance(words) + 12);
        QTreeWidget table;
        table.setHeaderLabel(words);
        QVERIFY(table.header()->sectionSizeHint(0) >=
                table.header()->fontMetrics().horizontalAdvance(words) + 12);
    }

    void TheSignOfSortingStandsInTheMiddleOfItsHeader() {
        qputenv("KORVANTA_THEME", "light");
        Theme::Apply(*qApp);
        QTreeWidget table;
        table.setHeaderLabel(QStringLiteral("Floss"));
        table.resize(200, 100);
        QHeaderView& header = *table.header();
        header.setFixedHeight(26);
        header.setSortIndicator(0, Qt::AscendingOrder);
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));
        const QRect part(0, 0, 180, 26);
        const QImage plain = Seen(header, part);
        header.setSortIndicatorShown(true);
        const QImage sorted = Seen(header, part);
        QCOMPARE(sorted.size(), plain.size());
        QRect sign;
        for (int y = 0; y < plain.height(); ++y) {
            for (int x = plain.width() / 2; x < plain.width(); ++x) {
                if (plain.pixel(x, y) != sorted.pixel(x, y)) {
                    sign |= QRect(x, y, 1, 1);
                }
            }
        }
        QVERIFY(sign.height() >= 3);
        QVERIFY(qAbs(sign.center().y() - plain.rect().center().y()) <= 2);
    }

    void MessagesBearSignsOfTheFamily_data() { AddRowPerLook(); }
    void MessagesBearSignsOfTheFamily() {
        TakeLook();
        std::set<qint64> seen;
        for (const auto sign : {QStyle::SP_MessageBoxQuestion, QStyle::SP_MessageBoxInformation,
                                QStyle::SP_MessageBoxWarning, QStyle::SP_MessageBoxCritical}) {
            const QImage image =
                QApplication::style()->standardIcon(sign).pixmap(QSize(40, 40)).toImage();
            QVERIFY(CountColor(image, QApplication::palette().color(QPalette::WindowText)) > 20);
            QVERIFY(CountColor(image, Theme::Accent(QApplication::palette())) > 10);
            seen.insert(static_cast<qint64>(qHash(QByteArray::fromRawData(
                reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()))));
        }
        QCOMPARE(seen.size(), 4U);
    }

    void WhatATooNarrowToolBarHidesIsReachedByASignOfTheFamily() {
        qputenv("KORVANTA_THEME", "dark");
        Theme::Apply(*qApp);
        QToolBar bar;
        for (int i = 0; i < 20; ++i) {
            bar.addAction(IconFamily::Icon(QStringLiteral("file-open")), QStringLiteral("Open"));
        }
        bar.resize(200, 40);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        auto* more = bar.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
        QVERIFY(more != nullptr);
        QTRY_VERIFY(more->isVisible());
        QVERIFY(BestContrast(*more) >= 4.5);
    }
};

} // namespace zol

QTEST_MAIN(zol::QuietStyleTest)
#include "test_QuietStyle.moc"
