// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>

#include <QImage>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>

#include "print/PageFont.h"

namespace zol {

/// The surface that pages are painted on, measured in twips: a printer, a PDF, or a picture of
/// the size of the paper. A printer's coordinates start at its printable corner, a picture's at
/// the paper's corner.
class PageDevice {
public:
    static constexpr int TwipsPerInch = 1440;

    PageDevice() = default;
    virtual ~PageDevice() = default;
    PageDevice(const PageDevice&) = delete;
    PageDevice& operator=(const PageDevice&) = delete;

    [[nodiscard]] virtual int Width() const = 0; ///< of the paper
    [[nodiscard]] virtual int Height() const = 0;
    [[nodiscard]] virtual int ScaleWidth() const = 0; ///< of the printable area
    [[nodiscard]] virtual int ScaleHeight() const = 0;
    [[nodiscard]] virtual double TwipsPerPixelX() const = 0;
    [[nodiscard]] virtual double TwipsPerPixelY() const = 0;
    [[nodiscard]] virtual bool IsPrinter() const = 0;

    /// Opens the document if it is not open. Null if the device cannot be painted on. The unit
    /// is the device's pixel.
    [[nodiscard]] virtual QPainter* Painter() = 0;
    /// False if the device refuses a further page.
    virtual bool NewPage() = 0;
    virtual bool EndDoc() = 0;
    /// Ends the document and throws it away as far as the device can.
    virtual void KillDoc() = 0;
    /// Why a document could not be opened or ended, where the device knows more than that.
    [[nodiscard]] virtual std::string ErrorText() const { return {}; }

    [[nodiscard]] static int TextWidth(const PageFont& font, const QString& text) {
        return font.TextWidth(text);
    }
    [[nodiscard]] static int TextHeight(const PageFont& font) { return font.TextHeight(); }

    /// Unprintable border on each side.
    [[nodiscard]] int BorderX() const { return (Width() - ScaleWidth()) / 2; }
    [[nodiscard]] int BorderY() const { return (Height() - ScaleHeight()) / 2; }
    /// What a position on the paper loses to become one of this device.
    [[nodiscard]] int OffsetX() const { return IsPrinter() ? BorderX() : 0; }
    [[nodiscard]] int OffsetY() const { return IsPrinter() ? BorderY() : 0; }
};

/// What to tell of a device that refused a document or a page.
[[nodiscard]] std::string WhyRefused(const PageDevice& device);

/// Size of a layout's paper, and of what its margins leave of it, in twips.
[[nodiscard]] QSize PaperTwips(const QPageLayout& layout);
[[nodiscard]] QSize PrintableTwips(const QPageLayout& layout);

/// Pages of a QPdfWriter, or of any other paged device. The device must outlive this.
class PagedPageDevice : public PageDevice {
public:
    explicit PagedPageDevice(QPagedPaintDevice& device);
    ~PagedPageDevice() override;

    [[nodiscard]] int Width() const override;
    [[nodiscard]] int Height() const override;
    [[nodiscard]] int ScaleWidth() const override;
    [[nodiscard]] int ScaleHeight() const override;
    [[nodiscard]] double TwipsPerPixelX() const override;
    [[nodiscard]] double TwipsPerPixelY() const override;
    [[nodiscard]] bool IsPrinter() const override { return true; }
    [[nodiscard]] QPainter* Painter() override;
    bool NewPage() override;
    bool EndDoc() override;
    void KillDoc() override;

private:
    QPagedPaintDevice* m_device;
    QPainter m_painter;
};

/// One page as a picture, for the preview and for exporting a page.
class ImagePageDevice : public PageDevice {
public:
    /// Paper of the given size in twips at `dotsPerInch`. An image that cannot be allocated
    /// gives no painter.
    ImagePageDevice(int width, int height, int dotsPerInch);
    ~ImagePageDevice() override;

    [[nodiscard]] int Width() const override { return m_width; }
    [[nodiscard]] int Height() const override { return m_height; }
    [[nodiscard]] int ScaleWidth() const override { return m_width; }
    [[nodiscard]] int ScaleHeight() const override { return m_height; }
    [[nodiscard]] double TwipsPerPixelX() const override { return m_twipsPerPixel; }
    [[nodiscard]] double TwipsPerPixelY() const override { return m_twipsPerPixel; }
    [[nodiscard]] bool IsPrinter() const override { return false; }
    [[nodiscard]] QPainter* Painter() override;
    /// Clears the picture for the next page.
    bool NewPage() override;
    bool EndDoc() override;
    void KillDoc() override;

    [[nodiscard]] const QImage& Image() const { return m_image; }

private:
    int m_width;
    int m_height;
    double m_twipsPerPixel;
    QImage m_image;
    QPainter m_painter;
};

/// The margin in inches of a first run: the larger of the device's border and half an inch.
[[nodiscard]] double BuiltInMarginX(const PageDevice* device);
[[nodiscard]] double BuiltInMarginY(const PageDevice* device);

} // namespace zol
