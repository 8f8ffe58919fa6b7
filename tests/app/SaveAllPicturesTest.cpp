// SPDX-License-Identifier: Apache-2.0

// The command "Save All Pics ...".

#include "analysis/ModeBuilder.h"
#include "app/WndMainFixture.h"
#include "support/ChangeSeries.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/PictureWriter.h"

#include <gmock/gmock.h>

#include <filesystem>

using namespace tarsil;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

namespace {

class SaveAllPictures : public test::WndMainTest
{
protected:
    SaveAllPictures()
    {
        load();
        second = &window.document().plots().add(QStringLiteral("a/b"));
        std::filesystem::create_directory(pictures);
    }

    /// Chooses the command and answers with the format of this index.
    void saveAll(std::size_t format)
    {
        user.choiceIndices.push_back(format);
        user.folders.push_back(pictures);
        choose("savePictures");
    }

    EvmPlot* second = nullptr;
    const std::string pictures = folder.file("pictures");
};

} // namespace

TEST_F(SaveAllPictures, writesEveryPlotUnderItsCaption)
{
    saveAll(1);
    EXPECT_THAT(user.offered, SizeIs(4));
    EXPECT_EQ(test::fileBytes(pictures + "/Plot1.svg"),
              pictureBytes(plot(), PictureFormat::Svg).toStdString());
    EXPECT_THAT(test::fileBytes(pictures + "/a_b.svg"), StartsWith("<?xml"));
    EXPECT_EQ(second->size(), plot().size());
    EXPECT_EQ(user.note, "2 pictures are in " + pictures + " (SVG)");
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(SaveAllPictures, writesTheDashesOfMetafilesAsTheUserWants)
{
    EVM evolution;
    plot().rows().add(test::addMode(evolution, 1, {{0, -0.02F, 10}, {700, 0.05F, 80}}));
    test::changeSeries(plot(), 0, [](Series& series) { series.LineStyle = penstyle::dash; });
    PictureSettings settings;
    settings.dashes = MetafileDashes::Lines;
    window.document().plots().setPictureSettings(settings);
    saveAll(0);
    const std::string bytes = test::fileBytes(pictures + "/Plot1.emf");
    EXPECT_EQ(bytes, pictureBytes(plot(), PictureFormat::Emf, settings).toStdString());
    EXPECT_NE(bytes, pictureBytes(plot(), PictureFormat::Emf).toStdString());
    plot().rows().clear();
}

TEST_F(SaveAllPictures, asksOnceBeforeFilesAreReplaced)
{
    saveAll(0);
    const std::string before = test::fileBytes(pictures + "/Plot1.emf");
    plot().properties().setVLabel(QStringLiteral("V"));
    user.questions.clear();
    saveAll(0);
    ASSERT_THAT(user.questions, SizeIs(2)) << "for the format and for both files";
    EXPECT_THAT(user.questions[1], HasSubstr("Plot1.emf"));
    EXPECT_THAT(user.questions[1], HasSubstr("a_b.emf"));
    EXPECT_EQ(test::fileBytes(pictures + "/Plot1.emf"), before) << "the answer was no";
    user.confirmations.push_back(true);
    saveAll(0);
    EXPECT_NE(test::fileBytes(pictures + "/Plot1.emf"), before);
}

TEST_F(SaveAllPictures, writesNothingWhenAPlotCannotBeDrawn)
{
    second->properties().setVthicks(0);
    saveAll(3);
    ASSERT_THAT(user.messages, SizeIs(1));
    EXPECT_THAT(user.messages[0].text, HasSubstr("plot \"a/b\""));
    EXPECT_TRUE(std::filesystem::is_empty(pictures));
}

TEST_F(SaveAllPictures, doesNothingWithoutAFormatOrAFolder)
{
    choose("savePictures");
    user.choiceIndices.push_back(1);
    choose("savePictures");
    EXPECT_THAT(user.initials, SizeIs(1)) << "the folder is asked for after the format";
    EXPECT_EQ(user.note, "");
}
