// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <new>

namespace zol {

class MessageDoor;

/// Says that there is not memory enough for what the user wanted done.
void TellOutOfMemory(MessageDoor& messages);

/// Runs what a control of the import wizard is for: pictures are large, and most steps make a copy
/// of one. Where there is no memory for it the user is told and the answer is false; work that
/// gets its memory before it changes anything has then left all as it was.
template<typename Work>
bool WithinMemory(MessageDoor& messages, const Work& work) {
    try {
        work();
        return true;
    } catch (const std::bad_alloc&) {
        TellOutOfMemory(messages);
        return false;
    }
}

} // namespace zol
