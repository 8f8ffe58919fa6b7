// SPDX-License-Identifier: Apache-2.0

// Several evolutions at once: filters above tree and grid, and cells that are copied.

#include "Person.h"
#include "Program.h"

#include "support/TestFiles.h"

#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarsil::test {

namespace {

using ::testing::HasSubstr;

constexpr int tagColumn = 2;

class ManyFilesRound : public ::testing::Test
{
protected:
    ManyFilesRound() : program(display, {}), person(display, program) { }

    const VirtualDisplay display;
    const TemporaryFolder folder;
    Program program;
    Person person;
};

} // namespace

TEST_F(ManyFilesRound, drawsFilteredEvolutionsAndPastesCells)
{
    for (const char* name :
         {"goland_clean_m040.ev2", "goland_clean_m050.ev2", "goland_tipstore_m040.ev2"})
        person.addEvolution(name);
    person.fill("txtEvolutionFilter", QStringLiteral("clean"));
    person.chooseFor(QStringLiteral("goland_clean_m050.ev2"), "popTickAll");
    person.drawTicked();

    person.clickAt(person.cell(0, tagColumn).center());
    person.type(QStringLiteral("wing A"));
    person.press("Return");
    person.clickAt(person.cell(0, tagColumn).center());
    person.press("ctrl+c");
    person.clickAt(person.cell(1, tagColumn).center());
    person.press("ctrl+v");

    person.fill("txtRowFilter", QStringLiteral("clean_m040"));
    person.clickAt(person.cell(0, tagColumn).center());
    person.press("ctrl+a Delete");

    const QString file = QString::fromStdString(folder.file("many.tsw"));
    person.nameFile([this] { person.press("ctrl+s"); }, "^Save", file);
    ASSERT_TRUE(waitUntil([&file] { return QFile::exists(file); }));
    const std::string saved = fileBytes(file.toStdString());
    EXPECT_THAT(saved, HasSubstr("NoOfSeries=1\r\n"))
        << "the evolution that the filter hid is not drawn, and the row that it hid is still there";
    EXPECT_THAT(saved, HasSubstr("wing A")) << "it is in the row that is left";
    person.press("ctrl+q");
    EXPECT_EQ(program.exitStatus(), 0);
}

} // namespace tarsil::test
