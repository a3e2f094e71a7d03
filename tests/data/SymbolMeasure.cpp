// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "data/SymbolMeasure.h"

#include <QPainter>

#include <algorithm>
#include <vector>

namespace zol {

namespace {

constexpr int Border = 4;

/// Share of black of every pixel, in a field with a white border round the cell.
std::vector<double> Blackness(const QImage& cell) {
    std::vector<double> black(SymbolBlot::Room * SymbolBlot::Room, 0.0);
    for (int y = 0; y < cell.height(); ++y) {
        for (int x = 0; x < cell.width(); ++x) {
            const int row = y + Border;
            const int column = x + Border;
            const int at = row * SymbolBlot::Room + column;
            black[static_cast<std::size_t>(at)] = 1.0 - qGray(cell.pixel(x, y)) / 255.0;
        }
    }
    return black;
}

/// One pass of the weights 1 2 1 along a line of pixels that lie so far apart.
std::vector<double> Smeared(const std::vector<double>& from, std::size_t apart) {
    std::vector<double> to(from.size(), 0.0);
    for (std::size_t i = apart; i + apart < from.size(); ++i) {
        to[i] = (from[i - apart] + 2.0 * from[i] + from[i + apart]) / 4.0;
    }
    return to;
}

} // namespace

SymbolBlot::SymbolBlot(const QImage& cell) : m_size(cell.width()) {
    const auto blurred = Smeared(Smeared(Blackness(cell), 1), Room);
    for (std::size_t print = 0; print < Dark.size(); ++print) {
        for (std::size_t i = 0; i < blurred.size(); ++i) {
            m_dark[print][i] = blurred[i] > Dark[print];
        }
    }
}

double SymbolBlot::Distance(const SymbolBlot& other) const {
    std::size_t least = Room * Room;
    for (std::size_t print = 0; print < Dark.size(); ++print) {
        const auto here = m_dark[print] << (Room + 1); // Room for a step up and to the left.
        for (const std::size_t down : {0U, 1U, 2U}) {
            for (const std::size_t right : {0U, 1U, 2U}) {
                const auto there = other.m_dark[print] << (down * Room + right);
                least = std::min(least, (here ^ there).count());
            }
        }
    }
    return static_cast<double>(least) / (m_size * m_size);
}

QImage ShapeInCell(const QPainterPath& shape, int size) {
    QImage cell(size, size, QImage::Format_RGB32);
    cell.fill(Qt::white);
    QPainter painter(&cell);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size, size);
    painter.fillPath(shape, Qt::black);
    return cell;
}

} // namespace zol
