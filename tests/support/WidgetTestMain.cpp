#include "support/RunTests.h"

#include <QApplication>

// The main function of the test programs that make widgets.
int main(int argc, char** argv)
{
    return tarsil::test::runTests<QApplication>(argc, argv);
}
