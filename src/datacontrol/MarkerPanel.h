#pragma once

#include "plot/Marker.h"
#include "plotwindow/InputWarning.h"

class QRadioButton;

namespace tarsil {

namespace Ui {
class wndData;
}

struct Series;

/// The controls of the Data Control window that set the markers of curves.
class MarkerPanel
{
public:
    /// `form` must outlive the panel.
    explicit MarkerPanel(const Ui::wndData& form);

    /// The options in the controls. Errors 13, 6 and 5 name the input that is wrong. The index of
    /// the participation factor must be a number only where it is the marker.
    MarkerOptions options() const;

    /// Of each option the last valid one.
    const MarkerOptions& valid() const { return m_valid; }

    /// Reads the valid options; inputs that are ignored show a warning.
    void read();

    /// Shows the options of a series, and reads them. A series without markers says nothing about
    /// their size and spacing.
    void show(const Series& series);

    /// Puts the last valid spacing back when the input has a number that is 0 or less, rounded;
    /// returns whether it did.
    bool resetSpacing();

private:
    QRadioButton& buttonOf(MarkerKind kind) const;
    MarkerKind kind() const;

    const Ui::wndData& m_form;
    InputWarning m_sizeWarning;
    InputWarning m_spacingWarning;
    InputWarning m_factorWarning;
    MarkerOptions m_valid;
};

} // namespace tarsil
