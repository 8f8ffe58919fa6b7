// SPDX-License-Identifier: Apache-2.0
#include "batch/WorkspaceFixture.h"

#include <gmock/gmock.h>

#include <filesystem>

using namespace tarsil;
using test::fileBytes;
using test::runBatch;
using ::testing::HasSubstr;

namespace {

class MixOfAWorkspace : public test::WorkspaceFixture
{
protected:
    test::BatchResult mix(const std::vector<std::string>& more) const
    {
        std::vector<std::string> all = {"mix", "--output", file("out.mix")};
        all.insert(all.end(), more.begin(), more.end());
        return runBatch(all);
    }

    /// The mode numbers of the points: the first three columns of fields of 40.
    std::string modes() const
    {
        const std::string text = fileBytes(file("out.mix"));
        std::string numbers;
        std::size_t at = 0;
        for (int line = 0; line < 4; ++line)
            at = text.find("\r\n", at) + 2;
        for (; at + 40 <= text.size() && text[at + 2] >= '0' && text[at + 2] <= '9'; at += 40) {
            numbers += text[at + 2];
            if (text.compare(at + 40, 2, "\r\n") == 0)
                at += 2;
        }
        return numbers;
    }
};

} // namespace

TEST_F(MixOfAWorkspace, gathersTheModesOfItsSeries)
{
    EXPECT_EQ(mix({write(record())}).status, 0);
    EXPECT_EQ(modes(), "5557733"); // three points, two and two
}

TEST_F(MixOfAWorkspace, usesThePlotAskedForAmongEvolutions)
{
    EXPECT_EQ(mix({"--plot", "Store", old, write(record()), wing + ":2"}).status, 0);
    EXPECT_EQ(modes(), "7733555");
}

TEST_F(MixOfAWorkspace, leavesOutWhatIsMissing)
{
    std::filesystem::remove(old);
    const auto result = mix({write(record())});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("File not found: C:\\flutter\\old.evm"));
    EXPECT_EQ(modes(), "55533");
}

TEST_F(MixOfAWorkspace, isNotWrittenOverWhatIsRead)
{
    const std::string path = write(record());
    std::filesystem::create_hard_link(old, file("out.mix"));
    EXPECT_EQ(mix({path}).status, 1);
    EXPECT_EQ(fileBytes(old), fileBytes(file("out.mix")));
}

TEST_F(MixOfAWorkspace, acceptsNoList)
{
    const auto list = mix({write(record()) + ":1"});
    EXPECT_EQ(list.status, 2);
    EXPECT_THAT(list.err, HasSubstr("a workspace does not accept a list of modes"));
    EXPECT_EQ(mix({"--plot", "1", wing}).status, 2);
    EXPECT_FALSE(std::filesystem::exists(file("out.mix")));
}

TEST_F(MixOfAWorkspace, isNoConversion)
{
    const auto result = runBatch({"convert", "--output", file("out.evm"), write(record())});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err, HasSubstr("case.tsw is a workspace; a modal evolution is wanted"));
    EXPECT_FALSE(std::filesystem::exists(file("out.evm")));
}
