// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "app/KeysInToolTips.h"
#include "app/WndMainFixture.h"
#include "datacontrol/DlgSeriesStyle.h"
#include "explorer/WndSelModes.h"
#include "plotwindow/AxisEditor.h"
#include "plotwindow/DlgPlotProp.h"
#include "plotwindow/RichTextEditor.h"
#include "vgfplot/EvmPlot.h"

#include <QDialog>
#include <QLabel>

#include <functional>

namespace tarsil::test {

/// The event filter of the program that completes tool tips, before the first window is made.
class WithKeysInToolTips
{
protected:
    WithKeysInToolTips() { QApplication::instance()->installEventFilter(&m_filter); }

private:
    KeysInToolTips m_filter;
};

/// The program with every window, dialog and editor open and filled.
class EveryWindow : private WithKeysInToolTips, public WndMainTest
{
protected:
    void SetUp() override { load({sample("goland.tsw")}); }

    /// Calls a function for every window while it is shown.
    void visit(const std::function<void(QWidget&)>& look)
    {
        choose("popTickAll");
        look(window);
        user.openFiles = {{sample("goland_clean.f06")}};
        for (const char* const command : {"mnuAddRef", "mnuAddDamp", "mnuOptions", "stability",
                                          "flutterTrend", "showGuide", "ImportMenu"})
            visitDialogsOf(command, look);
        dlgPlotProp axes(plot(), user, &window);
        wndSelModes modes(window.explorer(), window.evolPlot(), user, &window);
        dlgSeriesStyle line(LineLook {}, &window);
        for (QDialog* const dialog : {static_cast<QDialog*>(&axes), static_cast<QDialog*>(&modes),
                                      static_cast<QDialog*>(&line)})
            visitShown(*dialog, look);
        RichTextEditor text(RichText(), 0, &window);
        visitShown(text, look);
        AxisEditor axis(PlotZone::SpeedAxis, plot().axes(), &window);
        visitShown(axis, look);
    }

private:
    void visitDialogsOf(const char* command, const std::function<void(QWidget&)>& look)
    {
        choose(command);
        bool isOpen = false;
        for (auto* const dialog : window.findChildren<QDialog*>()) {
            if (!dialog->isVisible())
                continue;
            isOpen = true;
            look(*dialog);
            dialog->close();
        }
        EXPECT_TRUE(isOpen) << command;
        QApplication::processEvents();
    }

    static void visitShown(QWidget& widget, const std::function<void(QWidget&)>& look)
    {
        widget.adjustSize();
        widget.show();
        QApplication::processEvents();
        look(widget);
        widget.hide();
    }
};

/// Whether a widget is part of a control of the toolkit, such as the buttons of a scroll bar.
inline bool isPartOfToolkit(const QWidget& widget)
{
    return widget.inherits("QLineEditIconButton") || widget.inherits("QTableCornerButton")
        || widget.inherits("QComboBoxPrivateContainer") || widget.objectName().startsWith(u"qt_")
        || widget.objectName().startsWith(u"Scroll");
}

/// A widget in reports: "dlgOptions/QPushButton btnApply".
inline std::string describe(const QWidget& window, const QWidget& widget)
{
    return window.objectName().toStdString() + "/" + widget.metaObject()->className() + " "
        + widget.objectName().toStdString();
}

} // namespace tarsil::test
