// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/DialogSize.h"

#include <QDialog>
#include <QScreen>
#include <QStringList>

#include "model/Doors.h"

namespace zol {

namespace {

constexpr const char* WindowsSection = "Windows";

std::string NameOf(const QDialog& dialog) {
    return dialog.objectName().toStdString() + "Size";
}

/// Empty if nothing, or nothing sensible, is stored.
QSize StoredSize(const QDialog& dialog, const SettingsDoor& store) {
    const auto text = QString::fromStdString(store.ReadSetting(WindowsSection, NameOf(dialog), {}));
    const QStringList parts = text.split(QLatin1Char('x'));
    return parts.size() == 2 ? QSize(parts[0].toInt(), parts[1].toInt()) : QSize();
}

} // namespace

void RememberSize(QDialog& dialog, SettingsDoor& store) {
    const QSize stored = StoredSize(dialog, store);
    const QSize wanted = stored.isEmpty() ? dialog.size() : stored;
    const QSize room = dialog.screen()->availableSize();
    dialog.resize(wanted.expandedTo(dialog.minimumSizeHint()).boundedTo(room));
    QObject::connect(&dialog, &QDialog::finished, &dialog, [&dialog, &store] {
        store.WriteSetting(WindowsSection, NameOf(dialog),
                           std::to_string(dialog.width()) + "x" + std::to_string(dialog.height()));
    });
}

} // namespace zol
