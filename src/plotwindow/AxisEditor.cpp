// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/AxisEditor.h"

#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "plotwindow/InputMessage.h"
#include "plotwindow/NumberInput.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include <functional>
#include <limits>

namespace tarsil {

namespace {

constexpr std::string_view axisModule = "wndEvolPlot";
constexpr int fieldWidth = 76;

AxisValues& axisOf(PlotZone zone, PlotAxes& axes)
{
    if (zone == PlotZone::FrequencyAxis)
        return axes.frequency;
    return zone == PlotZone::DampingAxis ? axes.damping : axes.speed;
}

QString boundText(float value)
{
    return QString::fromStdString(shortestText(value));
}

} // namespace

AxisEditor::AxisEditor(PlotZone zone, const PlotAxes& axes, QWidget* parent)
    : InPlaceEditor(parent), m_zone(zone), m_axes(axes)
{
    setObjectName(QStringLiteral("axisEditor"));
    const AxisValues& values = axisOf(zone, m_axes);
    setAccessibleName(tr("Axis %1").arg(QString::fromStdString(values.title)));
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    m_min = addField(*layout, "axisMin", tr("Mi&n.:"), boundText(values.min));
    m_max = addField(*layout, "axisMax", tr("Ma&x.:"), boundText(values.max));
    m_ticks = addField(*layout, "axisTicks", tr("&Ticks:"), QString::number(values.ticks));
    check();
    setFocusProxy(m_min);
    m_min->selectAll();
}

AxisEditor::~AxisEditor() = default;

QLineEdit* AxisEditor::addField(QBoxLayout& layout, const char* name, const QString& label,
                                const QString& text)
{
    auto* const caption = new QLabel(label, this);
    auto* const field = new QLineEdit(text, this);
    field->setObjectName(QString::fromLatin1(name));
    field->setAccessibleName(QString(label).remove(u'&').remove(u':'));
    field->setFixedWidth(fieldWidth);
    caption->setBuddy(field);
    layout.addWidget(caption);
    layout.addWidget(field);
    watch(*field);
    m_messages.push_back(std::make_unique<InputMessage>(*field));
    connect(field, &QLineEdit::textChanged, this, &AxisEditor::check);
    connect(field, &QLineEdit::returnPressed, this, &InPlaceEditor::committed);
    return field;
}

PlotAxes AxisEditor::axes() const
{
    PlotAxes result = m_axes;
    AxisValues& values = axisOf(m_zone, result);
    values.min = minimum();
    values.max = maximum();
    values.ticks = ticks();
    return result;
}

float AxisEditor::minimum() const
{
    return NumberInput(*m_min, axisModule).single();
}

float AxisEditor::maximum() const
{
    const float value = NumberInput(*m_max, axisModule).single();
    if (value == NumberInput(*m_min, axisModule).numberIfAny())
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, std::string(axisModule),
                           "the axis begins and ends at " + shortestText(value));
    return value;
}

std::int16_t AxisEditor::ticks() const
{
    constexpr std::int32_t most = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(NumberInput(*m_ticks, axisModule).count(most));
}

void AxisEditor::check()
{
    const auto show = [](InputMessage& message, const std::function<void()>& read) {
        try {
            read();
            message.show({});
        } catch (const RunTimeError& error) {
            message.show(QString::fromStdString(error.description()));
        }
    };
    show(*m_messages[0], [this] { minimum(); });
    show(*m_messages[1], [this] { maximum(); });
    show(*m_messages[2], [this] { ticks(); });
}

} // namespace tarsil
