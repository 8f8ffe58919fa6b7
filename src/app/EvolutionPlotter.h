#pragma once

#include <cstddef>
#include <vector>

namespace tarsil {

class EVM;
class EvmPlot;

/// Draws every mode of evolutions that were just read: each gets a curve, marked here and there
/// with its mode number, and each file a line style of its own, counted over all curves of the
/// plot. A plot without curves and with the scale of a new one gets axes that fit them; an empty
/// header or subtitle says what the files have in common and how they are called. Evolutions that
/// would bring the plot beyond 500 curves are left out; returns how many are drawn, the first ones.
/// Errors: those of drawing.
std::size_t plotEvolutions(EvmPlot& plot, const std::vector<EVM*>& evolutions);

} // namespace tarsil
