// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <functional>
#include <memory>
#include <optional>

#include "files/PatternDesign.h"
#include "print/ChartReading.h"
#include "print/PrintScene.h"
#include "print/windows/PrintDesk.h"
#include "print/windows/frmPrintOptions.h"
#include "settings/basOptions.h"
#include "support/DialogHands.h"
#include "support/RecordingDoors.h"
#include "support/ScriptedPrinter.h"
#include "support/ScriptedUser.h"

namespace zol::test {

/// A design of 100 by 120 squares with what print windows work with, and the print options dialog
/// over it, driven by mouse and keys.
class PrintWindow {
public:
    PrintWindow() {
        FillWithStitches(*Design, 12);
        Settings = basOptions::BuiltInOptions(Scene.context);
        Settings.Units = "inches";
        Settings.TextInfoFontName = "Arial";
        Settings.StitchSymbol = PrintBlackSymbols;
        Settings.BackStitchSymbol = PrintBlackLines;
        Printers.others = QStringList{QStringLiteral("Loom"), QStringLiteral("Frame")};
    }

    void Open(PrintPlan::Form form = PrintPlan::Form::Pattern) { OpenOn(Printers, form); }
    void OpenOn(PrinterDoor& printers, PrintPlan::Form form = PrintPlan::Form::Pattern) {
        MakeDesk(printers);
        Dialog = std::make_unique<frmPrintOptions>(*Desk, form, nullptr);
        Dialog->show();
        Dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(Dialog.get()));
    }
    void MakeDesk(PrinterDoor& printers) {
        Desk.emplace(PrintDesk{Holder, Scene.context, Settings, Store, User, User, printers, GSPI,
                               [this] { return Selected; },
                               [this](QWidget* parent) {
                                   ++OptionsOpened;
                                   if (InOptions) {
                                       InOptions(parent);
                                   }
                               }});
    }

    template<typename Widget = QWidget>
    [[nodiscard]] Widget& Find(const char* name) {
        return PartOf<Widget>(*Dialog, name);
    }
    void Click(const char* name) { ClickIn(*Dialog, name); }
    void Type(const char* field, const char* keys) { TypeIn(*Dialog, field, QLatin1String(keys)); }
    [[nodiscard]] QString Text(const char* field) { return Find<QLineEdit>(field).text(); }
    [[nodiscard]] QString AllPages() { return Find<QRadioButton>("optPages0").text(); }
    /// The last message's text.
    [[nodiscard]] std::string Told() const {
        return User.told.empty() ? "" : User.told.back().text;
    }
    [[nodiscard]] std::size_t PagesPrinted() const { return Printers.device.printed.size(); }

    PrintScene Scene;
    std::unique_ptr<Pattern> Design = Scene.MakePattern(100, 120);
    DesignHolder Holder{std::make_unique<PatternDesign>(*Design, "rose.pat")};
    Options Settings;
    MapSettings Store;
    ScriptedUser User;
    ScriptedPrinter Printers;
    double GSPI = 10;
    std::optional<SelectedArea> Selected;
    int OptionsOpened = 0;
    std::function<void(QWidget* parent)> InOptions;
    std::optional<PrintDesk> Desk;
    std::unique_ptr<frmPrintOptions> Dialog;
};

} // namespace zol::test
