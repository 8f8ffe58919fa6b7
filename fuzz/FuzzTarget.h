#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

/// What libFuzzer calls with every input; the seed runner calls it too. Returns 0. Anything but a
/// `RunTimeError` that leaves a reader, and every broken promise, ends the program.
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
