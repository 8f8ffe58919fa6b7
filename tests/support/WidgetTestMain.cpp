// SPDX-License-Identifier: Apache-2.0
#include "support/RunTests.h"

#include <QApplication>

// The main function of test programs with widgets.
int main(int argc, char** argv)
{
    return tarsil::test::runTests<QApplication>(argc, argv);
}
