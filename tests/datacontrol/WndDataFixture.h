// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DataPanelFixture.h"

#include "datacontrol/SeriesGridModel.h"
#include "datacontrol/SeriesGridView.h"
#include "datacontrol/WndData.h"

#include <QAbstractItemModel>
#include <QHeaderView>

#include <numeric>

namespace tarsil::test {

using Texts = std::vector<std::string>;

/// The Data Control window.
class WndDataTest : public DataPanelTest
{
protected:
    SeriesGridView& grid() { return partOf<SeriesGridView>(data, "flxSerieViewer"); }
    QAbstractItemModel& model() { return *grid().model(); }
    std::string cell(int row, SeriesColumn column)
    {
        return model().index(row, static_cast<int>(column)).data().toString().toStdString();
    }
    Texts column(SeriesColumn column)
    {
        Texts texts;
        for (int row = 0; row < model().rowCount(); ++row)
            texts.push_back(cell(row, column));
        return texts;
    }
    bool type(int row, SeriesColumn column, const std::string& text)
    {
        return model().setData(model().index(row, static_cast<int>(column)),
                               QString::fromStdString(text), Qt::EditRole);
    }
    void select(std::size_t first, std::size_t count, SeriesColumn column)
    {
        std::vector<std::size_t> rows(count);
        std::iota(rows.begin(), rows.end(), first);
        grid().selectRows(rows, static_cast<int>(column));
    }
    /// Opens the editor of a cell and replaces its text.
    void startTyping(int row, SeriesColumn column, const std::string& text)
    {
        grid().setCurrentIndex(model().index(row, static_cast<int>(column)));
        grid().edit(grid().currentIndex());
        auto* const editor = openEditor(grid());
        ASSERT_NE(editor, nullptr);
        editor->setText(QString::fromStdString(text));
    }
    void click(const char* button) { test::click(data, button); }

    wndData data {document, user};
};

} // namespace tarsil::test
