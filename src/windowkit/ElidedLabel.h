// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace zol {

/// A line of text that takes the room there is and ends in dots where it is cut; the whole text is
/// then its tool tip. Unlike a plain label it never widens its window.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    /// Repaints only if the text is another one.
    void ShowText(const QString& text);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] QString CutText() const;
};

} // namespace zol
