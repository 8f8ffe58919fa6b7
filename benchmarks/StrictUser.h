// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/SilentUser.h"

#include <cstdlib>
#include <iostream>

namespace tarsil::benchmarks {

/// A user who refuses everything; a message ends the benchmark.
class StrictUser : public test::SilentUser
{
public:
    void showMessage(const std::string& text, const std::string& /*title*/,
                     MessageIcon /*icon*/) override
    {
        std::cerr << text << '\n';
        std::exit(EXIT_FAILURE);
    }
};

} // namespace tarsil::benchmarks
