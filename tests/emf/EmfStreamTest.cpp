// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfStream.h"
#include "emf/EmfSink.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using namespace tarsil;
using namespace std::string_view_literals;
using test::errorNumberOf;

namespace {

/// The bytes written for one record.
std::string bytesOf(const EmfRecord& record)
{
    EmfMemory memory;
    EmfStream stream(memory);
    stream.write(record);
    stream.finish(record);
    return memory.bytes();
}

} // namespace

TEST(EmfStream, writesTheLowByteOfEachWordFirst)
{
    EXPECT_EQ(bytesOf(EmfRecord(EmfType::LineTo).add(0x01020304).add(-2)),
              "\x36\0\0\0\x10\0\0\0\x04\x03\x02\x01\xFE\xFF\xFF\xFF"sv);
}

TEST(EmfStream, packsTwoSmallNumbersIntoAWord)
{
    EXPECT_EQ(bytesOf(EmfRecord(EmfType::SaveContext).addPair(0x0102, -1)),
              "\x21\0\0\0\x0C\0\0\0\x02\x01\xFF\xFF"sv);
}

TEST(EmfStream, fillsTextUpToAWholeWord)
{
    EXPECT_EQ(bytesOf(EmfRecord(EmfType::SaveContext).addText(u"a\u20ACb")),
              "\x21\0\0\0\x10\0\0\0a\0\xAC\x20"
              "b\0\0\0"sv);
}

TEST(EmfStream, writesFloatsAsTheyAreInMemory)
{
    // 1.0 has sign 0, exponent 127 and fraction 0: 0x3F800000.
    EXPECT_EQ(bytesOf(EmfRecord(EmfType::SaveContext).add(1.0F)),
              "\x21\0\0\0\x0C\0\0\0\0\0\x80\x3F"sv);
}

TEST(EmfStream, countsBytesAndRecords)
{
    EmfMemory memory;
    EmfStream stream(memory);
    stream.write(EmfRecord(EmfType::SaveContext)); // 8 bytes
    stream.write(EmfRecord(EmfType::LineTo).add(QPoint(1, 2))); // 16
    EXPECT_EQ(stream.byteCount(), 24);
    EXPECT_EQ(stream.recordCount(), 2);
}

TEST(EmfStream, writesTheFinalHeaderOverTheFirstRecord)
{
    EmfMemory memory;
    EmfStream stream(memory);
    stream.write(EmfRecord(EmfType::SetTextAlign).add(1));
    stream.write(EmfRecord(EmfType::SaveContext));
    stream.finish(EmfRecord(EmfType::SetTextAlign).add(2));
    EXPECT_EQ(memory.bytes(), "\x16\0\0\0\x0C\0\0\0\x02\0\0\0\x21\0\0\0\x08\0\0\0"sv);
}

TEST(EmfStream, writesARecordLargerThanItsBuffer)
{
    const EmfRecord record = EmfRecord(EmfType::SaveContext).addZeros(100000).add(7);
    const std::string bytes = bytesOf(record);
    EXPECT_EQ(bytes.size(), 8 + 4 * 100001);
    EXPECT_EQ(bytes.substr(bytes.size() - 4), "\x07\0\0\0"sv);
}

TEST(EmfStream, refusesMoreBytesThanTheHeaderCanCount)
{
    EmfMemory memory;
    EmfStream stream(memory, 24);
    stream.write(EmfRecord(EmfType::LineTo).add(QPoint(1, 2)));
    EXPECT_EQ(errorNumberOf([&] { stream.write(EmfRecord(EmfType::SetTextAlign).add(0)); }),
              ErrorNumber::Overflow);
    EXPECT_EQ(stream.byteCount(), 16);
    EXPECT_EQ(errorNumberOf([&] { stream.write(EmfRecord(EmfType::SaveContext)); }), std::nullopt);
    EXPECT_EQ(EmfStream::mostBytes, 4294967295U); // 4 GiB - 1, the largest 32-bit count
}
