// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PictureFiles.h"

#include "support/Errors.h"
#include "support/TestFiles.h"
#include "vgfplot/EvmPlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

using namespace tarsil;
using ::testing::ElementsAre;

TEST(PictureFileNames, areTheCaptionsWithTheExtension)
{
    EXPECT_THAT(pictureFileNames({"Wing", "Fl\xC3\xBCgel m0.4"}, PictureFormat::Svg),
                ElementsAre("Wing.svg", "Fl\xC3\xBCgel m0.4.svg"));
}

TEST(PictureFileNames, haveNoCharacterThatIsNotAllowedInAName)
{
    EXPECT_THAT(
        pictureFileNames({"a/b\\c:d*e?f\"g<h>i|j\nk", "../up", "", "  "}, PictureFormat::Emf),
        ElementsAre("a_b_c_d_e_f_g_h_i_j_k.emf", "_._up.emf", "Plot.emf", "Plot_2.emf"));
}

TEST(PictureFileNames, differAlsoWithoutRegardToCase)
{
    EXPECT_THAT(pictureFileNames({"Wing", "wing", "Wing_2", "Wing"}, PictureFormat::Png),
                ElementsAre("Wing.png", "wing_2.png", "Wing_2_2.png", "Wing_3.png"));
}

TEST(PictureFileNames, fitIntoAFolder)
{
    std::string caption;
    for (int i = 0; i < 300; ++i)
        caption += "\xC3\xBC";
    EXPECT_EQ(pictureFileNames({caption}, PictureFormat::Svg).front().size(), 204U);
}

TEST(PictureFiles, areWrittenTogether)
{
    const test::TemporaryFolder folder;
    const EvmPlot plot;
    PictureFiles files;
    files.add(plot, folder.file("a.svg"), PictureFormat::Svg);
    files.add(plot, folder.file("b.emf"), PictureFormat::Emf);
    EXPECT_FALSE(std::filesystem::exists(folder.file("a.svg")));
    files.commit();
    EXPECT_EQ(test::fileBytes(folder.file("a.svg")),
              pictureBytes(plot, PictureFormat::Svg).toStdString());
    EXPECT_EQ(test::fileBytes(folder.file("b.emf")),
              pictureBytes(plot, PictureFormat::Emf).toStdString());
}

TEST(PictureFiles, leaveNothingWhenOneCannotBeDrawnOrWritten)
{
    const test::TemporaryFolder folder;
    {
        EvmPlot plot;
        PictureFiles files;
        files.add(plot, folder.file("a.svg"), PictureFormat::Svg);
        plot.properties().setVthicks(0);
        EXPECT_EQ(
            test::errorNumberOf([&] { files.add(plot, folder.file("b.svg"), PictureFormat::Svg); }),
            ErrorNumber::DivisionByZero);
        plot.properties().setVthicks(7);
        EXPECT_EQ(test::errorNumberOf(
                      [&] { files.add(plot, folder.file("none/c.svg"), PictureFormat::Svg); }),
                  ErrorNumber::PathNotFound);
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}
