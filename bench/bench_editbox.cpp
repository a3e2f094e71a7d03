// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Moving a floating edit box over the window, against filling a view of 1920 by 1080 pixels once by
// scan line; turning one, against picking the same squares up.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>

#include <algorithm>
#include <memory>

#include "Folder.h"
#include "Ratio.h"
#include "Scene.h"
#include "files/PatternDesign.h"
#include "grid/basEditBox.h"
#include "grid/painting/GridPainter.h"
#include "grid/tools/EditBox.h"
#include "grid/windows/GridArea.h"

namespace {

constexpr int Width = 1920;
constexpr int Height = 1080;

class Floor {
public:
    void operator()() {
        ++m_colour;
        for (int y = 0; y < m_image.height(); ++y) {
            std::fill_n(reinterpret_cast<QRgb*>(m_image.scanLine(y)), m_image.width(), m_colour);
        }
    }

private:
    QImage m_image{Width, Height, QImage::Format_RGB32};
    QRgb m_colour = 0xFF000000U;
};

/// The grid in a window of its own that shows about 1920 by 1080 pixels of a part of the scene, and
/// over all of it a block of other squares.
class Window {
public:
    Window(int squarePixels, int size)
        : m_pattern(zol::basEditBox::PickUpSelection(zol::SharedScene(), {1, 1, size, size})),
          m_area(m_painter) {
        m_area.resize(Width + 40, Height + 40);
        m_area.SetPattern(&m_pattern);
        // 100 percent of a cloth of 14 are 96 / 14 pixels.
        m_area.Zoom().ChangeZoom((squarePixels * 1400 + 48) / 96);
        m_area.show();
        m_area.ScrollGrid(10, 10, true);
        Paint();
        m_shown = m_area.GetVisibleRange();
        const int right = std::min(999, 400 + m_shown.Right - m_shown.Left);
        const int bottom = std::min(999, 400 + m_shown.Bottom - m_shown.Top);
        m_block = std::make_shared<zol::Pattern>(
            zol::basEditBox::PickUpSelection(zol::SharedScene(), {400, 400, right, bottom}));
    }

    /// The block's upper left comes to lie so many columns right of the view's.
    void Float(int columns) {
        zol::Overlay overlay;
        overlay.Content = zol::OverlayContent{m_block, {m_shown.Left + columns, m_shown.Top}, true};
        overlay.Frame = zol::SquareRect{m_shown.Left + columns, m_shown.Top,
                                        m_shown.Right + columns, m_shown.Bottom};
        m_area.SetOverlay(overlay);
        Paint();
    }

private:
    static void Paint() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
        QCoreApplication::processEvents();
    }

    zol::Pattern m_pattern;
    zol::GridPainter m_painter;
    zol::GridArea m_area;
    zol::SquareRect m_shown;
    std::shared_ptr<const zol::Pattern> m_block;
};

/// One column further and back again by turns. Pixels a square; squares of the design each way.
void MoveBox(benchmark::State& state) {
    Window window(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    Floor floor;
    window.Float(0);
    window.Float(1);
    int columns = 1;
    zol::Ratio(state, 5, zol::Timing::Wall).Measure(floor, [&] {
        columns = 1 - columns;
        window.Float(columns);
    });
}

/// A window that shows nothing.
class NoView : public zol::ToolView {
public:
    [[nodiscard]] const zol::GridGeometry& Geometry() const override { return m_geometry; }
    void RedrawSquares(const zol::SquareRect& /*rect*/) override {}
    void RedrawStitches(const zol::SquareRect& /*rect*/) override {}
    void OverlayChanged() override {}
    void DesignChanged() override {}
    void FlossesChanged() override {}
    void SetGridCursor(zol::GridCursor /*kind*/) override {}
    void SetBusy(bool /*busy*/) override {}
    void ShowPlace(const std::string& /*text*/) override {}
    void ShowFloss(const std::string& /*text*/) override {}
    void ZoomToFrame(const zol::SquareRect& /*frame*/) override {}
    [[nodiscard]] zol::SquareRect VisibleRange() const override { return {1, 1, 1, 1}; }
    void ScrollTowards(const zol::SquareRect& /*rect*/) override {}
    void OpenLineMenu(int /*lineStyle*/) override {}

private:
    zol::GridGeometry m_geometry;
};

/// A floating block of 500 by 500 squares of the scene. The operation, 1 to 5.
void TurnBox(benchmark::State& state) {
    const auto operation = static_cast<zol::TransformOperation>(state.range(0));
    zol::Pattern design(zol::SharedScene().Context());
    design.Initialize(600, 600, 14, 14);
    zol::DesignHolder open(std::make_unique<zol::PatternDesign>(design, std::string()));
    zol::Folder folder;
    zol::Undo steps(open, folder / "undo.tmp");
    zol::MirrorMode mirror;
    zol::DrawingChoice choice;
    NoView view;
    zol::EditBox box(zol::ToolDesk{open, steps, mirror, choice, view});
    const zol::SquareRect squares{101, 101, 600, 600};
    box.PastePattern(std::make_shared<zol::Pattern>(
                         zol::basEditBox::PickUpSelection(zol::SharedScene(), squares)),
                     "Paste");
    zol::Ratio(state, 4).Measure(
        [&] {
            benchmark::DoNotOptimize(zol::basEditBox::PickUpSelection(zol::SharedScene(), squares));
        },
        [&] { box.TransformEditBox(operation); });
}

} // namespace

BENCHMARK(MoveBox)
    ->ArgNames({"pixels", "size"})
    ->Args({20, 150})
    ->Args({20, 999})
    ->Args({5, 500})
    ->Args({5, 999})
    ->Args({2, 999})
    ->Apply(zol::AsRatio);
BENCHMARK(TurnBox)->ArgName("operation")->DenseRange(1, 5)->Apply(zol::AsRatio);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
