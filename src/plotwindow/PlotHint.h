// SPDX-License-Identifier: Apache-2.0
#pragma once

class QPainter;
class QString;

namespace tarsil {

class EvmPlot;

/// Paints a text in the middle of the upper half, on the screen only: what the user can
/// do next. Paints nothing when the text is empty or the plot has rows.
void paintHint(const QString& text, const EvmPlot& plot, QPainter& painter);

} // namespace tarsil
