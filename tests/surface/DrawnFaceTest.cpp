// SPDX-License-Identifier: Apache-2.0
#include "surface/DrawnFace.h"

#include <QString>

#include <gtest/gtest.h>

using namespace tarsil;

TEST(DrawnFace, ofAScriptMeansTheFaceItself)
{
    const auto face = [](const char* name) { return drawnFace(QString::fromUtf8(name)); };
    for (const char* name :
         {"Arial Greek", "Arial CE", "Arial Cyr", "arial CYR", "Arial Tur", "Arial Baltic",
          "Arial (Arabic)", "Arial (Hebrew)", "Arial (Thai)", "Arial (Vietnamese)"})
        EXPECT_EQ(face(name).toLower(), QStringLiteral("arial")) << name;
    EXPECT_EQ(face("Times New Roman CE"), QStringLiteral("Times New Roman"));
}

TEST(DrawnFace, ofAnotherKindStaysAsItIs)
{
    for (const char* name : {"Arial", "Arial Narrow", "Liberation Sans", "Arial Black", "Greek",
                             " Greek", "CE", "DANCE", ""})
        EXPECT_EQ(drawnFace(QString::fromUtf8(name)), QString::fromUtf8(name));
}
