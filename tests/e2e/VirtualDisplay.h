// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/TestFiles.h"

#include <QImage>
#include <QProcess>

#include <functional>

namespace tarsil::test {

/// A private X server with a screen of 1000 x 800 pixels that is mapped to a file.
class VirtualDisplay
{
public:
    VirtualDisplay();
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

    /// The name of the display (":5"); empty when the server did not start.
    const QString& name() const { return m_name; }

    /// The present contents of the screen.
    QImage screen() const;

    /// Polls the screen until `condition` is true. False after half a minute.
    bool waitForScreen(const std::function<bool(const QImage&)>& condition) const;

private:
    TemporaryFolder m_folder;
    QProcess m_server;
    QString m_name;
};

} // namespace tarsil::test
