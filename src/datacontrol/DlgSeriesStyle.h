// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/Series.h"

#include <QDialog>

#include <memory>

namespace tarsil {

namespace Ui {
class dlgSeriesStyle;
}

/// The look of a curve's line.
struct LineLook
{
    ColorValue color = 0;
    std::int32_t style = 0; ///< pen style number
    std::int16_t width = 1; ///< pixels

    bool operator==(const LineLook&) const = default;
};

/// The dialog for the line of one or several series.
class dlgSeriesStyle : public QDialog
{
    Q_OBJECT

public:
    explicit dlgSeriesStyle(const LineLook& look, QWidget* parent = nullptr);
    ~dlgSeriesStyle() override;

    LineLook look() const;

    /// Sets a colour as if the user had chosen it.
    void setColor(ColorValue color);

private:
    void chooseColor();

    std::unique_ptr<Ui::dlgSeriesStyle> m_ui;
    ColorValue m_color = 0;
};

} // namespace tarsil
