// SPDX-License-Identifier: Apache-2.0
#include "base/files/FileLines.h"

#include "base/files/TextStream.h"
#include "base/user/RunTimeError.h"

#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tarsil {

namespace {

using test::TemporaryFolder;

constexpr std::size_t pieces[] = {1, 2, 3, 5, 8, 64, FileLines::usualPiece};

std::vector<std::string> texts()
{
    return {"",
            "\n",
            "\r\n",
            "a",
            "a\n",
            "a\nb",
            "a\r\n\r\nb\r\n",
            "\xEF\xBB\xBF",
            "\xEF\xBB\xBF[A]\nb\n",
            "\xEF\xBB\xBF\n\n\n",
            std::string("a\0b\n\0\n", 6),
            "a line that is longer than most pieces\nb\n\n\nand another such line of the text"};
}

std::vector<std::string> checkedLinesOf(TextStream stream)
{
    std::vector<std::string> lines;
    while (!stream.atEndOfStream()) {
        const std::size_t before = stream.bytesLeft();
        lines.emplace_back(stream.readLine());
        EXPECT_LT(stream.bytesLeft(), before);
        EXPECT_EQ(stream.lineNumber(), lines.size());
    }
    EXPECT_EQ(stream.bytesLeft(), 0U);
    return lines;
}

void expectWholeLines(FileLines& file, const std::string& text)
{
    std::string read;
    while (file.bytesLeft() > 0) {
        read += file.next();
        EXPECT_EQ(read.size() + file.bytesLeft(), text.size());
        EXPECT_TRUE(read == text || read.back() == '\n');
    }
    EXPECT_EQ(read, text);
    EXPECT_EQ(file.next(), "");
}

TEST(FileLines, comeInPiecesOfWholeLines)
{
    const TemporaryFolder folder;
    for (const std::string& text : texts()) {
        const std::string path = folder.write("a.txt", text);
        for (const std::size_t piece : pieces) {
            SCOPED_TRACE(text + " in pieces of " + std::to_string(piece));
            FileLines file(path, piece);
            expectWholeLines(file, text);
        }
    }
}

TEST(FileLines, areThoseOfTheTextAsAWhole)
{
    const TemporaryFolder folder;
    for (const std::string& text : texts()) {
        const std::string path = folder.write("a.txt", text);
        for (const std::size_t piece : pieces) {
            SCOPED_TRACE(text + " in pieces of " + std::to_string(piece));
            FileLines file(path, piece);
            EXPECT_EQ(checkedLinesOf(TextStream(file, "x")), checkedLinesOf(TextStream(text, "x")));
        }
    }
}

TEST(FileLines, tellWhetherOnlyBlanksAreLeft)
{
    const TemporaryFolder folder;
    const std::string manyBlanks(10000, ' ');
    for (const std::size_t piece : pieces) {
        for (const bool isBlank : {true, false}) {
            FileLines file(
                folder.write("a.txt", "first\n \t\r\n" + manyBlanks + (isBlank ? "\n" : "x")),
                piece);
            TextStream stream(file, "x");
            EXPECT_FALSE(stream.onlyBlanksLeft());
            const std::string_view line = stream.readLine();
            EXPECT_EQ(stream.onlyBlanksLeft(), isBlank) << piece;
            EXPECT_EQ(line, "first") << "looking ahead leaves the line as it is";
        }
    }
    EXPECT_TRUE(TextStream("\n \t", "x").onlyBlanksLeft());
    EXPECT_FALSE(TextStream("\n \tx", "x").onlyBlanksLeft());
}

TEST(FileLines, ofAFileThatIsCutMeanwhileEndInAnError)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "one\ntwo\nthree\nfour\n");
    FileLines file(path, 8);
    TextStream stream(file, "x");
    EXPECT_EQ(stream.readLine(), "one");
    std::filesystem::resize_file(path, 10);
    EXPECT_EQ(stream.readLine(), "two");
    EXPECT_THROW(stream.readLine(), RunTimeError);
    EXPECT_THROW(file.requireUnchanged(), RunTimeError);
}

TEST(FileLines, ofAFileWithoutLineEndsTakeNoMoreMemoryThanALineMay)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a.txt", "");
    std::filesystem::resize_file(path, std::uintmax_t {1} << 33); // bytes, none of them stored
    FileLines file(path);
    EXPECT_THROW(file.next(), RunTimeError);
}

} // namespace

} // namespace tarsil
