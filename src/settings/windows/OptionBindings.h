// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "settings/Options.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace zol {

/// Which control shows which option, both ways. A list whose options has a value that it does not
/// offer shows nothing and leaves that value alone.
class OptionBindings {
public:
    enum class Sense { Straight, Reversed };

    void Bind(QComboBox& combo, int Options::*member);
    void Bind(QCheckBox& box, bool Options::*member, Sense sense = Sense::Straight);
    void Bind(QCheckBox& box, int Options::*member); ///< 1 or 0
    void Bind(QLineEdit& field, std::string Options::*member);

    void Load(const Options& options) const;
    void Store(Options& options) const;

private:
    struct Binding {
        std::function<void(const Options&)> Load;
        std::function<void(Options&)> Store;
    };

    std::vector<Binding> m_bindings;
};

} // namespace zol
