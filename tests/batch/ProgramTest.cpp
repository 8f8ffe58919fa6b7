// SPDX-License-Identifier: Apache-2.0
#include "batch/BatchFixture.h"

#include <QImage>
#include <QProcess>

#include <gmock/gmock.h>

using namespace tarsil;
using ::testing::HasSubstr;

namespace {

/// Runs the real executable.
class Program : public test::BatchFixture
{
protected:
    static test::BatchResult run(const std::vector<std::string>& arguments,
                                 const QString& outputFile = {})
    {
        return runProgram(QStringLiteral(TARSIL_BATCH), arguments, outputFile);
    }

    static test::BatchResult runProgram(const QString& program,
                                        const std::vector<std::string>& arguments,
                                        const QString& outputFile = {})
    {
        QStringList list;
        for (const std::string& argument : arguments)
            list << QString::fromStdString(argument);
        QProcess process;
        // It must draw without a display and without this variable.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        environment.remove(QStringLiteral("DISPLAY"));
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        process.setProcessEnvironment(environment);
        if (!outputFile.isEmpty())
            process.setStandardOutputFile(outputFile);
        process.start(program, list);
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

TEST_F(Program, saysThatStandardOutputIsFullBesideWhatItFound)
{
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "no device that is always full";
    const std::string damaged = folder().write("damaged.evm", "\n\n\n");
    const auto result = run({"check", damaged}, QStringLiteral("/dev/full"));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "tarsil-batch: standard output cannot be written\n");
}

TEST_F(Program, saysWhichFileExceedsTheLimitOfFiles)
{
    const std::vector<std::string> report = {
        "report", "--reference-damping", "0", "--speed-limit", "400", "--output"};
    std::vector<std::string> arguments = {"-c", R"(ulimit -f 1; exec "$0" "$@")",
                                          TARSIL_BATCH}; // 512 or 1024 bytes
    arguments.insert(arguments.end(), report.begin(), report.end());
    const std::string output = folder().write("a.xlsx", "old");
    arguments.insert(arguments.end(), {output, writeEv2()});
    const auto result = runProgram(QStringLiteral("/bin/sh"), arguments);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err,
              "tarsil-batch: Path/File access error: " + output + " (File too large)\n");
    EXPECT_EQ(test::fileBytes(output), "old");
    EXPECT_EQ(fileCount(), 2U);
}

TEST_F(Program, drawsWithoutADisplay)
{
    const auto result = run({"picture", "--output", file("out.png"), writeEv2()});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out + result.err, "");
    EXPECT_FALSE(QImage(QString::fromStdString(file("out.png"))).isNull());
}
