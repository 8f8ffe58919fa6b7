// SPDX-License-Identifier: Apache-2.0

// Whole sessions, saved and opened again.

#include "app/WndMainFixture.h"

#include "base/text/TextCodec.h"
#include "explorer/WndEvolExplorer.h"
#include "model/EVM.h"
#include "support/RandomTexts.h"
#include "vgfplot/PictureWriter.h"

#include <gmock/gmock.h>

#include <array>
#include <utility>

using namespace tarsil;
using test::RandomTexts;
using test::sample;

namespace {

constexpr unsigned sessions = 20;

/// A text without control characters, which rich text does not keep.
std::string printed(std::string text)
{
    const std::string control = "\u0081";
    for (std::size_t index = text.find(control); index != std::string::npos;
         index = text.find(control))
        text.erase(index, control.size());
    return text;
}

class SessionRoundTripTest : public test::WndMainTest
{
protected:
    void openEvolutions();
    void makeSession(unsigned seed);
    void fill(EvmPlot& one);
    void addSeries(EvmPlot& one);
    void addMarks(EvmPlot& one);
    void editEvolutions();
    std::vector<std::pair<EditableParam, bool>> evolutions();
    RichText richText();
    TextFormat look();
    float bound(float least, float most);
    ColorValue color() { return static_cast<ColorValue>(random.bits() & 0xFFFFFFU); }
    QString line(std::size_t limit) { return QString::fromStdString(random.line(limit)); }

    void save(const std::string& name)
    {
        user.saveFiles.push_back(folder.file(name));
        choose("mnuSaveWorkspace");
    }

    void open(const std::string& name)
    {
        user.openFiles.push_back({folder.file(name)});
        choose("OpenMenu");
    }

    /// The saved file without the date of saving.
    std::string saved(const std::string& name)
    {
        std::string text = test::fileBytes(folder.file(name));
        const std::size_t date = text.find("Date_Modified=");
        return text.erase(date, text.find('\r', date) - date);
    }

    /// The pictures of all plots, in one size.
    std::vector<QByteArray> pictures()
    {
        std::vector<QByteArray> result;
        for (EvmPlot* const one : window.evolPlot().plots()) {
            window.evolPlot().FitPlot(one);
            result.push_back(pictureBytes(*one, PictureFormat::Emf));
        }
        return result;
    }

    RandomTexts random {0};
};

/// Opens files whose names contain a blank, a semicolon, and letters beyond ASCII.
void SessionRoundTripTest::openEvolutions()
{
    std::vector<std::string> paths;
    for (const char* name : {"clean wing.ev2", "Flügel; roh.ev2", "α.evm"}) {
        const std::string path(name);
        const std::string origin = "goland_clean_m040" + path.substr(path.find_last_of('.'));
        paths.push_back(folder.write(path, test::fileBytes(sample(origin))));
    }
    paths.resize(1 + random.below(paths.size()));
    user.openFiles.push_back(paths);
    choose("AddMenu");
    ASSERT_EQ(window.document().evolutions().all().size(), paths.size());
}

void SessionRoundTripTest::makeSession(unsigned seed)
{
    random = RandomTexts(seed);
    openEvolutions();
    editEvolutions();
    window.document().setDescription(line(20) + QStringLiteral("\r\n") + line(20));
    plot().properties().setCaption(QStringLiteral("first ") + line(10));
    for (std::size_t left = random.below(4); left > 0; --left)
        window.evolPlot().AddPlot(QStringLiteral("P") + line(10));
    for (EvmPlot* const one : window.evolPlot().plots())
        fill(*one);
}

void SessionRoundTripTest::fill(EvmPlot& one)
{
    window.evolPlot().FitPlot(&one);
    addSeries(one);
    for (const TextBox which : allTextBoxes) {
        if (random.below(4) != 0)
            one.texts().setContent(which, richText());
        if (random.below(2) == 0)
            one.texts().move(which, bound(-100, 9000), bound(-100, 9000));
    }
    one.properties().setVLabel(line(8));
    one.properties().setFLabel(line(8));
    one.properties().setGLabel(line(8));
    one.properties().setVthicks(static_cast<std::int16_t>(1 + random.below(20)));
    one.properties().setFthicks(static_cast<std::int16_t>(1 + random.below(20)));
    one.properties().setGthicks(static_cast<std::int16_t>(1 + random.below(20)));
    one.SetScale(bound(0, 99), bound(100, 900), bound(0, 9), bound(10, 90), bound(-0.1F, 0.1F),
                 bound(-1, -0.2F));
    addMarks(one);
    one.plot();
}

void SessionRoundTripTest::addSeries(EvmPlot& one)
{
    const auto& evolutions = window.document().evolutions().all();
    for (std::size_t left = random.below(12); left > 0; --left) {
        EVM& evolution = *evolutions[random.below(evolutions.size())];
        Series series;
        series.Mode = evolution.Modes[random.below(evolution.Modes.size())].get();
        series.MarkerTag = line(6);
        series.MarkerSize = static_cast<std::int32_t>(random.below(30));
        series.MarkerSpacing = static_cast<std::int32_t>(random.below(8)) - 1;
        series.MarkerStyle = static_cast<std::int32_t>(random.below(5)); // style 4 does not exist
        series.LegendText = line(random.below(4) == 0 ? 120 : 20);
        series.ColorIndex = color();
        series.MarkerForegroundColor = color();
        series.LineStyle = static_cast<std::int32_t>(random.below(6));
        series.LineWidth = static_cast<std::int16_t>(random.below(12));
        series.IthMpf = static_cast<std::int32_t>(1 + random.below(6)); // 6 does not exist
        one.rows().add(series);
        if (random.below(3) == 0)
            one.rows().setHidden({one.rows().count() - 1}, true);
    }
}

/// Called after the scale is set, which determines the ends of damping lines.
void SessionRoundTripTest::addMarks(EvmPlot& one)
{
    for (std::size_t left = random.below(4); left > 0; --left)
        one.references().AddRef(bound(-100, 900), line(20));
    for (std::size_t left = random.below(4); left > 0; --left)
        one.references().AddDampLine(bound(-1, 1), line(random.below(4) == 0 ? 120 : 20));
}

void SessionRoundTripTest::editEvolutions()
{
    for (const auto& evolution : window.document().evolutions().all()) {
        if (random.below(2) == 0)
            evolution->Param.Airplane = random.line(20);
        if (random.below(2) == 0)
            evolution->Param.Mass = random.line(20);
        if (random.below(2) == 0)
            evolution->Param.Mach = bound(0, 2);
        if (random.below(3) == 0)
            window.document().evolutions().setReference(evolution.get());
    }
}

/// Airplane, mass configuration and Mach number of each evolution, and whether it is the reference.
std::vector<std::pair<EditableParam, bool>> SessionRoundTripTest::evolutions()
{
    std::vector<std::pair<EditableParam, bool>> result;
    for (const auto& evolution : window.document().evolutions().all())
        result.emplace_back(evolution->Param.editable(),
                            window.document().evolutions().reference() == evolution.get());
    return result;
}

RichText SessionRoundTripTest::richText()
{
    RichText text;
    TextFormat before;
    for (std::size_t left = random.below(4); left > 0; --left) {
        std::string characters = "x" + printed(random.line(8));
        if (random.below(2) == 0)
            characters.insert(random.below(2), "\n");
        TextFormat format = look();
        format.strikeOut = !before.strikeOut; // adjacent runs must differ
        text.runs.push_back({utf16FromUtf8(characters), format});
        before = format;
    }
    text.last = text.runs.empty() ? TextFormat() : text.runs.back().format;
    return text;
}

TextFormat SessionRoundTripTest::look()
{
    static const std::array<std::string, 3> families = {"Arial", "Courier New", "Größe"};
    TextFormat format;
    format.family = families.at(random.below(families.size()));
    format.points = static_cast<double>(12 + random.below(60)) / 2; // RTF has half points
    format.bold = random.below(2) == 0;
    format.italic = random.below(2) == 0;
    format.underline = random.below(2) == 0;
    if (random.below(2) == 0)
        format.color = color();
    return format;
}

float SessionRoundTripTest::bound(float least, float most)
{
    constexpr float steps = 65536;
    return least + (most - least) * static_cast<float>(random.below(65536)) / steps;
}

} // namespace

TEST_F(SessionRoundTripTest, givesTheSameBytesAndTheSamePictures)
{
    load();
    for (unsigned seed = 0; seed < sessions; ++seed) {
        SCOPED_TRACE(seed);
        makeSession(seed);
        save(std::to_string(seed) + "a.tsw");
        const std::vector<QByteArray> drawn = pictures();
        const auto parameters = evolutions();
        ASSERT_THAT(user.note, ::testing::Not(::testing::HasSubstr("longer than 1023")))
            << "a text of this test is too long";
        choose("mnuNewWorkspace");
        ASSERT_TRUE(window.document().evolutions().all().empty());
        open(std::to_string(seed) + "a.tsw");
        ASSERT_EQ(evolutions(), parameters);
        const std::vector<QByteArray> drawnAgain = pictures();
        ASSERT_EQ(drawnAgain.size(), drawn.size());
        for (std::size_t i = 0; i < drawn.size(); ++i)
            ASSERT_TRUE(drawnAgain[i] == drawn[i]) << "plot " << i + 1;
        save(std::to_string(seed) + "b.tsw");
        ASSERT_EQ(saved(std::to_string(seed) + "b.tsw"), saved(std::to_string(seed) + "a.tsw"));
        choose("mnuNewWorkspace");
    }
    EXPECT_TRUE(user.messages.empty()) << user.messages.front().text;
    EXPECT_TRUE(user.questions.empty()) << "nothing was left unsaved, so nothing was asked";
}
