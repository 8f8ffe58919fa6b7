// SPDX-License-Identifier: Apache-2.0
#include "AircraftFixtures.h"

#include <gtest/gtest.h>

#include <string>

namespace tarsil {

namespace {

using test::readUntilError;
using test::StoppedReading;

TEST(AirplaneInfoErrors, refuseAMechanismOfTenFields)
{
    const StoppedReading read = readUntilError("[FLUTTER MECHANISM]\n"
                                               "a|b|1|2|3|4|5|6|7|8|9\n"
                                               "FIN|fin|1|2|3|4|5|6|7|8\n"
                                               "c|d|1|2|3|4|5|6|7|8|9\n");
    EXPECT_EQ(read.number(), 9);
    EXPECT_EQ(read.description(),
              "Subscript out of range: wing.inp, line 3: only 10 of 11 fields, no vthick: "
              "\"FIN|fin|1|2|3|4|5|6|7|8\"");
    ASSERT_EQ(read.info.FlutterMechs.size(), 1U); // read before the error
    EXPECT_EQ(read.info.FlutterMechs[0].ShortName, "a");
}

TEST(AirplaneInfoErrors, refuseAMassConfigurationOfFourFields)
{
    const StoppedReading read = readUntilError("[MASS CONFIG. DESCRIPTION]\nm=a|b|c|d\n");
    EXPECT_EQ(read.number(), 9);
    EXPECT_EQ(read.description(),
              "Subscript out of range: wing.inp, line 2: only 4 of 5 fields, no CGval: "
              "\"a|b|c|d\"");
    EXPECT_TRUE(read.info.MassConfs.empty());
}

TEST(AirplaneInfoErrors, refuseAnEnvelopeOfTwoNumbers)
{
    const StoppedReading read = readUntilError("[FLUTTER ENVELOPE]\nTAG=a|b|c\n0.40=1|2\n");
    EXPECT_EQ(read.number(), 9);
    EXPECT_EQ(read.description(),
              "Subscript out of range: wing.inp, line 3: only 2 of 3 fields, no VL: \"1|2\"");
    EXPECT_EQ(read.info.CeTag, "c");
}

TEST(AirplaneInfoErrors, refuseTwoTags)
{
    const StoppedReading read = readUntilError("[FLUTTER ENVELOPE]\nTAG=a|b\n");
    EXPECT_EQ(read.number(), 9);
    EXPECT_NE(read.description().find("no CeTag"), std::string::npos) << read.description();
    EXPECT_EQ(read.info.VLTag, "");
}

TEST(AirplaneInfoErrors, refuseAnEntryWithoutItsEqualSign)
{
    for (const char* const text :
         {"[MASS CONFIG. DESCRIPTION]\nm|a|b|c|d|e\n", "[FLUTTER ENVELOPE]\nTAG a|b|c|d|e\n",
          "[FLUTTER ENVELOPE]\n0.40|1|2|3\n"}) {
        const StoppedReading read = readUntilError(text);
        EXPECT_EQ(read.number(), 9);
        EXPECT_NE(read.description().find("wing.inp, line 2: no \"=\" before the fields: \""),
                  std::string::npos)
            << read.description();
    }
}

TEST(AirplaneInfoErrors, nameLineFieldAndTextOfALimitThatIsNoNumber)
{
    const StoppedReading read =
        readUntilError("\n[FLUTTER MECHANISM]\na|b|1|2|3|4|-0,25|6|7|8|9\n");
    EXPECT_EQ(read.number(), 13);
    EXPECT_EQ(read.description(), "Type mismatch: wing.inp, line 3, field 6 (gmax): \"-0,25\"");
    EXPECT_EQ(read.error->source(), "AirplaneInfo");
    EXPECT_TRUE(read.info.FlutterMechs.empty());
}

TEST(AirplaneInfoErrors, countTheFieldsOfAnEnvelopeAfterItsName)
{
    const StoppedReading read = readUntilError("[FLUTTER ENVELOPE]\n0.40=1||3\n");
    EXPECT_EQ(read.description(), "Type mismatch: wing.inp, line 2, field 1 (Vd): \"\"");
}

TEST(AirplaneInfoErrors, refuseANumberBeyondTheRangeOfASingle)
{
    // The largest single is about 3.4028E38.
    const StoppedReading read = readUntilError("[FLUTTER ENVELOPE]\n0.40=3.5E38|2|3\n");
    EXPECT_EQ(read.number(), 6);
    EXPECT_EQ(read.description(), "Overflow: wing.inp, line 2, field 0 (Ceiling): \"3.5E38\"");
}

TEST(AirplaneInfoErrors, treatTagsAfterAnEntryAsAnEntry)
{
    const StoppedReading read = readUntilError("[FLUTTER ENVELOPE]\n0.40=1|2|3\nTAG=a|b|c\n");
    EXPECT_EQ(read.number(), 13);
    EXPECT_EQ(read.info.FlutterEnvs.size(), 1U);
    EXPECT_EQ(read.info.VLTag, "");
}

TEST(AirplaneInfoErrors, takeALineThatDoesNotBeginWithTagForAnEntry)
{
    for (const char* const key : {"tag", " TAG", "VTAG", "TA"}) {
        const StoppedReading read =
            readUntilError("[FLUTTER ENVELOPE]\n" + std::string(key) + "=a|b|c\n");
        EXPECT_EQ(read.number(), 13) << key;
        EXPECT_EQ(read.info.VLTag, "") << key;
    }
}

TEST(AirplaneInfoErrors, takeAHeaderInsideASectionForAnEntry)
{
    const StoppedReading read = readUntilError("[MASS CONFIG. DESCRIPTION]\nm=a|b|c|d|e\n"
                                               "[FLUTTER MECHANISM]\n");
    EXPECT_EQ(read.number(), 9);
    EXPECT_NE(read.description().find("line 3"), std::string::npos);
    EXPECT_NE(read.description().find("\"[FLUTTER MECHANISM]\""), std::string::npos);
    EXPECT_EQ(read.info.MassConfs.size(), 1U);
}

TEST(AirplaneInfoErrors, takeALineOfBlanksForAnEntry)
{
    const StoppedReading read = readUntilError("[FLUTTER MECHANISM]\n  \n");
    EXPECT_EQ(read.number(), 9);
    EXPECT_EQ(read.description(),
              "Subscript out of range: wing.inp, line 2: only 1 of 11 fields, no LongName: "
              "\"  \"");
}

TEST(AirplaneInfoErrors, keepTheSectionsBeforeThem)
{
    const StoppedReading read = readUntilError("[FLUTTER ENVELOPE]\nTAG=a|b|c\n0.40=1|2|3\n\n"
                                               "[MASS CONFIG. DESCRIPTION]\nm=a|b|c|d|e\n\n"
                                               "[FLUTTER MECHANISM]\nx\n\n"
                                               "[MASS CONFIG. DESCRIPTION]\nm=f|b|c|d|e\n");
    EXPECT_EQ(read.number(), 9);
    EXPECT_EQ(read.info.VLTag, "a");
    EXPECT_EQ(read.info.FlutterEnvs.size(), 1U);
    EXPECT_EQ(read.info.MassConfs.size(), 1U); // nothing after it
    EXPECT_TRUE(read.info.FlutterMechs.empty());
}

} // namespace

} // namespace tarsil
