// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfReader.h"
#include "rtf/RtfStoredValue.h"
#include "rtf/RtfWriter.h"

#include "rtf/RichTextLook.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <utility>
#include <vector>

// Sources of many writers with their meaning, in the folder TARSIL_RTF_CORPUS: NAME.rtf and
// NAME.json there and in trunc/, stored values in ini/. The expected texts are hand-written or the
// input of the writers.

using namespace tarsil;
using namespace Qt::StringLiterals;

namespace {

using Characters = std::vector<std::pair<char16_t, TextFormat>>;

/// The characters with their formats. A line break gets the format of the character before it, or
/// at the start of the one after it: writers differ here, and the difference is invisible.
Characters formattedCharacters(const RichText& text)
{
    Characters characters;
    for (const TextRun& run : text.runs) {
        for (const char16_t unit : run.text)
            characters.emplace_back(unit, run.format);
    }
    const auto isNoBreak = [](const auto& character) { return character.first != u'\n'; };
    const auto first = std::find_if(characters.begin(), characters.end(), isNoBreak);
    for (auto i = characters.begin(); i != characters.end(); ++i) {
        if (i->first == u'\n' && i != characters.begin())
            i->second = std::prev(i)->second;
        else if (i->first == u'\n' && first != characters.end())
            i->second = first->second;
    }
    return characters;
}

TextFormat formatOf(const QJsonObject& object)
{
    TextFormat format;
    format.family = object["font"_L1].toString().toStdString();
    format.points = object["size"_L1].toDouble();
    format.bold = object["b"_L1].toBool();
    format.italic = object["i"_L1].toBool();
    format.underline = object["u"_L1].toBool();
    format.strikeOut = object["s"_L1].toBool();
    if (object["color"_L1].isString()) {
        const QColor color(object["color"_L1].toString());
        format.color = rgb(color.red(), color.green(), color.blue());
    }
    return format;
}

RichText textOfJson(const QJsonArray& runs)
{
    RichText text;
    for (const auto& value : runs) {
        const QJsonObject run = value.toObject();
        text.runs.push_back({run["text"_L1].toString().toStdU16String(), formatOf(run)});
    }
    return text;
}

void expectAsDescribed(const std::filesystem::path& path, bool isStoredValue)
{
    SCOPED_TRACE(path.string());
    const std::string json = test::fileBytes(std::filesystem::path(path).replace_extension("json"));
    const QJsonObject description =
        QJsonDocument::fromJson(QByteArray::fromStdString(json)).object();
    ASSERT_TRUE(description.contains("runs"_L1));
    const TextFormat fallback = formatOf(description["default"_L1].toObject());
    const std::string bytes = test::fileBytes(path);
    const RichText text = readRtf(isStoredValue ? rtfFromStoredValue(bytes) : bytes, fallback);
    const RichText expected = textOfJson(description["runs"_L1].toArray());
    EXPECT_EQ(test::charactersOf(text), description["text"_L1].toString().toStdString());
    EXPECT_TRUE(formattedCharacters(text) == formattedCharacters(expected))
        << ::testing::PrintToString(test::looksOf(text)) << "\ninstead of\n"
        << ::testing::PrintToString(test::looksOf(expected));
}

/// The sources of a folder, sorted by name.
std::vector<std::filesystem::path> sourcesIn(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> paths;
    if (!std::filesystem::is_directory(folder))
        return paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".rtf")
            paths.push_back(entry.path());
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

/// The folder; empty when it is not set.
std::filesystem::path corpus()
{
    const char* const folder = std::getenv("TARSIL_RTF_CORPUS");
    return folder != nullptr && std::filesystem::is_directory(folder) ? folder : "";
}

void readAll(const char* subfolder, bool areStoredValues)
{
    if (corpus().empty())
        GTEST_SKIP() << "TARSIL_RTF_CORPUS names no folder";
    const auto paths = sourcesIn(corpus() / subfolder);
    EXPECT_FALSE(paths.empty());
    for (const auto& path : paths)
        expectAsDescribed(path, areStoredValues);
    ::testing::Test::RecordProperty("sources", static_cast<int>(paths.size()));
}

} // namespace

TEST(RtfCorpus, readsWholeSourcesOfEveryWriter)
{
    readAll("", false);
}

TEST(RtfCorpus, readsSourcesThatAreCut)
{
    readAll("trunc", false);
}

TEST(RtfCorpus, readsStoredValues)
{
    readAll("ini", true);
}

TEST(RtfCorpus, writesSourcesOfItsOwnKindByteForByte)
{
    if (corpus().empty())
        GTEST_SKIP() << "TARSIL_RTF_CORPUS names no folder";
    int compared = 0;
    for (const auto& path : sourcesIn(corpus())) {
        if (!path.filename().string().starts_with("ours_"))
            continue;
        const std::string bytes = test::fileBytes(path);
        EXPECT_EQ(writeRtf(readRtf(bytes, {})), bytes) << path;
        ++compared;
    }
    EXPECT_GT(compared, 0);
}
