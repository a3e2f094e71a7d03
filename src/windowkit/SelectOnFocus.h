// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QLineEdit;

namespace zol {

/// Selects all of a field whenever the focus comes to it, also by a click. Belongs to its field.
class SelectOnFocus : public QObject {
    Q_OBJECT

public:
    explicit SelectOnFocus(QLineEdit* field);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* m_field;
    bool m_clickedInto = false; ///< the click that brought the focus has not ended yet
};

} // namespace zol
