// Where the parts of a V-g-f plot stand. Fractions are of the plot's own width and height.

#include "surface/PixelMath.h"
#include "vgfplot/BoxReach.h"
#include "vgfplot/EvmPlot.h"

#include <algorithm>

namespace tarsil {

namespace {

constexpr double canvasTop = 0.1 + 0.03;
constexpr double canvasLeft = 0.1;
constexpr double canvasWidth = 0.75;
constexpr double canvasHeight = 0.84;
constexpr double titleGap = 0.01;
constexpr double headerRightGap = 0.045;
constexpr double legendLeft = canvasLeft + canvasWidth + titleGap;

// Pixels. Even, so that the line in the middle of an axis lies on a whole pixel.
constexpr int speedAxisHeight = 64;
constexpr int verticalAxisWidth = 120;
constexpr int edge = 8; ///< between a text box and the plot's edge

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
    for (PlotControl* part : partsInDrawingOrder()) {
        part->setDevicePixelRatio(ratio);
        part->setContainer({QPoint(0, 0), m_size});
    }
    refresh();
}

void EvmPlot::layOut()
{
    layOutCanvases();
    layOutTitles();
    layOutBoxes();
}

/// The upper half is rounded to pixels and the V-g canvas is exactly two of it, so that the speed
/// axis lies on the row of the middle, whatever the size. Half is an even number: a position
/// half-way between two pixels then falls on the same one, counted from the canvas' upper edge (a
/// curve) or from the speed axis (a tick).
void EvmPlot::layOutCanvases()
{
    const int left = roundToPixel(canvasLeft * m_size.width());
    const int width = roundToPixel(canvasWidth * m_size.width());
    const int top = roundToPixel(canvasTop * m_size.height());
    const int half = 2 * roundToPixel(canvasHeight / 4 * m_size.height());
    m_vgPlot.setGeometry({left, top, width, 2 * half});
    m_vfPlot.setGeometry({left, top, width, half});
    const int origin = top + half;
    m_velAxis.setGeometry({0, 0, width, speedAxisHeight});
    m_velAxis.MoveToOrigin(left, origin);
    m_freqAxis.setGeometry({0, 0, verticalAxisWidth, half});
    m_freqAxis.MoveToOrigin(left, origin);
    m_gAxis.setGeometry({0, 0, verticalAxisWidth, half});
    m_gAxis.MoveToOrigin(left, origin);
}

void EvmPlot::layOutTitles()
{
    const int left = m_vfPlot.Left();
    const int origin = m_vfPlot.Top() + m_vfPlot.Height();
    const auto put = [](trspLabel& label, int column, int middle) {
        label.setGeometry({QPoint(column, middle - label.Height() / 2), label.geometry().size()});
    };
    const int gap = roundToPixel(titleGap * m_size.width());
    put(m_velAxisLabel, m_velAxis.Width() + left + gap, origin);
    put(m_freqAxislabel, m_freqAxis.Width() / 5 + left, m_freqAxis.Top());
    put(m_gAxisLabel, m_gAxis.Width() / 5 + left, m_gAxis.Top() + m_gAxis.Height());
}

void EvmPlot::layOutBoxes()
{
    const auto units = [](int pixels) { return pixels * unitsPerPixel; };
    const int headerLeft = m_freqAxislabel.Left() + m_freqAxislabel.Width();
    const int headerRight = roundToPixel((1 - headerRightGap) * m_size.width());
    Header().setUnitsWidth(units(std::max(headerRight - headerLeft, 0)));
    Header().place(units(headerLeft), m_headerTop);
    const QRect row = Header().geometry();
    Header().setGeometry(row.translated(0, shownPlace(row, m_size).top() - row.top()));
    if (!Legend().wasMoved()) { // right of the curves, as far left as its text needs
        const int column = std::min(roundToPixel(legendLeft * m_size.width()),
                                    m_size.width() - Legend().Width() - edge);
        Legend().place(units(std::max(column, 0)), units(m_vfPlot.Top()));
    }
    if (!Mechanism().wasMoved())
        Mechanism().place(units(headerLeft), units(Header().Top() + Header().Height()));
    for (emfRichTextBox* box : {&Legend(), &Mechanism()})
        showWhole(*box, m_size);
}

void EvmPlot::setHeaderTop(double top)
{
    m_headerTop = top;
    refresh();
}

void EvmPlot::moveBox(std::size_t index, double left, double top)
{
    if (index > 0) // the header goes back to its row
        ertbTexts.at(index).Move(left, top);
    refresh();
}

void EvmPlot::setBoxText(std::size_t index, const QString& text)
{
    ertbTexts.at(index).setText(text);
    refresh();
}

void EvmPlot::setBoxContent(std::size_t index, RichText content)
{
    ertbTexts.at(index).setContent(std::move(content));
    refresh();
}

} // namespace tarsil
