// SPDX-License-Identifier: Apache-2.0
#include "printing/PlotPrinter.h"

#include "base/user/RunTimeError.h"
#include "vgfplot/EvmPlot.h"

#include <QBuffer>
#include <QPdfWriter>

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

class PlotPrinter : public ::testing::Test
{
protected:
    /// The PDF of `count` plots.
    QByteArray printed(std::size_t count, std::size_t plotsPerPage)
    {
        std::vector<EvmPlot> plots(count);
        PrintJob job {{},
                      plotsPerPage,
                      QStringLiteral("wing"),
                      QStringLiteral("/a/wing.tsw"),
                      QStringLiteral("07-Mar-2026 09:05:03")};
        for (const EvmPlot& plot : plots)
            job.plots.push_back(&plot);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        printPlots(job, writer);
        return buffer.data();
    }
};

} // namespace

TEST_F(PlotPrinter, drawsAPageForEachGroupOfPlots)
{
    EXPECT_TRUE(printed(3, 1).contains("/Count 3"));
    EXPECT_TRUE(printed(3, 2).contains("/Count 2"));
    EXPECT_TRUE(printed(3, 4).contains("/Count 1"));
}

TEST_F(PlotPrinter, drawsVectors)
{
    const QByteArray pdf = printed(1, 1);
    EXPECT_TRUE(pdf.contains("/Type /Font"));
    EXPECT_FALSE(pdf.contains("/Subtype /Image"));
}

TEST_F(PlotPrinter, raisesTheErrorOfAPlotThatCannotBeDrawn)
{
    EvmPlot plot;
    plot.properties().setVthicks(0);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    EXPECT_THROW(printPlots({{&plot}, 1, {}, {}, {}}, writer), RunTimeError);
}
