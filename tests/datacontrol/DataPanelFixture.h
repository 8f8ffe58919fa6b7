// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "aircraft/AirplaneInfo.h"
#include "analysis/ModeBuilder.h"
#include "datacontrol/DataCommands.h"
#include "document/Document.h"
#include "document/UndoHistory.h"
#include "plotwindow/WndEvolPlot.h"
#include "support/ChangeSeries.h"
#include "support/FormParts.h"
#include "support/ScriptedUserInterface.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tarsil::test {

inline ScriptedUserInterface::Message warning(const std::string& text)
{
    return {text, "Tarsil", MessageIcon::Exclamation};
}

/// A plot window whose first plot is active, and an airplane with one mass configuration, two
/// mechanisms and one envelope.
class DataPanelTest : public ::testing::Test
{
protected:
    DataPanelTest() : plots(document.plots(), user)
    {
        airplane.Filename = "/aircraft.inp";
        airplane.VLTag = "VL";
        airplane.VdTag = "Vd";
        airplane.CeTag = "Ceiling";
        airplane.MassConfs.push_back({"1 kg", "1", "0.1 m", "Clean wing", "clean"});
        FlutterMechanism bending;
        bending.ShortName = "BT";
        bending.LongName = "Bending and torsion";
        bending.vmin = 100;
        bending.vmax = 400;
        bending.vthick = 6;
        bending.fmin = 2;
        bending.fmax = 22;
        bending.fthick = 4;
        bending.gmin = 0;
        bending.gmax = -0.5F;
        bending.gthick = 2.5F;
        FlutterMechanism store = bending;
        store.ShortName = "STORE";
        store.LongName = "Pitch of the store";
        airplane.FlutterMechs = {bending, store};
        airplane.FlutterEnvs.push_back({210, 180, 140, "0.78"});
        document.setAirplane(airplane);
        plots.resize(400, 300);
        plots.ActivatePlot(plots.plots().front());
    }

    /// An evolution of `modes` modes with two points each.
    EVM& load(const std::string& name, int modes = 3)
    {
        OwnedEvolutions loaded;
        EVM& evolution = *loaded.emplace_back(std::make_unique<EVM>());
        evolution.Folder = "/runs";
        evolution.FileName = name;
        evolution.na = static_cast<std::int16_t>(modes);
        evolution.flutterMethod = "PK";
        evolution.Param.Airplane = "QRX200";
        evolution.Param.Mass = "clean";
        evolution.Param.Mach = 0.78F;
        for (int mode = 1; mode <= modes; ++mode)
            addMode(evolution, static_cast<std::int16_t>(mode),
                    {{100, -0.02F, 5.0F + static_cast<float>(mode)}, {200, 0.01F, 6}});
        document.evolutions().add(std::move(loaded));
        return evolution;
    }

    const OwnedEvolutions& evolutions() { return document.evolutions().all(); }
    void setReference(EVM& evolution) { document.evolutions().setReference(&evolution); }

    /// Adds a mode (counted from 1) to the active plot as the explorer does.
    void add(EVM& evolution, std::size_t mode = 1)
    {
        plots.AddSerie(*evolution.Modes.at(mode - 1));
    }

    EvmPlot& plot() { return *plots.ActivePlot(); }
    const SeriesList& series() { return plot().SeriesCollection(); }

    /// Changes the look of a row from outside the window.
    template <typename Change>
    void change(std::size_t row, const Change& changeLook)
    {
        changeSeries(plot(), row, changeLook);
    }

    /// The numbers of the modes that the series draw.
    std::vector<int> drawnModes()
    {
        std::vector<int> ids;
        for (const Series& one : series())
            ids.push_back(one.Mode->Id);
        return ids;
    }

    AirplaneInfo airplane; ///< becomes that of the document when set there
    Document document;
    UndoHistory& history = document.history();
    ScriptedUserInterface user;
    wndEvolPlot plots;
    DataCommands commands {document, user, [this] { ++commits; }};
    int commits = 0; ///< how often the commands have committed what is being typed
};

} // namespace tarsil::test
