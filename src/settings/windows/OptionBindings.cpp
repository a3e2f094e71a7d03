// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/windows/OptionBindings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include "windowkit/ComboItems.h"

namespace zol {

void OptionBindings::Bind(QComboBox& combo, int Options::*member) {
    m_bindings.push_back(
        {[&combo, member](const Options& options) { SetCombo(combo, options.*member); },
         [&combo, member](Options& options) {
             if (combo.currentIndex() >= 0) {
                 options.*member = combo.currentData().toInt();
             }
         }});
}

void OptionBindings::Bind(QCheckBox& box, bool Options::*member, Sense sense) {
    const bool ticked = sense == Sense::Straight;
    m_bindings.push_back({[&box, member, ticked](const Options& options) {
                              box.setChecked(options.*member == ticked);
                          },
                          [&box, member, ticked](Options& options) {
                              options.*member = box.isChecked() == ticked;
                          }});
}

void OptionBindings::Bind(QCheckBox& box, int Options::*member) {
    m_bindings.push_back(
        {[&box, member](const Options& options) { box.setChecked(options.*member != 0); },
         [&box, member](Options& options) { options.*member = box.isChecked() ? 1 : 0; }});
}

void OptionBindings::Bind(QLineEdit& field, std::string Options::*member) {
    m_bindings.push_back(
        {[&field, member](const Options& options) {
             field.setText(QString::fromStdString(options.*member));
         },
         [&field, member](Options& options) { options.*member = field.text().toStdString(); }});
}

void OptionBindings::Load(const Options& options) const {
    for (const Binding& binding : m_bindings) {
        binding.Load(options);
    }
}

void OptionBindings::Store(Options& options) const {
    for (const Binding& binding : m_bindings) {
        binding.Store(options);
    }
}

} // namespace zol
