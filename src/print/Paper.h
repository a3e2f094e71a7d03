// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>
#include <QPageLayout>
#include <QPageSize>

#include "print/PageDevice.h"

namespace zol {

/// Paper that pages are laid out on where no printer is, and the paper of a PDF: printable to its
/// edges. It has measures only; nothing can be painted on it.
class Paper : public PageDevice {
public:
    explicit Paper(const QPageSize& size, bool landscape = false);
    /// A4, or letter where that is used.
    explicit Paper(const QLocale& locale);
    /// Of the size of the device's paper.
    [[nodiscard]] static QPageLayout LayoutOf(const PageDevice& device);

    [[nodiscard]] const QPageLayout& Layout() const { return m_layout; }

    [[nodiscard]] int Width() const override;
    [[nodiscard]] int Height() const override;
    [[nodiscard]] int ScaleWidth() const override { return Width(); }
    [[nodiscard]] int ScaleHeight() const override { return Height(); }
    [[nodiscard]] double TwipsPerPixelX() const override { return 1; }
    [[nodiscard]] double TwipsPerPixelY() const override { return 1; }
    [[nodiscard]] bool IsPrinter() const override { return true; }
    [[nodiscard]] QPainter* Painter() override { return nullptr; }
    bool NewPage() override { return false; }
    bool EndDoc() override { return false; }
    void KillDoc() override {}

private:
    QPageLayout m_layout;
};

} // namespace zol
