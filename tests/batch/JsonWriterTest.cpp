// SPDX-License-Identifier: Apache-2.0
#include "batch/JsonWriter.h"

#include <gtest/gtest.h>

#include <sstream>

using tarsil::batch::JsonWriter;

namespace {

template <typename Write>
std::string json(Write write)
{
    std::ostringstream out;
    JsonWriter writer(out);
    write(writer);
    return out.str();
}

} // namespace

TEST(Json, setsItsCommas)
{
    EXPECT_EQ(json([](JsonWriter& writer) {
                  writer.beginObject();
                  writer.key("a");
                  writer.beginArray();
                  writer.number("1");
                  writer.beginObject();
                  writer.endObject();
                  writer.boolean(true);
                  writer.endArray();
                  writer.text("b", "c");
                  writer.number("d", 352.1F);
                  writer.endObject();
              }),
              R"({"a":[1,{},true],"b":"c","d":352.1})");
}

TEST(Json, escapesWhatMustBeEscaped)
{
    EXPECT_EQ(json([](JsonWriter& writer) { writer.text("\"\\\n\r\t\x01\x1f/\xCE\xB1"); }),
              "\"\\\"\\\\\\n\\r\\t\\u0001\\u001f/\xCE\xB1\"");
}

TEST(Json, escapesWhatCouldChangeATerminal)
{
    EXPECT_EQ(json([](JsonWriter& writer) {
                  writer.text("\x7F \xC2\x9B \xE2\x80\xA8 \xE2\x80\xAE \xF0\x9D\x94\xB8");
              }),
              "\"\\u007f \\u009b \\u2028 \\u202e \xF0\x9D\x94\xB8\""); // U+1D538 at the end
}

TEST(Json, isAlwaysUtf8)
{
    EXPECT_EQ(json([](JsonWriter& writer) { writer.text("Fl\xFCgel"); }), "\"Fl\xC3\xBCgel\"");
}
