// SPDX-License-Identifier: Apache-2.0

// Files that another program changes while they are read.

#include "FaultInjector.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>

namespace tarsil::test {

namespace {

namespace fs = std::filesystem;

/// A file of several reading pieces.
std::string largeEvolution()
{
    constexpr int modes = 100;
    constexpr int points = 100; // of each mode, two on a line
    std::string text = "WING\nCLEAN\nsubcase 1\n" + std::string(60, ' ') + " 100     100\n";
    for (int mode = 1; mode <= modes; ++mode) {
        std::string number = std::to_string(mode);
        number.insert(0, 3 - number.size(), ' ');
        const std::string line = number + "  0.500   10.000 1.00000E-02    5.000" + number
            + "  0.500   20.000 2.00000E-02    6.000\n";
        for (int i = 0; i < points / 2; ++i)
            text += line;
    }
    return text;
}

struct Reading
{
    const char* name;
    std::string command; ///< a command of tarsil-batch
    std::string file;
    std::string bytes;
};

std::vector<Reading> readings()
{
    const std::string sections = fileBytes(sample("goland_clean_m040.ev2"));
    return {{"sections", "info", "wing.ev2", sections},
            {"columns", "info", "wing.evm", fileBytes(sample("goland_clean_m040.evm"))},
            {"piecewise", "info", "wing.evm", largeEvolution()},
            {"checking", "check", "wing.ev2", sections},
            {"workspace", "info", "wing.tsw", fileBytes(sample("goland.tsw"))}};
}

void PrintTo(const Reading& reading, std::ostream* stream)
{
    *stream << reading.name;
}

class InputFaults : public ::testing::TestWithParam<Reading>
{
protected:
    InputFaults()
        : injector((folder.path() / "watched").string(), folder.path().string(),
                   {"PATH=/usr/bin:/bin", "LC_ALL=C.UTF-8", "ASAN_OPTIONS=detect_leaks=0"})
    {
        fs::create_directory(folder.path() / "watched");
    }

    RunResult read(const std::string& bytes, const Fault& fault) const
    {
        const std::string name = "watched/" + GetParam().file;
        return injector.run({TARSIL_BATCH, GetParam().command, folder.write(name, bytes)}, fault);
    }

    /// Whether two runs read the same contents.
    static bool areSame(const RunResult& a, const RunResult& b)
    {
        return a.status == b.status && a.out == b.out && a.err == b.err;
    }

    /// Reads the file once for each system call, truncated before this call.
    void expectErrorsWhenCut(const RunResult& whole, std::size_t size) const
    {
        const std::string& bytes = GetParam().bytes;
        const RunResult cut = read(bytes.substr(0, size), {});
        const std::string path = folder.file("watched/" + GetParam().file);
        const auto cutFile = [&path, size] { fs::resize_file(path, size); };
        bool isMet = true;
        int errors = 0;
        for (std::size_t call = 1; isMet; ++call) {
            const RunResult result = read(bytes, {FaultKind::Meddle, call, 0, cutFile});
            SCOPED_TRACE("cut to " + std::to_string(size) + " bytes before call "
                         + std::to_string(call) + ": " + result.metCall + "\n" + result.err);
            isMet = !result.metCall.empty();
            EXPECT_EQ(result.signal, 0);
            if (areSame(result, whole) || areSame(result, cut))
                continue;
            ++errors;
            EXPECT_EQ(result.status, 1);
            EXPECT_NE(result.err.find("another program changed it"), std::string::npos);
        }
        EXPECT_GT(errors, 0) << "it was never cut between two calls of one reading";
    }

    const TemporaryFolder folder;
    const FaultInjector injector;
};

} // namespace

/// Wherever the file is truncated: the program reads the old or the new file, or reports an error.
TEST_P(InputFaults, areErrorsLikeAnyOther)
{
    if (const std::string hindrance = FaultInjector::hindrance(); !hindrance.empty())
        GTEST_SKIP() << hindrance;
    const std::string& bytes = GetParam().bytes;
    const RunResult whole = read(bytes, {});
    EXPECT_EQ(whole.status, 0) << whole.err;
    for (const std::size_t size : {std::size_t {0}, bytes.size() / 2})
        expectErrorsWhenCut(whole, size);
}

INSTANTIATE_TEST_SUITE_P(Files, InputFaults, ::testing::ValuesIn(readings()),
                         [](const auto& tested) { return tested.param.name; });

} // namespace tarsil::test
