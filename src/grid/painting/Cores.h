// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace zol {

/// Work in numbered pieces, done on several of the machine's cores at once. Pieces must not depend
/// on each other, nor on which comes first.
namespace Cores {

/// How many the machine lets this program use, 1 at least.
[[nodiscard]] int Count();

/// `worker` tells apart those that are at work at the same time: 0 to one less than their number.
using Work = std::function<void(int worker, int piece)>;

/// Does the pieces 0 to `pieces` - 1, each once, and returns when all are done. The caller works
/// too, as worker 0; of the others those come that are free, so nothing waits for another task to
/// end. What a piece throws is thrown here, once no piece is in work; pieces that nobody has begun
/// are left out then.
void Run(int workers, int pieces, const Work& work);

} // namespace Cores

} // namespace zol
