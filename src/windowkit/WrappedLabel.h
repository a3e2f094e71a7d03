// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace zol {

/// A label that wraps and is never squeezed: once it shows, its least height is that of its text at
/// the width it has, so a window that becomes too low for it grows.
class WrappedLabel : public QLabel {
    Q_OBJECT

public:
    explicit WrappedLabel(QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace zol
