// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>

#include <exception>
#include <functional>
#include <utility>

namespace zol {

/// The last net under everything that events set off: an exception that no command has caught is
/// told, and the program goes on with the work that is open in it.
class GuardedApplication : public QApplication {
public:
    using FaultTeller = std::function<void(const std::exception&)>;

    GuardedApplication(int& argc, char** argv) : QApplication(argc, argv) {}

    /// Until it is set, and while it already tells one, a fault goes to the standard error.
    void SetFaultTeller(FaultTeller teller) { m_teller = std::move(teller); }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void Tell(const std::exception& fault);

    FaultTeller m_teller;
    bool m_telling = false;
};

} // namespace zol
