// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/PreviewFlossModel.h"

#include <QApplication>
#include <QLocale>
#include <QPainter>
#include <QPalette>

#include <utility>

#include "grid/painting/PaintColors.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

/// A text of figures sorts by their value, in front of those that begin with letters.
QString SortText(const QString& number) {
    constexpr qsizetype places = 10;
    qsizetype digits = 0;
    while (digits < number.size() && number[digits].isDigit()) {
        ++digits;
    }
    return digits == 0 ? number
                       : QString(number).prepend(
                             QString(qMax<qsizetype>(0, places - digits), QLatin1Char('0')));
}

} // namespace

void PreviewFlossModel::SetFlosses(std::vector<PreviewFloss> flosses) {
    beginResetModel();
    m_flosses = std::move(flosses);
    endResetModel();
}

void PreviewFlossModel::SetSwatch(int side, double ratio) {
    beginResetModel();
    m_side = side;
    m_ratio = ratio;
    endResetModel();
}

int PreviewFlossModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_flosses.size());
}

int PreviewFlossModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PreviewFlossModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const PreviewFloss& floss = m_flosses[static_cast<std::size_t>(index.row())];
    if (role == Qt::DecorationRole && index.column() == Floss) {
        return Swatch(floss.ColorRGB);
    }
    if (role == Qt::TextAlignmentRole && index.column() == Stitches) {
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    }
    const bool sorting = role == SortRole;
    if (!sorting && role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    switch (index.column()) {
    case Floss: {
        const QString number = QString::fromStdString(floss.Number);
        return sorting ? SortText(number) : number;
    }
    case Name:
        return QString::fromStdString(floss.Name);
    default:
        return sorting ? QVariant(floss.Stitches) : QLocale().toString(floss.Stitches);
    }
}

QVariant PreviewFlossModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue((section == Stitches ? Qt::AlignRight : Qt::AlignLeft) |
                                   Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Floss:
        return tr("Floss");
    case Name:
        return tr("Name");
    default:
        return tr("Stitches");
    }
}

QPixmap PreviewFlossModel::Swatch(Colour colour) const {
    QPixmap swatch(qRound(m_side * m_ratio), qRound(m_side * m_ratio));
    swatch.fill(ToQColor(colour));
    QPainter painter(&swatch);
    painter.setPen(Theme::Edge(QApplication::palette()));
    painter.drawRect(swatch.rect().adjusted(0, 0, -1, -1));
    painter.end();
    swatch.setDevicePixelRatio(m_ratio);
    return swatch;
}

} // namespace zol
