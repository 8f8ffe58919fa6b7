// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/Marker.h"
#include "plotwindow/InputMessage.h"

#include <QGroupBox>

#include <memory>

class QRadioButton;

namespace tarsil {

namespace Ui {
class MarkerPanel;
}

class DataCommands;
struct Series;

/// The group "Marker Options": kind, size and spacing of the markers of all rows of the active
/// plot, and of curves that will be added to any plot. A change is applied at once, as an undo
/// step. An invalid input shows a message, and its last valid number counts.
class MarkerPanel : public QGroupBox
{
    Q_OBJECT

public:
    /// `commands` must outlive the panel.
    explicit MarkerPanel(const DataCommands& commands, QWidget* parent = nullptr);
    ~MarkerPanel() override;

    /// The options in the inputs. Errors 13, 6 and 5 name the faulty input. The index of the
    /// participation factor must be valid only if it is the marker.
    MarkerOptions options() const;

    /// Shows the markers of the first series of the active plot, so that "Plot" leaves an opened
    /// plot unchanged. A series without markers does not determine size and spacing.
    void showFirstRow();

private:
    void connectInputs();
    QRadioButton& buttonOf(MarkerKind kind) const;
    MarkerKind kind() const;
    void read();
    void showOptionsOf(const Series& series);
    void apply();
    void tagBtn_Click();
    void mkspaceInp_LostFocus();

    const DataCommands& m_commands;
    std::unique_ptr<Ui::MarkerPanel> m_ui;
    InputMessage m_sizeMessage;
    InputMessage m_spacingMessage;
    InputMessage m_factorMessage;
    MarkerOptions m_valid; ///< the last valid value of each option
};

} // namespace tarsil
