// SPDX-License-Identifier: Apache-2.0

// Curves are hidden and shown again in the main window.

#include "app/WndMainFixture.h"

#include "document/Document.h"
#include "support/FormParts.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/PictureWriter.h"

#include <QKeyEvent>

#include <gmock/gmock.h>

using namespace tarsil;
using test::sample;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

namespace {

class HideCurves : public test::WndMainTest
{
protected:
    HideCurves() { load({sample("goland_clean_m040.ev2")}); }

    PlotRows::Indices hidden() { return plot().rows().hidden(); }
    EvmPlotView& view() { return *window.evolPlot().viewOf(plot()); }
    void press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers,
                            key < Qt::Key_Escape ? QString(QChar(key)).toLower() : QString());
            QApplication::sendEvent(&widget, &event);
        }
        QApplication::processEvents();
    }
    QMenu& menu(const char* name) { return *window.findChild<QMenu*>(QString::fromLatin1(name)); }
};

} // namespace

TEST_F(HideCurves, areReachedByTheKeyboardAlone)
{
    view().setFocus();
    press(view(), Qt::Key_Right); // the ring is on the first curve, which is selected
    QMenu& edit = menu("EditMenu");
    edit.popup({0, 0});
    press(edit, Qt::Key_H);
    EXPECT_THAT(hidden(), ElementsAre(0));
    EXPECT_EQ(action("mnuUndo").text(), QStringLiteral("&Undo Hide Curve"));
    press(view(), Qt::Key_Right);
    edit.popup({0, 0});
    press(edit, Qt::Key_H);
    EXPECT_THAT(hidden(), ElementsAre(0, 1)) << "the first curve that is left";
    edit.popup({0, 0});
    press(edit, Qt::Key_S);
    EXPECT_THAT(hidden(), ElementsAre(0)) << "its row is still selected";
    edit.popup({0, 0});
    press(edit, Qt::Key_A);
    EXPECT_THAT(hidden(), IsEmpty());
}

TEST_F(HideCurves, showAllHiddenOnesInThePopupOfThePlotWithoutASelection)
{
    plot().rows().setHidden({0, 1}, true);
    const QList<QAction*> entries = menu("popEvmPlot").actions();
    ASSERT_EQ(entries.back()->objectName(), QStringLiteral("curveShowAll"));
    entries.back()->trigger();
    EXPECT_THAT(hidden(), IsEmpty());
    EXPECT_EQ(action("mnuUndo").text(), QStringLiteral("&Undo Show 2 Curves"));
}

TEST_F(HideCurves, areNotSelectedInThePlot)
{
    plot().rows().setHidden({0}, true);
    press(view(), Qt::Key_Right);
    ASSERT_TRUE(view().curves().cursor());
    EXPECT_EQ(view().curves().cursor()->row, plot().rows().at(1).id);
    press(view(), Qt::Key_Up, Qt::NoModifier);
    EXPECT_EQ(view().curves().cursor()->row, plot().rows().at(1).id) << "the first with a curve";
}

TEST_F(HideCurves, comeBackFromASavedWorkspaceAsTheyWere)
{
    plot().rows().setHidden({1}, true);
    EXPECT_TRUE(window.document().isChanged());
    const QByteArray picture = pictureBytes(plot(), PictureFormat::Emf);
    user.saveFiles.push_back(folder.file("hidden.tsw"));
    choose("mnuSaveWorkspace");
    EXPECT_THAT(test::fileBytes(folder.file("hidden.tsw")), HasSubstr("SerieHidden(2)=1\r\n"));
    const std::size_t rows = plot().rows().count();
    choose("mnuNewWorkspace");
    user.openFiles.push_back({folder.file("hidden.tsw")});
    choose("OpenMenu");
    EXPECT_EQ(plot().rows().count(), rows);
    EXPECT_THAT(hidden(), ElementsAre(1));
    EXPECT_EQ(pictureBytes(plot(), PictureFormat::Emf), picture);
    EXPECT_FALSE(window.document().isChanged());
    choose("curveShowAll");
    user.confirmations = {true};
    user.saveFiles.push_back(folder.file("hidden.tsw"));
    choose("mnuSaveWorkspace");
    EXPECT_THAT(test::fileBytes(folder.file("hidden.tsw")), Not(HasSubstr("SerieHidden")));
}

TEST_F(HideCurves, areLeftOutOfTheLegendButNotOfAMix)
{
    for (std::size_t row = 0; row < 2; ++row)
        plot().rows().change(plot().rows().at(row).id, [row](Series& look) {
            look.LegendText = QStringLiteral("curve %1").arg(row);
        });
    plot().rows().setHidden({0}, true);
    test::click(window, "btnPlotLeg");
    EXPECT_FALSE(plot().Legend().Text().contains(QStringLiteral("curve 0")));
    EXPECT_TRUE(plot().Legend().Text().contains(QStringLiteral("curve 1")));
    EXPECT_EQ(plot().rows().at(0).series.LegendText, QStringLiteral("curve 0"));
    user.saveFiles.push_back(folder.file("mixed.ev2"));
    choose("ExportMenu");
    const std::size_t modes = plot().rows().count();
    choose("mnuNewWorkspace");
    user.openFiles.push_back({folder.file("mixed.ev2")});
    choose("AddMenu");
    ASSERT_EQ(window.document().evolutions().all().size(), 1U);
    EXPECT_EQ(window.document().evolutions().all().front()->Modes.size(), modes);
}
