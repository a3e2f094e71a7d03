// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/INIFuncs.h"

#include <QSettings>

#include <utility>

#include "model/CodePage.h"
#include "model/SafeFile.h"

namespace zol {

namespace {

QString KeyName(const std::string& section, const std::string& name) {
    return QString::fromStdString(section) + QLatin1Char('/') + QString::fromStdString(name);
}

/// The group and value names as they stand in the file, or as given where there is none.
QString FindIn(const QStringList& names, const QString& wanted) {
    for (const QString& name : names) {
        if (name.compare(wanted, Qt::CaseInsensitive) == 0) {
            return name;
        }
    }
    return wanted;
}

} // namespace

INIFuncs::INIFuncs(MessageDoor* messages)
    : m_store(std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                          QStringLiteral("Korvanta"),
                                          QStringLiteral("Korvanta 6"))),
      m_messages(messages) {
    m_store->setFallbacksEnabled(false);
}

INIFuncs::INIFuncs(const std::filesystem::path& file, MessageDoor* messages)
    : m_store(std::make_unique<QSettings>(QString::fromStdString(PathText(file)),
                                          QSettings::IniFormat)),
      m_messages(messages) {}

INIFuncs::~INIFuncs() = default;

QString INIFuncs::FindKey(const std::string& section, const std::string& name) const {
    return FindIn(m_store->allKeys(), KeyName(section, name));
}

std::string INIFuncs::ReadSetting(const std::string& section, const std::string& name,
                                  const std::string& defaultValue) const {
    const QString key = FindKey(section, name);
    if (!m_store->contains(key)) {
        return defaultValue;
    }
    // A value with commas that a person typed without quotes comes as a list.
    QString value = m_store->value(key).toStringList().join(QStringLiteral(", "));
    const qsizetype zero = value.indexOf(QChar(u'\0'));
    if (zero >= 0) {
        value.truncate(zero);
    }
    value.truncate(MaxValueLength);
    return Trimmed(value.toStdString());
}

void INIFuncs::WriteSetting(const std::string& section, const std::string& name,
                            const std::string& value) {
    m_store->setValue(FindKey(section, name), QString::fromStdString(value));
    m_store->sync();
    const bool failed = m_store->status() != QSettings::NoError;
    // Closing the window alone writes nine values, and they would all fail alike.
    if (failed && m_messages != nullptr && !std::exchange(m_failureTold, true)) {
        m_messages->Tell("Error " + std::to_string(static_cast<int>(m_store->status())),
                         MessageIcon::Exclamation, {});
    }
}

} // namespace zol
