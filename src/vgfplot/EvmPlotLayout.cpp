// How a V-g-f plot takes its layout over.

#include "surface/PixelMath.h"
#include "vgfplot/BoxReach.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/PlotLayout.h"

#include <utility>

namespace tarsil {

namespace {

void place(emfRichTextBox& box, QPoint position)
{
    box.place(position.x() * unitsPerPixel, position.y() * unitsPerPixel);
}

/// The position of a box stays what it is, and is shown again in a plot that is large enough.
void showWhole(emfRichTextBox& box, QSize plot)
{
    box.place(box.unitsLeft(), box.unitsTop());
    box.setGeometry(shownPlace(box.geometry(), plot));
}

} // namespace

void EvmPlot::resize(QSize size, double ratio)
{
    m_size = size.expandedTo(QSize(1, 1));
    m_ratio = ratio;
    for (PlotControl* part : partsInDrawingOrder(*this)) {
        part->setDevicePixelRatio(ratio);
        part->setContainer({QPoint(0, 0), m_size});
    }
    refresh();
}

void EvmPlot::layOut()
{
    const PlotLayout layout =
        layOutPlot(m_size,
                   {m_velAxisLabel.geometry().size(), m_freqAxislabel.geometry().size(),
                    m_gAxisLabel.geometry().size()});
    m_vgPlot.setGeometry(layout.vgPlot);
    m_vfPlot.setGeometry(layout.vfPlot);
    m_velAxis.setGeometry(layout.velAxis);
    m_freqAxis.setGeometry(layout.freqAxis);
    m_gAxis.setGeometry(layout.gAxis);
    m_velAxisLabel.setGeometry(layout.velAxisLabel);
    m_freqAxislabel.setGeometry(layout.freqAxislabel);
    m_gAxisLabel.setGeometry(layout.gAxisLabel);
    layOutBoxes(layout);
}

void EvmPlot::layOutBoxes(const PlotLayout& layout)
{
    Header().setUnitsWidth(layout.headerWidth * unitsPerPixel);
    Header().place(layout.headerLeft * unitsPerPixel, m_headerTop);
    const QRect row = Header().geometry();
    Header().setGeometry(row.translated(0, shownPlace(row, m_size).top() - row.top()));
    if (!Legend().wasMoved())
        place(Legend(), usualLegendPosition(m_size, layout, Legend().geometry().size()));
    if (!Mechanism().wasMoved())
        place(Mechanism(), usualSubtitlePosition(layout, Header().geometry()));
    showWhole(Legend(), m_size);
    showWhole(Mechanism(), m_size);
}

void EvmPlot::setHeaderTop(double top)
{
    m_headerTop = top;
    refresh();
}

void EvmPlot::moveBox(TextBox box, double left, double top)
{
    if (box != TextBox::Header) // it goes back to its row
        textBox(box).Move(left, top);
    refresh();
}

void EvmPlot::setBoxText(TextBox box, const QString& text)
{
    textBox(box).setText(text);
    refresh();
}

void EvmPlot::setBoxContent(TextBox box, RichText content)
{
    textBox(box).setContent(std::move(content));
    refresh();
}

} // namespace tarsil
