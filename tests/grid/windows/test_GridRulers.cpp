// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QPainter>
#include <QtTest>

#include "grid/windows/GridRulers.h"

namespace zol {

class test_GridRulers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ticksStandByTheTable_data();
    void ticksStandByTheTable();
    void aTriangleMarksTheMiddle();
    void numbersStandFromOneOn();
    void closeNumbersMakeRoom();
    void numbersAreTextToThePixel();
};

/// Which depth a tick of an index begins at, in twips; -1 for none.
static double Table(bool inches, int index) {
    static const double inchTable[16] = {27.5, 220, 165, 220, 137.5, 220, 165, 220,
                                         82.5, 220, 165, 220, 137.5, 220, 165, 220};
    static const double centimetreTable[10] = {27.5, -1, -1, -1, -1, 82.5, -1, -1, -1, -1};
    return inches ? inchTable[index] : centimetreTable[index];
}

static QImage Painted(GridRuler& ruler) {
    return ruler.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

void test_GridRulers::ticksStandByTheTable_data() {
    QTest::addColumn<int>("zoom");
    QTest::addColumn<bool>("inches");
    QTest::addColumn<bool>("across");
    for (const int zoom : {10, 50, 100, 137, 250, 600}) {
        for (const bool inches : {true, false}) {
            for (const bool across : {true, false}) {
                QTest::addRow("%d percent, %s, %s", zoom, inches ? "inches" : "centimetres",
                              across ? "across" : "down")
                    << zoom << inches << across;
            }
        }
    }
}

void test_GridRulers::ticksStandByTheTable() {
    QFETCH(int, zoom);
    QFETCH(bool, inches);
    QFETCH(bool, across);
    // Not so long that a number of three figures comes across the ticks.
    const int length = zoom == 10 ? 300 : 600;
    GridRuler ruler(across ? Qt::Horizontal : Qt::Vertical, nullptr);
    ruler.Arrange({zoom, inches}, length * 15, length);
    const QImage image = Painted(ruler);
    const double ratio = image.devicePixelRatio();
    const QRgb ground = ruler.palette().color(QPalette::Window).rgb();
    const int thickness = across ? image.height() : image.width();
    const double step =
        inches ? std::nearbyint(zoom / 100.0 * 1440 / 16) : std::nearbyint(zoom / 100.0 * 567 / 10);
    const int count = inches ? 16 : 10;
    const int width = std::max(1, int(ratio));
    // The depth at which each pixel along the ruler begins to be a tick's.
    std::vector<int> begins(std::size_t(length * ratio) + 8, thickness);
    for (int tick = 0; tick * step <= length * 15; ++tick) {
        const double start = Table(inches, tick % count);
        const auto at = std::size_t(tick * step / 15 * ratio + 1e-6);
        for (std::size_t i = at; start >= 0 && i < at + std::size_t(width) && i < begins.size();
             ++i) {
            begins[i] = std::min(begins[i], int(start / 15 * ratio + 1e-6));
        }
    }
    // Numbers stand in the outer part, the triangle in the middle.
    const int outer = across ? int(11 * ratio) : int(17 * ratio);
    const int middle = int(length * ratio / 2);
    int ticks = 0;
    for (int along = 0; along < int(length * ratio); ++along) {
        if (std::abs(along - middle) <= 7 * ratio) {
            continue;
        }
        for (int depth = outer; depth < thickness; ++depth) {
            const QRgb pixel = across ? image.pixel(along, depth) : image.pixel(depth, along);
            const bool ink = depth >= begins[std::size_t(along)];
            QVERIFY2((pixel != ground) == ink,
                     qPrintable(QStringLiteral("%1, %2").arg(along).arg(depth)));
            ticks += ink ? 1 : 0;
        }
    }
    QVERIFY(ticks > 0);
    // Whole units begin 27.5 twips from the outer edge.
    const int edge = int(27.5 / 15 * ratio);
    const auto at = [&](int depth) {
        return across ? image.pixel(0, depth) : image.pixel(depth, 0);
    };
    QVERIFY(at(edge) != ground);
    QVERIFY(at(edge - 1) == ground);
}

void test_GridRulers::aTriangleMarksTheMiddle() {
    GridRuler ruler(Qt::Horizontal, nullptr);
    ruler.Arrange({200, false}, 601 * 15, 601);
    const QImage image = Painted(ruler);
    const double ratio = image.devicePixelRatio();
    const QRgb text = ruler.palette().color(QPalette::WindowText).rgb();
    const int middle = int(300.5 * ratio);
    const int bottom = image.height() - 1;
    // 75 twips to each side at the grid's edge, a point at half the thickness.
    QCOMPARE(image.pixel(middle, bottom), text);
    QCOMPARE(image.pixel(middle - int(4.5 * ratio), bottom), text);
    QCOMPARE(image.pixel(middle + int(4.5 * ratio), bottom), text);
    QVERIFY(image.pixel(middle - int(6.5 * ratio), bottom) != text);
    QVERIFY(image.pixel(middle + int(6.5 * ratio), bottom) != text);
    const int top = int(137.5 / 15 * ratio);
    QCOMPARE(image.pixel(middle, top), text);
    QVERIFY(image.pixel(middle - int(3 * ratio), top) != text);
    QVERIFY(image.pixel(middle, top - 1) != text);
}

void test_GridRulers::numbersStandFromOneOn() {
    GridRuler ruler(Qt::Horizontal, nullptr);
    ruler.Arrange({200, true}, 900 * 15, 900);
    const QImage image = Painted(ruler);
    const double ratio = image.devicePixelRatio();
    const QRgb ground = ruler.palette().color(QPalette::Window).rgb();
    const auto inked = [&](int from, int to) {
        for (int x = int(from * ratio); x < int(to * ratio); ++x) {
            for (int y = 0; y < int(5 * ratio); ++y) {
                if (image.pixel(x, y) != ground) {
                    return true;
                }
            }
        }
        return false;
    };
    QVERIFY2(!inked(2, 20), "no number at the start");
    for (const int inch : {192, 384, 576}) {
        QVERIFY(inked(inch + 2, inch + 14));
        QVERIFY(!inked(inch + 20, inch + 90));
    }
}

void test_GridRulers::closeNumbersMakeRoom() {
    GridRuler ruler(Qt::Horizontal, nullptr);
    ruler.Arrange({10, true}, 600 * 15, 600); // 9.6 pixels to the inch
    const QImage image = Painted(ruler);
    const double ratio = image.devicePixelRatio();
    const QRgb ground = ruler.palette().color(QPalette::Window).rgb();
    int clear = 0;
    int run = 0;
    for (int x = 0; x < image.width(); ++x) {
        run = image.pixel(x, int(1 * ratio)) == ground ? run + 1 : 0;
        clear = std::max(clear, run);
    }
    QVERIFY2(clear >= 8 * ratio, "numbers leave air between them");
}

void test_GridRulers::numbersAreTextToThePixel() {
    GridRuler ruler(Qt::Horizontal, nullptr);
    ruler.Arrange({100, true}, 1800 * 15, 1800);
    (void)Painted(ruler); // a second paint finds the numbers laid out
    const QImage image = Painted(ruler);
    const double ratio = image.devicePixelRatio();
    QFont font = ruler.font();
    font.setPixelSize(std::max(1, int(std::nearbyint(10 * ratio))));
    const QFontMetrics metrics(font);
    const QRect digit = metrics.tightBoundingRect(QStringLiteral("0"));
    const int edge = std::max(1, int(ratio));
    for (const int number : {1, 2, 9, 10, 11, 14, 17}) {
        const QString text = QString::number(number);
        const int along = int(number * 96 * ratio + 1e-6) + std::max(2, int(2 * ratio)) + edge;
        const QRect box(along, edge, metrics.horizontalAdvance(text), digit.height());
        QImage expected(image.size(), QImage::Format_RGB32);
        expected.fill(ruler.palette().color(QPalette::Window));
        QPainter painter(&expected);
        painter.setFont(font);
        painter.setPen(ruler.palette().color(QPalette::WindowText));
        painter.drawText(box.topLeft() - QPoint(0, digit.top()), text);
        painter.end();
        QImage found = image.copy(box);
        found.setDevicePixelRatio(1);
        QCOMPARE(found, expected.copy(box));
    }
}

} // namespace zol

QTEST_MAIN(zol::test_GridRulers)
#include "test_GridRulers.moc"
