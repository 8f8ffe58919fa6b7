#include "document/UndoHistory.h"

#include "document/PlotState.h"
#include "vgfplot/EvmPlot.h"

#include <QScopedValueRollback>
#include <QString>

#include <memory>
#include <utility>

namespace tarsil {

namespace {

constexpr int mostSteps = 200; ///< each keeps the rows of its plot

std::shared_ptr<const PlotState> sharedStateOf(const EvmPlot& plot)
{
    return std::make_shared<const PlotState>(stateOf(plot));
}

} // namespace

/// One change of one plot, which was made when the step comes to the stack.
class UndoHistory::Step : public QUndoCommand
{
public:
    Step(EvmPlot& plot, const QString& name, SharedState before, SharedState after, Joining joining)
        : QUndoCommand(name), m_plot(plot), m_before(std::move(before)), m_after(std::move(after)),
          m_joining(joining)
    { }

    EvmPlot& plot() const { return m_plot; }
    const SharedState& before() const { return m_before; }
    const SharedState& after() const { return m_after; }

    void undo() override { restore(m_plot, *m_before); }

    void redo() override
    {
        if (std::exchange(m_isMade, true))
            restore(m_plot, *m_after);
    }

    int id() const override
    {
        constexpr int joins = 1;
        constexpr int standsAlone = -1;
        return m_joining == Joining::Yes ? joins : standsAlone;
    }

    bool mergeWith(const QUndoCommand* later) override
    {
        const auto& next = static_cast<const Step&>(*later);
        if (&next.m_plot != &m_plot || next.text() != text())
            return false;
        m_after = next.m_after;
        setObsolete(*m_after == *m_before);
        return true;
    }

private:
    EvmPlot& m_plot;
    SharedState m_before;
    SharedState m_after;
    Joining m_joining;
    bool m_isMade = false;
};

UndoHistory::UndoHistory()
{
    m_steps.setUndoLimit(mostSteps);
}

UndoHistory::~UndoHistory() = default;

const UndoHistory::Step& UndoHistory::step(int index) const
{
    return static_cast<const Step&>(*m_steps.command(index));
}

/// The state of a plot; what changed it since its last step is a step by now.
UndoHistory::SharedState UndoHistory::takeNotice(EvmPlot& plot)
{
    SharedState now = sharedStateOf(plot);
    const auto known = m_known.find(&plot);
    if (known == m_known.end())
        return now;
    if (*known->second == *now)
        return known->second; // neighbouring steps share the state between them
    push(plot, QStringLiteral("Change"), known->second, now, Joining::No);
    return now;
}

void UndoHistory::push(EvmPlot& plot, const QString& name, SharedState before, SharedState after,
                       Joining joining)
{
    m_known[&plot] = after;
    m_steps.push(new Step(plot, name, std::move(before), std::move(after), joining));
}

void UndoHistory::change(EvmPlot& plot, const QString& name, const Change& change, Joining joining)
{
    if (m_isChanging)
        return change();
    const QScopedValueRollback changing(m_isChanging, true);
    SharedState before = takeNotice(plot);
    try {
        change();
    } catch (...) {
        restore(plot, *before);
        throw;
    }
    SharedState after = sharedStateOf(plot);
    if (*after != *before)
        push(plot, name, std::move(before), std::move(after), joining);
}

void UndoHistory::undo()
{
    if (!m_steps.canUndo())
        return;
    takeNotice(step(m_steps.index() - 1).plot());
    const Step& last = step(m_steps.index() - 1);
    m_known[&last.plot()] = last.before();
    m_steps.undo();
}

void UndoHistory::redo()
{
    if (m_steps.canRedo())
        takeNotice(step(m_steps.index()).plot());
    if (!m_steps.canRedo())
        return;
    const Step& next = step(m_steps.index());
    m_known[&next.plot()] = next.after();
    m_steps.redo();
}

void UndoHistory::clear()
{
    m_steps.clear();
    m_known.clear();
}

} // namespace tarsil
