// SPDX-License-Identifier: Apache-2.0
#include "rtf/FontName.h"

#include "base/text/TextCodec.h"

#include <gtest/gtest.h>

using namespace tarsil;

TEST(FontName, isMadeOfLettersDigitsAndAFewSigns)
{
    for (const char16_t* name :
         {u"Arial", u"R&D Sans", u"MS Shell Dlg 2", u"@MS Mincho", u"Arial (Hebrew)", u"Bell's 3.5",
          u"\uFF2D\uFF33 \u660E\u671D", u"\u041F\u0440", u"Italique \u00E9", u"\U0001D6FAx",
          u"Arial,Bold", u"C#-A_B+C/D!"})
        EXPECT_TRUE(isFontName(name)) << utf8FromUtf16(name);
}

TEST(FontName, holdsNoMarkUpAndNothingUnseen)
{
    for (const char16_t* name : {u"",         u"A\" onmouseover=\"x",
                                 u"<b>",      u"a>b",
                                 u"url(x);y", u"a{b}",
                                 u"a\\b",     u"a=b",
                                 u"a`b",      u"a\nb",
                                 u"a\u0085b", u"a\u200Bb",
                                 u"a\u202Eb", u"a\u2028b",
                                 u"a\uFEFFb", u"a\uFFFDb",
                                 u"a\uFFFFb", u"a\uFDD0b",
                                 u"a\uE000b", u"a\xD800",
                                 u"a\xDC00z", u"a%b",
                                 u"a*b",      u"a|b"})
        EXPECT_FALSE(isFontName(name)) << utf8FromUtf16(name);
}
