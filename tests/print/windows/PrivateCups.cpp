// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/PrivateCups.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTest>

namespace zol::test {

namespace {

constexpr int StartMilliseconds = 10000;

/// The border is a quarter of an inch on each side. A PDF goes through as it is.
constexpr char PrinterDescription[] = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "LOOM.PPD"
*Product: "(Loom)"
*Manufacturer: "Loom"
*ModelName: "Loom"
*ShortNickName: "Loom"
*NickName: "Loom"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*cupsVersion: 2.4
*cupsManualCopies: False
*cupsFilter2: "application/pdf application/pdf 0 -"
*OpenUI *PageSize/Media Size: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: ""
*PageSize Letter/Letter: ""
*CloseUI: *PageSize
*OpenUI *PageRegion/Media Size: PickOne
*DefaultPageRegion: A4
*PageRegion A4/A4: ""
*PageRegion Letter/Letter: ""
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "18 18 577 824"
*ImageableArea Letter/Letter: "18 18 594 774"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*PaperDimension Letter/Letter: "612 792"
)PPD";

/// What stands for the printer: it keeps the job's file and what it was asked with.
constexpr char PrinterItself[] = R"SH(#!/bin/sh
if [ $# -eq 0 ]; then echo 'direct loom "Loom" "Loom"'; exit 0; fi
to="${DEVICE_URI#loom:}/$(printf %04d "$1")"
printf '%s\n' "$3" "$4" "$5" > "$to.options"
if [ $# -ge 6 ]; then cat "$6"; else cat; fi > "$to.part" && mv "$to.part" "$to.pdf"
)SH";

QString Find(const QString& program) {
    const QString found = QStandardPaths::findExecutable(program);
    return found.isEmpty()
               ? QStandardPaths::findExecutable(
                     program, {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/local/sbin")})
               : found;
}

bool Run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(Find(program), arguments);
    return process.waitForFinished(StartMilliseconds) && process.exitCode() == 0;
}

} // namespace

bool PrivateCups::IsInstalled() {
    for (const char* program : {"cupsd", "lpadmin", "cupsdisable", "lpstat"}) {
        if (Find(QLatin1String(program)).isEmpty()) {
            return false;
        }
    }
    return true;
}

PrivateCups::~PrivateCups() {
    if (m_server.state() != QProcess::NotRunning) {
        m_server.terminate();
        if (!m_server.waitForFinished(StartMilliseconds)) {
            m_server.kill();
            m_server.waitForFinished();
        }
    }
    qunsetenv("CUPS_SERVER");
}

void PrivateCups::Write(const QString& name, const QByteArray& text) const {
    QFile file(Path(name));
    QVERIFY2(file.open(QIODevice::WriteOnly) && file.write(text) == text.size(), qPrintable(name));
}

void PrivateCups::WriteConfiguration() const {
    const QByteArray root = m_folder.path().toUtf8();
    // A server that root starts works for a plain user; one of a plain user stays that user's.
    Write(QStringLiteral("root/cups-files.conf"),
          "User lp\nGroup lp\nSystemGroup root\nServerRoot " + root + "/root\nServerBin " + root +
              "/bin\nCacheDir " + root + "/cache\nStateDir " + root + "/state\nRequestRoot " +
              root + "/spool\nTempDir " + root + "/spool/tmp\nAccessLog " + root +
              "/log/access\nErrorLog " + root + "/log/error\nPageLog " + root +
              "/log/page\nSandboxing relaxed\n");
    Write(QStringLiteral("root/cupsd.conf"),
          "LogLevel warn\nMaxLogSize 0\nListen " + root +
              "/socket\nBrowsing Off\nWebInterface No\nDefaultAuthType None\n"
              "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
              "<Policy default>\nJobPrivateAccess all\nJobPrivateValues none\n"
              "SubscriptionPrivateAccess all\nSubscriptionPrivateValues none\n"
              "<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n");
    Write(QStringLiteral("loom.ppd"), PrinterDescription);
    Write(QStringLiteral("bin/backend/loom"), PrinterItself);
    // Not for others: then it runs as who started the server, and reaches this folder.
    QFile::setPermissions(Path(QStringLiteral("bin/backend/loom")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile::link(QStringLiteral("/usr/lib/cups/daemon"), Path(QStringLiteral("bin/daemon")));
}

bool PrivateCups::Start() {
    for (const char* folder : {"root/ppd", "spool/tmp", "cache", "state", "log", "printed",
                               "bin/backend", "bin/filter"}) {
        if (!QDir(m_folder.path()).mkpath(QLatin1String(folder))) {
            return false;
        }
    }
    WriteConfiguration();
    qputenv("CUPS_SERVER", Path(QStringLiteral("socket")).toUtf8());
    m_server.start(Find(QStringLiteral("cupsd")),
                   {QStringLiteral("-f"), QStringLiteral("-c"),
                    Path(QStringLiteral("root/cupsd.conf")), QStringLiteral("-s"),
                    Path(QStringLiteral("root/cups-files.conf"))});
    return m_server.waitForStarted(StartMilliseconds) &&
           QTest::qWaitFor(
               [this] {
                   return m_server.state() == QProcess::NotRunning ||
                          QFile::exists(Path(QStringLiteral("socket")));
               },
               StartMilliseconds) &&
           m_server.state() == QProcess::Running;
}

QString PrivateCups::Complaints() const {
    QFile log(Path(QStringLiteral("log/error")));
    return log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readAll()) : QString();
}

bool PrivateCups::AddPrinter(const QString& name) {
    const bool isFirst = QDir(Path(QStringLiteral("root/ppd"))).entryList(QDir::Files).isEmpty();
    return Run(QStringLiteral("lpadmin"),
               {QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                QStringLiteral("loom:") + Path(QStringLiteral("printed")), QStringLiteral("-P"),
                Path(QStringLiteral("loom.ppd"))}) &&
           (!isFirst || Run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), name}));
}

bool PrivateCups::RemovePrinter(const QString& name) {
    return Run(QStringLiteral("lpadmin"), {QStringLiteral("-x"), name});
}

bool PrivateCups::Pause(const QString& name) {
    return Run(QStringLiteral("cupsdisable"), {name});
}

bool PrivateCups::GoOn(const QString& name) {
    return Run(QStringLiteral("cupsenable"), {name}) && Run(QStringLiteral("cupsaccept"), {name});
}

bool PrivateCups::Refuse(const QString& name) {
    return Run(QStringLiteral("cupsreject"), {name});
}

QStringList PrivateCups::Printed() const {
    QStringList files;
    const QDir folder(Path(QStringLiteral("printed")));
    for (const QString& name :
         folder.entryList({QStringLiteral("*.pdf")}, QDir::Files, QDir::Name)) {
        files << folder.filePath(name);
    }
    return files;
}

QString PrivateCups::OptionsOf(const QString& pdf) {
    QFile file(pdf.chopped(3) + QStringLiteral("options"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

int PrivateCups::Waiting() const {
    QProcess process;
    process.start(Find(QStringLiteral("lpstat")), {QStringLiteral("-o")});
    process.waitForFinished(StartMilliseconds);
    return static_cast<int>(process.readAllStandardOutput().count('\n'));
}

} // namespace zol::test
