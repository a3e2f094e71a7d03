// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// One move of the mouse on the wizard's crop and erase screens, the whole screen in its window,
// against filling the pixels of the picture's view once. What changes with the picture's size
// would show between 3 and 48 megapixels.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QRadioButton>

#include <cmath>
#include <memory>
#include <utility>

#include "Ratio.h"
#include "import/windows/CropScreen.h"
#include "import/windows/EraseScreen.h"
#include "import/windows/PictureView.h"
#include "model/Pattern.h"
#include "support/RecordingDoors.h"
#include "support/ScriptedUser.h"
#include "windowkit/Theme.h"

namespace {

/// A gesture of a hand has some hundreds of moves.
constexpr int MovesOfAGesture = 500;

zol::SharedPicture Photo(int megapixels) {
    const int height = static_cast<int>(std::sqrt(megapixels * 1e6 * 3 / 4));
    auto picture = std::make_shared<zol::Picture>(height * 4 / 3, height);
    unsigned seed = 1;
    for (zol::Colour& pixel : picture->Pixels()) {
        seed = seed * 1664525U + 1013904223U;
        pixel = (seed >> 8U) & 0x00F7F7F7U;
    }
    return picture;
}

/// A screen of the wizard in a window of its own whose view is about 1280 by 960 pixels.
template<typename Screen>
class Window {
public:
    explicit Window(int megapixels) {
        m_work.TheImage = Photo(megapixels);
        m_screen = std::make_unique<Screen>(m_desk);
        m_screen->DisplayScreen(false);
        m_screen->resize(1520, 1000);
        m_screen->show();
        Paint();
        m_view = m_screen->template findChild<zol::PictureView*>();
    }

    [[nodiscard]] zol::PictureView& View() { return *m_view; }
    void Choose(const char* option) {
        m_screen->template findChild<QRadioButton*>(QLatin1String(option))->click();
        Paint();
    }
    void Mouse(QEvent::Type type, QPointF at) {
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, at, m_view->viewport()->mapToGlobal(at),
                          moves ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_view->viewport(), &event);
    }
    /// What has been asked for comes onto the screen.
    static void Paint() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
        QCoreApplication::processEvents();
    }

private:
    zol::ProgramContext m_context;
    zol::ImportWork m_work{m_context};
    zol::Pattern m_design{m_context};
    zol::test::MapSettings m_store;
    zol::Options m_settings;
    zol::test::ScriptedUser m_user;
    zol::ImportDesk m_desk{m_work, m_context, m_design, m_store, m_settings, m_user, m_user};
    std::unique_ptr<Screen> m_screen;
    zol::PictureView* m_view = nullptr;
};

class Floor {
public:
    explicit Floor(const zol::PictureView& view)
        : m_image(view.viewport()->size(), QImage::Format_RGB32) {}
    void operator()() { m_image.fill(++m_colour); }

private:
    QImage m_image;
    QRgb m_colour = 0xFF000000U;
};

/// The pointer goes to and fro by a step across and a smaller one down.
class Wander {
public:
    Wander(QPointF from, double step) : m_at(from), m_step(step) {}
    QPointF Next() {
        m_turn = (m_turn + 1) % 40;
        const double way = m_turn < 20 ? m_step : -m_step;
        m_at += QPointF(way, way / 2);
        return m_at;
    }
    [[nodiscard]] QPointF Present() const { return m_at; }

private:
    QPointF m_at;
    double m_step;
    int m_turn = 0;
};

template<typename Screen>
void MeasureMoves(benchmark::State& state, Window<Screen>& window, double step) {
    const QPointF start(window.View().viewport()->width() * 0.2,
                        window.View().viewport()->height() * 0.2);
    window.Mouse(QEvent::MouseButtonPress, start);
    window.Mouse(QEvent::MouseMove, start + QPointF(300, 300));
    window.Paint();
    Wander wander(start + QPointF(300, 300), step);
    Floor floor(window.View());
    int moves = 0;
    const auto beginAnewAtTimes = [&] {
        if (++moves % MovesOfAGesture == 0) {
            window.Mouse(QEvent::MouseButtonRelease, wander.Present());
            window.Mouse(QEvent::MouseButtonPress, wander.Present());
            window.Mouse(QEvent::MouseMove, wander.Next());
            window.Paint();
        }
    };
    zol::Ratio(state, 2).Measure(floor, beginAnewAtTimes, [&] {
        window.Mouse(QEvent::MouseMove, wander.Next());
        window.Paint();
    });
}

/// A corner of the rubber band moves by some pixels of the screen.
void CropMove(benchmark::State& state) {
    Window<zol::CropScreen> window(static_cast<int>(state.range(0)));
    MeasureMoves(state, window, static_cast<double>(state.range(1)));
}

/// The largest eraser moves on.
void EraseMove(benchmark::State& state) {
    Window<zol::EraseScreen> window(static_cast<int>(state.range(0)));
    window.Choose("optEraser2");
    MeasureMoves(state, window, static_cast<double>(state.range(1)));
}

/// The same with the picture at its own size, of which the view shows a part.
void EraseMoveAtOwnSize(benchmark::State& state) {
    Window<zol::EraseScreen> window(static_cast<int>(state.range(0)));
    window.Choose("optEraser2");
    window.View().SetZoom(100);
    MeasureMoves(state, window, static_cast<double>(state.range(1)));
}

/// A freehand outline grows.
void OutlineMove(benchmark::State& state) {
    Window<zol::EraseScreen> window(static_cast<int>(state.range(0)));
    window.Choose("optEraseBy1");
    MeasureMoves(state, window, static_cast<double>(state.range(1)));
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgNames({"megapixels", "step"});
    for (const int megapixels : {3, 12, 48}) {
        benchmark->Args({megapixels, 8});
    }
    benchmark->Apply(zol::AsRatio);
}

} // namespace

BENCHMARK(CropMove)->Apply(Sizes);
BENCHMARK(EraseMove)->Apply(Sizes);
BENCHMARK(EraseMoveAtOwnSize)->Apply(Sizes);
BENCHMARK(OutlineMove)->Apply(Sizes);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    zol::Theme::Apply(app);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
