// SPDX-License-Identifier: Apache-2.0
#include "batch/BatchFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

using namespace tarsil;
using test::runBatch;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

class InfoCommand : public test::BatchFixture
{
protected:
    /// The objects of "files", parsed by Qt.
    static QJsonArray filesOf(const std::string& json)
    {
        QJsonParseError error {};
        const QJsonDocument document =
            QJsonDocument::fromJson(QByteArray::fromStdString(json), &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
        EXPECT_EQ(document.object().size(), 1);
        return document.object()[QStringLiteral("files")].toArray();
    }
};

QJsonObject keyedText(const char* key, const QString& text)
{
    return {{QStringLiteral("key"), QString::fromUtf8(key)}, {QStringLiteral("text"), text}};
}

} // namespace

TEST_F(InfoCommand, givesHeaderAndModesAsJson)
{
    const auto result = runBatch({"info", "--json", writeEv2()});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    const QJsonArray files = filesOf(result.out);
    ASSERT_EQ(files.size(), 1);
    const QString folderText = QString::fromStdString(folder().path().generic_string());
    const QJsonObject expected {
        {QStringLiteral("file"), QStringLiteral("wing.ev2")},
        {QStringLiteral("folder"), folderText},
        {QStringLiteral("format"), QStringLiteral("ev2")},
        {QStringLiteral("airplane"), QStringLiteral("QRX190")},
        {QStringLiteral("mass"), QStringLiteral("FULL \"A\"")},
        {QStringLiteral("mach"), 0.78},
        {QStringLiteral("analysis_type"), QStringLiteral("SYM")},
        {QStringLiteral("script"), QStringLiteral("run.sh")},
        {QStringLiteral("method"), QStringLiteral("PK")},
        {QStringLiteral("solver_version"), QStringLiteral("70.7")},
        {QStringLiteral("program_version"), QStringLiteral("7.1")},
        {QStringLiteral("ev2_version"), QStringLiteral("2")},
        {QStringLiteral("running_date"), QStringLiteral("05.04.2001")},
        {QStringLiteral("struct_modes"), 20},
        {QStringLiteral("aeroel_modes"), 2},
        {QStringLiteral("speeds"), 3},
        {QStringLiteral("participation_factors"), true},
        {QStringLiteral("modifications"),
         QJsonArray {keyedText("1", QStringLiteral("stiffer\tpylon"))}},
        {QStringLiteral("legends"),
         QJsonArray {keyedText("1", QStringLiteral("nominal")),
                     keyedText("2", QStringLiteral("Fl\u00FCgel"))}},
        {QStringLiteral("modes"),
         QJsonArray {QJsonObject {{QStringLiteral("id"), 3}, {QStringLiteral("points"), 2}},
                     QJsonObject {{QStringLiteral("id"), 5}, {QStringLiteral("points"), 3}}}}};
    EXPECT_EQ(files[0].toObject(), expected) << result.out;
}

TEST_F(InfoCommand, givesEveryPointOnDemand)
{
    const auto result = runBatch({"info", "--json", "--points", writeEv2(), writeEvm()});
    EXPECT_EQ(result.status, 0);
    ASSERT_EQ(filesOf(result.out).size(), 2);
    EXPECT_THAT(result.out,
                HasSubstr(R"({"id":3,"points":[{"speed":300,"g":-1,"f":4,"kfreq":0,"re":-2.5,)"
                          R"("im":1.5,"mpf":[40,0.2,0.3,0.4,0.5]},)"));
    EXPECT_THAT(result.out,
                HasSubstr(R"({"id":7,"points":[{"speed":100,"g":-0.5,"f":4,"kfreq":0.1,"re":0,)"
                          R"("im":0,"mpf":[]},)"));
    EXPECT_THAT(result.out, HasSubstr(R"("format":"evm","airplane":"","mass":"","mach":0,)"));
}

TEST_F(InfoCommand, givesTextForPeople)
{
    const auto result = runBatch({"info", writeEv2(), writeEvm()});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("\n  airplane               QRX190\n"));
    EXPECT_THAT(result.out, HasSubstr("\n  legend 2               Fl\xC3\xBCgel\n"));
    EXPECT_THAT(result.out,
                HasSubstr("\n  position    number    points\n"
                          "         1         3         2\n"
                          "         2         5         3\n"
                          "\nold.evm\n"));
    EXPECT_THAT(result.out, HasSubstr("\n  Mach number            not given\n"));
}

TEST_F(InfoCommand, printsNoControlCharacterOfAFile)
{
    std::string text = test::fileBytes(writeEv2());
    text.replace(text.find("QRX190"), 6, "QRX\x1B[31m\r\xC2\x9B");
    const std::string path = folder().write("red\nname\x1B.ev2", text);
    const auto result = runBatch({"info", path});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(result.out, StartsWith("red?name?.ev2\n"));
    EXPECT_THAT(result.out, HasSubstr("QRX?[31m??\n"));
    EXPECT_EQ(result.out.find_first_of("\x1B\r"), std::string::npos);
}

TEST_F(InfoCommand, givesTextWithPoints)
{
    const auto result = runBatch({"info", "--points", writeEvm()});
    EXPECT_THAT(result.out, HasSubstr("  position 1, mode 7, 2 points\n"));
    EXPECT_THAT(result.out,
                HasSubstr("            100           -0.5              4            0.1"));
}

TEST_F(InfoCommand, printsNothingWhenOneFileFails)
{
    const auto result = runBatch({"info", "--json", writeEv2(), file("missing.ev2")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "tarsil-batch: File not found: " + file("missing.ev2") + "\n");
}

TEST_F(InfoCommand, namesFileLineAndTextOfAnError)
{
    const std::string path = folder().write("bad.evm",
                                            "\n\n\n" + std::string(60, ' ') + "   1       1\n"
                                                + "  7  0.100  100.000     damping    4.000\n");
    const auto result = runBatch({"info", path});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("tarsil-batch: Type mismatch: " + path + ", line 5"));
    EXPECT_THAT(result.err, HasSubstr("damping"));
}

TEST_F(InfoCommand, refusesANameWithoutAKnownFormat)
{
    const auto result = runBatch({"info", folder().write("notes.txt", "x")});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("notes.txt: a modal evolution has .evm or .ev2 in its name"));
    EXPECT_THAT(runBatch({"info", file("gone.txt")}).err, HasSubstr("File not found"));
}
