#pragma once

#include "support/TestFiles.h"

#include <QImage>
#include <QProcess>

#include <functional>

namespace tarsil::test {

/// An X server of its own, with a screen of 1000 x 800 pixels in a file that can be looked at.
class VirtualDisplay
{
public:
    VirtualDisplay();
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

    /// The name of the display (":5"); empty when the server did not start.
    const QString& name() const { return m_name; }

    /// What is on the screen now.
    QImage screen() const;

    /// Looks at the screen until `condition` holds; false when it does not within half a minute.
    bool waitForScreen(const std::function<bool(const QImage&)>& condition) const;

private:
    TemporaryFolder m_folder;
    QProcess m_server;
    QString m_name;
};

} // namespace tarsil::test
