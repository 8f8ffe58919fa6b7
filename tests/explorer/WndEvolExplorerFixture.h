// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/ModeBuilder.h"
#include "document/Document.h"
#include "explorer/ExplorerNode.h"
#include "explorer/WndEvolExplorer.h"
#include "plotwindow/EvmPlotView.h"
#include "plotwindow/WndEvolPlot.h"
#include "support/FormParts.h"
#include "support/ScriptedUserInterface.h"

#include <QAction>
#include <QMouseEvent>
#include <QTextEdit>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarsil::test {

using Texts = std::vector<std::string>;

const ScriptedUserInterface::Message noEvolution {"Please select a modal evolution.", "Tarsil",
                                                  MessageIcon::Exclamation};

/// The explorer with a document and a plot window, whose first plot is active.
class WndEvolExplorerTest : public ::testing::Test
{
protected:
    WndEvolExplorerTest() : plots(document.plots(), user), explorer(document, plots, user)
    {
        plots.resize(400, 300);
        plots.ActivatePlot(plots.plots().front());
    }

    /// Appends an evolution with modes of these numbers, two points each.
    EVM& load(const std::string& name, const std::vector<std::int16_t>& modes = {1},
              const std::string& folder = "/runs")
    {
        OwnedEvolutions loaded;
        EVM& evolution = *loaded.emplace_back(std::make_unique<EVM>());
        evolution.Folder = folder;
        evolution.FileName = name;
        evolution.Param.Airplane = "WING";
        evolution.Param.Mass = "CLEAN";
        evolution.Param.Mach = 0.78F;
        evolution.Param.AnalysisType = "PK";
        for (const std::int16_t mode : modes)
            addMode(evolution, mode, {{100, -0.02F, 5}, {200, 0.01F, 6}});
        document.evolutions().add(std::move(loaded));
        return evolution;
    }

    QTreeWidget& tree() { return partOf<QTreeWidget>(explorer, "tvwEvolExplorer"); }

    /// The node with a key; fails the test if there is none.
    QTreeWidgetItem& node(const std::string& key)
    {
        for (QTreeWidgetItemIterator it(&tree()); *it != nullptr; ++it) {
            if (keyOf(**it).toStdString() == key)
                return **it;
        }
        throw std::runtime_error("no node " + key);
    }
    QTreeWidgetItem& valueOf(const std::string& key) { return *node(key).child(0); }
    QTreeWidgetItem& evolutionNode(const EVM& evolution) { return node(evolution.path()); }

    static std::string text(const QTreeWidgetItem& item) { return item.text(0).toStdString(); }
    static std::string image(const QTreeWidgetItem& item)
    {
        return item.data(0, ImageRole).toString().toStdString();
    }
    static bool isBold(const QTreeWidgetItem& item) { return item.font(0).bold(); }
    static Texts childTexts(const QTreeWidgetItem& item)
    {
        Texts texts;
        for (int i = 0; i < item.childCount(); ++i)
            texts.push_back(text(*item.child(i)));
        return texts;
    }

    void select(QTreeWidgetItem& item) { tree().setCurrentItem(&item); }
    static void tick(QTreeWidgetItem& item) { item.setCheckState(0, Qt::Checked); }
    void choose(const char* key)
    {
        explorer.findChild<QAction*>(QString::fromLatin1(key))->trigger();
    }

    /// Starts editing a node's label.
    QLineEdit& openEditor(QTreeWidgetItem& item)
    {
        for (QTreeWidgetItem* above = item.parent(); above != nullptr; above = above->parent())
            above->setExpanded(true);
        tree().editItem(&item);
        return *tree().viewport()->findChildren<QLineEdit*>().last();
    }

    bool isEditing()
    {
        const QList<QLineEdit*> editors = tree().viewport()->findChildren<QLineEdit*>();
        return std::any_of(editors.begin(), editors.end(),
                           [](const QLineEdit* editor) { return !editor->isHidden(); });
    }

    /// Replaces a node's label by typing and Enter. False when the label cannot be edited.
    bool retype(QTreeWidgetItem& item, const std::string& newText)
    {
        if (!item.flags().testFlag(Qt::ItemIsEditable))
            return false;
        QLineEdit& editor = openEditor(item);
        editor.setText(QString::fromStdString(newText));
        press(editor, Qt::Key_Return);
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return true;
    }

    /// Opens the editor of the first plot's legend and types; leaves the editor open.
    QTextEdit& typeLegend(const std::string& newText)
    {
        EvmPlotView& view = *plots.viewOf(plotAt(0));
        const QPoint position = plotAt(0).Legend().geometry().center();
        QMouseEvent twice(QEvent::MouseButtonDblClick, position, view.mapToGlobal(position),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &twice);
        auto* const editor = view.findChild<QTextEdit*>();
        if (editor == nullptr)
            throw std::runtime_error("no editor");
        editor->setPlainText(QString::fromStdString(newText));
        return *editor;
    }

    /// The modes of a plot's series as file and mode number: "a.evm 1".
    static Texts curves(EvmPlot& plot)
    {
        Texts result;
        for (const Series& series : plot.SeriesCollection())
            result.push_back(series.Mode->Parent->FileName + " " + std::to_string(series.Mode->Id));
        return result;
    }
    EvmPlot& plotAt(std::size_t position) { return *plots.plots().at(position); }

    ScriptedUserInterface user;
    Document document;
    wndEvolPlot plots;
    wndEvolExplorer explorer;
};

} // namespace tarsil::test
