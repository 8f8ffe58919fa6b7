// SPDX-License-Identifier: Apache-2.0

// Input on a real display while an operation runs.

#include "Hands.h"
#include "VirtualDisplay.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

namespace tarsil::test {

namespace {

/// The program of `busy/BusyProgram.cpp`. Destruction ends it.
class BusyProgram
{
public:
    explicit BusyProgram(const VirtualDisplay& display)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), display.name());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(TARSIL_BUSY),
                        {QString::fromStdString(m_folder.path().string())});
    }
    ~BusyProgram()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    BusyProgram(const BusyProgram&) = delete;
    BusyProgram& operator=(const BusyProgram&) = delete;

    void endOperation() const { m_folder.write("end", ""); }
    bool waitForFile(const char* name) const
    {
        return waitUntil(
            [this, name] { return QFile::exists(QString::fromStdString(m_folder.file(name))); });
    }

private:
    TemporaryFolder m_folder;
    QProcess m_process;
};

} // namespace

/// The click is the last event of the display, so that nothing else wakes the program.
TEST(InputMeanwhile, actsWhenTheOperationHasEnded)
{
    constexpr QPoint leftButton(100, 80);
    constexpr QPoint rightButton(300, 80);
    const VirtualDisplay display;
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    const BusyProgram program(display);
    Hands hands(display.name());
    ASSERT_TRUE(hands.focusNew(QStringLiteral("^Busy$")));
    hands.click(leftButton);
    ASSERT_TRUE(program.waitForFile("begun"));
    hands.click(rightButton);
    program.endOperation();
    EXPECT_TRUE(program.waitForFile("next"));
}

} // namespace tarsil::test
