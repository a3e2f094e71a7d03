// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include "settings/basCommonFunctions.h"

class QLineEdit;

namespace zol {

/// Keeps a field to numbers: keys pass basCommonFunctions::FilterNumericKey before the field sees
/// them. Enter is left to the window. The field may be that of a combo box. Belongs to its field.
class NumericFilter : public QObject {
    Q_OBJECT

public:
    /// `maxBefore` and `maxAfter` are the figures that may stand before and behind the decimal
    /// separator; basCommonFunctions::NoLimit for any number.
    NumericFilter(QLineEdit* field, int maxBefore, int maxAfter);

    /// Other limits for the keys to come; what stands in the field stays.
    void SetLimits(int maxBefore, int maxAfter);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool Passes(const QString& text) const;

    QLineEdit* m_field;
    int m_maxBefore;
    int m_maxAfter;
};

} // namespace zol
