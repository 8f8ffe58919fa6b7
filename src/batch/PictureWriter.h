#pragma once

#include <QByteArray>

#include <string_view>

namespace tarsil {
class EvmPlot;
}

namespace tarsil::batch {

/// The plot, in its present size, as a picture in memory: PNG, SVG or PDF by the extension of the
/// file name (in any case). A pixel is 1/96 inch. Needs a QGuiApplication. Failure when the picture
/// cannot be made, for want of memory.
QByteArray pictureBytes(EvmPlot& plot, std::string_view fileName);

} // namespace tarsil::batch
