#pragma once

#include "plot/Marker.h"
#include "plotwindow/InputMessage.h"

class QRadioButton;

namespace tarsil {

namespace Ui {
class wndData;
}

struct Series;

/// The marker inputs of the Data Control window.
class MarkerPanel
{
public:
    /// `form` must outlive the panel.
    explicit MarkerPanel(const Ui::wndData& form);

    /// The options in the inputs. Errors 13, 6 and 5 name the faulty input. The index of the
    /// participation factor must be valid only if it is the marker.
    MarkerOptions options() const;

    /// The last valid value of each option.
    const MarkerOptions& valid() const { return m_valid; }

    /// Reads the valid options; ignored inputs show a message.
    void read();

    /// Shows the options of a series and reads them. A series without markers does not determine
    /// size and spacing.
    void show(const Series& series);

    /// Restores the last valid spacing if the input has a number that rounds to 0 or less. Returns
    /// whether it did.
    bool resetSpacing();

private:
    QRadioButton& buttonOf(MarkerKind kind) const;
    MarkerKind kind() const;

    const Ui::wndData& m_form;
    InputMessage m_sizeMessage;
    InputMessage m_spacingMessage;
    InputMessage m_factorMessage;
    MarkerOptions m_valid;
};

} // namespace tarsil
