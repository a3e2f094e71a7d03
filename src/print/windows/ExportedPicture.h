// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QWidget>

namespace zol {

/// A picture shown pixel by pixel, in a scroll area. It paints what shows of it and keeps no copy.
class ExportedPicture : public QWidget {
    Q_OBJECT

public:
    explicit ExportedPicture(QWidget* parent = nullptr);

    /// Takes the picture's size.
    void SetPicture(const QImage& picture);
    [[nodiscard]] const QImage& Picture() const { return m_picture; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_picture;
};

} // namespace zol
