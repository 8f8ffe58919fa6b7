// SPDX-License-Identifier: Apache-2.0

// The plot of files on the command line is the same in the window and in a picture.

#include "WndMainFixture.h"

#include "batch/Batch.h"
#include "support/TestFiles.h"
#include "vgfplot/PictureWriter.h"

#include <sstream>

using namespace tarsil;
using test::fileBytes;
using test::sample;

namespace {

class SamePlot : public test::WndMainTest
{
protected:
    std::string windowPicture(PictureFormat format)
    {
        return pictureBytes(plot(), format).toStdString();
    }

    /// The picture that tarsil-batch draws in the size of the window's plot.
    std::string batchPicture(const std::string& name, std::vector<std::string> files)
    {
        const QSize size = plot().size();
        const std::string output = folder.file(name);
        files.insert(files.begin(),
                     {"picture", "--output", output, "--size",
                      std::to_string(size.width()) + "x" + std::to_string(size.height())});
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(batch::runBatch(files, out, err), 0) << err.str();
        return fileBytes(output);
    }

    void compare(const std::vector<std::string>& files)
    {
        load(files);
        EXPECT_FALSE(plot().SeriesCollection().empty());
        EXPECT_TRUE(windowPicture(PictureFormat::Svg) == batchPicture("a.svg", files)) << "SVG";
        EXPECT_TRUE(windowPicture(PictureFormat::Emf) == batchPicture("a.emf", files)) << "EMF";
        EXPECT_TRUE(windowPicture(PictureFormat::Pdf) == batchPicture("a.pdf", files)) << "PDF";
        EXPECT_TRUE(windowPicture(PictureFormat::Png) == batchPicture("a.png", files)) << "PNG";
    }
};

} // namespace

TEST_F(SamePlot, isDrawnOfOneFile)
{
    compare({sample("goland_clean_m040.ev2")});
}

TEST_F(SamePlot, isDrawnOfSeveralFilesOfBothFormats)
{
    compare({sample("goland_clean_m040.ev2"), sample("goland_tipstore_m050.ev2"),
             sample("goland_clean_m040.evm")});
}
