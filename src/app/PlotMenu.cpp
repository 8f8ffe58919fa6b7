// SPDX-License-Identifier: Apache-2.0
#include "app/PlotMenu.h"

#include "document/PlotList.h"
#include "vgfplot/EvmPlot.h"

#include <QActionGroup>
#include <QMenu>

namespace tarsil {

namespace {

/// A caption in which "&" is no mnemonic.
QString shownCaption(const EvmPlot& plot)
{
    QString caption = plot.properties().Caption();
    return caption.replace(u'&', QStringLiteral("&&"));
}

void addEntry(QMenu& menu, QActionGroup& group, PlotList& plots, EvmPlot& plot)
{
    QAction* const entry = menu.addAction(shownCaption(plot));
    entry->setCheckable(true);
    entry->setChecked(&plot == plots.active());
    entry->setActionGroup(&group);
    QObject::connect(entry, &QAction::triggered, &plot, [&plots, &plot] { plots.activate(&plot); });
}

} // namespace

void listPlots(QMenu& menu, PlotList& plots)
{
    auto* const group = new QActionGroup(&menu);
    const auto fill = [&menu, &plots, group] {
        qDeleteAll(group->actions());
        menu.addSeparator()->setActionGroup(group);
        for (EvmPlot* const plot : plots.all())
            addEntry(menu, *group, plots, *plot);
    };
    QObject::connect(&menu, &QMenu::aboutToShow, group, fill);
}

} // namespace tarsil
