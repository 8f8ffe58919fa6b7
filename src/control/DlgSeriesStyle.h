#pragma once

#include "plot/Series.h"

#include <QDialog>

class QComboBox;
class QPushButton;
class QSpinBox;

namespace tarsil {

/// How a curve's line looks.
struct LineLook
{
    ColorValue color = 0;
    std::int32_t style = 0; ///< pen style number
    std::int16_t width = 1; ///< pixels

    bool operator==(const LineLook&) const = default;
};

/// The small editor for the line of one or several series.
class dlgSeriesStyle : public QDialog
{
    Q_OBJECT

public:
    explicit dlgSeriesStyle(const LineLook& look, QWidget* parent = nullptr);

    LineLook look() const;

    /// As if the user had chosen that colour.
    void setColor(ColorValue color);

private:
    void chooseColor();

    ColorValue m_color = 0;
    QPushButton* m_colorButton;
    QComboBox* m_style;
    QSpinBox* m_width;
};

} // namespace tarsil
