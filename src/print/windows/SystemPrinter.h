// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPageLayout>

#include <memory>
#include <string>

#include "print/windows/CupsQueue.h"
#include "print/windows/PrinterDoor.h"
#include "print/windows/SpooledPages.h"

class QPrinter;

namespace zol {

/// The printers of the system. It is asked about them only when somebody needs to know, since the
/// print server may take its time.
class SystemPrinter : public PrinterDoor {
public:
    SystemPrinter();
    ~SystemPrinter() override;

    [[nodiscard]] bool IsPrinterDefined() override;
    [[nodiscard]] QString DeviceName() const override;
    [[nodiscard]] PageDevice* Printer() override;
    bool ChoosePrinter(QWidget* parent) override;
    void NameDocument(const QString& name) override;
    bool SelectPrinter(const QString& deviceName) override;
    [[nodiscard]] PrinterState State() override;
    [[nodiscard]] QPageLayout Paper() const override { return m_pages.Paper(); }
    [[nodiscard]] std::optional<QMarginsF> SetUpPage(QWidget* parent,
                                                     const QMarginsF& margins) override;

private:
    void Take(const QString& deviceName);
    void FollowPaper();
    [[nodiscard]] CupsQueue::JobOptions OptionsOfJob() const;
    [[nodiscard]] std::string HandOver(const std::filesystem::path& pdf) const;

    std::unique_ptr<QPrinter>
        m_printer; ///< what the dialogs of the system set up; null without one
    QString m_document;
    SpooledPages m_pages;
};

} // namespace zol
