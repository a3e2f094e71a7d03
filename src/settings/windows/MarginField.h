// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>

namespace zol {

/// A field for a margin: one figure before the separator and two behind it. All of it is selected
/// when the focus comes, and the text is put in form when the focus goes.
class MarginField : public QLineEdit {
    Q_OBJECT

public:
    explicit MarginField(QWidget* parent = nullptr);

protected:
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace zol
