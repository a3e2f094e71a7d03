// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QTest>
#include <QWidget>

#include <memory>

#include "import/ImportWork.h"
#include "import/windows/PictureView.h"

namespace zol::test {

/// A picture whose pixels tell their place: red by the column, green by the row.
inline std::shared_ptr<Picture> PlacePicture(int width, int height) {
    auto picture = std::make_shared<Picture>(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture->SetImagePixel(
                x, y, MakeColour(unsigned(x) * 7U % 251U, unsigned(y) * 5U % 251U, 40));
        }
    }
    return picture;
}

/// A picture of one colour.
inline std::shared_ptr<Picture> PlainPicture(int width, int height, Colour colour) {
    auto picture = std::make_shared<Picture>(width, height);
    for (Colour& pixel : picture->Pixels()) {
        pixel = colour;
    }
    return picture;
}

inline QRgb OnScreen(Colour colour) {
    return qRgb(int(colour & 255U), int((colour >> 8U) & 255U), int((colour >> 16U) & 255U));
}

/// A mouse event at a place of the picture; `buttons` are those that are held after it.
inline void MouseAt(PictureView& view, QEvent::Type type, QPointF imagePlace,
                    Qt::MouseButton button, Qt::MouseButtons buttons,
                    Qt::KeyboardModifiers keys = Qt::NoModifier) {
    const QPointF at = view.OnViewport(imagePlace);
    QMouseEvent event(type, at, view.viewport()->mapToGlobal(at), button, buttons, keys);
    QApplication::sendEvent(view.viewport(), &event);
}
inline void PressAt(PictureView& view, QPointF place, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    MouseAt(view, QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton, keys);
}
inline void MoveTo(PictureView& view, QPointF place, Qt::MouseButtons held = Qt::LeftButton) {
    MouseAt(view, QEvent::MouseMove, place, Qt::NoButton, held);
}
inline void ReleaseAt(PictureView& view, QPointF place) {
    MouseAt(view, QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
}
inline void Drag(PictureView& view, QPointF from, QPointF to) {
    PressAt(view, from);
    MoveTo(view, (from + to) / 2);
    MoveTo(view, to);
    ReleaseAt(view, to);
}

/// The pointer goes past an edge of the view while the left button is held: -1 to the left or
/// above, 1 to the right or below, 0 to the middle.
inline void MovePast(PictureView& view, int across, int down) {
    const auto past = [](int way, int length) {
        constexpr int farther = 30;
        return way == 0 ? length / 2 : (way < 0 ? -farther : length + farther);
    };
    const QSize size = view.viewport()->size();
    MoveTo(view, view.InPicture(QPointF(past(across, size.width()), past(down, size.height()))));
}

/// The viewport's pixels as they are on the screen.
inline QImage Shot(PictureView& view) {
    QCoreApplication::processEvents(); // scroll bars come and go by a posted event
    return view.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// What a shot shows in the middle of a pixel of the picture.
inline QRgb ShownAt(const PictureView& view, const QImage& shot, QPoint imagePixel) {
    const QPointF place = view.Place().OnView(QPointF(imagePixel) + QPointF(0.5, 0.5));
    return shot.pixel(int(place.x()), int(place.y()));
}

} // namespace zol::test
