// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

#include <malloc.h>

namespace tarsil::test {

/// The bytes that are allocated now; 0 where the sanitizers replace the allocator.
inline std::size_t heapInUse()
{
    return mallinfo2().uordblks;
}

} // namespace tarsil::test
