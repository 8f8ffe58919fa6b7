// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/MarkerPanel.h"

#include "ui_MarkerPanel.h"

#include "base/user/RunTimeError.h"
#include "datacontrol/DataCommands.h"
#include "document/Document.h"
#include "document/MdlData.h"
#include "plotwindow/NumberInput.h"
#include "vgfplot/EvmPlot.h"

#include <QSignalBlocker>

#include <cmath>
#include <cstdint>
#include <limits>

namespace tarsil {

namespace {

constexpr std::int32_t anyCount = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t factorCount = 5; ///< of a point

NumberInput numberIn(QLineEdit& input)
{
    return {input, DataCommands::module};
}

/// Stores the number of an input if it is valid; otherwise shows a message at the input.
void readCount(QLineEdit& input, std::int32_t most, InputMessage& message, std::int32_t& count)
{
    try {
        count = numberIn(input).count(most);
        message.show({});
    } catch (const RunTimeError&) {
        message.show(most == factorCount
                         ? QStringLiteral("Ignored: a number from 1 to 5 is needed")
                         : QStringLiteral("Ignored: a number of at least 1 is needed"));
    }
}

std::unique_ptr<Ui::MarkerPanel> makeForm(MarkerPanel& panel)
{
    auto form = std::make_unique<Ui::MarkerPanel>();
    form->setupUi(&panel);
    return form;
}

} // namespace

MarkerPanel::MarkerPanel(const DataCommands& commands, QWidget* parent)
    : QGroupBox(parent), m_commands(commands), m_ui(makeForm(*this)),
      m_sizeMessage(*m_ui->mksizeInp), m_spacingMessage(*m_ui->mkspaceInp),
      m_factorMessage(*m_ui->ithmpfInp)
{
    connectInputs();
    read();
}

MarkerPanel::~MarkerPanel() = default;

void MarkerPanel::connectInputs()
{
    const auto apply = m_commands.command([this] { this->apply(); });
    for (QRadioButton* button : {m_ui->womkBtn, m_ui->aemodeBtn, m_ui->ithmpfBtn})
        connect(button, &QRadioButton::clicked, this, apply);
    for (QLineEdit* input : {m_ui->mksizeInp, m_ui->mkspaceInp, m_ui->ithmpfInp})
        connect(input, &QLineEdit::textChanged, this, apply);
    connect(m_ui->tagBtn, &QRadioButton::clicked, this,
            m_commands.command([this] { tagBtn_Click(); }));
    connect(m_ui->mkspaceInp, &QLineEdit::editingFinished, this,
            m_commands.command([this] { mkspaceInp_LostFocus(); }));
}

QRadioButton& MarkerPanel::buttonOf(MarkerKind kind) const
{
    switch (kind) {
    case MarkerKind::None:
        break;
    case MarkerKind::ModeNumber:
        return *m_ui->aemodeBtn;
    case MarkerKind::Tag:
        return *m_ui->tagBtn;
    case MarkerKind::ParticipationFactor:
        return *m_ui->ithmpfBtn;
    }
    return *m_ui->womkBtn;
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
    options.size = numberIn(*m_ui->mksizeInp).count(anyCount);
    options.spacing = numberIn(*m_ui->mkspaceInp).count(anyCount);
    options.ithMpf = traitsOf(options.kind).needsFactor
        ? numberIn(*m_ui->ithmpfInp).count(factorCount)
        : m_valid.ithMpf;
    return options;
}

/// Also sets the markers of curves that will be added.
void MarkerPanel::read()
{
    m_valid.kind = kind();
    readCount(*m_ui->mksizeInp, anyCount, m_sizeMessage, m_valid.size);
    readCount(*m_ui->mkspaceInp, anyCount, m_spacingMessage, m_valid.spacing);
    readCount(*m_ui->ithmpfInp, factorCount, m_factorMessage, m_valid.ithMpf);
    if (!traitsOf(m_valid.kind).needsFactor) // its text does not matter then
        m_factorMessage.show({});
    m_commands.document().plots().setNewSeriesMarkers(m_valid);
}

/// Options that the user does not change stay, even where rows differ.
void MarkerPanel::apply()
{
    const MarkerOptions before = m_valid;
    read();
    Document& document = m_commands.document();
    EvmPlot* const plot = document.plots().active();
    if (plot == nullptr || m_valid == before)
        return;
    document.history().change(
        tr("Marker Options"), [&] { mdlData::changeMarkers(plot->rows(), before, m_valid); },
        UndoHistory::Joining::Yes);
}

void MarkerPanel::showFirstRow()
{
    const EvmPlot* const plot = m_commands.document().plots().active();
    if (plot != nullptr && !plot->rows().isEmpty())
        showOptionsOf(plot->rows().at(0).series);
}

void MarkerPanel::showOptionsOf(const Series& series)
{
    const QSignalBlocker quiet[] = {QSignalBlocker(m_ui->mksizeInp),
                                    QSignalBlocker(m_ui->mkspaceInp),
                                    QSignalBlocker(m_ui->ithmpfInp)}; // not a change by the user
    if (const auto kind = markerOfNumber(series.MarkerStyle))
        buttonOf(*kind).setChecked(true);
    if (series.MarkerSize > 0)
        m_ui->mksizeInp->setText(QString::number(series.MarkerSize));
    if (series.MarkerSpacing > 0)
        m_ui->mkspaceInp->setText(QString::number(series.MarkerSpacing));
    if (series.IthMpf > 0)
        m_ui->ithmpfInp->setText(QString::number(series.IthMpf));
    read();
}

void MarkerPanel::tagBtn_Click()
{
    apply();
    if (EvmPlot* const plot = m_commands.activePlot())
        plot->plot();
}

/// Refuses a number that rounds to 0 too; "Plot" reports a text that is not a number. The input is
/// restored before the message, because the message makes it lose the focus again.
void MarkerPanel::mkspaceInp_LostFocus()
{
    const auto spacing = numberIn(*m_ui->mkspaceInp).numberIfAny();
    if (!spacing || std::nearbyint(*spacing) > 0)
        return;
    m_ui->mkspaceInp->setText(QString::number(m_valid.spacing));
    m_commands.warn("The spacing must be greater then zero!");
}

} // namespace tarsil
