// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QAbstractButton>
#include <QSignalSpy>

#include <set>

#include "grid/painting/PaintColors.h"
#include "grid/windows/PaletteStripKit.h"
#include "windowkit/Theme.h"

using namespace zol;

namespace {

constexpr Colour Dark = 0x402010;
constexpr Colour Light = 0xD0E0F0;

} // namespace

class TestPaletteStrip : public PaletteStripTest {
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }
    void cleanup() { TearDown(); }

    void SwatchesTakeSizeAndRows_data();
    void SwatchesTakeSizeAndRows();
    void OddRowsAndSizesAreMended();
    void SwatchesFollowTheSortOrder();
    void SymbolTakesTheContrastColor();
    void CurrentFlossIsFramed();
    void BlendShowsBothColors();
    void TwiceTheScaleStaysCrisp();
    void TipShowsNumberNameAndStitches();
    void TipCountsWhenItShows();
    void FocusIsSeen();
    void CurrentFlossIsTold();
    void EmptyPaletteAndNoPattern();
    void CurrentFlossShowsItsColor();
    void CurrentFlossAsksForTheEditorOnce();
    void CurrentFlossTellsAllInItsTip();
};

void TestPaletteStrip::SwatchesTakeSizeAndRows_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("side");
    for (int rows = 1; rows <= PaletteStrip::MostRows; ++rows) {
        QTest::addRow("small, %d", rows) << 1 << rows << 24;
        QTest::addRow("medium, %d", rows) << 2 << rows << 32;
        QTest::addRow("large, %d", rows) << 3 << rows << 40;
    }
}

void TestPaletteStrip::SwatchesTakeSizeAndRows() {
    QFETCH(int, size);
    QFETCH(int, rows);
    QFETCH(int, side);
    Fill(13);
    m_strip->SetRows(rows);
    m_strip->SetSquareSize(size);
    m_strip->ShowSymbols(false);
    Show();
    const int columns = (13 + rows - 1) / rows;
    QCOMPARE(Swatches()->size(), QSize(columns * (side + 1) - 1, rows * (side + 1) - 1));
    QVERIFY(m_strip->height() >= rows * (side + 1));
    const QImage picture = Picture();
    const QRgb ground = m_strip->palette().color(QPalette::Window).rgb();
    for (int floss = 1; floss <= 13; ++floss) {
        const QPoint corner((floss - 1) / rows * (side + 1), (floss - 1) % rows * (side + 1));
        for (const QPoint inside :
             {QPoint(1, 1), QPoint(side / 2, side / 2), QPoint(side - 2, side - 2)}) {
            QCOMPARE(picture.pixel(corner + inside), ColorOf(floss));
        }
        if (corner.x() + side < picture.width()) {
            QCOMPARE(picture.pixel(corner + QPoint(side, side / 2)), ground);
        }
    }
}

void TestPaletteStrip::OddRowsAndSizesAreMended() {
    Fill(10);
    m_strip->SetRows(0);
    m_strip->SetSquareSize(-4);
    Show();
    QCOMPARE(Swatches()->height(), 24);
    m_strip->SetRows(99);
    m_strip->SetSquareSize(99);
    QCOMPARE(Swatches()->height(), PaletteStrip::MostRows * 41 - 1);
}

void TestPaletteStrip::SwatchesFollowTheSortOrder() {
    Fill(10);
    m_strip->ShowSymbols(false);
    Show();
    QCOMPARE(Picture().pixel(PlaceOf(1)), ColorOf(1));
    m_pattern->GetPalette().Sort(SortManufacturerID);
    m_strip->Refresh();
    // The numbers fall, so the last one stands first.
    QCOMPARE(Picture().pixel(PlaceOf(1)), ColorOf(10));
    QCOMPARE(Picture().pixel(PlaceOf(10)), ColorOf(1));
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    ClickInWindow(Qt::LeftButton, PlaceOf(1));
    QCOMPARE(picked.first().first().toInt(), 10);
}

void TestPaletteStrip::SymbolTakesTheContrastColor() {
    zol::Palette& palette = m_pattern->GetPalette();
    palette.ClearPalette();
    palette.AddPaletteEntry(Dark, "1", "dark", "DMC", "B", 2, 2, 0, 1, 0, "DMC");
    palette.AddPaletteEntry(Light, "2", "light", "DMC", "B", 2, 2, 0, 2, 0, "DMC");
    m_strip->SetSquareSize(3);
    Show();
    const auto inkOf = [](const QImage& picture, int left, QRgb ink) {
        int count = 0;
        for (int y = 4; y < 36; ++y) {
            for (int x = left + 4; x < left + 36; ++x) {
                count += picture.pixel(x, y) == ink ? 1 : 0;
            }
        }
        return count;
    };
    const QImage with = Picture();
    QVERIFY(inkOf(with, 0, qRgb(255, 255, 255)) > 20);
    QCOMPARE(inkOf(with, 0, qRgb(0, 0, 0)), 0);
    QVERIFY(inkOf(with, 41, qRgb(0, 0, 0)) > 20);
    QCOMPARE(inkOf(with, 41, qRgb(255, 255, 255)), 0);
    m_strip->ShowSymbols(false);
    const QImage without = Picture();
    QCOMPARE(inkOf(without, 0, ToRgb(Dark)), 32 * 32);
    QCOMPARE(inkOf(without, 41, ToRgb(Light)), 32 * 32);
}

void TestPaletteStrip::CurrentFlossIsFramed() {
    Fill(5);
    m_strip->ShowSymbols(false);
    Show();
    const QRgb accent = Theme::Accent(m_strip->palette()).rgb();
    m_strip->SetCurrent(2);
    const QImage picture = Picture();
    const QRect swatch(25, 0, 24, 24);
    for (const int inset : {0, 1}) {
        const QRect ring = swatch.adjusted(inset, inset, -inset, -inset);
        QCOMPARE(picture.pixel(ring.topLeft()), accent);
        QCOMPARE(picture.pixel(ring.bottomRight()), accent);
        QCOMPARE(picture.pixel(ring.left(), 12), accent);
        QCOMPARE(picture.pixel(ring.right(), 12), accent);
    }
    const QRgb inner = ToRgb(GetContrastColor(m_pattern->GetPalette().GetFlossRGB(2)));
    QCOMPARE(picture.pixel(swatch.left() + 2, 12), inner);
    QCOMPARE(picture.pixel(swatch.right() - 2, 12), inner);
    QCOMPARE(picture.pixel(swatch.left() + 3, 12), ColorOf(2));
    m_strip->SetCurrent(3);
    const QImage after = Picture();
    QCOMPARE(after.pixel(swatch.left() + 1, 12), ColorOf(2));
    QCOMPARE(after.pixel(51, 12), accent);
}

void TestPaletteStrip::BlendShowsBothColors() {
    Fill(3);
    m_pattern->GetPalette().BlendFloss(2, MakeColour(10, 200, 30), "743", "DMC", "yellow", 0);
    m_strip->ShowSymbols(false);
    Show();
    const QImage picture = Picture();
    QCOMPARE(picture.pixel(25 + 5, 5), ColorOf(2));
    QCOMPARE(picture.pixel(25 + 18, 18), qRgb(10, 200, 30));
    QVERIFY(TipAt(PlaceOf(2)).startsWith(QStringLiteral("DMC-998 & DMC-743")));
}

void TestPaletteStrip::TwiceTheScaleStaysCrisp() {
    Fill(3);
    m_strip->ShowSymbols(false);
    Show();
    m_strip->SetCurrent(1);
    QImage picture(Swatches()->size() * 2, QImage::Format_RGB32);
    picture.setDevicePixelRatio(2);
    Swatches()->render(&picture);
    const QRgb accent = Theme::Accent(m_strip->palette()).rgb();
    std::set<QRgb> colors;
    for (int x = 0; x < 48; ++x) {
        colors.insert(picture.pixel(x, 24));
    }
    // Nothing lies between the frame, its inner line and the floss.
    QCOMPARE(colors.size(), std::size_t{3});
    QCOMPARE(picture.pixel(3, 24), accent);
    QVERIFY(picture.pixel(4, 24) != accent);
    QCOMPARE(picture.pixel(6, 24), ColorOf(1));
}

void TestPaletteStrip::TipShowsNumberNameAndStitches() {
    Fill(10);
    Show();
    for (int x = 1; x <= 12; ++x) {
        m_pattern->SetStitch(x, 1, StitchWhole, 2, 5);
    }
    m_pattern->SetStitch(1, 2, StitchWhole, 3, 5);
    BackStitchLine line{1, 1, 1, 5, 5, 1, 3, 0};
    m_pattern->AddBackStitchLine(line);
    QCOMPARE(TipAt(PlaceOf(1)), QStringLiteral("999 - floss of 999\nNot used yet"));
    QCOMPARE(TipAt(PlaceOf(2)), QStringLiteral("998 - floss of 998\n12 stitches"));
    QCOMPARE(TipAt(PlaceOf(3)), QStringLiteral("997 - floss of 997\n1 stitch, 1 backstitch"));
}

void TestPaletteStrip::TipCountsWhenItShows() {
    Fill(3);
    Show();
    m_pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    QVERIFY(TipAt(PlaceOf(1)).endsWith(QStringLiteral("1 stitch")));
    m_pattern->SetStitch(2, 1, StitchWhole, 1, 5);
    QVERIFY(TipAt(PlaceOf(1)).endsWith(QStringLiteral("2 stitches")));
}

void TestPaletteStrip::FocusIsSeen() {
    Fill(10);
    m_strip->ShowSymbols(false);
    Show();
    m_strip->SetCurrent(1);
    Find<QWidget>("picCurrentFlossColor")->setFocus();
    const QImage without = Picture();
    m_strip->setFocus();
    QTest::keyClick(Swatches(), Qt::Key_Right);
    const QImage with = Picture();
    const QRect second(25, 0, 24, 24);
    QVERIFY(with.copy(second) != without.copy(second));
    QCOMPARE(with.copy(50, 0, 24, 24), without.copy(50, 0, 24, 24));
    QTest::keyClick(Swatches(), Qt::Key_Right);
    QCOMPARE(Picture().copy(second), without.copy(second));
}

void TestPaletteStrip::CurrentFlossIsTold() {
    Fill(10);
    Show();
    m_strip->SetCurrent(3);
    QCOMPARE(Swatches()->accessibleName(), QStringLiteral("997 - floss of 997"));
    QCOMPARE(Swatches()->accessibleDescription(), QStringLiteral("Floss 3 of 10, current floss"));
    m_strip->setFocus();
    QTest::keyClick(Swatches(), Qt::Key_Right);
    QCOMPARE(Swatches()->accessibleName(), QStringLiteral("996 - floss of 996"));
    QCOMPARE(Swatches()->accessibleDescription(), QStringLiteral("Floss 4 of 10"));
    QCOMPARE(Find<QWidget>("picCurrentFlossColor")->accessibleName(),
             QStringLiteral("Current floss 997 - floss of 997"));
}

void TestPaletteStrip::EmptyPaletteAndNoPattern() {
    m_pattern->GetPalette().ClearPalette();
    Show();
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    for (Pattern* pattern : {m_pattern.get(), static_cast<Pattern*>(nullptr)}) {
        m_strip->SetPattern(pattern);
        m_strip->SetCurrent(0);
        m_strip->SetCurrent(7);
        m_strip->setFocus();
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down,
                                  Qt::Key_Home, Qt::Key_End, Qt::Key_Return, Qt::Key_5}) {
            QTest::keyClick(Swatches(), key);
        }
        QTest::mouseClick(Find<QWidget>("picPaletteHolder"), Qt::LeftButton);
        QCOMPARE(TipAt(QPoint(5, 5)), QString());
        QVERIFY(!m_strip->grab().isNull());
        QCOMPARE(Find<QWidget>("picCurrentFlossColor")->accessibleName(),
                 QStringLiteral("No current floss"));
    }
    QCOMPARE(picked.count(), 0);
}

void TestPaletteStrip::CurrentFlossShowsItsColor() {
    Fill(10);
    m_strip->ShowSymbols(false);
    Show();
    auto* current = Find<QWidget>("picCurrentFlossColor");
    m_strip->SetCurrent(6);
    const QPoint inside(10, current->height() / 2);
    QCOMPARE(current->grab().toImage().pixel(inside), ColorOf(6));
    m_strip->SetCurrent(7);
    QCOMPARE(current->grab().toImage().pixel(inside), ColorOf(7));
    m_pattern->GetPalette().SetFlossRGB(7, MakeColour(1, 2, 3));
    m_strip->Refresh();
    QCOMPARE(current->grab().toImage().pixel(inside), qRgb(1, 2, 3));
}

void TestPaletteStrip::CurrentFlossAsksForTheEditorOnce() {
    Fill(10);
    Show();
    m_strip->SetCurrent(6);
    auto* current = Find<QAbstractButton>("picCurrentFlossColor");
    const QSignalSpy asked(m_strip.get(), &PaletteStrip::PaletteEditorRequested);
    QTest::mouseDClick(m_strip->windowHandle(), Qt::LeftButton, {}, current->geometry().center());
    QCOMPARE(asked.count(), 1);
    QTest::mouseClick(current, Qt::LeftButton);
    QCOMPARE(asked.count(), 2);
    QTest::keyClick(current, Qt::Key_Return);
    QCOMPARE(asked.count(), 3);
}

void TestPaletteStrip::CurrentFlossTellsAllInItsTip() {
    Fill(3);
    m_pattern->GetPalette().SetFlossDesc(2, "a name that is thirty letters");
    Show();
    m_strip->SetCurrent(2);
    auto* current = Find<QWidget>("picCurrentFlossColor");
    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), current->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(current, &help);
    QCOMPARE(QToolTip::text(), QStringLiteral("998 - a name that is thirty letters\nNot used yet"));
}

QTEST_MAIN(TestPaletteStrip)
#include "test_PaletteStrip.moc"
