#include "app/PlotWindow.h"

#include "support/TestFiles.h"
#include "vgf/EvmPlotView.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

std::string rightAligned(const std::string& text, std::size_t width)
{
    return std::string(width - text.size(), ' ') + text;
}

/// Writes an evolution of `modes` modes, level at 10, 20, ... Hz from 100 to 600 knots, and returns
/// its path. In the file damping has the other sign.
QString writeEvolution(const test::TemporaryFolder& folder, const std::string& name, int modes)
{
    std::string text = "WING\nCLEAN\nsubcase 1\n" + std::string(60, ' ') + "   2"
        + rightAligned(std::to_string(modes), 8) + "\n";
    for (int i = 1; i <= modes; ++i) {
        const std::string mode = rightAligned(std::to_string(i), 3);
        const std::string frequency = rightAligned(std::to_string(10 * i) + ".000", 9);
        text += mode + "  0.000  100.000 1.25000E-01" + frequency;
        text += mode + "  0.000  600.000-1.25000E-01" + frequency + "\n";
    }
    return QString::fromStdString(folder.write(name, text));
}

/// Writes an evolution of the new format for one Mach number and returns its path.
QString writeCase(const test::TemporaryFolder& folder, const std::string& name,
                  const std::string& mach)
{
    return QString::fromStdString(
        folder.write(name,
                     "[PROCESSING DATA INFO]\nProgram_version=1\n\n[MODEL DATA INFO]\n"
                     "Flutter_method=PK\nAirplane=GOLAND WING\nMass_config=CLEAN\nMach_number="
                         + mach
                         + "\nAeroel_modes=1\nNo_of_speeds=2\n\n[RESULT DATA SUMMARY]\n"
                           "heading\nheading\nheading\nheading\n"
                           "1|1|1|1|x|100|0.1|10|y|z|\n1|2|1|1|x|600|-0.1|10|y|z|\n"));
}

/// Answers every message box that opens and keeps what it said, until the window has nothing more
/// to do.
class BoxReader
{
public:
    BoxReader()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { answer(); });
        m_timer.start(0);
    }

    void readAll()
    {
        m_quietRounds = 0;
        while (m_quietRounds < 50)
            QApplication::processEvents();
    }

    QStringList titles;
    QStringList texts;

private:
    void answer()
    {
        ++m_quietRounds;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* const box = qobject_cast<QMessageBox*>(widget);
            if (box == nullptr || !box->isVisible())
                continue;
            m_quietRounds = 0;
            titles.append(box->windowTitle());
            texts.append(box->text());
            box->done(QMessageBox::Ok);
        }
    }

    QTimer m_timer;
    int m_quietRounds = 0;
};

bool hasColor(const QImage& image, const QColor& color)
{
    for (int row = 0; row < image.height(); ++row) {
        for (int column = 0; column < image.width(); ++column) {
            if (image.pixelColor(column, row) == color)
                return true;
        }
    }
    return false;
}

} // namespace

TEST(PlotWindow, showsOneCurveForEachMode)
{
    const test::TemporaryFolder folder;
    PlotWindow window;
    window.open({writeEvolution(folder, "one.evm", 3), writeEvolution(folder, "two.evm", 2)});
    const SeriesList& series = window.plot().SeriesCollection();
    ASSERT_EQ(series.size(), 5U);
    EXPECT_EQ(series[0].Mode->Id, 1);
    EXPECT_EQ(series[2].Mode->Id, 3);
    EXPECT_EQ(series[3].Mode->Id, 1);
    EXPECT_EQ(series[0].LegendText, QStringLiteral("one.evm"));
    EXPECT_EQ(series[4].LegendText, QStringLiteral("two.evm"));
}

TEST(PlotWindow, drawsTheCurvesOnAxesThatFitThem)
{
    const test::TemporaryFolder folder;
    PlotWindow window;
    window.resize(800, 600);
    window.open({writeEvolution(folder, "one.evm", 3)});
    window.show();
    BoxReader boxes;
    boxes.readAll();
    const EvmPlot::Scale scale = window.plot().GetScale();
    EXPECT_GE(scale.vmax, 600.0F);
    EXPECT_GE(scale.fmax, 30.0F);
    EXPECT_LE(scale.gmax, -0.125F);
    // The level curves of 10, 20 and 30 Hz have the first three base colours.
    for (const QColor& color : {QColor(128, 128, 128), QColor(0, 0, 255), QColor(0, 128, 0)})
        EXPECT_TRUE(hasColor(window.plot().Image(), color)) << color.name().toStdString();
    EXPECT_TRUE(boxes.texts.isEmpty());
}

TEST(PlotWindow, headsItselfWithTheNamesOfItsFiles)
{
    const test::TemporaryFolder folder;
    PlotWindow window;
    window.open({writeEvolution(folder, "one.evm", 1), writeEvolution(folder, "two.evm", 1)});
    EXPECT_EQ(window.windowTitle().toStdString(), "one.evm, two.evm - Tarsil 4.0");
    EXPECT_EQ(window.plot().Mechanism().Text().toStdString(), "one.evm, two.evm");
}

TEST(PlotWindow, headsThePlotWithItsCase)
{
    const test::TemporaryFolder folder;
    PlotWindow window;
    window.open({writeCase(folder, "one.ev2", "0.5")});
    EXPECT_EQ(window.plot().Header().Text().toStdString(),
              "GOLAND WING - CLEAN\r\nPK Method - Mach No. 0.50");
}

TEST(PlotWindow, headsThePlotWithWhatAllFilesHaveInCommon)
{
    const test::TemporaryFolder folder;
    PlotWindow window;
    window.open({writeCase(folder, "one.ev2", "0.5"), writeCase(folder, "two.ev2", "0.8")});
    EXPECT_EQ(window.plot().Header().Text().toStdString(), "GOLAND WING - CLEAN\r\nPK Method");
}

TEST(PlotWindow, givesEachFileALineStyleOfItsOwn)
{
    const test::TemporaryFolder folder;
    PlotWindow window;
    window.open({writeEvolution(folder, "one.evm", 2), writeEvolution(folder, "two.evm", 2)});
    const SeriesList& series = window.plot().SeriesCollection();
    ASSERT_EQ(series.size(), 4U);
    EXPECT_EQ(series[0].LineStyle, penstyle::solid);
    EXPECT_EQ(series[1].LineStyle, series[0].LineStyle);
    EXPECT_NE(series[2].LineStyle, series[0].LineStyle);
    EXPECT_EQ(series[3].LineStyle, series[2].LineStyle);
}

TEST(PlotWindow, isEmptyWithoutFiles)
{
    PlotWindow window;
    window.open({});
    EXPECT_EQ(window.windowTitle().toStdString(), "Tarsil 4.0");
    EXPECT_TRUE(window.plot().SeriesCollection().empty());
    EXPECT_EQ(window.plot().GetScale(), EvmPlot::Scale());
}

TEST(PlotWindow, reportsAMissingFileInABoxAndDrawsTheOthers)
{
    const test::TemporaryFolder folder;
    PlotWindow window;
    window.open({QString::fromStdString(folder.file("missing.evm")),
                 writeEvolution(folder, "there.evm", 2)});
    EXPECT_EQ(window.plot().SeriesCollection().size(), 2U);
    window.show();
    BoxReader boxes;
    boxes.readAll();
    ASSERT_EQ(boxes.texts.size(), 1) << boxes.texts.join(u'\n').toStdString();
    EXPECT_EQ(boxes.titles[0], QStringLiteral("Error"));
    // 53 is "File not found".
    EXPECT_TRUE(boxes.texts[0].startsWith(QStringLiteral("Error # 53 was generated by ")))
        << boxes.texts[0].toStdString();
    EXPECT_TRUE(boxes.texts[0].contains(QStringLiteral("\nFile not found")))
        << boxes.texts[0].toStdString();
}

TEST(PlotWindow, reportsAFileWhoseNameTellsNoLayout)
{
    const test::TemporaryFolder folder;
    const QString notes = QString::fromStdString(folder.write("notes.txt", "text"));
    BoxReader boxes;
    PlotWindow window;
    window.open({notes});
    window.show();
    boxes.readAll();
    ASSERT_EQ(boxes.texts.size(), 1);
    EXPECT_TRUE(boxes.texts[0].contains(QStringLiteral("notes.txt has neither .evm nor .ev2")))
        << boxes.texts[0].toStdString();
    EXPECT_TRUE(window.plot().SeriesCollection().empty());
}

TEST(PlotWindow, reportsAFailureOfDrawingInOneBox)
{
    const test::TemporaryFolder folder;
    PlotWindow window;
    window.open({writeEvolution(folder, "there.evm", 2)});
    window.show();
    BoxReader boxes;
    boxes.readAll();
    window.plot().setVthicks(0);
    boxes.readAll();
    ASSERT_EQ(boxes.texts.size(), 1) << boxes.texts.join(u'\n').toStdString();
    EXPECT_TRUE(boxes.texts[0].startsWith(QStringLiteral("Error # 11 was generated by xAxis")))
        << boxes.texts[0].toStdString();
}
