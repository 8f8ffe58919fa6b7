// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/text/TextCodec.h"
#include "rtf/RichText.h"
#include "rtf/RtfReader.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil::test {

/// All characters of a text as UTF-8.
inline std::string charactersOf(const RichText& text)
{
    std::u16string units;
    for (const TextRun& run : text.runs)
        units += run.text;
    return utf8FromUtf16(units);
}

/// All characters of an RTF source as UTF-8.
inline std::string shown(std::string_view source)
{
    return charactersOf(readRtf(source, {}));
}

/// A format as words, e.g. "Arial 8.5 bold #ff0000"; points with at most one decimal.
inline std::string lookOf(const TextFormat& format)
{
    const int tenths = static_cast<int>(format.points * 10);
    std::string look = format.family + " " + std::to_string(tenths / 10);
    look += tenths % 10 == 0 ? "" : "." + std::to_string(tenths % 10);
    look += format.bold ? " bold" : "";
    look += format.italic ? " italic" : "";
    look += format.underline ? " underline" : "";
    look += format.strikeOut ? " strike" : "";
    if (format.color) {
        char color[16] = "";
        std::snprintf(color, sizeof color, " #%02x%02x%02x", *format.color & 0xFF,
                      (*format.color >> 8) & 0xFF, (*format.color >> 16) & 0xFF);
        look += color;
    }
    return look;
}

/// The runs of a text as "FORMAT: CHARACTERS".
inline std::vector<std::string> looksOf(const RichText& text)
{
    std::vector<std::string> looks;
    for (const TextRun& run : text.runs)
        looks.push_back(lookOf(run.format) + ": " + utf8FromUtf16(run.text));
    return looks;
}

} // namespace tarsil::test
