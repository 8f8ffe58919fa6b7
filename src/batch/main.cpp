// SPDX-License-Identifier: Apache-2.0
#include "base/files/TemporaryFile.h"
#include "base/text/TextCodec.h"
#include "batch/Batch.h"

#include <QGuiApplication>

#include <iostream>
#include <memory>
#include <new>
#include <string>
#include <vector>

namespace {

/// Suppresses Qt's messages about its environment.
void keepQuiet(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::cerr << "tarsil-batch: " << tarsil::printableText(message.toStdString()) << '\n';
}

} // namespace

int main(int argc, char** argv)
try {
    tarsil::removeTemporariesOnSignals();
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    // Only pictures need fonts and so Qt Gui; no display is needed in any case.
    std::unique_ptr<QGuiApplication> application;
    if (tarsil::batch::drawsPicture(arguments)) {
        qInstallMessageHandler(keepQuiet);
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QGuiApplication>(argc, argv);
    }
    return tarsil::batch::runBatch(arguments, std::cout, std::cerr);
} catch (const std::bad_alloc&) {
    std::cerr << "tarsil-batch: out of memory\n";
    return 1;
}
