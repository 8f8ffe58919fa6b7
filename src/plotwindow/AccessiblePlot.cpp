// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/AccessiblePlot.h"

#include "plotwindow/EvmPlotView.h"
#include "vgfplot/PlotReading.h"

#include <QAccessibleWidget>

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace tarsil {

namespace {

constexpr auto boxCount = static_cast<int>(allTextBoxes.size());

QString nameOf(TextBox box)
{
    static const std::array<QString, allTextBoxes.size()> names = {
        QStringLiteral("Header"), QStringLiteral("Legend"), QStringLiteral("Subtitle")};
    return names[static_cast<std::size_t>(box)];
}

/// "speed 0 to 400, ..." of the points of a mode.
QString rangeText(const AeMode& mode)
{
    const auto range = [&mode](const QString& text, float Point::*value) {
        const auto [least, most] = std::minmax_element(
            mode.Points.begin(), mode.Points.end(),
            [value](const Point& one, const Point& other) { return one.*value < other.*value; });
        return text.arg((*least).*value).arg((*most).*value);
    };
    if (mode.Points.empty())
        return QStringLiteral("no points");
    return range(QStringLiteral("%1 to %2 KEAS, "), &Point::speed)
        + range(QStringLiteral("%1 to %2 Hz, "), &Point::f)
        + range(QStringLiteral("damping %1 to %2"), &Point::G);
}

/// A part of a plot that is not a widget.
class PlotItem : public QAccessibleInterface
{
public:
    explicit PlotItem(EvmPlotView& view) : m_view(view) { }

    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_view.window()->windowHandle(); }
    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(&m_view);
    }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override { }

protected:
    EvmPlotView& view() const { return m_view; }
    QRect onScreen(const QRect& area) const
    {
        return {m_view.mapToGlobal(area.topLeft()), area.size()};
    }

private:
    EvmPlotView& m_view;
};

class BoxItem : public PlotItem
{
public:
    BoxItem(EvmPlotView& view, TextBox box) : PlotItem(view), m_box(box) { }

    bool isValid() const override { return true; }
    QAccessible::Role role() const override { return QAccessible::EditableText; }
    QRect rect() const override { return onScreen(box().geometry()); }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name)
            return nameOf(m_box);
        return kind == QAccessible::Value ? box().Text() : QString();
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.focusable = true;
        state.multiLine = true;
        state.focused = view().hasFocus() && view().selectedBox() == m_box;
        return state;
    }

private:
    const emfRichTextBox& box() const { return view().plot().parts().box(m_box); }

    TextBox m_box;
};

class CurveItem : public PlotItem
{
public:
    CurveItem(EvmPlotView& view, RowId row) : PlotItem(view), m_row(row) { }

    bool isValid() const override { return row() != nullptr; }
    QAccessible::Role role() const override { return QAccessible::Graphic; }
    QRect rect() const override { return onScreen(view().plot().parts().vgPlot.geometry()); }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        if (kind == QAccessible::Name)
            return curveName(*row());
        if (kind == QAccessible::Description)
            return rangeText(*row()->series.Mode);
        return kind == QAccessible::Value && hasCursor() ? readingText(*view().curves().cursor())
                                                         : QString();
    }

    QAccessible::State state() const override
    {
        const std::vector<RowId>& selected = view().curves().rows();
        QAccessible::State state;
        state.focusable = true;
        state.selectable = true;
        state.multiSelectable = true;
        state.selected = std::find(selected.begin(), selected.end(), m_row) != selected.end();
        state.focused = view().hasFocus() && !view().selectedBox() && hasCursor();
        return state;
    }

private:
    /// Null when the row has left the plot or lost its curve.
    const PlotRow* row() const
    {
        const PlotRows& rows = view().plot().rows();
        const std::optional<std::size_t> index = rows.indexOf(m_row);
        return index && rows.at(*index).hasCurve() ? &rows.at(*index) : nullptr;
    }

    bool hasCursor() const
    {
        const std::optional<CurveReading> cursor = view().curves().cursor();
        return cursor && cursor->row == m_row;
    }

    RowId m_row;
};

/// The children are the boxes, the curves, and then the widgets of the view.
class AccessiblePlot : public QAccessibleWidget
{
public:
    explicit AccessiblePlot(EvmPlotView& view)
        : QAccessibleWidget(&view, QAccessible::Graphic), m_view(view)
    { }

    ~AccessiblePlot() override
    {
        for (const auto& [key, id] : m_items)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return itemCount() + QAccessibleWidget::childCount(); }

    QAccessibleInterface* child(int index) const override
    {
        if (index >= itemCount())
            return QAccessibleWidget::child(index - itemCount());
        if (index < 0)
            return nullptr;
        return index < boxCount ? box(allTextBoxes.at(static_cast<std::size_t>(index)))
                                : curve(rows().at(static_cast<std::size_t>(index - boxCount)));
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        for (int i = 0; i < itemCount(); ++i) {
            if (this->child(i) == child)
                return i;
        }
        const int index = QAccessibleWidget::indexOfChild(child);
        return index < 0 ? index : index + itemCount();
    }

    QAccessibleInterface* childAt(int x, int y) const override
    {
        if (QAccessibleInterface* const widget = QAccessibleWidget::childAt(x, y))
            return widget;
        const QPoint position = m_view.mapFromGlobal(QPoint(x, y));
        for (const TextBox which : allTextBoxes) {
            if (m_view.plot().parts().box(which).geometry().contains(position))
                return box(which);
        }
        const std::optional<RowId> row = m_view.curves().rowAt(position);
        return row ? curve(*row) : nullptr;
    }

    QAccessibleInterface* focusChild() const override
    {
        if (m_view.hasFocus() && m_view.selectedBox())
            return box(*m_view.selectedBox());
        const std::optional<CurveReading> cursor = m_view.curves().cursor();
        return m_view.hasFocus() && cursor ? curve(cursor->row) : QAccessibleWidget::focusChild();
    }

private:
    /// Identifies an item: whether it is a curve, and its box or row.
    using Key = std::pair<bool, std::uint32_t>;

    std::vector<RowId> rows() const
    {
        std::vector<RowId> ids;
        for (const PlotRow& row : m_view.plot().rows().all()) {
            if (row.hasCurve())
                ids.push_back(row.id);
        }
        return ids;
    }

    int itemCount() const { return boxCount + static_cast<int>(m_view.plot().rows().curveCount()); }

    QAccessibleInterface* box(TextBox which) const
    {
        return item({false, static_cast<std::uint32_t>(which)},
                    [&] { return new BoxItem(m_view, which); });
    }

    QAccessibleInterface* curve(RowId row) const
    {
        return item({true, static_cast<std::uint32_t>(row)},
                    [&] { return new CurveItem(m_view, row); });
    }

    /// The item of a key, made on its first use. The registry of interfaces owns it.
    template <typename Make>
    QAccessibleInterface* item(Key key, const Make& make) const
    {
        const auto known = m_items.find(key);
        if (known != m_items.end())
            return QAccessible::accessibleInterface(known->second);
        QAccessibleInterface* const made = make();
        m_items.emplace(key, QAccessible::registerAccessibleInterface(made));
        return made;
    }

    EvmPlotView& m_view;
    mutable std::map<Key, QAccessible::Id> m_items;
};

QAccessibleInterface* accessiblePlot(const QString& /*className*/, QObject* object)
{
    auto* const view = qobject_cast<EvmPlotView*>(object);
    return view != nullptr ? new AccessiblePlot(*view) : nullptr;
}

} // namespace

void makePlotsAccessible()
{
    QAccessible::installFactory(accessiblePlot); // has an effect only once
}

void reportFocus(EvmPlotView& view)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleInterface* const plot = QAccessible::queryAccessibleInterface(&view);
    QAccessibleInterface* const child = plot->focusChild();
    const int index = child != nullptr ? plot->indexOfChild(child) : -1;
    for (const QAccessible::Event kind : {QAccessible::Focus, QAccessible::DescriptionChanged}) {
        QAccessibleEvent event(&view, kind);
        event.setChild(index);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace tarsil
