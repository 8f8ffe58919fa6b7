#pragma once

#include "app/PlainMessageBoxes.h"
#include "base/user/ErrorGuard.h"
#include "base/user/UserInterface.h"

#include <QApplication>

#include <cstdio>
#include <new>

namespace tarsil {

/// The last guard: what an event's handler lets through becomes the one report, and the program
/// goes on, with all that the user has not saved yet. All message boxes are plain text.
class GuardedApplication : public QApplication
{
public:
    /// `userInterface` must outlive the application's last event.
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
        } catch (const std::bad_alloc&) { // there was not even enough for the report
            std::fputs("tarsil: out of memory\n", stderr);
        }
        return result;
    }

private:
    UserInterface& m_userInterface;
    PlainMessageBoxes m_plainMessageBoxes;
};

} // namespace tarsil
