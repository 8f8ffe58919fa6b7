// SPDX-License-Identifier: Apache-2.0
#include "batch/BatchFixture.h"
#include "solver/PrintedPages.h"

#include <gmock/gmock.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <filesystem>

using namespace tarsil;
using test::fileBytes;
using test::printed;
using test::row;
using test::runBatch;
using ::testing::AllOf;
using ::testing::HasSubstr;
using namespace Qt::StringLiterals;

namespace {

class ImportCommand : public test::BatchFixture
{
protected:
    /// A summary of one root: 100 and 200 in the solver's unit, subcase 1, Mach 0.3.
    std::string writeSummary(std::string_view name = "wing.f06") const
    {
        return folder().write(name, printed({.rows = {row("1.0E+02"), row("2.0E+02")}}));
    }
};

} // namespace

TEST_F(ImportCommand, writesEachAnalysisAsAnEvolution)
{
    const auto result = runBatch({"import", "--speed-unit", "m/s", "--airplane", "GLIDER", "--mass",
                                  "EMPTY", "--output", folder().path().string(), writeSummary()});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("wing_s1_M0.30.ev2"));
    const std::string text = fileBytes(file("wing_s1_M0.30.ev2"));
    EXPECT_THAT(text,
                AllOf(HasSubstr("Airplane=GLIDER\n"), HasSubstr("Mass_config=EMPTY\n"),
                      HasSubstr("|194.384449|"), HasSubstr("|388.768898|")));
    // The other commands can read it.
    const auto info = runBatch({"info", file("wing_s1_M0.30.ev2")});
    EXPECT_EQ(info.status, 0);
    EXPECT_THAT(info.out,
                AllOf(HasSubstr("GLIDER"), HasSubstr("wing.f06"), HasSubstr("m/s, vref 1")));
    EXPECT_EQ(runBatch({"check", file("wing_s1_M0.30.ev2")}).status, 0);
}

TEST_F(ImportCommand, keepsMachNumberAndDensityOfEachPoint)
{
    runBatch(
        {"import", "--speed-unit", "m/s", "--output", folder().path().string(), writeSummary()});
    const auto info = runBatch({"info", "--json", "--points", file("wing_s1_M0.30.ev2")});
    const QJsonObject evolution = QJsonDocument::fromJson(QByteArray::fromStdString(info.out))
                                      .object()["files"_L1][0]
                                      .toObject();
    const QJsonValue point = evolution["modes"_L1][0]["points"_L1][1];
    EXPECT_EQ(point["mach"_L1].toDouble(), 0.3);
    EXPECT_EQ(point["sigma"_L1].toDouble(), 1.0);
    EXPECT_EQ(evolution["imported"_L1]["speed_unit"_L1].toString(), "m/s"_L1);
    EXPECT_EQ(evolution["imported"_L1]["source_lines"_L1].toString(), "4-12"_L1);
}

TEST_F(ImportCommand, asksForTheUnitWithWhatTheFileProves)
{
    const auto result = runBatch({"import", "--output", folder().path().string(), writeSummary()});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.out,
                AllOf(HasSubstr("wing_s1_M0.30.ev2: subcase 1, PK, Mach 0.3"),
                      HasSubstr("reference chord")));
    EXPECT_THAT(result.err, HasSubstr("--speed-unit is missing"));
    EXPECT_EQ(fileCount(), 1U) << "nothing is written";
}

TEST_F(ImportCommand, printsJsonOfWhatIsThere)
{
    const auto result = runBatch({"import", "--json", writeSummary()});
    EXPECT_EQ(result.status, 0);
    const QJsonObject json =
        QJsonDocument::fromJson(QByteArray::fromStdString(result.out)).object();
    const QJsonObject first = json["files"_L1][0].toObject();
    EXPECT_EQ(first["tables"_L1].toArray().size(), 1);
    const QJsonObject group = first["groups"_L1][0].toObject();
    EXPECT_EQ(group["name"_L1].toString(), "wing_s1_M0.30.ev2"_L1);
    EXPECT_EQ(group["mach"_L1].toDouble(), 0.3);
    EXPECT_EQ(group["rows"_L1].toInt(), 2);
    EXPECT_FALSE(first["proposals"_L1]["evidence"_L1].toArray().isEmpty());
    EXPECT_EQ(fileCount(), 1U) << "nothing is written";
}

TEST_F(ImportCommand, refusesWhatHoldsNoSummary)
{
    const auto result = runBatch({"import", "--speed-unit", "m/s", "--output",
                                  folder().path().string(), folder().write("x.f06", "nothing\n")});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("contains no flutter summary"));
}

TEST_F(ImportCommand, refusesUnknownUnitsAndMissingFolders)
{
    const std::string path = writeSummary();
    const std::string here = folder().path().string();
    EXPECT_THAT(runBatch({"import", "--speed-unit", "km/h", "--output", here, path}).err,
                HasSubstr("\"km/h\" is not one of m/s, ft/s, in/s, mm/s, kt"));
    EXPECT_THAT(
        runBatch({"import", "--speed-unit", "m/s", "--density", "x", "--output", here, path}).err,
        HasSubstr("\"x\" is not one of ratio, kg/m3, slug/ft3, lbf.s2/in4, t/mm3"));
    EXPECT_EQ(runBatch({"import", "--speed-unit", "m/s", path}).status, 2);
    EXPECT_EQ(runBatch({"import", "--speed-unit", "m/s", "--output", file("no"), path}).status, 1);
    EXPECT_EQ(
        runBatch({"import", "--speed-unit", "m/s", "--vref", "0", "--output", here, path}).status,
        2);
    EXPECT_EQ(fileCount(), 1U);
}

TEST_F(ImportCommand, saysWhatSpeaksAgainstTheUnits)
{
    const auto import = [&](std::string_view density) {
        return runBatch({"import", "--speed-unit", "m/s", "--density", std::string(density),
                         "--output", folder().path().string(), writeSummary()});
    };
    const auto doubtful = import("kg/m3");
    EXPECT_EQ(doubtful.status, 0);
    EXPECT_THAT(doubtful.err,
                HasSubstr("wing.f06, line 4: the heading prints a density ratio, which the unit "
                          "kg/m3 would scale"));
    EXPECT_EQ(import("ratio").err, "");
}

TEST_F(ImportCommand, distinguishesNamesOfTwoSources)
{
    const std::filesystem::path other = folder().path() / "other";
    std::filesystem::create_directory(other);
    const std::string first = writeSummary();
    const std::string second = (other / "wing.f06").string();
    std::filesystem::copy_file(first, second);
    EXPECT_EQ(runBatch({"import", "--speed-unit", "kt", "--output", folder().path().string(), first,
                        second})
                  .status,
              0);
    EXPECT_TRUE(std::filesystem::exists(file("wing_s1_M0.30.ev2")));
    EXPECT_TRUE(std::filesystem::exists(file("wing_s1_M0.30_2.ev2")));
}

TEST_F(ImportCommand, isNamedByInfoOnASummary)
{
    const auto result = runBatch({"info", writeSummary()});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out,
                AllOf(HasSubstr("printed flutter summary"), HasSubstr("tarsil-batch import")));
}
