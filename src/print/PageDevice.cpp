// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PageDevice.h"

#include <algorithm>

#include "model/Rounding.h"
#include "model/RunTimeError.h"

namespace zol {

namespace {

QSize TwipsOfPoints(const QRectF& rect) {
    return {RoundToInt(rect.width() * 20), RoundToInt(rect.height() * 20)};
}

double WiderMargin(int border) {
    return std::max(PrintOptions::BuiltInMargin,
                    static_cast<double>(border) / PageDevice::TwipsPerInch);
}

} // namespace

std::string WhyRefused(const PageDevice& device) {
    const std::string text = device.ErrorText();
    return text.empty() ? RunTimeErrorText(ErrDeviceIO) : text;
}

QSize PaperTwips(const QPageLayout& layout) {
    return TwipsOfPoints(layout.fullRect(QPageLayout::Point));
}

QSize PrintableTwips(const QPageLayout& layout) {
    return TwipsOfPoints(layout.paintRect(QPageLayout::Point));
}

PagedPageDevice::PagedPageDevice(QPagedPaintDevice& device) : m_device(&device) {}

PagedPageDevice::~PagedPageDevice() {
    if (m_painter.isActive()) {
        m_painter.end();
    }
}

int PagedPageDevice::Width() const {
    return PaperTwips(m_device->pageLayout()).width();
}

int PagedPageDevice::Height() const {
    return PaperTwips(m_device->pageLayout()).height();
}

int PagedPageDevice::ScaleWidth() const {
    return PrintableTwips(m_device->pageLayout()).width();
}

int PagedPageDevice::ScaleHeight() const {
    return PrintableTwips(m_device->pageLayout()).height();
}

double PagedPageDevice::TwipsPerPixelX() const {
    return static_cast<double>(TwipsPerInch) / m_device->logicalDpiX();
}

double PagedPageDevice::TwipsPerPixelY() const {
    return static_cast<double>(TwipsPerInch) / m_device->logicalDpiY();
}

QPainter* PagedPageDevice::Painter() {
    if (!m_painter.isActive() && !m_painter.begin(m_device)) {
        return nullptr;
    }
    return &m_painter;
}

bool PagedPageDevice::NewPage() {
    return Painter() != nullptr && m_device->newPage();
}

bool PagedPageDevice::EndDoc() {
    return Painter() != nullptr && m_painter.end();
}

void PagedPageDevice::KillDoc() {
    if (m_painter.isActive()) {
        m_painter.end();
    }
}

ImagePageDevice::ImagePageDevice(int width, int height, int dotsPerInch)
    : m_width(width),
      m_height(height),
      m_twipsPerPixel(static_cast<double>(TwipsPerInch) / std::max(1, dotsPerInch)),
      m_image(RoundToInt(width / m_twipsPerPixel), RoundToInt(height / m_twipsPerPixel),
              QImage::Format_RGB32) {
    m_image.fill(Qt::white);
}

ImagePageDevice::~ImagePageDevice() {
    ImagePageDevice::KillDoc();
}

QPainter* ImagePageDevice::Painter() {
    if (!m_painter.isActive() && (m_image.isNull() || !m_painter.begin(&m_image))) {
        return nullptr;
    }
    return &m_painter;
}

bool ImagePageDevice::NewPage() {
    KillDoc();
    m_image.fill(Qt::white);
    return !m_image.isNull();
}

bool ImagePageDevice::EndDoc() {
    return Painter() != nullptr && m_painter.end();
}

void ImagePageDevice::KillDoc() {
    if (m_painter.isActive()) {
        m_painter.end();
    }
}

double BuiltInMarginX(const PageDevice* device) {
    return device == nullptr ? PrintOptions::BuiltInMargin : WiderMargin(device->BorderX());
}

double BuiltInMarginY(const PageDevice* device) {
    return device == nullptr ? PrintOptions::BuiltInMargin : WiderMargin(device->BorderY());
}

} // namespace zol
