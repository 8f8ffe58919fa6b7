// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/ModeBuilder.h"
#include "plot/UcPlot.h"
#include "support/Errors.h"
#include "support/RecordingContext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarsil::test {

/// A canvas of 100 x 100 pixels at (10, 20) of its plot. One pixel is one unit, and the ordinate
/// grows upwards: the data point (x, y) is pixel (x, 100 - y).
class Canvas : public ::testing::Test, public PlotContainer
{
protected:
    Canvas() : canvas(*this)
    {
        canvas.setGeometry({10, 20, 100, 100});
        canvas.SetScale(0, 100, 100, 0);
    }

    const SeriesList& SeriesCollection() const override { return series; }

    /// Adds a series of a new mode with these points.
    Series& addCurve(std::initializer_list<DrawnPoint> points)
    {
        return addSeries(addMode(evolution, 7, points));
    }

    /// Adds a series of a new mode with `count` points (1, 50), (2, 50), ... of frequency 50.
    Series& addLevelCurve(int count)
    {
        AeMode& mode = addMode(evolution, 7, {});
        for (int i = 1; i <= count; ++i) {
            Point& point = mode.Points.emplace_back();
            point.speed = static_cast<float>(i);
            point.f = 50;
        }
        return addSeries(mode);
    }

    Series& addSeries(AeMode& mode)
    {
        Series& added = series.emplace_back();
        added.Mode = &mode;
        return added;
    }

    /// The lines and texts that the canvas draws, relative to the canvas.
    std::vector<std::string> drawing()
    {
        RecordingContext context;
        canvas.Draw(&context);
        return context.drawingCalls();
    }

    /// Only the texts.
    std::vector<std::string> texts()
    {
        std::vector<std::string> result;
        for (const std::string& call : drawing()) {
            if (call.starts_with("text "))
                result.push_back(call);
        }
        return result;
    }

    EVM evolution;
    SeriesList series;
    ucPlot canvas;
};

} // namespace tarsil::test
