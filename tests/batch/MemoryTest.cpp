// SPDX-License-Identifier: Apache-2.0

// Lets every allocation of a command fail: the program reports it, and the old file is unchanged.
// Its own executable, because it replaces the allocation functions of the process.

#include "batch/Batch.h"
#include "batch/BatchFixture.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <new>
#include <ostream>
#include <streambuf>

namespace {

/// Which allocations fail: the n-th from now on, or all from the n-th on; 0 for none.
struct Shortage
{
    long at = 0;
    bool lasts = false;
    long count = 0; ///< number of allocations so far
};

Shortage shortage; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

bool isShort()
{
    ++shortage.count;
    return shortage.at > 0
        && (shortage.lasts ? shortage.count >= shortage.at : shortage.count == shortage.at);
}

} // namespace

void* operator new(std::size_t size)
{
    void* const memory = isShort() ? nullptr : std::malloc(size > 0 ? size : 1);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

namespace tarsil {

namespace {

/// A stream that does not allocate.
class FixedStream : private std::streambuf, public std::ostream
{
public:
    FixedStream() : std::ostream(this) { setp(m_bytes.data(), m_bytes.data() + m_bytes.size()); }

    bool isEmpty() const { return pptr() == pbase(); }

private:
    std::array<char, 65536> m_bytes {};
};

class Memory : public test::BatchFixture
{
protected:
    /// The exit status of a run in which allocations fail.
    static int run(const std::vector<std::string>& arguments, long at, bool lasts, bool& hasMessage)
    {
        FixedStream out;
        FixedStream err;
        shortage = {at, lasts, 0};
        const int status = batch::runBatch(arguments, out, err);
        shortage.at = 0;
        hasMessage = !err.isEmpty();
        return status;
    }

    /// Lets the n-th allocation fail, for all n until the command succeeds.
    void lackAtEach(const std::vector<std::string>& arguments, bool lasts) const
    {
        int status = 1;
        for (long at = 1; status != 0; ++at) {
            const std::string target = folder().write(arguments.back(), "old");
            std::vector<std::string> given = arguments;
            given.back() = target;
            bool hasMessage = false;
            status = run(given, at, lasts, hasMessage);
            ASSERT_TRUE(status == 0 || status == 1) << at;
            ASSERT_TRUE(status == 0 || hasMessage) << at;
            ASSERT_EQ(status == 0, test::fileBytes(target) != "old") << at;
            ASSERT_EQ(fileCount(), 3U) << at;
            ASSERT_TRUE(status == 0 || shortage.count >= at) << "fails all the same";
        }
    }

    const std::string wing = writeEv2();
    const std::string old = writeEvm();
};

} // namespace

TEST_F(Memory, isShortInAReport)
{
    for (const char* const output : {"a.xlsx", "a.csv"}) {
        for (const bool lasts : {false, true})
            lackAtEach({"report", "--reference-damping", "0", "--speed-limit", "400", "--mach",
                        "0.5", wing, old, "--output", output},
                       lasts);
        std::filesystem::remove(file(output));
    }
}

TEST_F(Memory, isShortInAConversion)
{
    for (const bool lasts : {false, true})
        lackAtEach({"convert", wing, "--output", "a.evm"}, lasts);
}

TEST_F(Memory, isShortInAMix)
{
    for (const bool lasts : {false, true})
        lackAtEach({"mix", wing + ":1,2", old + ":1", "--output", "a.mix"}, lasts);
}

TEST_F(Memory, isShortWhileFilesAreLookedAt)
{
    const std::string damaged =
        folder().write("damaged.evm",
                       "\n\n\n" + std::string(60, ' ')
                           + "   2       1\n  7  0.100  100.00012x45678901234567890123456789e-3\n");
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string> {"check", wing, damaged, file("missing.evm")},
          std::vector<std::string> {"info", "--json", wing}, std::vector<std::string> {"info"},
          std::vector<std::string> {"--help"}}) {
        bool hasMessage = false;
        const int expected = run(arguments, 0, false, hasMessage);
        const long allocations = shortage.count;
        for (long at = 1; at <= allocations; ++at) {
            const int status = run(arguments, at, true, hasMessage);
            ASSERT_TRUE(status == 1 || status == expected) << arguments[0] << ", " << at;
        }
    }
}

TEST_F(Memory, isShortWhileALongNumberIsRead)
{
    // Reading a number allocates only when its digits exceed a machine word.
    const std::string digits(2000, '1');
    const std::string path = folder().write("long.ev2", test::fileBytes(wing));
    std::string text = test::fileBytes(path);
    const std::size_t speed = text.find("||300|");
    ASSERT_NE(speed, std::string::npos);
    text.replace(speed, 6, "||300." + digits + "|");
    folder().write("long.ev2", text);
    bool hasMessage = false;
    run({"info", path}, 0, false, hasMessage);
    const long allocations = shortage.count;
    for (long at = 1; at <= allocations; ++at)
        ASSERT_EQ(run({"info", path}, at, true, hasMessage), 1) << at;
}

} // namespace tarsil
