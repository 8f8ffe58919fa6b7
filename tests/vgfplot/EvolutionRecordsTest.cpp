// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/EvolutionRecords.h"

#include "formats/EvolutionFile.h"
#include "model/EVM.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

class EvolutionRecords : public ::testing::Test
{
protected:
    EvolutionRecords()
    {
        folder.write("wing.ev2",
                     "[PROCESSING DATA INFO]\nProgram_version=7.1\n\n"
                     "[MODEL DATA INFO]\nAirplane=QRX190\nMass_config=FULL\nMach_number=0.78\n\n"
                     "[RESULT DATA SUMMARY]\n-\n-\n-\n-\n"
                     "1|1|1.5|-2.5||100|-1|4|||4||0||0||0||0||\n");
        for (EVM* const evolution : {&one, &two}) {
            evolution->Folder = folder.path().string();
            evolution->FileName = "wing.ev2";
            Contruct(*evolution);
        }
    }

    std::vector<const EVM*> evolutions() const { return {&one, &two}; }

    test::TemporaryFolder folder;
    EVM one;
    EVM two;
};

} // namespace

TEST_F(EvolutionRecords, areEmptyWhereEverythingIsAsInTheFiles)
{
    EXPECT_TRUE(editedRecordsOf(evolutions()).empty());
    two.Param.Mach = 0.8F;
    two.Param.Mach = 0.78F; // the original value
    EXPECT_TRUE(editedRecordsOf(evolutions()).empty());
}

TEST_F(EvolutionRecords, holdAllThreeParametersWhereOneWasChanged)
{
    two.Param.Mach = 0.8F;
    const auto edited = editedRecordsOf(evolutions());
    ASSERT_EQ(edited.size(), 1U);
    EXPECT_EQ(edited.at(2), (EditedRecord {"QRX190", "FULL", 0.8F}));
    two.Param.Mach = 0.78F;
    one.Param.Mass.clear();
    two.Param.Airplane = "other";
    EXPECT_EQ(editedRecordsOf(evolutions()),
              (std::map<std::size_t, EditedRecord> {{1, {"QRX190", "", 0.78F}},
                                                    {2, {"other", "FULL", 0.78F}}}));
}

TEST_F(EvolutionRecords, giveEvolutionsTheirParametersAgain)
{
    const EditedRecord changed {"A", "M", 0.5F};
    applyEdited({{0, changed}, {1, changed}, {2, changed}, {3, changed}}, {nullptr, &two});
    EXPECT_EQ(one.Param.Airplane, "QRX190");
    EXPECT_EQ(two.Param.Airplane, "A");
    EXPECT_EQ(two.Param.Mass, "M");
    EXPECT_EQ(two.Param.Mach, 0.5F);
    EXPECT_EQ(editedRecordsOf({&two}).at(1), changed) << "the file still says something else";
}

TEST_F(EvolutionRecords, holdWhatDiffersFromTheFileAfterItWasReadAgain)
{
    two.Param.Mach = 0.8F;
    Contruct(two);
    EXPECT_TRUE(editedRecordsOf(evolutions()).empty());
}

TEST_F(EvolutionRecords, knowTheFileAlsoAfterAnotherEvolutionWasTakenOver)
{
    EVM other;
    other.Param.Mass = "OTHER";
    two.Change(other); // replaces the modes
    EXPECT_TRUE(editedRecordsOf(evolutions()).empty());
}
