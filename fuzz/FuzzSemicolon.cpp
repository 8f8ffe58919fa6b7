// SPDX-License-Identifier: Apache-2.0
#include "FuzzReader.h"

#include "formats/SemicolonReader.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return tarsil::fuzz::readTwice(tarsil::fuzz::textOf(data, size), tarsil::readSemicolonTable);
}
