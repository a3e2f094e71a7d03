// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QImage>
#include <QPixmap>
#include <QTest>

#include "grid/windows/GridCursors.h"

namespace zol {

namespace {

int Lightness(const QImage& image, const QPoint& place) {
    return image.pixelColor(place).lightness();
}

void AddRowPerDrawing() {
    QTest::addColumn<int>("kind");
    QTest::newRow("paint") << static_cast<int>(GridCursor::Paint);
    QTest::newRow("colour picker") << static_cast<int>(GridCursor::ColorPicker);
    QTest::newRow("erase") << static_cast<int>(GridCursor::Erase);
}

} // namespace

class GridCursorsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheSystemsPointersServeWhereItHasThem() {
        QCOMPARE(GridCursors::Cursor(GridCursor::Default, 1).shape(), Qt::ArrowCursor);
        QCOMPARE(GridCursors::Cursor(GridCursor::Cross, 1).shape(), Qt::CrossCursor);
        QCOMPARE(GridCursors::Cursor(GridCursor::Move, 2).shape(), Qt::SizeAllCursor);
    }

    void DrawnPointersAreMadeForTheScreensPixels_data() { AddRowPerDrawing(); }
    void DrawnPointersAreMadeForTheScreensPixels() {
        QFETCH(int, kind);
        for (const double ratio : {1.0, 1.5, 2.0}) {
            const QCursor cursor = GridCursors::Cursor(static_cast<GridCursor>(kind), ratio);
            QCOMPARE(cursor.shape(), Qt::BitmapCursor);
            QCOMPARE(cursor.pixmap().devicePixelRatio(), ratio);
            QCOMPARE(cursor.pixmap().width(), qRound(24 * ratio));
        }
        const auto kindOf = static_cast<GridCursor>(kind);
        const QImage fine = GridCursors::Cursor(kindOf, 2).pixmap().toImage();
        QImage enlarged = GridCursors::Cursor(kindOf, 1).pixmap().toImage().scaled(fine.size());
        enlarged.setDevicePixelRatio(2);
        QVERIFY(fine != enlarged);
    }

    void TheHotSpotLiesOnTheDrawing_data() { AddRowPerDrawing(); }
    void TheHotSpotLiesOnTheDrawing() {
        QFETCH(int, kind);
        const QCursor cursor = GridCursors::Cursor(static_cast<GridCursor>(kind), 1);
        const QImage image = cursor.pixmap().toImage();
        QVERIFY(image.rect().contains(cursor.hotSpot()));
        QVERIFY(qAlpha(image.pixel(cursor.hotSpot())) > 200);
        QVERIFY(Lightness(image, cursor.hotSpot()) < 200);
    }

    /// Walking in from each side, the first solid pixel is the rim's and a dark one follows.
    void ALightRimSurroundsTheDarkDrawing_data() { AddRowPerDrawing(); }
    void ALightRimSurroundsTheDarkDrawing() {
        QFETCH(int, kind);
        const QImage image =
            GridCursors::Cursor(static_cast<GridCursor>(kind), 2).pixmap().toImage();
        int rows = 0;
        for (int y = 0; y < image.height(); ++y) {
            int x = 0;
            while (x < image.width() && qAlpha(image.pixel(x, y)) < 250) {
                ++x;
            }
            if (x == image.width()) {
                continue;
            }
            ++rows;
            QVERIFY2(Lightness(image, {x, y}) > 180, qPrintable(QString::number(y)));
        }
        QVERIFY(rows > 30);
    }
};

} // namespace zol

QTEST_MAIN(zol::GridCursorsTest)
#include "test_GridCursors.moc"
