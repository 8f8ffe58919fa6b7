// SPDX-License-Identifier: Apache-2.0
#include "report/ReportFixture.h"

#include "aircraft/AirplaneInfo.h"

#include <QCryptographicHash>

#include <gmock/gmock.h>

using namespace tarsil;
using test::sample;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class ReportContents : public test::ReportFixture
{
protected:
    std::vector<std::string> texts() const { return test::textsOf(content()); }

    /// The value beside a label in the tables without headings.
    std::vector<std::string> valuesOf(std::string_view label) const
    {
        const ReportContent document = content();
        std::vector<std::string> values;
        for (const Sheet* table : test::tablesOf(document)) {
            for (std::size_t row = 1; row <= table->rowCount(); ++row) {
                if (Sheet::textOf(table->cell(row, 1)) == label)
                    values.push_back(Sheet::textOf(table->cell(row, 2)));
            }
        }
        return values;
    }
};

} // namespace

TEST_F(ReportContents, beginWithTheWorkspace)
{
    const std::vector<std::string> all = texts();
    EXPECT_EQ(all.at(0), "wing");
    EXPECT_EQ(all.at(1), "First line");
    EXPECT_EQ(all.at(2), "Second line");
    EXPECT_THAT(valuesOf("Saved by"), Contains("rivera"));
    EXPECT_THAT(valuesOf("Created"), Contains("06-Mar-2026 09:00:00"));
    EXPECT_THAT(valuesOf("Modified"), Contains("07-Mar-2026 15:20:00"));
    EXPECT_THAT(valuesOf("Program"), Contains("Tarsil 4.0.0"));
    EXPECT_THAT(valuesOf("Changes"), ::testing::IsEmpty());
    input.isChanged = true;
    EXPECT_THAT(valuesOf("Changes"), Contains(HasSubstr("not in its file")));
}

TEST_F(ReportContents, haveTheDigestsOfAllSources)
{
    input.aircraftPath = sample("goland.inp");
    std::vector<std::string> files = {input.path, input.aircraftPath};
    files.insert(files.end(),
                 {sample("goland_clean_m040.ev2"), sample("goland_tipstore_m040.ev2")});
    const std::vector<std::string> all = texts();
    for (const std::string& path : files) {
        const QByteArray digest = QCryptographicHash::hash(
            QByteArray::fromStdString(test::fileBytes(path)), QCryptographicHash::Sha256);
        EXPECT_THAT(all, Contains(digest.toHex().toStdString())) << path;
    }
}

TEST_F(ReportContents, sayWhichSourceIsGone)
{
    std::filesystem::remove(input.path);
    EXPECT_THAT(texts(), Contains(HasSubstr("File not found")));
}

TEST_F(ReportContents, haveTheHeadersOfTheEvolutions)
{
    EXPECT_THAT(valuesOf("Airplane"), Contains("GOLAND WING"));
    EXPECT_THAT(valuesOf("Mass configuration"), ::testing::ElementsAre("CLEAN", "edited"));
    EXPECT_EQ(valuesOf("Edited").size(), 1U) << "only the second evolution";
    EXPECT_EQ(valuesOf("Reference").size(), 1U);
    EXPECT_THAT(valuesOf("Modification"), Contains(HasSubstr("pylon")));
    EXPECT_THAT(valuesOf("Warnings"), ::testing::ElementsAre("none", "none"));
}

TEST_F(ReportContents, haveTheWarningsAboutAFile)
{
    // The second speed is not above the first one.
    std::string bytes = test::fileBytes(sample("goland_clean_m040.evm"));
    const std::size_t lastLine = bytes.rfind('\n', bytes.size() - 2);
    const std::string path = folder.write("cut.evm", bytes.substr(0, lastLine - 4));
    EVM damaged;
    damaged.Folder = folder.path().string();
    damaged.FileName = "cut.evm";
    input.evolutions.push_back(&damaged);
    input.record.files.push_back(damaged.path());
    EXPECT_THAT(valuesOf("Warning"), Contains(HasSubstr("line ")));
}

TEST_F(ReportContents, nameAnEvolutionThatIsNotOpen)
{
    input.evolutions.push_back(nullptr);
    input.record.files.emplace_back("C:\\flutter\\gone.ev2");
    EXPECT_THAT(texts(), Contains("3  gone.ev2"));
    EXPECT_THAT(texts(), Contains(HasSubstr("could not be opened")));
}

TEST_F(ReportContents, showHowAnEvolutionWasImported)
{
    Provenance& provenance = evolutions[0]->provenance;
    provenance.source = sample("goland_clean.f06");
    provenance.sourceLines = "10-20";
    provenance.speedUnit = "ft/s";
    provenance.vref = "1";
    provenance.density = "ratio";
    provenance.setLogEntries({"one root left out", "another"});
    EXPECT_THAT(valuesOf("Imported from"), Contains(HasSubstr("goland_clean.f06, lines 10-20")));
    EXPECT_THAT(valuesOf("Printed units"), Contains("speeds in ft/s x 1, density in ratio"));
    EXPECT_THAT(valuesOf("Import log"), ::testing::ElementsAre("one root left out", "another"));
    EXPECT_THAT(valuesOf("solver output"), Contains(HasSubstr("goland_clean.f06")));
}

TEST_F(ReportContents, haveTheSettingsAndCurvesOfAPlot)
{
    EXPECT_THAT(texts(), Contains(HasSubstr("Figure 1: Clean <wing>")));
    EXPECT_THAT(valuesOf("Speed axis (KEAS)"), Contains("V(keas) from 0 to 450, 7 intervals"));
    EXPECT_THAT(valuesOf("Damping axis (g)"), Contains("g from 0 to -0.25, 5 intervals"));
    EXPECT_THAT(valuesOf("Reference speed"), Contains("210 KEAS  VD"));
    EXPECT_THAT(valuesOf("Damping line"), Contains("-0.03  limit"));
    EXPECT_THAT(texts(), Contains("bending & more"));
    for (SeriesRecord& series : input.record.plots.front().series)
        series.isHidden = true;
    EXPECT_THAT(texts(), Contains("(hidden) bending & more"));
}

TEST_F(ReportContents, haveTheCellsOfTheWorkbook)
{
    const std::vector<std::string> all = texts();
    EXPECT_THAT(all, Contains("Flutter Speed"));
    EXPECT_THAT(all, Contains(HasSubstr("266.23"))) << "samples/README.md: 266.2 KEAS";
    EXPECT_THAT(all, Contains(HasSubstr("266.24 +- 0.01 KEAS")));
    EXPECT_THAT(all, Contains("How to read this"));
}

TEST_F(ReportContents, listTheRequirementOnlyIfItWasJudged)
{
    EXPECT_THAT(texts(), Not(Contains("Requirement")));
    AirplaneInfo airplane;
    airplane.Filename = sample("goland.inp");
    airplane.Create();
    std::vector<EvolutionStability>& judgedOnes = input.stability.evolutions;
    // The dive speed is 210 KEAS; flutter begins at 266.2 KEAS, 24.7 above 1.15 times that.
    judgedOnes[0] = judged(
        {input.evolutions[0], 0, requiredSpeed(*input.evolutions[0], airplane, Requirement())},
        input.stability.settings);
    judgedOnes[1] =
        judged({input.evolutions[1], 0, requiredSpeed(*input.evolutions[1], airplane, {2, 0.03F})},
               input.stability.settings);
    EXPECT_THAT(texts(), Contains("Requirement"));
    EXPECT_THAT(texts(), Contains(HasSubstr("pass: ")));
    EXPECT_THAT(texts(), Contains(HasSubstr("fail: ")));
}
