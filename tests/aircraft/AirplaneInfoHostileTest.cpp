// SPDX-License-Identifier: Apache-2.0
#include "AircraftFixtures.h"

#include "base/text/TextCodec.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

// Files that are not aircraft information are read or refused, and never crash the reader.

namespace tarsil {

namespace {

using test::readText;
using test::readUntilError;
using test::StoppedReading;

TEST(HostileAircraftFile, withoutALineIsEmpty)
{
    for (const char* const text : {"", "\n", "\r\n\r\n", "\xEF\xBB\xBF"}) {
        const AirplaneInfo info = readText(text);
        EXPECT_TRUE(info.MassConfs.empty() && info.FlutterMechs.empty()
                    && info.FlutterEnvs.empty());
    }
}

TEST(HostileAircraftFile, ofRandomBytesHasNoSection)
{
    std::mt19937 random(1);
    std::string bytes(100000, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random() & 0xFFU);
    const AirplaneInfo info = readText(bytes);
    EXPECT_TRUE(info.MassConfs.empty() && info.FlutterMechs.empty() && info.FlutterEnvs.empty());
}

TEST(HostileAircraftFile, mayHoldZeroBytesInItsTexts)
{
    using namespace std::string_literals;
    const AirplaneInfo info = readText("\0[MASS CONFIG. DESCRIPTION]\0\nm\0=a\0b|\0||d|e\n"s);
    EXPECT_EQ(info.MassConfs.at(0).ShortName, "a\0b"s);
    EXPECT_EQ(info.MassConfs.at(0).Mval, "\0"s);
}

TEST(HostileAircraftFile, mayNotHoldAZeroByteInANumber)
{
    using namespace std::string_literals;
    const StoppedReading read = readUntilError("[FLUTTER ENVELOPE]\n0.40=1\0|2|3\n"s);
    EXPECT_EQ(read.number(), 13);
    EXPECT_EQ(read.description(), "Type mismatch: wing.inp, line 2, field 0 (Ceiling): \"1?\"");
}

TEST(HostileAircraftFile, endsNoSectionWithAZeroByte)
{
    using namespace std::string_literals;
    EXPECT_EQ(readUntilError("[FLUTTER MECHANISM]\n\0\n"s).number(), 9);
}

TEST(HostileAircraftFile, mayHaveAFieldOfAMillionBytes)
{
    const std::string name(1000000, 'x');
    const AirplaneInfo info = readText("[FLUTTER MECHANISM]\n" + name + "|b|1|2|3|4|5|6|7|8|9\n");
    EXPECT_EQ(info.FlutterMechs.at(0).ShortName, name);
}

TEST(HostileAircraftFile, mayHaveAMillionFieldsInALine)
{
    const std::string bars(1000000, '|');
    EXPECT_EQ(readText("[MASS CONFIG. DESCRIPTION]\n=" + bars).MassConfs.size(), 1U);
    EXPECT_EQ(readUntilError("[FLUTTER ENVELOPE]\n=" + bars).number(), 13);
}

TEST(HostileAircraftFile, isQuotedShortly)
{
    const StoppedReading read = readUntilError("[FLUTTER MECHANISM]\n" + std::string(1000000, 'x'));
    EXPECT_EQ(read.number(), 9);
    EXPECT_LT(read.description().size(), 200U);
}

TEST(HostileAircraftFile, isQuotedAsTextThatCanBeShown)
{
    const StoppedReading line = readUntilError("[FLUTTER MECHANISM]\nFl\xFCgel\x1B[2J\n");
    EXPECT_TRUE(isUtf8(line.description()));
    EXPECT_NE(line.description().find("\"Fl\xC3\xBCgel?[2J\""), std::string::npos);
    const StoppedReading number = readUntilError("[FLUTTER ENVELOPE]\n0.40=\xB9|2|3\n");
    EXPECT_TRUE(isUtf8(number.description()));
    EXPECT_EQ(number.number(), 13);
}

TEST(HostileAircraftFile, ofSeparatorsOnlyIsRefused)
{
    EXPECT_EQ(readUntilError("[FLUTTER MECHANISM]\n||||||||||\n").number(), 13);
    EXPECT_EQ(readUntilError("[FLUTTER ENVELOPE]\n=\n").number(), 9);
    EXPECT_EQ(readUntilError("[FLUTTER ENVELOPE]\n=||\n").number(), 13);
    EXPECT_EQ(readUntilError("[FLUTTER ENVELOPE]\nTAG\n").number(), 9);
}

} // namespace

} // namespace tarsil
