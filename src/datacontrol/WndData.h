#pragma once

#include "datacontrol/MarkerPanel.h"
#include "datacontrol/SeriesGridModel.h"

#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace tarsil {

namespace Ui {
class wndData;
}

class Document;
class EVM;
class EvmPlot;
class UserInterface;

/// The window "Data Control": the series of the active plot as a grid, their markers, and header,
/// legend, subtitle, reference speeds and picture of the plot. Failures of its commands are
/// reported in module "wndData".
class wndData : public QWidget
{
    Q_OBJECT

public:
    /// Arguments passed by reference must outlive the window.
    wndData(Document& document, UserInterface& user, QWidget* parent = nullptr);
    ~wndData() override;

    /// Commits the text that is being typed in the grid, as Enter does.
    void commitEdits();

    /// Selects the first row whose curve is the mode with that number in the file. Does nothing
    /// without such a row.
    void selectCurve(const EVM& evolution, std::int16_t mode);

    QSize sizeHint() const override;

private:
    using Handler = void (wndData::*)();

    void connectGrid();
    void connectButtons();
    void connectOptions();
    void makeMoveMenu();
    void fillMechanisms();
    void run(const std::function<void()>& action);
    std::function<void()> runs(Handler handler);

    void cmdDrawPlot_Click();
    void btnFitFreq_Click();
    void cmdIncMode_Click();
    void cmdDecMode_Click();
    void cmdRemove_Click();
    void btnSerieMove_Click();
    void btnResColor_Click();
    void SavePic_Click();
    void btnAutoRef_Click();
    void btnMakHead_Click();
    void cmbFlutMech_Click();
    void mkspaceInp_LostFocus();
    void tagBtn_Click();
    void btnFilltLeg_Click();
    void btnPlotLeg_Click();

    EvmPlot* activePlot();
    const EVM* reference();
    void warn(const std::string& text);
    void readMarkers();
    void applyMarkers();
    void showMarkers();
    bool isModeSelected(const char* refusal);
    void changePlot(const QString& name, const std::function<void(EvmPlot&)>& change);
    void changeAndPlot(const QString& name, const std::function<void(EvmPlot&)>& change);
    void moveUp();
    void moveDown();
    void moveSelectedTo(std::size_t target);
    void showCurrentRow();
    int currentColumn() const;
    void chooseLine();
    void afterEdit(SeriesColumn column);
    void askAgain(const QModelIndex& cell, const QString& text, const RunTimeError& error);

    std::unique_ptr<Ui::wndData> m_ui;
    MarkerPanel m_markers;
    SeriesGridModel m_model;
    Document& m_document;
    UserInterface& m_user;
};

} // namespace tarsil
