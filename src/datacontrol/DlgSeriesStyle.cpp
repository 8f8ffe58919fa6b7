// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/DlgSeriesStyle.h"

#include "ui_DlgSeriesStyle.h"

#include "datacontrol/LineSample.h"
#include "surface/DeviceContext.h"
#include "surface/QtColor.h"

#include <QColorDialog>
#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

namespace tarsil {

namespace {

constexpr std::array<std::pair<int, const char*>, 6> lineStyles = {
    {{penstyle::solid, "Solid"},
     {penstyle::dash, "Dashes"},
     {penstyle::dot, "Dots"},
     {penstyle::dashDot, "Dash and dot"},
     {penstyle::dashDotDot, "Dash and two dots"},
     {penstyle::none, "No line"}}};

constexpr QSize sampleSize {56, 14};

QIcon sampleIcon(int style)
{
    QPixmap pixmap(sampleSize);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    Series series;
    series.LineStyle = style;
    drawLineSample(painter, pixmap.rect(), series);
    return pixmap;
}

} // namespace

dlgSeriesStyle::dlgSeriesStyle(const LineLook& look, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::dlgSeriesStyle>())
{
    m_ui->setupUi(this);
    m_ui->btnColor->setIconSize(sampleSize);
    m_ui->cmbStyle->setIconSize(sampleSize);
    for (const auto& [number, name] : lineStyles)
        m_ui->cmbStyle->addItem(sampleIcon(number), QString::fromLatin1(name), number);
    m_ui->cmbStyle->setCurrentIndex(std::max(m_ui->cmbStyle->findData(look.style), 0));
    m_ui->inpWidth->setMaximum(std::max<int>(m_ui->inpWidth->maximum(), look.width));
    m_ui->inpWidth->setValue(look.width);
    connect(m_ui->btnColor, &QPushButton::clicked, this, &dlgSeriesStyle::chooseColor);
    setColor(look.color);
}

dlgSeriesStyle::~dlgSeriesStyle() = default;

LineLook dlgSeriesStyle::look() const
{
    return {m_color, m_ui->cmbStyle->currentData().toInt(),
            static_cast<std::int16_t>(m_ui->inpWidth->value())};
}

void dlgSeriesStyle::setColor(ColorValue color)
{
    m_color = color;
    QPixmap swatch(sampleSize);
    swatch.fill(qtColor(color));
    m_ui->btnColor->setIcon(swatch);
    m_ui->btnColor->setText(qtColor(color).name());
}

void dlgSeriesStyle::chooseColor()
{
    const QColor chosen = QColorDialog::getColor(qtColor(m_color), this);
    if (chosen.isValid())
        setColor(rgb(chosen.red(), chosen.green(), chosen.blue()));
}

} // namespace tarsil
