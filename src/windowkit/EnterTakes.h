// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace zol {

/// Enter in a field is for the field, and does not press the window's default button.
class EnterTakes : public QObject {
    Q_OBJECT

public:
    /// `take` runs on Enter. The field owns this.
    EnterTakes(QWidget& field, std::function<void()> take);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> m_take;
};

} // namespace zol
