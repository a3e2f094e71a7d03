// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QAbstractEventDispatcher>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "PictureViewKit.h"
#include "windowkit/Theme.h"

namespace zol {

using test::MouseAt;
using test::OnScreen;
using test::PlacePicture;
using test::PlainPicture;
using test::Shot;
using test::ShownAt;

class test_PictureView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyPixelShowsWhereItsPlaceLies_data();
    void everyPixelShowsWhereItsPlaceLies();
    void aPictureToFitTouchesTwoSides();
    void aReducedPictureShowsMeans();
    void saysSomethingWhileThereIsNoPicture();
    void aPictureThatIsTabbedToIsFramed();
    void emptySquaresShowTheClothOrAChecker();
    void theCheckerStandsApartFromDarkPictures();
    void onlyTransparentPixelsAreEmptyBeforeWhiteIsRemapped();
    void aChangeShowsAtEveryZoom_data();
    void aChangeShowsAtEveryZoom();
    void theMouseTellsPlacesAlsoOutside();
    void ctrlAndTheWheelZoomAtThePointer();
    void theMiddleButtonAndTheBlankDragThePicture();
    void aDragPastTheEdgeScrollsUpToThePicturesEdge();
    void onlyADragPastTheEdgeScrolls();
    void keysScroll();
    void realSizeIsTheBaseScale();
    void anOverlayPaintsWhatChangedOnly();
    void twoViewsScrollAlike();
    void withoutAPictureTheDeskShows();
    void extremePicturesShow_data();
    void extremePicturesShow();

private:
    [[nodiscard]] bool IsScrolling() const {
        return !QAbstractEventDispatcher::instance()->registeredTimers(m_view.get()).isEmpty();
    }
    std::unique_ptr<PictureView> m_view;
};

void test_PictureView::init() {
    m_view = std::make_unique<PictureView>();
    m_view->resize(420, 320);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void test_PictureView::cleanup() {
    m_view.reset();
}

void test_PictureView::everyPixelShowsWhereItsPlaceLies_data() {
    QTest::addColumn<double>("percent");
    for (const double percent : {100.0, 200.0, 300.0, 450.0, 1000.0}) {
        QTest::addRow("%g percent", percent) << percent;
    }
}

void test_PictureView::everyPixelShowsWhereItsPlaceLies() {
    QFETCH(double, percent);
    const auto picture = PlacePicture(30, 20);
    m_view->ShowPicture(picture);
    m_view->SetZoom(percent);
    const QImage shot = Shot(*m_view);
    const double scale = percent / 100 * m_view->devicePixelRatioF();
    QCOMPARE(m_view->Place().Content.size(),
             QSize(int(std::lround(30 * scale)), int(std::lround(20 * scale))));
    if (scale < 2 && scale != 1) {
        QSKIP("blended at this ratio of pixels");
    }
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 30; ++x) {
            const QPointF place = m_view->OnViewport({x + 0.5, y + 0.5});
            if (m_view->viewport()->rect().contains(place.toPoint())) {
                QCOMPARE(ShownAt(*m_view, shot, {x, y}), OnScreen(picture->ImagePixel(x, y)));
            }
        }
    }
}

void test_PictureView::aPictureToFitTouchesTwoSides() {
    m_view->ShowPicture(PlainPicture(4000, 100, 0x00102030));
    QVERIFY(m_view->IsToFit());
    const double ratio = m_view->devicePixelRatioF();
    QVERIFY(std::abs(m_view->Place().Content.width() / ratio - m_view->viewport()->width()) <= 1);
    QVERIFY(m_view->Zoom() < 11);
    m_view->ShowPicture(PlainPicture(10, 40, 0x00102030));
    QVERIFY(std::abs(m_view->Place().Content.height() / ratio - m_view->viewport()->height()) <= 1);
    QVERIFY(m_view->Zoom() > 700);
    m_view->resize(420, 500);
    QVERIFY(std::abs(m_view->Place().Content.height() / ratio - m_view->viewport()->height()) <= 1);
}

void test_PictureView::aReducedPictureShowsMeans() {
    auto picture = std::make_shared<Picture>(2000, 1600);
    for (int y = 0; y < 1600; ++y) {
        for (int x = 0; x < 2000; ++x) {
            picture->SetImagePixel(x, y, (x + y) % 2 == 0 ? 0x00000000 : 0x00FE0064);
        }
    }
    m_view->ShowPicture(picture);
    m_view->SetZoom(10);
    const QRgb shown = ShownAt(*m_view, Shot(*m_view), {1000, 800});
    QVERIFY(std::abs(qRed(shown) - 50) <= 2);
    QCOMPARE(qGreen(shown), 0);
    QVERIFY(std::abs(qBlue(shown) - 127) <= 2);
}

void test_PictureView::saysSomethingWhileThereIsNoPicture() {
    const QImage bare = Shot(*m_view);
    m_view->SetEmptyText(QStringLiteral("No picture yet"));
    const QImage said = Shot(*m_view);
    QVERIFY(said != bare);
    m_view->ShowPicture(PlainPicture(400, 300, 0x00203040));
    const QImage shown = Shot(*m_view);
    m_view->SetEmptyText(QString());
    QCOMPARE(Shot(*m_view), shown);
    m_view->ShowPicture(nullptr);
    QCOMPARE(Shot(*m_view), bare);
}

void test_PictureView::aPictureThatIsTabbedToIsFramed() {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* first = new PictureView;
    auto* second = new PictureView;
    layout->addWidget(first);
    layout->addWidget(second);
    for (PictureView* view : {first, second}) {
        view->ShowPicture(PlainPicture(400, 300, 0x00203040));
    }
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QRgb accent = Theme::Accent(first->palette()).rgb();
    const auto framed = [accent](PictureView& view) {
        const QImage shot = Shot(view);
        return shot.pixel(0, 0) == accent &&
               shot.pixel(shot.width() - 1, shot.height() - 1) == accent;
    };
    first->setFocus();
    QVERIFY(!framed(*first) && !framed(*second));
    QTest::keyClick(&window, Qt::Key_Tab);
    QTRY_VERIFY(second->hasFocus());
    QVERIFY(!framed(*first) && framed(*second));
    QTest::keyClick(&window, Qt::Key_Backtab);
    QVERIFY(framed(*first) && !framed(*second));
}

void test_PictureView::emptySquaresShowTheClothOrAChecker() {
    auto picture = PlainPicture(40, 40, 0x00203040);
    for (int x = 0; x < 40; ++x) {
        picture->SetImagePixel(x, 10, EraseColor);
    }
    m_view->ShowPicture(picture);
    m_view->SetZoom(800);
    const QImage checker = Shot(*m_view);
    QVERIFY(ShownAt(*m_view, checker, {18, 10}) != ShownAt(*m_view, checker, {19, 10}));
    QCOMPARE(ShownAt(*m_view, checker, {18, 9}), OnScreen(0x00203040));
    m_view->SetCloth(QColor(10, 200, 30));
    const QImage cloth = Shot(*m_view);
    QCOMPARE(ShownAt(*m_view, cloth, {18, 10}), qRgb(10, 200, 30));
    QCOMPARE(ShownAt(*m_view, cloth, {19, 10}), qRgb(10, 200, 30));
}

void test_PictureView::theCheckerStandsApartFromDarkPictures() {
    m_view->setPalette(Theme::Palette(Theme::Look::Dark));
    m_view->ShowPicture(PlainPicture(40, 40, EraseColor));
    m_view->SetZoom(800);
    const QImage checker = Shot(*m_view);
    for (const QPoint place : {QPoint(18, 10), QPoint(19, 10)}) {
        const QColor shown(ShownAt(*m_view, checker, place));
        QVERIFY(Theme::Contrast(shown, Qt::black) > 4.5);
        QVERIFY(Theme::Contrast(shown, Qt::white) > 1.5);
    }
}

void test_PictureView::onlyTransparentPixelsAreEmptyBeforeWhiteIsRemapped() {
    auto picture = PlainPicture(20, 20, EraseColor);
    picture->SetImagePixel(3, 3, TransparentPixel);
    m_view->SetCloth(QColor(10, 200, 30));
    m_view->SetEmpty(PictureLevels::Empty::Transparent);
    m_view->ShowPicture(picture);
    m_view->SetZoom(400);
    QImage shot = Shot(*m_view);
    QCOMPARE(ShownAt(*m_view, shot, {5, 5}), qRgb(255, 255, 255));
    QCOMPARE(ShownAt(*m_view, shot, {3, 3}), qRgb(10, 200, 30));
    m_view->SetEmpty(PictureLevels::Empty::White);
    shot = Shot(*m_view);
    QCOMPARE(ShownAt(*m_view, shot, {5, 5}), qRgb(10, 200, 30));
    QCOMPARE(ShownAt(*m_view, shot, {3, 3}), qRgb(10, 200, 30));
}

void test_PictureView::aChangeShowsAtEveryZoom_data() {
    QTest::addColumn<double>("percent");
    for (const double percent : {3.0, 10.0, 24.0, 37.0, 60.0, 100.0, 140.0, 300.0}) {
        QTest::addRow("%g percent", percent) << percent;
    }
}

void test_PictureView::aChangeShowsAtEveryZoom() {
    QFETCH(double, percent);
    const auto picture = PlacePicture(1403, 1101);
    m_view->ShowPicture(picture);
    m_view->SetZoom(percent);
    Shot(*m_view);
    for (const QRect rect :
         {QRect(601, 502, 83, 41), QRect(1390, 1080, 40, 40), QRect(0, 0, 1, 1)}) {
        for (int y = rect.top(); y <= std::min(rect.bottom(), 1100); ++y) {
            for (int x = rect.left(); x <= std::min(rect.right(), 1402); ++x) {
                picture->SetImagePixel(x, y, 0x000000FF);
            }
        }
        m_view->PictureChanged(rect);
        const QImage changed = Shot(*m_view);
        PictureView anew;
        anew.resize(m_view->size());
        anew.ShowPicture(picture);
        anew.SetZoom(percent);
        anew.show();
        QCoreApplication::processEvents();
        anew.horizontalScrollBar()->setValue(m_view->horizontalScrollBar()->value());
        anew.verticalScrollBar()->setValue(m_view->verticalScrollBar()->value());
        QCOMPARE(changed, Shot(anew));
    }
}

void test_PictureView::theMouseTellsPlacesAlsoOutside() {
    m_view->ShowPicture(PlacePicture(100, 80));
    m_view->SetZoom(200);
    QSignalSpy pressed(m_view.get(), &PictureView::Pressed);
    QSignalSpy moved(m_view.get(), &PictureView::Moved);
    QSignalSpy released(m_view.get(), &PictureView::Released);
    test::MoveTo(*m_view, {5, 5}, Qt::NoButton);
    test::PressAt(*m_view, {10, 20}, Qt::ShiftModifier);
    test::MoveTo(*m_view, {-15, 90});
    test::ReleaseAt(*m_view, {130, -7});
    const auto near = [](const QVariant& place, QPointF expected) {
        return (place.toPointF() - expected).manhattanLength() < 0.01;
    };
    QCOMPARE(pressed.size(), 1);
    QVERIFY(near(pressed[0][0], {10, 20}));
    QCOMPARE(pressed[0][1].value<Qt::KeyboardModifiers>(), Qt::ShiftModifier);
    QCOMPARE(moved.size(), 2);
    QCOMPARE(moved[0][1].toBool(), false);
    QVERIFY(near(moved[1][0], {-15, 90}));
    QCOMPARE(moved[1][1].toBool(), true);
    QCOMPARE(released.size(), 1);
    QVERIFY(near(released[0][0], {130, -7}));
}

void test_PictureView::ctrlAndTheWheelZoomAtThePointer() {
    m_view->ShowPicture(PlacePicture(1000, 800));
    m_view->SetZoom(100);
    const QPointF at(100, 60);
    const QPointF place = m_view->InPicture(at);
    QSignalSpy zoomed(m_view.get(), &PictureView::ZoomChanged);
    const auto turn = [&](int angle) {
        QWheelEvent event(at, m_view->viewport()->mapToGlobal(at), {}, {0, angle}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_view->viewport(), &event);
    };
    turn(120);
    QCOMPARE(m_view->Zoom(), 125.0);
    QCOMPARE(zoomed.size(), 1);
    QVERIFY((m_view->InPicture(at) - place).manhattanLength() < 2);
    turn(-120);
    QCOMPARE(m_view->Zoom(), 100.0);
    QVERIFY((m_view->InPicture(at) - place).manhattanLength() < 3);
}

void test_PictureView::theMiddleButtonAndTheBlankDragThePicture() {
    m_view->ShowPicture(PlacePicture(1000, 800));
    m_view->SetZoom(100);
    m_view->horizontalScrollBar()->setValue(200);
    m_view->verticalScrollBar()->setValue(200);
    QSignalSpy pressed(m_view.get(), &PictureView::Pressed);
    const QPointF start = m_view->InPicture({50, 50});
    QTest::mousePress(m_view->viewport(), Qt::MiddleButton, {}, {50, 50});
    QTest::mouseMove(m_view->viewport(), {30, 40});
    QTest::mouseRelease(m_view->viewport(), Qt::MiddleButton, {}, {30, 40});
    QVERIFY((m_view->InPicture({30, 40}) - start).manhattanLength() < 2);
    m_view->setFocus();
    QTest::keyPress(m_view.get(), Qt::Key_Space);
    QCOMPARE(m_view->viewport()->cursor().shape(), Qt::OpenHandCursor);
    QTest::mousePress(m_view->viewport(), Qt::LeftButton, {}, {30, 40});
    QTest::mouseMove(m_view->viewport(), {50, 50});
    QTest::mouseRelease(m_view->viewport(), Qt::LeftButton, {}, {50, 50});
    QTest::keyRelease(m_view.get(), Qt::Key_Space);
    QVERIFY((m_view->InPicture({50, 50}) - start).manhattanLength() < 2);
    QCOMPARE(m_view->viewport()->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(pressed.size(), 0);
}

void test_PictureView::aDragPastTheEdgeScrollsUpToThePicturesEdge() {
    m_view->ShowPicture(PlacePicture(300, 200));
    m_view->SetZoom(400);
    QCoreApplication::processEvents();
    const QScrollBar& across = *m_view->horizontalScrollBar();
    const QScrollBar& down = *m_view->verticalScrollBar();
    test::PressAt(*m_view, m_view->InPicture({100, 100}));
    m_view->verticalScrollBar()->setValue(50);
    QSignalSpy moved(m_view.get(), &PictureView::Moved);
    const int from = across.value();
    test::MovePast(*m_view, 1, 0);
    QCOMPARE(across.value(), from); // not with the event itself: a still pointer scrolls as well
    QTRY_COMPARE(across.value(), across.maximum());
    QCOMPARE(down.value(), 50);
    QVERIFY(moved.size() > 2);
    for (int i = 1; i < moved.size(); ++i) {
        QVERIFY(moved[i][1].toBool());
        QVERIFY(moved[i][0].toPointF().x() > moved[i - 1][0].toPointF().x());
    }
    QVERIFY(moved.back()[0].toPointF().x() >= 300);
    QTRY_VERIFY(!IsScrolling()); // at the picture's edge there is nothing left to do
    test::MovePast(*m_view, -1, -1);
    QTRY_VERIFY(across.value() == 0 && down.value() == 0);
    QTRY_VERIFY(!IsScrolling());
    test::MovePast(*m_view, 0, 1);
    QTRY_COMPARE(down.value(), down.maximum());
    QCOMPARE(across.value(), 0);
}

void test_PictureView::onlyADragPastTheEdgeScrolls() {
    m_view->ShowPicture(PlacePicture(300, 200));
    m_view->SetZoom(400);
    QCoreApplication::processEvents();
    const QPointF inside = m_view->InPicture({100, 100});
    test::MoveTo(*m_view, m_view->InPicture({-20, -20}), Qt::NoButton);
    QVERIFY(!IsScrolling());
    test::PressAt(*m_view, inside);
    test::MovePast(*m_view, 1, 1);
    QVERIFY(IsScrolling());
    test::MoveTo(*m_view, m_view->InPicture({100, 100}));
    QVERIFY(!IsScrolling());
    test::MovePast(*m_view, 1, 1);
    QVERIFY(IsScrolling());
    test::ReleaseAt(*m_view, inside);
    QVERIFY(!IsScrolling());
    // A picture that is shown whole stays where it is.
    m_view->ZoomToFit();
    QCoreApplication::processEvents();
    test::PressAt(*m_view, {150, 100});
    const PicturePlace place = m_view->Place();
    test::MovePast(*m_view, 1, 1);
    QTRY_VERIFY(!IsScrolling());
    QCOMPARE(m_view->Place(), place);
}

void test_PictureView::keysScroll() {
    m_view->ShowPicture(PlacePicture(1000, 800));
    m_view->SetZoom(100);
    m_view->setFocus();
    QScrollBar& across = *m_view->horizontalScrollBar();
    QScrollBar& down = *m_view->verticalScrollBar();
    QTest::keyClick(m_view.get(), Qt::Key_Home);
    QCOMPARE(across.value(), 0);
    QCOMPARE(down.value(), 0);
    QTest::keyClick(m_view.get(), Qt::Key_Right);
    QCOMPARE(across.value(), across.singleStep());
    QTest::keyClick(m_view.get(), Qt::Key_PageDown);
    QCOMPARE(down.value(), std::min(down.pageStep(), down.maximum()));
    QTest::keyClick(m_view.get(), Qt::Key_End);
    QCOMPARE(across.value(), across.maximum());
    QCOMPARE(down.value(), down.maximum());
}

void test_PictureView::realSizeIsTheBaseScale() {
    m_view->ShowPicture(PlacePicture(30, 20));
    m_view->SetBaseScale({96.0 / 14, 96.0 / 10});
    m_view->SetZoom(100);
    const double ratio = m_view->devicePixelRatioF();
    QCOMPARE(m_view->Place().Content.size(),
             QSize(int(std::lround(30 * 96.0 / 14 * ratio)), int(std::lround(192 * ratio))));
    m_view->ZoomToFit();
    const QSize content = m_view->Place().Content.size();
    QVERIFY(std::abs(content.width() * 192.0 / (30 * 96.0 / 14) - content.height()) < 2);
}

void test_PictureView::anOverlayPaintsWhatChangedOnly() {
    QRect clip;
    m_view->ShowPicture(PlacePicture(1000, 800));
    m_view->SetZoom(100);
    m_view->SetOverlay([&](QPainter& painter, const PicturePlace& place) {
        clip = painter.clipBoundingRect().toAlignedRect();
        painter.fillRect(place.OnView(QRectF(300, 300, 10, 10)), Qt::red);
    });
    QCoreApplication::processEvents();
    m_view->ShowPlace({0, 0});
    m_view->ShowPlace({330, 330});
    QCoreApplication::processEvents();
    QCOMPARE(ShownAt(*m_view, Shot(*m_view), {305, 305}), qRgb(255, 0, 0));
    QRegion painted;
    class Watch : public QObject {
    public:
        explicit Watch(QRegion& region) : m_region(region) {}
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Paint) {
                m_region += static_cast<QPaintEvent*>(event)->region();
            }
            return false;
        }

    private:
        QRegion& m_region;
    } watch(painted);
    m_view->viewport()->installEventFilter(&watch);
    m_view->UpdateOverlay(QRectF(300, 300, 10, 10));
    QTRY_VERIFY(!painted.isEmpty());
    QVERIFY(painted.boundingRect().width() <= 18);
    QVERIFY(painted.boundingRect().height() <= 18);
}

void test_PictureView::twoViewsScrollAlike() {
    PictureView other;
    other.resize(m_view->size());
    other.show();
    const auto picture = PlacePicture(1000, 800);
    for (PictureView* view : {m_view.get(), &other}) {
        view->ShowPicture(picture);
        view->SetZoom(100);
    }
    m_view->ScrollWith(other);
    m_view->horizontalScrollBar()->setValue(77);
    other.verticalScrollBar()->setValue(55);
    QCOMPARE(other.horizontalScrollBar()->value(), 77);
    QCOMPARE(m_view->verticalScrollBar()->value(), 55);
}

void test_PictureView::withoutAPictureTheDeskShows() {
    m_view->ShowPicture(PlacePicture(10, 10));
    m_view->ShowPicture(nullptr);
    const QImage shot = Shot(*m_view);
    QCOMPARE(shot.pixel(shot.width() / 2, shot.height() / 2), shot.pixel(1, 1));
    QSignalSpy pressed(m_view.get(), &PictureView::Pressed);
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, {50, 50});
    QCOMPARE(pressed.size(), 0);
    m_view->ShowPicture(std::make_shared<Picture>());
    m_view->PictureChanged({0, 0, 10, 10});
    m_view->SetZoom(200);
    QCOMPARE(Shot(*m_view).pixel(5, 5), shot.pixel(5, 5));
}

void test_PictureView::extremePicturesShow_data() {
    QTest::addColumn<QSize>("size");
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("a column") << QSize(1, 100000);
    QTest::newRow("a row") << QSize(100000, 1);
}

void test_PictureView::extremePicturesShow() {
    QFETCH(QSize, size);
    const auto picture = PlainPicture(size.width(), size.height(), 0x00123456);
    m_view->ShowPicture(picture);
    for (const double percent : {0.0, 1.0, 40.0, 100.0, 3200.0}) {
        if (percent > 0) {
            m_view->SetZoom(percent);
        }
        const QImage shot = Shot(*m_view);
        const QRect seen = m_view->Place().Content & shot.rect();
        QVERIFY(!seen.isEmpty());
        QCOMPARE(shot.pixel(seen.center()), OnScreen(0x00123456));
        m_view->PictureChanged(QRect(QPoint(), size));
    }
}

} // namespace zol

QTEST_MAIN(zol::test_PictureView)
#include "test_PictureView.moc"
