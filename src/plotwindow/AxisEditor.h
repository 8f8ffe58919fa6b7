// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/PlotAxes.h"
#include "plotwindow/InPlaceEditor.h"
#include "vgfplot/PlotZoom.h"

#include <cstdint>
#include <memory>
#include <vector>

class QBoxLayout;
class QLineEdit;

namespace tarsil {

class InputMessage;

/// Edits the bounds and the tick count of an axis in place. A sign marks a field whose contents are
/// not accepted. Return in a field commits.
class AxisEditor : public InPlaceEditor
{
    Q_OBJECT

public:
    /// `zone` is one of the three axes; its present values are in `axes`.
    AxisEditor(PlotZone zone, const PlotAxes& axes, QWidget* parent);
    ~AxisEditor() override;

    /// The axes with the values in the fields. Errors: 13 and 6 for a text that is not a number, 5
    /// for equal bounds and a tick count below 1.
    PlotAxes axes() const;

private:
    QLineEdit* addField(QBoxLayout& layout, const char* name, const QString& label,
                        const QString& text);
    float minimum() const;
    float maximum() const;
    std::int16_t ticks() const;
    void check();

    PlotZone m_zone;
    PlotAxes m_axes;
    QLineEdit* m_min = nullptr;
    QLineEdit* m_max = nullptr;
    QLineEdit* m_ticks = nullptr;
    std::vector<std::unique_ptr<InputMessage>> m_messages; ///< in the order of the fields
};

} // namespace tarsil
