// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/CupsQueue.h"

#include <QStringList>

#include <cups/cups.h>

#include <cstring>
#include <memory>

namespace zol::CupsQueue {

namespace {

constexpr char StateStopped[] = "5"; ///< IPP's printer-state of a paused printer

/// "office/duplex" is the printer "office" with a set of its own options.
QByteArray QueueOf(const QString& printer) {
    return printer.section(QLatin1Char('/'), 0, 0).toUtf8();
}

struct DestDeleter {
    void operator()(cups_dest_t* dest) const { cupsFreeDests(1, dest); }
};

class OptionList {
public:
    OptionList() = default;
    ~OptionList() { cupsFreeOptions(m_count, m_options); }
    OptionList(const OptionList&) = delete;
    OptionList& operator=(const OptionList&) = delete;

    void Add(const QByteArray& name, const QByteArray& value) {
        m_count = cupsAddOption(name.constData(), value.constData(), m_count, &m_options);
    }
    [[nodiscard]] int Count() const { return m_count; }
    [[nodiscard]] cups_option_t* Data() const { return m_options; }

private:
    int m_count = 0;
    cups_option_t* m_options = nullptr;
};

} // namespace

PrinterState StateOf(const QString& printer) {
    const std::unique_ptr<cups_dest_t, DestDeleter> dest(
        cupsGetNamedDest(CUPS_HTTP_DEFAULT, QueueOf(printer).constData(), nullptr));
    if (dest == nullptr) {
        return PrinterState::Gone;
    }
    const auto valueOf = [&dest](const char* name) {
        const char* value = cupsGetOption(name, dest->num_options, dest->options);
        return value == nullptr ? "" : value;
    };
    if (std::strcmp(valueOf("printer-is-accepting-jobs"), "false") == 0) {
        return PrinterState::Refusing;
    }
    return std::strcmp(valueOf("printer-state"), StateStopped) == 0 ? PrinterState::Paused
                                                                    : PrinterState::Ready;
}

std::string Submit(const QString& printer, const std::filesystem::path& file, const QString& title,
                   const JobOptions& options) {
    OptionList list;
    for (const auto& [name, value] : options) {
        list.Add(name, value);
    }
    const int job = cupsPrintFile(QueueOf(printer).constData(), file.c_str(),
                                  title.toUtf8().constData(), list.Count(), list.Data());
    return job == 0 ? std::string(cupsLastErrorString()) : std::string();
}

} // namespace zol::CupsQueue
