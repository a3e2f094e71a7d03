// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/WithinMemory.h"

#include "import/ImportMessages.h"
#include "model/Doors.h"
#include "model/RunTimeError.h"

namespace zol {

void TellOutOfMemory(MessageDoor& messages) {
    messages.TellMore(
        RunTimeErrorText(ErrOutOfMemory),
        "This step was not carried out. Close other programs, or begin with a smaller "
        "picture.",
        MessageIcon::Exclamation, ImportMessages::Title);
}

} // namespace zol
