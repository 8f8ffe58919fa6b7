#include "control/DlgSeriesStyle.h"

#include "control/LineSample.h"
#include "plot/DeviceContext.h"
#include "plot/QtColor.h"

#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>

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
constexpr int widest = 20;

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
    : QDialog(parent), m_colorButton(new QPushButton(this)), m_style(new QComboBox(this)),
      m_width(new QSpinBox(this))
{
    setObjectName(QStringLiteral("dlgSeriesStyle"));
    setWindowTitle(tr("Line"));
    m_colorButton->setObjectName(QStringLiteral("btnColor"));
    m_colorButton->setAccessibleName(tr("Colour"));
    m_colorButton->setAutoDefault(false);
    m_colorButton->setIconSize(sampleSize);
    m_style->setObjectName(QStringLiteral("cmbStyle"));
    m_style->setAccessibleName(tr("Style"));
    m_style->setIconSize(sampleSize);
    for (const auto& [number, name] : lineStyles)
        m_style->addItem(sampleIcon(number), QString::fromLatin1(name), number);
    m_style->setCurrentIndex(std::max(m_style->findData(look.style), 0));
    m_width->setObjectName(QStringLiteral("inpWidth"));
    m_width->setAccessibleName(tr("Width"));
    m_width->setRange(1, std::max<int>(widest, look.width));
    m_width->setSuffix(tr(" px"));
    m_width->setValue(std::max<int>(look.width, 1));
    m_width->setToolTip(tr("A line wider than one pixel is solid."));
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* const layout = new QFormLayout(this);
    layout->addRow(tr("Colour:"), m_colorButton);
    layout->addRow(tr("Style:"), m_style);
    layout->addRow(tr("Width:"), m_width);
    layout->addRow(buttons);
    connect(m_colorButton, &QPushButton::clicked, this, &dlgSeriesStyle::chooseColor);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    setColor(look.color);
}

LineLook dlgSeriesStyle::look() const
{
    return {m_color, m_style->currentData().toInt(), static_cast<std::int16_t>(m_width->value())};
}

void dlgSeriesStyle::setColor(ColorValue color)
{
    m_color = color;
    QPixmap swatch(sampleSize);
    swatch.fill(qtColor(color));
    m_colorButton->setIcon(swatch);
    m_colorButton->setText(qtColor(color).name());
}

void dlgSeriesStyle::chooseColor()
{
    const QColor chosen = QColorDialog::getColor(qtColor(m_color), this);
    if (chosen.isValid())
        setColor(rgb(chosen.red(), chosen.green(), chosen.blue()));
}

} // namespace tarsil
