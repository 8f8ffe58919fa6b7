// SPDX-License-Identifier: Apache-2.0

// The series of a plot as the rows of a grid.

#include "datacontrol/SeriesGridModel.h"

#include "analysis/ModeBuilder.h"
#include "document/Document.h"
#include "plotwindow/WarningColor.h"
#include "support/ChangeSeries.h"
#include "vgfplot/EvmPlot.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QColor>
#include <QFont>
#include <QGuiApplication>
#include <QIcon>
#include <QPalette>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

using namespace tarsil;
using ::testing::ElementsAre;

namespace {

class SeriesGridModelTest : public ::testing::Test
{
protected:
    SeriesGridModelTest()
    {
        tester.emplace(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        evolution.Folder = "/runs";
        evolution.FileName = "case.ev2";
        for (std::int16_t id = 1; id <= 3; ++id)
            test::addMode(evolution, id, {{100, -0.02F, 5}, {200, 0.01F, 6}});
        addAll(plot);
        model.setPlot(&plot);
    }

    void addAll(EvmPlot& to)
    {
        for (const auto& mode : evolution.Modes)
            to.rows().add(*mode);
    }
    QModelIndex index(int row, SeriesColumn column)
    {
        return model.index(row, static_cast<int>(column));
    }
    std::string text(int row, SeriesColumn column, int role = Qt::DisplayRole)
    {
        return model.data(index(row, column), role).toString().toStdString();
    }
    bool type(int row, SeriesColumn column, const char* typed)
    {
        return model.setData(index(row, column), QString::fromLatin1(typed), Qt::EditRole);
    }
    /// Whether a mode number is shown as not drawn: by its colour and a sign beside it.
    bool isRed(int row)
    {
        const QModelIndex cell = index(row, SeriesColumn::Mode);
        const bool hasSign = !model.data(cell, Qt::DecorationRole).value<QIcon>().isNull();
        EXPECT_EQ(hasSign, !text(row, SeriesColumn::Mode, Qt::AccessibleDescriptionRole).empty());
        return hasSign
            && model.data(index(row, SeriesColumn::Mode), Qt::ForegroundRole).value<QColor>()
            == warningColor(QGuiApplication::palette());
    }

    EVM evolution;
    Document document;
    EvmPlot& plot = document.plots().first();
    EvmPlot& other = document.plots().add(QString());
    SeriesGridModel model {document.history()};
    std::optional<QAbstractItemModelTester> tester;
};

} // namespace

TEST_F(SeriesGridModelTest, namesRowsAndColumnsForAScreenReader)
{
    const auto heading = [this](int section, Qt::Orientation orientation, int role) {
        return model.headerData(section, orientation, role).toString().toStdString();
    };
    const int line = static_cast<int>(SeriesColumn::Line);
    EXPECT_EQ(heading(line, Qt::Horizontal, Qt::DisplayRole), "");
    EXPECT_EQ(heading(line, Qt::Horizontal, Qt::AccessibleTextRole), "Line");
    EXPECT_EQ(heading(3, Qt::Horizontal, Qt::AccessibleTextRole), "Mode");
    for (const int role : {Qt::DisplayRole, Qt::AccessibleTextRole})
        EXPECT_EQ(heading(2, Qt::Vertical, role), "Row 3");
    EXPECT_EQ(heading(3, Qt::Vertical, Qt::DisplayRole), "") << "there are three rows";
    EXPECT_EQ(heading(6, Qt::Horizontal, Qt::AccessibleTextRole), "");
}

TEST_F(SeriesGridModelTest, showsHiddenRowsGreyAndItalicInEveryTheme)
{
    const QPalette usual = QApplication::palette();
    plot.rows().setHidden({1}, true);
    plot.rows().setMode(plot.rows().at(1).id, 9);
    for (const QColor& grey : {QColor(120, 120, 120), QColor(140, 140, 140)}) {
        QPalette theme = usual;
        theme.setColor(QPalette::Disabled, QPalette::Text, grey);
        QApplication::setPalette(theme);
        for (const SeriesColumn column : {SeriesColumn::Index, SeriesColumn::Legend}) {
            const QModelIndex cell = index(1, column);
            EXPECT_EQ(model.data(cell, Qt::ForegroundRole).value<QColor>(), grey);
            EXPECT_TRUE(model.data(cell, Qt::FontRole).value<QFont>().italic());
            EXPECT_EQ(text(1, column, Qt::AccessibleDescriptionRole),
                      "The curve of this row is hidden.");
        }
    }
    QApplication::setPalette(usual);
    EXPECT_TRUE(isRed(1)) << "its mode does not exist";
    EXPECT_EQ(text(1, SeriesColumn::Evolution, Qt::ToolTipRole),
              "/runs/case.ev2\nThe curve of this row is hidden.");
    EXPECT_FALSE(model.data(index(0, SeriesColumn::Index), Qt::ForegroundRole).isValid());
    EXPECT_FALSE(model.data(index(0, SeriesColumn::Index), Qt::FontRole).isValid());
}

TEST_F(SeriesGridModelTest, hasItsColumnsInTheirOrder)
{
    std::vector<std::string> headings;
    for (int i = 0; i < model.columnCount(); ++i)
        headings.push_back(
            model.headerData(i, Qt::Horizontal, Qt::DisplayRole).toString().toStdString());
    EXPECT_THAT(headings, ElementsAre("Idx", "Modal Evolution", "Tag", "Mode", "", "Legend"));
}

TEST_F(SeriesGridModelTest, showsARowForEachSeries)
{
    test::changeSeries(plot, 1, [](Series& one) { one.LegendText = QStringLiteral("torsion"); });
    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_EQ(text(1, SeriesColumn::Index), "2");
    EXPECT_EQ(text(1, SeriesColumn::Evolution), "case.ev2");
    EXPECT_EQ(text(1, SeriesColumn::Tag), "1");
    EXPECT_EQ(text(1, SeriesColumn::Mode), "2");
    EXPECT_EQ(text(1, SeriesColumn::Line), "");
    EXPECT_EQ(text(1, SeriesColumn::Legend), "torsion");
    EXPECT_EQ(text(1, SeriesColumn::Line, Qt::AccessibleTextRole),
              "solid, 1 px, red 0, green 0, blue 255"); // the second of the base colours
    EXPECT_EQ(text(1, SeriesColumn::Evolution, Qt::ToolTipRole), "/runs/case.ev2");
}

TEST_F(SeriesGridModelTest, showsTextsOfFilesUnchangedInItsTips)
{
    test::changeSeries(plot, 1, [](Series& one) { one.LegendText = QStringLiteral("R&D"); });
    EXPECT_EQ(text(1, SeriesColumn::Legend, Qt::ToolTipRole), "R&D");
    test::changeSeries(plot, 1, [](Series& one) { one.LegendText = QStringLiteral("<b>x</b>"); });
    EXPECT_NE(text(1, SeriesColumn::Legend, Qt::ToolTipRole).find("&lt;b&gt;x"), std::string::npos);
    evolution.FileName = "R&D.ev2";
    EXPECT_EQ(text(1, SeriesColumn::Evolution, Qt::ToolTipRole), "/runs/R&D.ev2");
}

TEST_F(SeriesGridModelTest, followsSeriesThatOthersAddAndRemove)
{
    plot.rows().add(*evolution.Modes[0]);
    EXPECT_EQ(model.rowCount(), 4);
    plot.rows().clear();
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(SeriesGridModelTest, writesTagAndLegendIntoTheSeries)
{
    EXPECT_TRUE(type(0, SeriesColumn::Tag, "A"));
    EXPECT_TRUE(type(0, SeriesColumn::Legend, "bending\r\n")); // as copied from a spreadsheet
    EXPECT_EQ(plot.SeriesCollection()[0].MarkerTag, QStringLiteral("A"));
    EXPECT_EQ(plot.SeriesCollection()[0].LegendText, QStringLiteral("bending"));
    EXPECT_FALSE(type(0, SeriesColumn::Index, "9"));
    EXPECT_FALSE(type(0, SeriesColumn::Evolution, "other"));
}

TEST_F(SeriesGridModelTest, showsInRedWhatThePlotDoesNot)
{
    EXPECT_FALSE(isRed(0));
    EXPECT_TRUE(type(0, SeriesColumn::Mode, "7"));
    EXPECT_TRUE(isRed(0));
    EXPECT_EQ(plot.SeriesCollection().size(), 2U) << "no mode, no curve";
    EXPECT_EQ(text(0, SeriesColumn::Mode, Qt::ToolTipRole),
              "There is no mode 7 in modal evolution case.ev2");
    EXPECT_TRUE(type(0, SeriesColumn::Mode, "3"));
    EXPECT_FALSE(isRed(0));
    EXPECT_EQ(plot.SeriesCollection()[0].Mode, evolution.Modes[2].get());
}

TEST_F(SeriesGridModelTest, showsARowWithoutACurveAsTheOthers)
{
    EXPECT_TRUE(type(1, SeriesColumn::Mode, "0"));
    EXPECT_TRUE(type(1, SeriesColumn::Legend, "torsion"));
    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_EQ(text(1, SeriesColumn::Evolution), "case.ev2");
    EXPECT_EQ(text(1, SeriesColumn::Evolution, Qt::ToolTipRole), "/runs/case.ev2");
    EXPECT_EQ(text(1, SeriesColumn::Tag), "1");
    EXPECT_EQ(text(1, SeriesColumn::Mode), "0");
    EXPECT_EQ(text(1, SeriesColumn::Legend), "torsion");
    EXPECT_EQ(text(2, SeriesColumn::Mode), "3");
}

TEST_F(SeriesGridModelTest, refusesAModeThatIsNoNumber)
{
    std::vector<std::string> reports;
    QObject::connect(&model, &SeriesGridModel::refused,
                     [&](const QModelIndex& cell, const QString& typed, const RunTimeError& error) {
                         EXPECT_EQ(cell, model.index(1, static_cast<int>(SeriesColumn::Mode)));
                         EXPECT_EQ(typed, reports.empty() ? u"two" : u"40000");
                         reports.emplace_back(error.what());
                     });
    EXPECT_FALSE(type(1, SeriesColumn::Mode, "two"));
    EXPECT_FALSE(type(1, SeriesColumn::Mode, "40000"));
    EXPECT_EQ(text(1, SeriesColumn::Mode), "2");
    ASSERT_EQ(reports.size(), 2U);
    EXPECT_THAT(reports[0], ::testing::HasSubstr("Mode of row 2"));
    EXPECT_THAT(reports[0], ::testing::HasSubstr("two"));
    EXPECT_THAT(reports[1], ::testing::StartsWith("Overflow"));
}

TEST_F(SeriesGridModelTest, keepsWhatWasTypedWhileAnotherPlotIsShown)
{
    addAll(other);
    EXPECT_TRUE(type(2, SeriesColumn::Mode, "8"));
    model.setPlot(&other);
    EXPECT_EQ(text(2, SeriesColumn::Mode), "3");
    plot.rows().add(*evolution.Modes[0]); // while the change is undone
    model.setPlot(&plot);
    EXPECT_EQ(text(2, SeriesColumn::Mode), "8");
    EXPECT_EQ(text(3, SeriesColumn::Mode), "1");
    model.setPlot(nullptr);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(SeriesGridModelTest, keepsPositionsAtTheirRowsWhileOthersMoveAndGo)
{
    tester.reset(); // it expects first cells to move with rows, but they number the rows
    const QPersistentModelIndex second(index(1, SeriesColumn::Legend));
    const QPersistentModelIndex third(index(2, SeriesColumn::Tag));
    int resets = 0;
    QObject::connect(&model, &QAbstractItemModel::modelReset, [&resets] { ++resets; });
    plot.SerieMove(2, 1, 2);
    EXPECT_EQ(second.row(), 0);
    EXPECT_EQ(third.row(), 1);
    plot.SerieMove(1, 3);
    EXPECT_EQ(second.row(), 2);
    EXPECT_EQ(third.row(), 0);
    plot.rows().remove({1});
    EXPECT_EQ(second.row(), 1);
    EXPECT_EQ(text(1, SeriesColumn::Mode), "2");
    plot.rows().setMode(plot.rows().at(1).id, 9);
    plot.rows().remove({0});
    EXPECT_FALSE(third.isValid());
    EXPECT_EQ(second.row(), 0);
    EXPECT_EQ(resets, 0);
}

TEST_F(SeriesGridModelTest, saysWhichRowsHaveOtherNumbersAndTexts)
{
    tester.reset(); // it expects first cells to move with rows, but they number the rows
    std::vector<std::pair<int, int>> changes; // first row, last row
    QObject::connect(&model, &QAbstractItemModel::dataChanged,
                     [&](const QModelIndex& from, const QModelIndex& to) {
                         changes.emplace_back(from.row(), to.row());
                     });
    plot.rows().setMode(plot.rows().at(2).id, 1);
    test::changeSeries(plot, 2, [](Series&) {}); // changes nothing
    EXPECT_THAT(changes, ElementsAre(std::pair(2, 2)));
    changes.clear();
    plot.SerieMove(3, 2);
    plot.rows().remove({1});
    EXPECT_THAT(changes, ElementsAre(std::pair(1, 2), std::pair(1, 1)));
}

TEST_F(SeriesGridModelTest, saysWhenThePlotOrItsFirstSeriesAreNew)
{
    int replaced = 0;
    QObject::connect(&model, &SeriesGridModel::rowsReplaced, [&replaced] { ++replaced; });
    model.setPlot(&other);
    EXPECT_EQ(replaced, 1);
    addAll(other);
    EXPECT_EQ(replaced, 2);
    other.rows().add(*evolution.Modes[0]);
    EXPECT_EQ(replaced, 2);
}
