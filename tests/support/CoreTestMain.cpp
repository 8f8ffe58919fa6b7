// SPDX-License-Identifier: Apache-2.0
#include "support/RunTests.h"

namespace {

/// Stands for the application object of the tests with Qt.
struct NoApplication
{
    NoApplication(int /*argc*/, char** /*argv*/) { }
};

} // namespace

int main(int argc, char** argv)
{
    return tarsil::test::runTests<NoApplication>(argc, argv);
}
