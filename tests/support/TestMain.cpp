// SPDX-License-Identifier: Apache-2.0
#include "support/RunTests.h"

#include <QGuiApplication>

int main(int argc, char** argv)
{
    return tarsil::test::runTests<QGuiApplication>(argc, argv);
}
