// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMarginsF>
#include <QPageLayout>
#include <QString>

#include <optional>

#include "print/PageDevice.h"

class QWidget;

namespace zol {

/// What a printer's queue does with a job that comes now.
enum class PrinterState {
    Ready,
    Paused,   ///< takes it and keeps it until the printer goes on
    Refusing, ///< takes no jobs
    Gone      ///< is not there any more
};

/// The printer that jobs go to, and the way to another one. The program brings the system's
/// printers, a test brings its own.
class PrinterDoor {
public:
    PrinterDoor() = default;
    virtual ~PrinterDoor();
    PrinterDoor(const PrinterDoor&) = delete;
    PrinterDoor& operator=(const PrinterDoor&) = delete;

    /// False where the system knows no printer. Asks the system, so that a printer that was
    /// plugged in meanwhile is found.
    [[nodiscard]] virtual bool IsPrinterDefined() = 0;
    /// The current printer's device name; empty without one.
    [[nodiscard]] virtual QString DeviceName() const = 0;
    /// The current printer's pages; null without one. Stays the same object; its measures follow
    /// another printer or paper.
    [[nodiscard]] virtual PageDevice* Printer() = 0;
    /// Lets the user choose a printer, its paper and its settings. False: cancelled, all stays.
    virtual bool ChoosePrinter(QWidget* parent) = 0;
    /// The name that the next document goes by in the printer's queue.
    virtual void NameDocument(const QString& name) = 0;

    /// Takes the printer of that device name. False if it is not there; the current one stays.
    virtual bool SelectPrinter(const QString& deviceName) = 0;
    /// Asks the system about the current printer.
    [[nodiscard]] virtual PrinterState State() = 0;
    /// The chosen paper, with the printer's border as its margins. Without a printer the paper
    /// that a PDF is written for, without a border.
    [[nodiscard]] virtual QPageLayout Paper() const = 0;
    /// Lets the user choose paper and margins, also without a printer. The margins are inches;
    /// nothing if the user cancelled.
    [[nodiscard]] virtual std::optional<QMarginsF> SetUpPage(QWidget* parent,
                                                             const QMarginsF& margins) = 0;
};

} // namespace zol
