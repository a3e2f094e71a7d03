// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHelpEvent>
#include <QImage>
#include <QTest>
#include <QToolTip>

#include <memory>
#include <string>

#include "grid/windows/PaletteStrip.h"

namespace zol {

/// A palette strip on a pattern of 50 by 50 squares, found and driven as a user does.
class PaletteStripTest : public QObject {
protected:
    void SetUp();
    void TearDown();
    static QRgb ColorOf(int floss) {
        return qRgb(floss * 7 % 256, floss * 31 % 256, floss * 53 % 256);
    }
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

inline void PaletteStripTest::SetUp() {
    m_context = std::make_unique<ProgramContext>();
    m_pattern = std::make_unique<Pattern>(*m_context);
    m_pattern->Initialize(50, 50, 14, 14);
    m_strip = std::make_unique<PaletteStrip>();
}

inline void PaletteStripTest::TearDown() {
    QToolTip::hideText();
    m_strip.reset();
}

/// Flosses numbered downwards from 999, with colours of their own and symbols.
inline void PaletteStripTest::Fill(int count) {
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

inline void PaletteStripTest::Show(int width) {
    m_strip->SetPattern(m_pattern.get());
    m_strip->resize(width, m_strip->sizeHint().height());
    m_strip->show();
    QVERIFY(QTest::qWaitForWindowActive(m_strip.get()));
}

inline QString PaletteStripTest::TipAt(QPoint place) const {
    QToolTip::hideText();
    QHelpEvent help(QEvent::ToolTip, place, Swatches()->mapToGlobal(place));
    QCoreApplication::sendEvent(Swatches(), &help);
    return QToolTip::text();
}

} // namespace zol
