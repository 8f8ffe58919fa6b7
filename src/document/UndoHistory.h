#pragma once

#include <QUndoStack>

#include <functional>
#include <memory>
#include <unordered_map>

class QString;

namespace tarsil {

class EvmPlot;
struct PlotState;

/// What the user has changed in the plots, step by step, and what he has undone: rows, texts, axes,
/// reference speeds and damping lines. A change that does not go through `change` becomes a step of
/// its own, without a name that says what it is, when the history is next used on that plot.
///
/// The steps refer to plots and to the evolutions of their rows: before one of these ends, `clear`
/// is called.
class UndoHistory
{
public:
    using Change = std::function<void()>;

    /// What becomes of a change that has the name of the step before, on the same plot.
    enum class Joining {
        No, ///< a step of its own
        Yes ///< part of that step, as the digits of one typed number
    };

    UndoHistory();
    ~UndoHistory();
    UndoHistory(const UndoHistory&) = delete;
    UndoHistory& operator=(const UndoHistory&) = delete;

    /// Changes a plot by a function; all that it does is one step, called `name` ("Raise Modes"). A
    /// function that changes nothing makes no step, and one within another belongs to the step of
    /// that one. When it throws, the plot is as it was before, no step is made, and the error goes
    /// on.
    void change(EvmPlot& plot, const QString& name, const Change& change,
                Joining joining = Joining::No);

    /// Takes the last step back, so that its plot is exactly what it was before.
    void undo();

    /// Makes the step again that was undone last. Nothing happens when its plot has changed since.
    void redo();

    void clear();

    /// The steps with their names.
    const QUndoStack& steps() const { return m_steps; }

private:
    class Step;

    using SharedState = std::shared_ptr<const PlotState>;

    const Step& step(int index) const;
    SharedState takeNotice(EvmPlot& plot);
    void push(EvmPlot& plot, const QString& name, SharedState before, SharedState after,
              Joining joining);

    QUndoStack m_steps;
    std::unordered_map<const EvmPlot*, SharedState> m_known; ///< the plots as the steps leave them
    bool m_isChanging = false;
};

} // namespace tarsil
