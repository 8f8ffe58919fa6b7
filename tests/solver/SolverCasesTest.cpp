// SPDX-License-Identifier: Apache-2.0
#include "solver/SolverImport.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <cstdlib>
#include <filesystem>

// Outputs of several solvers in the folder TARSIL_SOLVER_CASES, with the results of an independent
// program in NAME.expected.json.

using namespace tarsil;
using namespace tarsil::solver;
using namespace Qt::StringLiterals;

namespace {

void expectNear(double value, const QJsonValue& expected, double relative, const std::string& where)
{
    if (expected.isNull())
        return;
    const double wanted = expected.toDouble();
    EXPECT_NEAR(value, wanted, relative * std::max(std::abs(wanted), 1e-30)) << where;
}

void expectPoint(const ImportedPoint& point, const QJsonObject& values, int i,
                 const std::string& where)
{
    expectNear(point.keas, values["keas"_L1][i], 1e-9, where + " speed");
    expectNear(point.damping, values["g"_L1][i], 1e-9, where + " damping");
    expectNear(point.frequency, values["f"_L1][i], 1e-9, where + " frequency");
    expectNear(point.re, values["re"_L1][i], 1e-9, where + " real part");
    expectNear(point.im, values["im"_L1][i], 1e-9, where + " imaginary part");
    expectNear(point.mach, values["mach"_L1][i], 1e-9, where + " Mach number");
    expectNear(point.sigma, values["sigma"_L1][i], 1e-9, where + " density");
}

void expectRun(const SolverRun& run, const ImportedRun& imported, const QJsonObject& expected,
               const std::string& where)
{
    EXPECT_EQ(run.key.method, expected["method"_L1].toString().toStdString()) << where;
    EXPECT_EQ(run.key.subcase.value_or(""), expected["subcase"_L1].toString().toStdString());
    EXPECT_EQ(static_cast<int>(imported.droppedRows), expected["dropped_rows"_L1].toInt()) << where;
    EXPECT_EQ(run.wasCut, expected["cut_to_shortest"_L1].toBool()) << where;
    const QJsonArray modes = expected["modes"_L1].toArray();
    ASSERT_EQ(imported.modes.size(), static_cast<std::size_t>(modes.size())) << where;
    for (qsizetype m = 0; m < modes.size(); ++m) {
        const ImportedMode& mode = imported.modes[static_cast<std::size_t>(m)];
        ASSERT_EQ(mode.id, modes[m].toInt()) << where;
        const std::string name = where + " mode " + std::to_string(mode.id);
        ASSERT_EQ(mode.points.size(), expected["speeds"_L1].toInt()) << name;
        const QJsonObject values =
            expected["points"_L1].toObject()[QString::number(mode.id)].toObject();
        for (std::size_t i = 0; i < mode.points.size(); ++i)
            expectPoint(mode.points[i], values, static_cast<int>(i),
                        name + " point " + std::to_string(i + 1));
    }
}

void expectCase(const std::filesystem::path& folder, const QJsonObject& expected)
{
    const std::string name = expected["file"_L1].toString().toStdString();
    const SolverOutput output = readSolverOutput((folder / name).string());
    const QJsonObject options = expected["options"_L1].toObject();
    UnitChoice units;
    units.speed = speedUnit(options["speed_unit"_L1].toString().toStdString()).value();
    units.density = densityUnit(options["density"_L1].toString().toStdString()).value();
    units.vref = options["vref"_L1].toDouble();
    const QJsonArray evolutions = expected["evolutions"_L1].toArray();
    ASSERT_EQ(output.runs.size(), static_cast<std::size_t>(evolutions.size())) << name;
    for (qsizetype i = 0; i < evolutions.size(); ++i) {
        const auto index = static_cast<std::size_t>(i);
        const QJsonObject evolution = evolutions[i].toObject();
        EXPECT_EQ(output.names[index], evolution["name"_L1].toString().toStdString());
        expectRun(output.runs[index], importRun(output.runs[index], units), evolution,
                  output.names[index]);
    }
}

} // namespace

TEST(SolverCases, giveWhatAnIndependentProgramGives)
{
    const char* const name = std::getenv("TARSIL_SOLVER_CASES");
    if (name == nullptr || !std::filesystem::is_directory(name))
        GTEST_SKIP() << "no folder of solver outputs";
    const std::filesystem::path folder = name;
    int cases = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (!entry.path().string().ends_with(".expected.json"))
            continue;
        QFile file(QString::fromStdString(entry.path().string()));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QJsonObject expected = QJsonDocument::fromJson(file.readAll()).object();
        if (!expected.contains("evolutions"_L1))
            continue;
        expectCase(folder, expected);
        ++cases;
    }
    EXPECT_GT(cases, 0);
}
