// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "document/Document.h"
#include "options/DlgOptions.h"
#include "support/FormParts.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestFiles.h"
#include "vgfplot/EvmPlot.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tarsil::test {

/// The dialog with a document without an active plot, as at the start, and its own store.
class DlgOptionsTest : public ::testing::Test
{
protected:
    DlgOptionsTest() : store(folder.file("tarsil.ini"))
    {
        dialog = std::make_unique<dlgOptions>(document, user, store);
        QObject::connect(&document, &Document::airplaneChanged, dialog.get(),
                         [this] { ++mechanismsChanged; });
    }

    void keep(const std::string& file, const std::string& scale, const std::string& thicks) const
    {
        store.write({QString::fromStdString(file),
                     QString::fromStdString(scale),
                     QString::fromStdString(thicks),
                     {},
                     {}},
                    {});
    }

    void typeAll(const std::string& file, const std::string& scale, const std::string& thicks) const
    {
        type(*dialog, "txtAcInfo", file);
        type(*dialog, "txtVgfScale", scale);
        type(*dialog, "txtVgfThicks", thicks);
    }

    void clickButton(const char* name) const { click(*dialog, name); }

    PlotList& plots() { return document.plots(); }
    EvmPlot& plot() { return plots().first(); }
    void activate() { plots().activate(&plot()); }

    /// Tick counts of the speed, damping and frequency axis.
    static std::vector<int> thicksOf(const EvmPlot& plot)
    {
        return {plot.properties().vthicks(), plot.properties().gthicks(),
                plot.properties().fthicks()};
    }

    std::vector<std::string> mechanisms() const
    {
        std::vector<std::string> names;
        for (const FlutterMechanism& one : document.airplane().FlutterMechs)
            names.push_back(one.ShortName);
        return names;
    }

    TemporaryFolder folder;
    ScriptedUserInterface user;
    Document document;
    OptionsStore store;
    std::unique_ptr<dlgOptions> dialog;
    int mechanismsChanged = 0;
};

} // namespace tarsil::test
