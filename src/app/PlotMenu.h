// SPDX-License-Identifier: Apache-2.0
#pragma once

class QMenu;

namespace tarsil {

class PlotList;

/// Lists the plots below the commands of a menu whenever it opens; the active one is checked.
/// Choosing a plot activates it. `plots` must outlive the menu.
void listPlots(QMenu& menu, PlotList& plots);

} // namespace tarsil
