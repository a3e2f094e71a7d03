// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/StitchImages.h"

#include "flosses/HSLFuncs.h"

namespace zol {

namespace {

constexpr int ThreadFrom = 125; ///< template pixels this bright are thread

} // namespace

StitchImages::StitchImages()
    : m_template(
          QImage(QStringLiteral(":/grid/StitchImage.png")).convertToFormat(QImage::Format_RGB32)) {}

int StitchImages::SlotOf(Colour floss, Colour cloth) {
    const std::uint64_t key = (std::uint64_t{floss} << 32U) | cloth;
    const auto [found, added] = m_slots.try_emplace(key, static_cast<int>(m_images.size()));
    if (added) {
        m_images.push_back(Tint(m_template, floss, cloth));
    }
    return found->second;
}

QImage StitchImages::Image(int slot) const {
    const auto at = static_cast<std::size_t>(slot);
    return slot >= 0 && at < m_images.size() ? m_images[at] : QImage();
}

QImage StitchImages::Tint(const QImage& picture, Colour floss, Colour cloth) {
    const QImage grey = picture.convertToFormat(QImage::Format_RGB32);
    const int red = HSLFuncs::RedOf(floss);
    const int green = HSLFuncs::GreenOf(floss);
    const int blue = HSLFuncs::BlueOf(floss);
    const QRgb ground =
        qRgb(HSLFuncs::RedOf(cloth), HSLFuncs::GreenOf(cloth), HSLFuncs::BlueOf(cloth));
    QImage tinted(grey.size(), QImage::Format_RGB32);
    for (int y = 0; y < grey.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(grey.constScanLine(y));
        auto* to = reinterpret_cast<QRgb*>(tinted.scanLine(y));
        for (int x = 0; x < grey.width(); ++x) {
            const int mean = (qRed(from[x]) + qGreen(from[x]) + qBlue(from[x])) / 3;
            to[x] = mean >= ThreadFrom
                        ? qRgb(red * mean / 255, green * mean / 255, blue * mean / 255)
                        : ground;
        }
    }
    return tinted;
}

} // namespace zol
