// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QAbstractButton>
#include <QHelpEvent>
#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>
#include <QWheelEvent>

#include <memory>
#include <set>

#include "grid/painting/PaintColors.h"
#include "grid/windows/PaletteStrip.h"
#include "windowkit/Theme.h"

using namespace zol;

class TestPaletteStrip : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void SwatchesTakeSizeAndRows_data();
    void SwatchesTakeSizeAndRows();
    void OddRowsAndSizesAreMended();
    void SwatchesFollowTheSortOrder();
    void SymbolTakesTheContrastColor();
    void CurrentFlossIsFramed();
    void BlendShowsBothColors();
    void TwiceTheScaleStaysCrisp();

    void LeftClickPicks();
    void DoubleClickAsksForTheEditor();
    void TipShowsNumberNameAndStitches();
    void TipCountsWhenItShows();

    void ArrowsScrollWhileHeld();
    void ArrowsEndAtTheEnds();
    void DragScrollsAndPicksNothing();
    void WheelScrolls();
    void FittingPaletteNeedsNoArrows();
    void CurrentFlossStaysVisible();

    void KeysMoveAndPick();
    void KeysMoveByColumns();
    void TypingFindsAFloss();
    void PauseBeginsANewNumber();
    void FocusIsSeen();
    void CurrentFlossIsTold();

    void EmptyPaletteAndNoPattern();
    void CurrentFlossShowsItsColor();
    void CurrentFlossAsksForTheEditorOnce();
    void CurrentFlossTellsAllInItsTip();

private:
    void Fill(int count);
    void Show(int width = 900);
    template<class Widget>
    Widget* Find(const char* name) const {
        auto* widget = m_strip->findChild<Widget*>(QLatin1String(name));
        Q_ASSERT(widget != nullptr);
        return widget;
    }
    [[nodiscard]] QWidget* Swatches() const { return Find<QWidget>("picPalette"); }
    [[nodiscard]] QImage Picture() const { return Swatches()->grab().toImage(); }
    [[nodiscard]] int Offset() const { return -Swatches()->x(); }
    /// Middle of a swatch of the first row, at the smallest size.
    static QPoint PlaceOf(int position) { return {(position - 1) * 25 + 12, 12}; }
    [[nodiscard]] QString TipAt(QPoint place) const;
    void ClickInWindow(Qt::MouseButton button, QPoint place) const {
        QTest::mouseClick(m_strip->windowHandle(), button, {},
                          Swatches()->mapTo(m_strip.get(), place));
    }
    [[nodiscard]] bool IsInView(int position) const {
        const QRect swatch((position - 1) * 25 - Offset(), 0, 24, 24);
        return Find<QWidget>("picPaletteHolder")->rect().contains(swatch);
    }

    std::unique_ptr<ProgramContext> m_context;
    std::unique_ptr<Pattern> m_pattern;
    std::unique_ptr<PaletteStrip> m_strip;
};

namespace {

constexpr Colour Dark = 0x402010;
constexpr Colour Light = 0xD0E0F0;

QRgb ColorOf(int floss) {
    return qRgb(floss * 7 % 256, floss * 31 % 256, floss * 53 % 256);
}

} // namespace

void TestPaletteStrip::init() {
    m_context = std::make_unique<ProgramContext>();
    m_pattern = std::make_unique<Pattern>(*m_context);
    m_pattern->Initialize(50, 50, 14, 14);
    m_strip = std::make_unique<PaletteStrip>();
}

void TestPaletteStrip::cleanup() {
    QToolTip::hideText();
    m_strip.reset();
}

/// Flosses numbered downwards from 999, with colours of their own and symbols.
void TestPaletteStrip::Fill(int count) {
    zol::Palette& palette = m_pattern->GetPalette();
    palette.ClearPalette();
    for (int floss = 1; floss <= count; ++floss) {
        const QRgb rgb = ColorOf(floss);
        const std::string number = std::to_string(1000 - floss);
        palette.AddPaletteEntry(MakeColour(static_cast<unsigned>(qRed(rgb)),
                                           static_cast<unsigned>(qGreen(rgb)),
                                           static_cast<unsigned>(qBlue(rgb))),
                                number, "floss of " + number, "DMC",
                                palette.GetNextAvailableSymbol(), 2, 2, 0, floss, 0, "DMC");
    }
    palette.Sort(SortOrderAdded);
}

void TestPaletteStrip::Show(int width) {
    m_strip->SetPattern(m_pattern.get());
    m_strip->resize(width, m_strip->sizeHint().height());
    m_strip->show();
    QVERIFY(QTest::qWaitForWindowActive(m_strip.get()));
}

QString TestPaletteStrip::TipAt(QPoint place) const {
    QToolTip::hideText();
    QHelpEvent help(QEvent::ToolTip, place, Swatches()->mapToGlobal(place));
    QCoreApplication::sendEvent(Swatches(), &help);
    return QToolTip::text();
}

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

void TestPaletteStrip::LeftClickPicks() {
    Fill(10);
    Show();
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    ClickInWindow(Qt::LeftButton, PlaceOf(4));
    QCOMPARE(picked.count(), 1);
    QCOMPARE(picked.first().first().toInt(), 4);
    ClickInWindow(Qt::RightButton, PlaceOf(5));
    QCOMPARE(picked.count(), 1);
    // It shows what it is told; whoever heard the pick decides.
    QCOMPARE(m_strip->Current(), 0);
}

void TestPaletteStrip::DoubleClickAsksForTheEditor() {
    Fill(10);
    Show();
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    const QSignalSpy asked(m_strip.get(), &PaletteStrip::PaletteEditorRequested);
    connect(m_strip.get(), &PaletteStrip::FlossPicked, m_strip.get(), &PaletteStrip::SetCurrent);
    QTest::mouseDClick(m_strip->windowHandle(), Qt::LeftButton, {},
                       Swatches()->mapTo(m_strip.get(), PlaceOf(3)));
    QCOMPARE(asked.count(), 1);
    QCOMPARE(picked.count(), 1);
    QCOMPARE(picked.first().first().toInt(), 3);
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

void TestPaletteStrip::ArrowsScrollWhileHeld() {
    Fill(200);
    Show();
    auto* right = Find<QToolButton>("cmdPaletteRight");
    auto* left = Find<QToolButton>("cmdPaletteLeft");
    const auto* timer = m_strip->findChild<QTimer*>(QStringLiteral("timPaletteScroll"));
    QVERIFY(timer != nullptr);
    QVERIFY(!left->isEnabled());
    QTest::mousePress(right, Qt::LeftButton);
    QCOMPARE(Offset(), 25);
    QVERIFY(timer->isActive());
    QTRY_VERIFY(Offset() >= 100);
    QTest::mouseRelease(right, Qt::LeftButton);
    QVERIFY(!timer->isActive());
    const int reached = Offset();
    QVERIFY(left->isEnabled());
    QTest::mouseClick(left, Qt::LeftButton);
    QCOMPARE(Offset(), reached - 25);
}

void TestPaletteStrip::ArrowsEndAtTheEnds() {
    Fill(60);
    Show(800);
    const auto* timer = m_strip->findChild<QTimer*>(QStringLiteral("timPaletteScroll"));
    auto* right = Find<QToolButton>("cmdPaletteRight");
    QTest::mousePress(right, Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(!timer->isActive(), 20000);
    QCOMPARE(Offset(), Swatches()->width() - Find<QWidget>("picPaletteHolder")->width());
    QVERIFY(IsInView(60));
    QVERIFY(!right->isEnabled());
    QTest::mouseRelease(right, Qt::LeftButton);
}

void TestPaletteStrip::DragScrollsAndPicksNothing() {
    Fill(200);
    Show();
    QWindow* window = m_strip->windowHandle();
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    const QPoint from = Find<QWidget>("picPaletteHolder")->mapTo(m_strip.get(), QPoint(400, 12));
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    QTest::mouseMove(window, from - QPoint(60, 0));
    QTest::mouseMove(window, from - QPoint(150, 0));
    QCOMPARE(Offset(), 150);
    QTest::mouseMove(window, from - QPoint(100, 0));
    QCOMPARE(Offset(), 100);
    QTest::mouseRelease(window, Qt::LeftButton, {}, from - QPoint(100, 0));
    QCOMPARE(picked.count(), 0);
    QTest::mouseMove(window, from);
    QCOMPARE(Offset(), 100);
    // A hand that trembles still picks.
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    QTest::mouseMove(window, from + QPoint(1, 1));
    QTest::mouseRelease(window, Qt::LeftButton, {}, from + QPoint(1, 1));
    QCOMPARE(picked.count(), 1);
    QCOMPARE(Offset(), 100);
}

void TestPaletteStrip::WheelScrolls() {
    Fill(200);
    Show();
    const auto turn = [&](int x, int y) {
        const QPointF place(12, 12);
        QWheelEvent wheel(place, Swatches()->mapToGlobal(place), {}, QPoint(x, y), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(Swatches(), &wheel);
    };
    turn(0, -120);
    QCOMPARE(Offset(), 75);
    turn(-120, 0);
    QCOMPARE(Offset(), 150);
    turn(0, 120);
    QCOMPARE(Offset(), 75);
    turn(0, 2400);
    QCOMPARE(Offset(), 0);
    // A fine wheel loses nothing: 120 steps of one are a notch.
    for (int step = 0; step < 120; ++step) {
        turn(0, -1);
    }
    QVERIFY(std::abs(Offset() - 75) <= 1);
}

void TestPaletteStrip::FittingPaletteNeedsNoArrows() {
    Fill(5);
    Show();
    QVERIFY(!Find<QToolButton>("cmdPaletteLeft")->isVisible());
    QVERIFY(!Find<QToolButton>("cmdPaletteRight")->isVisible());
    Fill(200);
    m_strip->Refresh();
    QVERIFY(Find<QToolButton>("cmdPaletteLeft")->isVisible());
    QVERIFY(Find<QToolButton>("cmdPaletteRight")->isVisible());
}

void TestPaletteStrip::CurrentFlossStaysVisible() {
    Fill(200);
    Show();
    m_strip->SetCurrent(200);
    QVERIFY(IsInView(200));
    m_strip->SetCurrent(1);
    QVERIFY(IsInView(1));
    m_strip->SetCurrent(20);
    QVERIFY(IsInView(20));
    m_strip->resize(500, m_strip->height());
    QVERIFY(IsInView(20));
    m_pattern->GetPalette().Sort(SortManufacturerID);
    m_strip->Refresh();
    QVERIFY(IsInView(m_pattern->GetPalette().GetSortedPosition(20)));
}

void TestPaletteStrip::KeysMoveAndPick() {
    Fill(200);
    Show();
    m_strip->SetCurrent(3);
    m_strip->setFocus();
    QVERIFY(Swatches()->hasFocus());
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    const auto lastPick = [&] { return picked.last().first().toInt(); };
    QWindow* window = m_strip->windowHandle();
    QTest::keyClick(window, Qt::Key_Right);
    QCOMPARE(picked.count(), 0);
    QTest::keyClick(window, Qt::Key_Return);
    QCOMPARE(lastPick(), 4);
    QTest::keyClick(window, Qt::Key_Left);
    QTest::keyClick(window, Qt::Key_Left);
    QTest::keyClick(window, Qt::Key_Space);
    QCOMPARE(lastPick(), 2);
    QTest::keyClick(window, Qt::Key_End);
    QVERIFY(IsInView(200));
    QTest::keyClick(window, Qt::Key_Enter);
    QCOMPARE(lastPick(), 200);
    QTest::keyClick(window, Qt::Key_Right);
    QTest::keyClick(window, Qt::Key_Enter);
    QCOMPARE(lastPick(), 200);
    QTest::keyClick(window, Qt::Key_Home);
    QVERIFY(IsInView(1));
    QTest::keyClick(window, Qt::Key_Enter);
    QCOMPARE(lastPick(), 1);
    QTest::keyClick(window, Qt::Key_PageDown);
    QVERIFY(!IsInView(1));
    QTest::keyClick(window, Qt::Key_PageUp);
    QVERIFY(IsInView(1));
}

void TestPaletteStrip::KeysMoveByColumns() {
    Fill(8);
    m_strip->SetRows(3);
    Show();
    m_strip->SetCurrent(1);
    m_strip->setFocus();
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    const auto pickAfter = [&](Qt::Key key) {
        QTest::keyClick(Swatches(), key);
        QTest::keyClick(Swatches(), Qt::Key_Return);
        return picked.last().first().toInt();
    };
    QCOMPARE(pickAfter(Qt::Key_Down), 2);
    QCOMPARE(pickAfter(Qt::Key_Down), 3);
    QCOMPARE(pickAfter(Qt::Key_Right), 6);
    // The last column has two swatches.
    QCOMPARE(pickAfter(Qt::Key_Right), 8);
    QCOMPARE(pickAfter(Qt::Key_Right), 8);
    QCOMPARE(pickAfter(Qt::Key_Up), 7);
    QCOMPARE(pickAfter(Qt::Key_Left), 4);
    QCOMPARE(pickAfter(Qt::Key_Left), 1);
    QCOMPARE(pickAfter(Qt::Key_Left), 1);
}

void TestPaletteStrip::TypingFindsAFloss() {
    Fill(200);
    m_pattern->GetPalette().SetFlossManuIDs(150, "White");
    Show();
    m_strip->setFocus();
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    QTest::keyClicks(Swatches(), QStringLiteral("840"));
    QVERIFY(IsInView(160));
    QTest::keyClick(Swatches(), Qt::Key_Return);
    QCOMPARE(picked.last().first().toInt(), 160);
    auto* pause = m_strip->findChild<QTimer*>(QStringLiteral("typingPause"));
    pause->setInterval(0);
    QTest::keyClicks(Swatches(), QStringLiteral("w"));
    QTRY_VERIFY(!pause->isActive());
    pause->setInterval(60000);
    QTest::keyClicks(Swatches(), QStringLiteral("wHi"));
    QTest::keyClick(Swatches(), Qt::Key_Return);
    QCOMPARE(picked.last().first().toInt(), 150);
    // A number that is not there leaves the place.
    QTest::keyClicks(Swatches(), QStringLiteral("5"));
    QTest::keyClick(Swatches(), Qt::Key_Return);
    QCOMPARE(picked.last().first().toInt(), 150);
}

void TestPaletteStrip::PauseBeginsANewNumber() {
    Fill(200);
    Show();
    m_strip->setFocus();
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    auto* pause = m_strip->findChild<QTimer*>(QStringLiteral("typingPause"));
    QVERIFY(pause->interval() >= 500);
    QTest::keyClicks(Swatches(), QStringLiteral("85"));
    pause->start(0);
    QTRY_VERIFY(!pause->isActive());
    QTest::keyClicks(Swatches(), QStringLiteral("901"));
    QTest::keyClick(Swatches(), Qt::Key_Return);
    QCOMPARE(picked.last().first().toInt(), 99);
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
