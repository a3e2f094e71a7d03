// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <filesystem>

namespace zol::test {

/// A print server of its own, in a folder of its own, reached through a socket there: no service of
/// the system is touched. Its printers keep what they print as PDFs. Printers, and the programs
/// that look for them, find it through the environment of this process. Runs for any user, and
/// needs no more than the server's program (package cups-daemon) and its tools (cups-client).
class PrivateCups {
public:
    /// Whether the programs are installed.
    [[nodiscard]] static bool IsInstalled();

    PrivateCups() = default;
    ~PrivateCups();
    PrivateCups(const PrivateCups&) = delete;
    PrivateCups& operator=(const PrivateCups&) = delete;

    /// False if it does not answer; Complaints says why.
    [[nodiscard]] bool Start();
    [[nodiscard]] QString Complaints() const;

    /// A4 paper with a border of a quarter of an inch. The first one is the default.
    [[nodiscard]] bool AddPrinter(const QString& name);
    bool RemovePrinter(const QString& name);
    /// A paused printer takes jobs and keeps them.
    [[nodiscard]] bool Pause(const QString& name);
    [[nodiscard]] bool GoOn(const QString& name);
    /// A printer that refuses takes no jobs.
    [[nodiscard]] bool Refuse(const QString& name);

    /// What has been printed so far, in the order of the jobs.
    [[nodiscard]] QStringList Printed() const;
    /// Title, copies and options of a printed job.
    [[nodiscard]] static QString OptionsOf(const QString& pdf);
    /// Jobs that wait in a queue.
    [[nodiscard]] int Waiting() const;

private:
    [[nodiscard]] QString Path(const QString& name) const { return m_folder.filePath(name); }
    void Write(const QString& name, const QByteArray& text) const;
    void WriteConfiguration() const;

    QTemporaryDir m_folder;
    QProcess m_server;
};

} // namespace zol::test
