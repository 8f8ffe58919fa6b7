#include "batch/BatchFixture.h"

#include <QImage>
#include <QProcess>

#include <gmock/gmock.h>

using namespace tarsil;
using ::testing::HasSubstr;

namespace {

/// The real executable.
class Program : public test::BatchFixture
{
protected:
    static test::BatchResult run(const std::vector<std::string>& arguments,
                                 const QString& outputFile = {})
    {
        QStringList list;
        for (const std::string& argument : arguments)
            list << QString::fromStdString(argument);
        QProcess process;
        // It must draw without a display, and without being told so.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        environment.remove(QStringLiteral("DISPLAY"));
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        process.setProcessEnvironment(environment);
        if (!outputFile.isEmpty())
            process.setStandardOutputFile(outputFile);
        process.start(QStringLiteral(TARSIL_BATCH), list);
        EXPECT_TRUE(process.waitForFinished(60000)) << process.errorString().toStdString();
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput().toStdString(),
                process.readAllStandardError().toStdString()};
    }
};

} // namespace

TEST_F(Program, printsOnStandardOutput)
{
    const auto result = run({"info", writeEv2()});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("QRX190"));
    EXPECT_EQ(result.err, "");
}

TEST_F(Program, complainsOnStandardError)
{
    const auto result = run({"info", file("missing.ev2")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, HasSubstr("missing.ev2"));
    EXPECT_EQ(run({}).status, 2);
}

TEST_F(Program, failsWhenStandardOutputIsFull)
{
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "no device that is always full";
    const auto result = run({"info", writeEv2()}, QStringLiteral("/dev/full"));
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("standard output cannot be written"));
}

TEST_F(Program, drawsWithoutADisplay)
{
    const auto result = run({"picture", "--output", file("out.png"), writeEv2()});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out + result.err, "");
    EXPECT_FALSE(QImage(QString::fromStdString(file("out.png"))).isNull());
}
