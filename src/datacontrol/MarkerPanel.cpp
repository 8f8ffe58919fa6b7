#include "datacontrol/MarkerPanel.h"

#include "ui_WndData.h"

#include "base/user/RunTimeError.h"
#include "plotwindow/NumberInput.h"

#include <QSignalBlocker>

#include <cmath>
#include <cstdint>
#include <limits>

namespace tarsil {

namespace {

constexpr std::int32_t anyCount = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t factorCount = 5; ///< of a point

std::int32_t countIn(QLineEdit& input, std::int32_t most)
{
    return NumberInput(input, "wndData").count(most);
}

/// Stores the number of an input if it is valid; otherwise shows a message at the input.
void readCount(QLineEdit& input, std::int32_t most, InputMessage& message, std::int32_t& count)
{
    try {
        count = countIn(input, most);
        message.show({});
    } catch (const RunTimeError&) {
        message.show(most == factorCount
                         ? QStringLiteral("Ignored: a number from 1 to 5 is needed")
                         : QStringLiteral("Ignored: a number of at least 1 is needed"));
    }
}

} // namespace

MarkerPanel::MarkerPanel(const Ui::wndData& form)
    : m_form(form), m_sizeMessage(*form.mksizeInp), m_spacingMessage(*form.mkspaceInp),
      m_factorMessage(*form.ithmpfInp)
{
    read();
}

QRadioButton& MarkerPanel::buttonOf(MarkerKind kind) const
{
    switch (kind) {
    case MarkerKind::None:
        break;
    case MarkerKind::ModeNumber:
        return *m_form.aemodeBtn;
    case MarkerKind::Tag:
        return *m_form.tagBtn;
    case MarkerKind::ParticipationFactor:
        return *m_form.ithmpfBtn;
    }
    return *m_form.womkBtn;
}

MarkerKind MarkerPanel::kind() const
{
    for (const MarkerTraits& traits : markerTraits) {
        if (buttonOf(traits.kind).isChecked())
            return traits.kind;
    }
    return MarkerKind::None;
}

MarkerOptions MarkerPanel::options() const
{
    MarkerOptions options;
    options.kind = kind();
    options.size = countIn(*m_form.mksizeInp, anyCount);
    options.spacing = countIn(*m_form.mkspaceInp, anyCount);
    options.ithMpf = traitsOf(options.kind).needsFactor ? countIn(*m_form.ithmpfInp, factorCount)
                                                        : m_valid.ithMpf;
    return options;
}

void MarkerPanel::read()
{
    m_valid.kind = kind();
    readCount(*m_form.mksizeInp, anyCount, m_sizeMessage, m_valid.size);
    readCount(*m_form.mkspaceInp, anyCount, m_spacingMessage, m_valid.spacing);
    readCount(*m_form.ithmpfInp, factorCount, m_factorMessage, m_valid.ithMpf);
    if (!traitsOf(m_valid.kind).needsFactor) // its text does not matter then
        m_factorMessage.show({});
}

void MarkerPanel::show(const Series& series)
{
    const QSignalBlocker quiet[] = {QSignalBlocker(m_form.mksizeInp),
                                    QSignalBlocker(m_form.mkspaceInp),
                                    QSignalBlocker(m_form.ithmpfInp)}; // not a change by the user
    if (const auto kind = markerOfNumber(series.MarkerStyle))
        buttonOf(*kind).setChecked(true);
    if (series.MarkerSize > 0)
        m_form.mksizeInp->setText(QString::number(series.MarkerSize));
    if (series.MarkerSpacing > 0)
        m_form.mkspaceInp->setText(QString::number(series.MarkerSpacing));
    if (series.IthMpf > 0)
        m_form.ithmpfInp->setText(QString::number(series.IthMpf));
    read();
}

bool MarkerPanel::resetSpacing()
{
    const auto spacing = NumberInput(*m_form.mkspaceInp, "wndData").numberIfAny();
    if (!spacing || std::nearbyint(*spacing) > 0) // "Plot" reports a text that is not a number
        return false;
    m_form.mkspaceInp->setText(QString::number(m_valid.spacing));
    return true;
}

} // namespace tarsil
