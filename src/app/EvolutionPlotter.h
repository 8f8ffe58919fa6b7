#pragma once

#include <vector>

namespace tarsil {

class EVM;
class EvmPlot;

/// Draws every mode of evolutions that were just read: each gets a curve, marked here and there
/// with its mode number, and each file a line style of its own, counted over all curves of the
/// plot. A plot without curves also gets axes that fit them, and its empty header and subtitle say
/// what the files have in common and how they are called. Errors: those of drawing.
void plotEvolutions(EvmPlot& plot, const std::vector<EVM*>& evolutions);

} // namespace tarsil
