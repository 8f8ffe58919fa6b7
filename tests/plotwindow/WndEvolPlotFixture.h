// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "document/PlotList.h"
#include "model/EVM.h"
#include "plotwindow/EvmPlotView.h"
#include "plotwindow/WndEvolPlot.h"
#include "support/ScriptedUserInterface.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace tarsil::test {

/// A window with a list of plots, and a listener that records signals.
class WndEvolPlotTest : public ::testing::Test
{
protected:
    WndEvolPlotTest() : window(list, user) { window.resize(800, 600); }

    void show()
    {
        window.show();
        window.activateWindow();
        QApplication::processEvents();
    }

    EvmPlot* plotAt(std::size_t index) { return window.plots().at(index); }
    void activateFirst() { window.ActivatePlot(plotAt(0)); }
    EvmPlot* add(const char* caption = "") { return &window.AddPlot(QString::fromLatin1(caption)); }

    std::vector<std::string> captions() const
    {
        std::vector<std::string> result;
        for (const EvmPlot* plot : window.plots())
            result.push_back(plot->properties().Caption().toStdString());
        return result;
    }

    /// The captions of the visible plots.
    std::vector<std::string> visibleCaptions()
    {
        std::vector<std::string> result;
        for (const EvmPlot* plot : window.plots()) {
            EXPECT_EQ(plot->Visible(), !window.viewOf(*plot)->isHidden());
            if (plot->Visible())
                result.push_back(plot->properties().Caption().toStdString());
        }
        return result;
    }

    /// Records the signals of list and window from now on, with the captions of the plots.
    void listen()
    {
        const auto name = [](const EvmPlot* plot) {
            return plot != nullptr ? plot->properties().Caption().toStdString() : "none";
        };
        QObject::connect(&list, &PlotList::activeChanged, &window,
                         [this, name](const EvmPlot* before, const EvmPlot* now) {
                             EXPECT_EQ(window.ActivePlot(), now);
                             announced.push_back("active " + name(before) + " " + name(now));
                         });
        QObject::connect(&list, &PlotList::added, &window, [this, name](const EvmPlot* plot) {
            EXPECT_EQ(window.plots().back(), plot);
            announced.push_back("added " + name(plot));
        });
        QObject::connect(&list, &PlotList::aboutToBeRemoved, &window, [this, name](EvmPlot* plot) {
            EXPECT_EQ(window.viewOf(*plot), nullptr);
            EXPECT_NE(window.ActivePlot(), plot);
            announced.push_back("removed " + name(plot));
        });
        QObject::connect(&window, &wndEvolPlot::plotMenuRequested, &window,
                         [this](QPoint position) {
                             announced.push_back("menu " + std::to_string(position.x()) + ","
                                                 + std::to_string(position.y()));
                         });
    }

    ScriptedUserInterface user;
    EVM evolution;
    PlotList list;
    wndEvolPlot window;
    std::vector<std::string> announced;
};

} // namespace tarsil::test
