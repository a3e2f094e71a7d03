// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

namespace zol {

/// How large the preview shows the paper: by the room that there is, or in percent of its own size
/// on a screen of 96 dots to the inch.
class PreviewZoom {
public:
    enum class Mode { FitPage, FitWidth, Percent };

    static constexpr int LeastPercent = 10;
    static constexpr int MostPercent = 400;

    /// The choices of the list, the two fits first.
    [[nodiscard]] static QStringList Choices();

    [[nodiscard]] Mode CurrentMode() const { return m_mode; }
    void Fit(Mode mode) { m_mode = mode; }
    /// Takes a choice or a typed percentage; false if it is neither.
    bool Take(const QString& text);
    /// Steps from what is shown now by a factor of 1.25 each.
    void Step(double steps, int shownPercent);

    /// Dots to the inch of the screen at which the paper, in twips, is to be painted. `room` in the
    /// screen's pixels counts for the fits. No picture gets larger than the memory for it.
    [[nodiscard]] int DotsPerInch(const QSize& paper, const QSize& room, double ratio) const;
    [[nodiscard]] static int PercentOf(int dotsPerInch, double ratio);
    /// What the list shows.
    [[nodiscard]] QString Text() const;

private:
    Mode m_mode = Mode::FitPage;
    double m_percent = 100;
};

} // namespace zol
