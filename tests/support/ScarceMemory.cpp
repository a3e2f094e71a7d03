// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "support/ScarceMemory.h"

#include <cstdlib>
#include <new>

void* operator new(std::size_t size) {
    void* const piece =
        zol::test::ScarceMemory::Refuses(size) ? nullptr : std::malloc(size > 0 ? size : 1);
    if (piece == nullptr) {
        throw std::bad_alloc();
    }
    return piece;
}

void operator delete(void* piece) noexcept {
    std::free(piece);
}

void operator delete(void* piece, std::size_t /*size*/) noexcept {
    std::free(piece);
}
