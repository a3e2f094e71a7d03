// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "print/PageDevice.h"

class QWidget;

namespace zol {

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
    /// The current printer's pages; null without one. Stays the same object until ChoosePrinter
    /// has been answered.
    [[nodiscard]] virtual PageDevice* Printer() = 0;
    /// Lets the user choose a printer, its paper and its settings. False: cancelled, all stays.
    virtual bool ChoosePrinter(QWidget* parent) = 0;
    /// The name that the next document goes by in the printer's queue.
    virtual void NameDocument(const QString& name) = 0;
};

} // namespace zol
