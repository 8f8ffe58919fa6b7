// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "app/PlainMessageBoxes.h"
#include "base/user/ErrorGuard.h"
#include "base/user/UserInterface.h"

#include <QApplication>

#include <cstdio>
#include <new>

namespace tarsil {

/// Catches exceptions that an event handler did not: they are reported, and the program continues
/// with the user's unsaved work. All message boxes show plain text.
class GuardedApplication : public QApplication
{
public:
    /// `userInterface` must outlive the last event.
    GuardedApplication(int& argc, char** argv, UserInterface& userInterface)
        : QApplication(argc, argv), m_userInterface(userInterface)
    {
        installEventFilter(&m_plainMessageBoxes);
    }

    bool notify(QObject* receiver, QEvent* event) override
    {
        bool result = false;
        try {
            guarded(m_userInterface, "tarsil",
                    [&] { result = QApplication::notify(receiver, event); });
        } catch (const std::bad_alloc&) { // not enough memory even for the report
            std::fputs("tarsil: out of memory\n", stderr);
        }
        return result;
    }

private:
    UserInterface& m_userInterface;
    PlainMessageBoxes m_plainMessageBoxes;
};

} // namespace tarsil
