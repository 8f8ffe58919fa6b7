// SPDX-License-Identifier: Apache-2.0
#include "FuzzReader.h"

#include "formats/Ev2Format.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return tarsil::fuzz::readTwice(tarsil::fuzz::textOf(data, size), tarsil::readEv2);
}
