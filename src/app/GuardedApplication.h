// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "app/HintColor.h"
#include "app/KeysInToolTips.h"
#include "app/PlainMessageBoxes.h"
#include "base/user/ErrorGuard.h"
#include "base/user/UserInterface.h"

#include <QApplication>
#include <QEvent>

#include <cstdio>
#include <new>

namespace tarsil {

/// Catches exceptions that an event handler did not: they are reported, and the program continues
/// with the user's unsaved work. All message boxes show plain text, and tool tips of buttons their
/// keys.
class GuardedApplication : public QApplication
{
public:
    /// `userInterface` must outlive the last event.
    GuardedApplication(int& argc, char** argv, UserInterface& userInterface)
        : QApplication(argc, argv), m_userInterface(userInterface)
    {
        installEventFilter(&m_plainMessageBoxes);
        installEventFilter(&m_keysInToolTips);
        makeHintsReadable();
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

protected:
    bool event(QEvent* event) override
    {
        const bool isHandled = QApplication::event(event);
        if (event->type() == QEvent::ApplicationPaletteChange)
            makeHintsReadable();
        return isHandled;
    }

private:
    UserInterface& m_userInterface;
    PlainMessageBoxes m_plainMessageBoxes;
    KeysInToolTips m_keysInToolTips;
};

} // namespace tarsil
