// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/PrinterDoor.h"

namespace zol {

PrinterDoor::~PrinterDoor() = default;

} // namespace zol
