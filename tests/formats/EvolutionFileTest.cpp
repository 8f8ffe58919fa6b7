// SPDX-License-Identifier: Apache-2.0
#include "FormatFixtures.h"

#include "formats/EvolutionFile.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <string>

namespace tarsil {

namespace {

using test::errorOf;
using test::ev2Header;
using test::ev2Row;
using test::evmHeader;
using test::TemporaryFolder;

const std::string onePointEvm = evmHeader("1", "1") + "  3  0.056   35.810 1.50000E-02    2.737\n";

int numberOf(const std::optional<RunTimeError>& error)
{
    return error ? static_cast<int>(error->number()) : 0;
}

class EvolutionFile : public ::testing::Test
{
protected:
    EVM& read(std::string_view name, std::string_view bytes)
    {
        m_folder.write(name, bytes);
        return open(name);
    }

    EVM& open(std::string_view name)
    {
        m_evolution.Folder = m_folder.path().string();
        m_evolution.FileName = name;
        Contruct(m_evolution);
        return m_evolution;
    }

    TemporaryFolder m_folder;
    EVM m_evolution;
};

TEST_F(EvolutionFile, readsEvmAsTheOldFormat)
{
    EXPECT_FALSE(read("wing.evm", onePointEvm).isNewFormat);
    ASSERT_EQ(m_evolution.Modes.size(), 1U);
    EXPECT_EQ(m_evolution.Modes[0]->Id, 3);
    EXPECT_EQ(m_evolution.Modes[0]->Parent, &m_evolution);
}

TEST_F(EvolutionFile, readsEv2AsTheNewFormat)
{
    EXPECT_TRUE(read("wing.ev2", ev2Header("Mach_number=0.78\n") + ev2Row(21)).isNewFormat);
    EXPECT_EQ(m_evolution.Param.Mach, 0.78F);
    EXPECT_TRUE(m_evolution.hasParticipationFactors);
    EXPECT_EQ(m_evolution.Modes.size(), 1U);
}

TEST_F(EvolutionFile, readsANameWithBothExtensionsAsTheOldFormat)
{
    EXPECT_EQ(read("wing.ev2.evm", onePointEvm).Modes.size(), 1U);
    EXPECT_EQ(read("wing.evm.ev2", onePointEvm).Modes.size(), 1U);
    EXPECT_EQ(read("wing.evm.bak", onePointEvm).Modes.size(), 1U);
    EXPECT_FALSE(m_evolution.isNewFormat);
}

TEST_F(EvolutionFile, leavesAnEvolutionOfAnotherNameEmpty)
{
    EXPECT_TRUE(read("wing.txt", onePointEvm).Modes.empty());
    EXPECT_TRUE(read("wing.EVM", onePointEvm).Modes.empty()); // case-sensitive
    EXPECT_TRUE(open("missing.txt").Modes.empty());
}

TEST_F(EvolutionFile, acceptsANameWithBlanks)
{
    EXPECT_EQ(read("wing 1 new.evm", onePointEvm).Modes.size(), 1U);
}

TEST_F(EvolutionFile, raisesTheErrorsOfTheFileSystem)
{
    EXPECT_EQ(numberOf(errorOf([&] { open("missing.evm"); })), 53);
    std::filesystem::create_directory(m_folder.file("folder.evm"));
    EXPECT_EQ(numberOf(errorOf([&] { open("folder.evm"); })), 75);
    m_evolution.Folder = m_folder.file("missing");
    EXPECT_EQ(numberOf(errorOf([&] { Contruct(m_evolution); })), 76);
}

TEST_F(EvolutionFile, raisesAnErrorForAnEmptyFile)
{
    EXPECT_EQ(numberOf(errorOf([&] { read("wing.evm", ""); })), 62);
    EXPECT_EQ(numberOf(errorOf([&] { read("wing.ev2", ""); })), 62);
}

TEST_F(EvolutionFile, raisesAnErrorForABinaryFile)
{
    std::string bytes;
    for (int i = 0; i < 4096; ++i)
        bytes += static_cast<char>(i * 37);
    EXPECT_EQ(numberOf(errorOf([&] { read("wing.ev2", bytes); })), 62);
    EXPECT_NE(numberOf(errorOf([&] { read("wing.evm", bytes); })), 0);
}

TEST_F(EvolutionFile, namesTheFileInItsErrors)
{
    const auto error = errorOf([&] { read("wing.evm", evmHeader("x", "1")); });
    ASSERT_TRUE(error);
    EXPECT_NE(error->description().find("wing.evm, line 4"), std::string::npos);
}

TEST_F(EvolutionFile, leavesTheEvolutionAsItWasAfterAnError)
{
    read("good.ev2", ev2Header("Airplane=GOLAND\nNo_of_speeds=1\nLegend(1)=a\n") + ev2Row(21));
    const AeMode* const mode = m_evolution.Modes[0].get();
    ASSERT_TRUE(errorOf([&] {
        read("bad.ev2",
             ev2Header("Airplane=X\nNo_of_speeds=9\nLegend(1)=b\n") + ev2Row(11) + "1|x\n");
    }));
    ASSERT_EQ(m_evolution.Modes.size(), 1U);
    EXPECT_EQ(m_evolution.Modes[0].get(), mode);
    EXPECT_EQ(m_evolution.Param.Airplane, "GOLAND");
    EXPECT_EQ(m_evolution.numberOfSpeeds, 1);
    EXPECT_EQ(*m_evolution.Param.legends.find("1"), "a");
    EXPECT_TRUE(m_evolution.hasParticipationFactors);
}

TEST_F(EvolutionFile, replacesWhatAnEarlierFileLeft)
{
    read("first.ev2", ev2Header("Airplane=GOLAND\nMach_number=0.5\nLegend(1)=a\n") + ev2Row(21));
    read("second.evm", onePointEvm);
    EXPECT_EQ(m_evolution.Modes.size(), 1U);
    EXPECT_FALSE(m_evolution.isNewFormat);
    EXPECT_FALSE(m_evolution.hasParticipationFactors);
    EXPECT_EQ(m_evolution.Param.Airplane, "");
    EXPECT_EQ(m_evolution.Param.Mach, 0.0F);
    EXPECT_TRUE(m_evolution.Param.legends.empty());
}

TEST_F(EvolutionFile, isOpenedByItsPath)
{
    const auto evolution =
        openEvolution(m_folder.write("a b.ev2", ev2Header("Airplane=GOLAND\n") + ev2Row(8)));
    EXPECT_EQ(evolution->FileName, "a b.ev2");
    EXPECT_EQ(evolution->Folder, m_folder.path().generic_string());
    EXPECT_EQ(evolution->Param.Airplane, "GOLAND");
    EXPECT_EQ(numberOf(errorOf([&] { openEvolution(m_folder.file("missing.ev2")); })), 53);
}

} // namespace

} // namespace tarsil
