// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

/// Called by libFuzzer for every input, and by the seed runner. Returns 0. An exception other than
/// `RunTimeError`, or a violated requirement, ends the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tarsil::fuzz {

inline std::string_view textOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

inline void require(bool holds, const char* promise)
{
    if (holds)
        return;
    std::cerr << "broken: " << promise << '\n';
    std::abort();
}

} // namespace tarsil::fuzz
