#include "VirtualDisplay.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QSet>

#include <gtest/gtest.h>

namespace tarsil::test {

namespace {

/// The program on a display; it is asked to end with the object.
class Program
{
public:
    Program(const VirtualDisplay& display, const QStringList& arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), display.name());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start(QStringLiteral(TARSIL_PROGRAM), arguments);
    }

    ~Program()
    {
        m_process.terminate();
        if (!m_process.waitForFinished())
            m_process.kill();
    }

    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    bool isRunning()
    {
        return !m_process.waitForFinished(0) && m_process.state() != QProcess::NotRunning;
    }

private:
    QProcess m_process;
};

QSet<QRgb> colorsOf(const QImage& picture)
{
    QSet<QRgb> colors;
    for (int row = 0; row < picture.height(); ++row) {
        for (int column = 0; column < picture.width(); ++column)
            colors.insert(picture.pixel(column, row) | 0xFF000000U);
    }
    return colors;
}

/// The full colours of the first three curves: a line along the pixels shows them unmixed.
bool showsCurves(const QImage& screen)
{
    const QSet<QRgb> colors = colorsOf(screen);
    return colors.contains(qRgb(128, 128, 128)) && colors.contains(qRgb(0, 0, 255))
        && colors.contains(qRgb(0, 128, 0));
}

} // namespace

TEST(RealProgram, showsTheCurvesOfAFileOnTheScreen)
{
    const VirtualDisplay display;
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    ASSERT_FALSE(showsCurves(display.screen()));
    Program program(display, {QString::fromStdString(sample("goland_clean_m040.ev2"))});
    EXPECT_TRUE(display.waitForScreen(showsCurves));
    EXPECT_TRUE(program.isRunning());
}

TEST(RealProgram, drawsTheOtherFilesWhenOneIsMissing)
{
    const VirtualDisplay display;
    ASSERT_FALSE(display.name().isEmpty()) << "Xvfb did not start";
    Program program(display,
                    {QStringLiteral("no-such-file.ev2"),
                     QString::fromStdString(sample("goland_clean_m040.ev2"))});
    EXPECT_TRUE(display.waitForScreen(showsCurves));
    EXPECT_TRUE(program.isRunning());
}

} // namespace tarsil::test
