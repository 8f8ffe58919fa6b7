// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PlotParts.h"

#include "base/numbers/Numbers.h"
#include "surface/PixelMath.h"
#include "vgfplot/PlotLayout.h"

#include <type_traits>

namespace tarsil {

namespace {

template <typename Parts>
auto drawingOrderOf(Parts& parts)
{
    using Item = std::conditional_t<std::is_const_v<Parts>, const PlotControl, PlotControl>;
    std::array<Item*, PlotParts::count> items = {&parts.velAxis,  &parts.velAxisLabel,
                                                 &parts.freqAxis, &parts.freqAxislabel,
                                                 &parts.gAxis,    &parts.gAxisLabel};
    Item** next = items.data() + 6;
    for (const TextBox box : allTextBoxes)
        *next++ = &parts.box(box);
    *next++ = &parts.vfPlot;
    *next++ = &parts.vgPlot;
    *next = &parts.velLabels;
    return items;
}

AxisValues valuesOf(const PlotAxis& axis, const trspLabel& label)
{
    return {label.Caption().toStdString(), static_cast<float>(axis.Min()),
            static_cast<float>(axis.Max()), axis.nThick()};
}

/// Sets the decimal values of the bounds: -0.35, not -0.34999999 of the single.
void setRange(PlotAxis& axis, float min, float max)
{
    axis.setMin(decimalValue(min));
    axis.setMax(decimalValue(max));
}

PlacedBox placed(const emfRichTextBox& box)
{
    PlacedBox wanted {box.geometry().size(), std::nullopt};
    if (box.wasMoved())
        wanted.position = QPoint(roundToPixel(box.unitsLeft() / unitsPerPixel),
                                 roundToPixel(box.unitsTop() / unitsPerPixel));
    return wanted;
}

/// The size of the header without the width given by the layout.
QSize headerSize(const emfRichTextBox& header)
{
    return {header.textSize().width(), header.Height()};
}

/// A box that the user moved keeps its position, even where it is shown elsewhere.
void place(emfRichTextBox& box, const BoxLayout& layout)
{
    if (!box.wasMoved())
        box.place(layout.position.x() * unitsPerPixel, layout.position.y() * unitsPerPixel);
    box.setGeometry(layout.shown);
}

} // namespace

PlotParts::PlotParts(const PlotContainer& curves)
    : vgPlot(curves), vfPlot(curves), velAxisLabel(QStringLiteral("velAxisLabel")),
      gAxisLabel(QStringLiteral("gAxisLabel")), freqAxislabel(QStringLiteral("freqAxislabel"))
{
    vgPlot.setPlotType(plottype::dampingOverSpeed);
    vfPlot.setPlotType(plottype::frequencyOverSpeed);
    velAxis.setLabelsInFront(true);
    gAxis.setDirection(true);
    gAxis.setThickFormat(QStringLiteral("0.00#"));
    freqAxis.setThickFormat(QStringLiteral("0.0#"));
    for (trspLabel* const label : {&velAxisLabel, &gAxisLabel, &freqAxislabel})
        label->setAutoSize(true);
    box(TextBox::Header).setPrompt(QStringLiteral("Insert Header"));
    box(TextBox::Legend).setPrompt(QStringLiteral("Insert Legend"));
    box(TextBox::Mechanism).setPrompt(QStringLiteral("Insert Subtitle"));
    setBounds(PlotAxes().bounds());
}

std::array<PlotControl*, PlotParts::count> PlotParts::inDrawingOrder()
{
    return drawingOrderOf(*this);
}

std::array<const PlotControl*, PlotParts::count> PlotParts::inDrawingOrder() const
{
    return drawingOrderOf(*this);
}

PlotAxes PlotParts::axes() const
{
    return {valuesOf(velAxis, velAxisLabel), valuesOf(freqAxis, freqAxislabel),
            valuesOf(gAxis, gAxisLabel)};
}

void PlotParts::setBounds(const PlotBounds& bounds)
{
    const auto [vmin, vmax, fmin, fmax, gmin, gmax] = bounds;
    setRange(velAxis, vmin, vmax);
    setRange(freqAxis, fmin, fmax);
    setRange(gAxis, gmin, gmax);
    vgPlot.SetScale(velAxis.Min(), 2 * gAxis.Min() - gAxis.Max(), velAxis.Max(), gAxis.Max());
    vfPlot.SetScale(velAxis.Min(), freqAxis.Max(), velAxis.Max(), freqAxis.Min());
}

void PlotParts::layOut(QSize plot)
{
    emfRichTextBox& header = box(TextBox::Header);
    const PlotLayout layout =
        layOutPlot(plot,
                   {velAxisLabel.geometry().size(), freqAxislabel.geometry().size(),
                    gAxisLabel.geometry().size()},
                   {headerSize(header), roundToPixel(headerTop / unitsPerPixel),
                    placed(box(TextBox::Legend)), placed(box(TextBox::Mechanism))});
    vgPlot.setGeometry(layout.vgPlot);
    vfPlot.setGeometry(layout.vfPlot);
    velAxis.setGeometry(layout.velAxis);
    velLabels.setGeometry(layout.velAxis);
    freqAxis.setGeometry(layout.freqAxis);
    gAxis.setGeometry(layout.gAxis);
    velAxisLabel.setGeometry(layout.velAxisLabel);
    freqAxislabel.setGeometry(layout.freqAxislabel);
    gAxisLabel.setGeometry(layout.gAxisLabel);
    header.setUnitsWidth(layout.header.shown.width() * unitsPerPixel);
    header.place(layout.header.position.x() * unitsPerPixel, headerTop);
    header.setGeometry(layout.header.shown);
    place(box(TextBox::Legend), layout.legend);
    place(box(TextBox::Mechanism), layout.mechanism);
}

} // namespace tarsil
