// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfListing.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>

// Tests of the tests' own reader: each damages a valid metafile at one point.

using namespace tarsil;
using test::EmfItem;
using test::readMetafile;
namespace emf = test::emf;

namespace {

std::string soundMetafile()
{
    EmfMemory memory;
    MetafileContext context(memory, QStringLiteral("a test"));
    context.setClip({0, 0, 200, 100});
    context.drawLine({1, 2}, {3, 4}, {penstyle::solid, 1, 0});
    context.fillRectangle({5, 6, 7, 8}, 0);
    context.drawText({9, 10}, QStringLiteral("text"), {}, 0, TextAlignment::TopLeft);
    context.close();
    return memory.bytes();
}

void put(std::string& bytes, std::size_t offset, std::uint32_t word)
{
    for (std::size_t i = 0; i < 4; ++i)
        bytes.at(offset + i) = static_cast<char>(word >> (8 * i) & 0xFF);
}

std::uint32_t wordAt(const std::string& bytes, std::size_t offset)
{
    return EmfItem(bytes).word(offset);
}

/// The offset of the first record of a type.
std::size_t offsetOf(const std::string& bytes, std::uint32_t type)
{
    std::size_t start = 0;
    while (wordAt(bytes, start) != type)
        start += wordAt(bytes, start + 4);
    return start;
}

/// The error of the reader after one word is replaced, at `offset` of the first record of a type.
std::string findingWith(std::uint32_t type, std::size_t offset, std::uint32_t word)
{
    std::string bytes = soundMetafile();
    put(bytes, offsetOf(bytes, type) + offset, word);
    try {
        readMetafile(bytes);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "nothing";
}

/// The error after the first record of a type is removed and the counts in the header are adjusted.
std::string findingWithout(std::uint32_t type)
{
    std::string bytes = soundMetafile();
    const std::size_t start = offsetOf(bytes, type);
    bytes.erase(start, wordAt(bytes, start + 4));
    put(bytes, 48, static_cast<std::uint32_t>(bytes.size()));
    put(bytes, 52, wordAt(bytes, 52) - 1);
    try {
        readMetafile(bytes);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "nothing";
}

} // namespace

TEST(EmfReader, acceptsASoundMetafile)
{
    EXPECT_NO_THROW(readMetafile(soundMetafile()));
}

TEST(EmfReader, refusesAMetafileThatIsCutAnywhere)
{
    const std::string bytes = soundMetafile();
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_THROW(readMetafile(bytes.substr(0, length)), std::runtime_error) << length;
    EXPECT_THROW(readMetafile(bytes + "stray byte"), std::runtime_error);
}

TEST(EmfReader, refusesWrongCountsInTheHeader)
{
    EXPECT_EQ(findingWith(emf::header, 48, 1000), "count of bytes");
    EXPECT_EQ(findingWith(emf::header, 52, 3), "count of records");
    EXPECT_EQ(findingWith(emf::header, 56, 4), "count of handles");
    EXPECT_EQ(findingWith(emf::header, 60, 100), "size of the description");
    EXPECT_EQ(findingWith(emf::header, 64, 100), "place of the description");
}

TEST(EmfReader, refusesAWrongSignature)
{
    EXPECT_EQ(findingWith(emf::header, 40, 0), "signature or version");
}

TEST(EmfReader, refusesAFrameThatIsNotThatOfTheBounds)
{
    EXPECT_EQ(findingWith(emf::header, 24, 1000), "frame is not that of the bounds");
    EXPECT_EQ(findingWith(emf::header, 8, 2), "frame is not that of the bounds");
}

TEST(EmfReader, refusesSizesThatARecordCannotHave)
{
    EXPECT_EQ(findingWith(emf::saveDc, 4, 7), "size of a record");
    EXPECT_EQ(findingWith(emf::saveDc, 4, 10), "size of a record");
    EXPECT_EQ(findingWith(emf::saveDc, 4, 0xFFFFFFF0), "record passes the end of the file");
    EXPECT_EQ(findingWith(emf::saveDc, 4, 12), "record has not the size of its type");
    EXPECT_EQ(findingWith(emf::saveDc, 0, 2), "record of a type that is not drawn here");
}

TEST(EmfReader, refusesAWrongEnd)
{
    EXPECT_EQ(findingWith(emf::endOfFile, 16, 16), "size of the last record in itself");
    EXPECT_EQ(findingWith(emf::endOfFile, 8, 1), "palette");
    EXPECT_EQ(findingWithout(emf::endOfFile), "end is not the last record");
}

TEST(EmfReader, refusesWrongUseOfObjects)
{
    EXPECT_EQ(findingWith(emf::selectObject, 8, 5), "selected before it is created");
    EXPECT_EQ(findingWith(emf::selectObject, 8, 0x80000020), "unknown stock object");
    EXPECT_EQ(findingWith(emf::createPen, 8, 2), "index that is not the lowest free one");
    EXPECT_EQ(findingWith(emf::deleteObject, 8, 1), "deleted while selected");
    EXPECT_EQ(findingWith(emf::deleteObject, 8, 9), "deleted before it is created");
    EXPECT_EQ(findingWithout(emf::createPen), "selected before it is created");
    EXPECT_EQ(findingWithout(emf::deleteObject), "index that is not the lowest free one");
}

TEST(EmfReader, refusesUnbalancedStates)
{
    EXPECT_EQ(findingWithout(emf::saveDc), "restore of no saved state");
    EXPECT_EQ(findingWithout(emf::restoreDc), "states never restored");
}

TEST(EmfReader, refusesWrongPolylines)
{
    EXPECT_EQ(findingWith(emf::polyline16, 24, 1), "polyline of one point");
    EXPECT_EQ(findingWith(emf::polyline16, 24, 3), "polyline with other than its points");
    EXPECT_EQ(findingWith(emf::polyline16, 28, 0), "point outside of its record's bounds");
}

TEST(EmfReader, refusesWrongTexts)
{
    EXPECT_EQ(findingWith(emf::extTextOutW, 44, 0), "empty text");
    EXPECT_EQ(findingWith(emf::extTextOutW, 44, 2), "advances do not follow the text");
    EXPECT_EQ(findingWith(emf::extTextOutW, 48, 72), "text does not follow the fixed fields");
    EXPECT_EQ(findingWith(emf::extTextOutW, 76, 0xD800), "half a character");
}

TEST(EmfReader, refusesWrongRegions)
{
    EXPECT_EQ(findingWith(emf::extSelectClipRgn, 12, 1), "region does not replace the clip");
    EXPECT_EQ(findingWith(emf::extSelectClipRgn, 24, 2), "region is no single rectangle");
    EXPECT_EQ(findingWith(emf::extSelectClipRgn, 56, 9),
              "bounds of the region are not its rectangle's");
}
