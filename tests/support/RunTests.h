// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <iostream>
#include <string_view>

namespace tarsil::test {

/// The main function of a test program. Every test runs with the locale of its environment in
/// force, as in the real program, and first checks that this locale is active.
template <typename Application>
int runTests(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    const Application application(argc, argv);
    std::setlocale(LC_ALL, "");
    const char* const point = std::getenv("TARSIL_TEST_POINT");
    if (point != nullptr && std::string_view(std::localeconv()->decimal_point) != point) {
        std::cerr << "The locale of this run has no decimal point \"" << point << "\".\n";
        return EXIT_FAILURE;
    }
    return RUN_ALL_TESTS();
}

} // namespace tarsil::test
