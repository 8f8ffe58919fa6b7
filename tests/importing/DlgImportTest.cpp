// SPDX-License-Identifier: Apache-2.0
#include "importing/DlgImport.h"

#include "base/files/PathNames.h"
#include "document/Document.h"
#include "importing/ImportPreview.h"
#include "model/EVM.h"
#include "plotwindow/EvmPlotView.h"
#include "solver/PrintedPages.h"
#include "support/FormParts.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestFiles.h"
#include "vgfplot/EvolutionPlotter.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTreeWidget>
#include <QUrl>

#include <set>

using namespace tarsil;
using namespace tarsil::test;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

std::string summary(const std::string& firstSpeed = "1.0E+02")
{
    const std::vector<std::string> rows = {row(firstSpeed), row("2.0E+02", "1.0E-02")};
    return printed({.rows = rows}) + printed({.subcase = "2", .rows = rows}) + "1  END\n";
}

class DlgImport : public ::testing::Test
{
protected:
    DlgImport() { makeDialog(); }

    void makeDialog()
    {
        dialog = std::make_unique<dlgImport>(document, user, OptionsStore(folder.file("t.ini")));
    }

    bool add(const std::string& path) { return dialog->addFiles({path}); }

    void choosePreset(int index)
    {
        auto& preset = partOf<QComboBox>(*dialog, "cboPreset");
        preset.setCurrentIndex(index);
        Q_EMIT preset.activated(index);
    }
    std::string chosen(const char* list)
    {
        return partOf<QComboBox>(*dialog, list).currentText().toStdString();
    }
    std::string label(const char* name)
    {
        return partOf<QLabel>(*dialog, name).text().toStdString();
    }
    bool canImport() { return partOf<QPushButton>(*dialog, "btnImport").isEnabled(); }
    QTreeWidgetItem& file(int index)
    {
        return *partOf<QTreeWidget>(*dialog, "treAnalyses").topLevelItem(index);
    }
    static std::vector<std::string> columns(const QTreeWidgetItem& item)
    {
        std::vector<std::string> texts;
        for (int i = 0; i < item.columnCount(); ++i)
            texts.push_back(item.text(i).toStdString());
        return texts;
    }
    bool isWritten(const char* name) const { return fileExists(folder.file(name)); }
    std::vector<std::string> loaded()
    {
        std::vector<std::string> names;
        for (const auto& evolution : document.evolutions().all())
            names.push_back(evolution->FileName);
        return names;
    }
    float firstSpeed(std::size_t evolution)
    {
        return document.evolutions().all().at(evolution)->Modes.at(0)->Points.at(0).speed;
    }
    QImage preview()
    {
        auto* const shown = dialog->findChild<ImportPreview*>();
        shown->resize(400, 500);
        return shown->grab().toImage();
    }

    TemporaryFolder folder;
    Document document;
    ScriptedUserInterface user;
    std::unique_ptr<dlgImport> dialog;
};

constexpr int metric = 1; // "m, kg", after "Choose ..."
constexpr int feet = 3;

} // namespace

TEST_F(DlgImport, listsTheAnalysesOfEachFile)
{
    add(folder.write("wing.f06", summary()));
    add(folder.write("tail.f06",
                     printed({.subcase = "",
                              .pointLine = "   POINT =    1     METHOD = PKNL",
                              .hasDensity = true,
                              .rows = {" 0.5 2.0 0.725 0.5 1.6E+02 -0.01 5.0 -0.15 31.4"}})));
    EXPECT_EQ(file(0).text(0).toStdString(), "wing.f06");
    ASSERT_EQ(file(0).childCount(), 2);
    EXPECT_THAT(columns(*file(0).child(1)),
                ElementsAre("Subcase 2", "PK", "0.3", "1", "1", "2", "1"));
    EXPECT_THAT(columns(*file(1).child(0)),
                ElementsAre("Analysis 1", "PKNL", "in rows", "in rows", "1", "1", "1"));
    EXPECT_THAT(partOf<QPlainTextEdit>(*dialog, "txtEvidence").toPlainText().toStdString(),
                AllOf(HasSubstr("wing.f06: reference chord"), HasSubstr("V/Mach = 320.0: m/s")));
}

TEST_F(DlgImport, choosesNoUnitsByItself)
{
    add(folder.write("wing.f06", summary()));
    EXPECT_EQ(chosen("cboPreset"), "Choose ...");
    EXPECT_EQ(chosen("cboSpeed"), "Choose ...");
    EXPECT_FALSE(canImport());
    EXPECT_EQ(label("lblCount"), "Choose the units of the printed numbers.");
    const QImage empty = preview();
    choosePreset(metric);
    EXPECT_TRUE(canImport());
    EXPECT_NE(preview(), empty);
}

TEST_F(DlgImport, setsThePartsOfAPreset)
{
    add(folder.write("wing.f06", summary()));
    choosePreset(feet);
    EXPECT_EQ(chosen("cboSpeed"), "ft/s");
    EXPECT_EQ(chosen("cboDensity"), "ratio") << "the heading prints a ratio";
    // 100 ft/s are 59.248 KEAS at sea level: 100 x 0.3048 / (1852 / 3600).
    EXPECT_THAT(label("lblSpeeds"), HasSubstr("59.25, 118.50"));
    partOf<QComboBox>(*dialog, "cboSpeed").setCurrentText(QStringLiteral("m/s"));
    EXPECT_EQ(chosen("cboPreset"), "m, kg");
    EXPECT_THAT(label("lblSpeeds"), HasSubstr("194.38, 388.77"));
    partOf<QComboBox>(*dialog, "cboDensity").setCurrentText(QStringLiteral("slug/ft3"));
    EXPECT_EQ(chosen("cboPreset"), "Other");
    EXPECT_THAT(label("lblDoubts"), HasSubstr("prints a density ratio"));
}

TEST_F(DlgImport, writesAndLoadsTheEvolutions)
{
    add(folder.write("wing.f06", summary()));
    choosePreset(metric);
    type(*dialog, "txtAirplane", "GLIDER");
    type(*dialog, "txtMass", "EMPTY");
    EXPECT_EQ(label("lblCount"), "2 modal evolutions will be written.");
    click(*dialog, "btnImport");
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_THAT(loaded(), ElementsAre("wing_s1_M0.30.ev2", "wing_s2_M0.30.ev2"));
    const EVM& first = *document.evolutions().all().front();
    EXPECT_EQ(first.Param.Airplane, "GLIDER");
    EXPECT_EQ(first.Param.Mass, "EMPTY");
    EXPECT_EQ(first.Folder, resolvePath(folder.file("x")).folder);
    EXPECT_THAT(user.questions, IsEmpty());
    EXPECT_THAT(user.messages, IsEmpty());
    EXPECT_THAT(user.note, HasSubstr("2 modal evolutions are imported"));
}

TEST_F(DlgImport, keepsTheFilesWrittenBeforeAStop)
{
    add(folder.write("wing.f06", summary()));
    choosePreset(metric);
    user.progress.clear();
    user.stopsAt = 1;
    click(*dialog, "btnImport");
    EXPECT_TRUE(isWritten("wing_s1_M0.30.ev2"));
    EXPECT_FALSE(isWritten("wing_s2_M0.30.ev2"));
    EXPECT_THAT(loaded(), ElementsAre("wing_s1_M0.30.ev2"));
    EXPECT_THAT(user.note, HasSubstr("Stopped: 1 modal evolution is imported"));
    EXPECT_THAT(user.messages, IsEmpty());
    EXPECT_EQ(user.statuses.back(), "Ready");
}

TEST_F(DlgImport, loadsTheFilesReadBeforeAStop)
{
    add(folder.write("wing.f06", summary()));
    choosePreset(metric);
    user.progress.clear();
    user.stopsAt = 3; // both are written
    click(*dialog, "btnImport");
    EXPECT_TRUE(isWritten("wing_s2_M0.30.ev2"));
    EXPECT_THAT(loaded(), ElementsAre("wing_s1_M0.30.ev2"));
    EXPECT_EQ(user.note, "Stopped: 1 of 2 evolutions were loaded");
}

TEST_F(DlgImport, listsNothingOfAFileThatIsBeingReadAtAStop)
{
    const std::string large = summary() + std::string(400000, '\n') + summary();
    const std::vector<std::string> outputs = {folder.write("wing.f06", summary()),
                                              folder.write("tail.f06", large)};
    user.stopsAt = 2;
    EXPECT_TRUE(dialog->addFiles(outputs));
    EXPECT_EQ(partOf<QTreeWidget>(*dialog, "treAnalyses").topLevelItemCount(), 1);
    EXPECT_EQ(user.note, "Stopped: 1 of 2 files were read");
    EXPECT_THAT(user.messages, IsEmpty());
    for (std::size_t i = 1; i < user.progress.size(); ++i) // in the same units
        EXPECT_GT(user.progress[i].first * user.progress[i - 1].second,
                  user.progress[i - 1].first * user.progress[i].second);
    user.progress.clear();
    user.stopsAt = 0;
    EXPECT_TRUE(dialog->addFiles({outputs.back()}));
    EXPECT_EQ(partOf<QTreeWidget>(*dialog, "treAnalyses").topLevelItemCount(), 2);
}

TEST_F(DlgImport, listsTheFilesReadBeforeAStop)
{
    const std::vector<std::string> outputs = {folder.write("wing.f06", summary()),
                                              folder.write("tail.f06", summary()),
                                              folder.write("fin.f06", summary())};
    user.stopsAt = 2;
    EXPECT_TRUE(dialog->addFiles(outputs));
    EXPECT_EQ(partOf<QTreeWidget>(*dialog, "treAnalyses").topLevelItemCount(), 2);
    EXPECT_EQ(user.note, "Stopped: 2 of 3 files were read");
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(DlgImport, leavesOutWhatIsNotTicked)
{
    add(folder.write("wing.f06", summary()));
    choosePreset(metric);
    file(0).child(0)->setCheckState(0, Qt::Unchecked);
    EXPECT_EQ(label("lblCount"), "1 modal evolution will be written.");
    file(0).setCheckState(0, Qt::Unchecked);
    EXPECT_FALSE(canImport());
    file(0).setCheckState(0, Qt::Checked);
    file(0).child(0)->setCheckState(0, Qt::Unchecked);
    click(*dialog, "btnImport");
    EXPECT_THAT(loaded(), ElementsAre("wing_s2_M0.30.ev2"));
    EXPECT_FALSE(isWritten("wing_s1_M0.30.ev2"));
}

TEST_F(DlgImport, remembersTheUnitsOfAFolder)
{
    const std::string path = folder.write("wing.f06", summary());
    add(path);
    choosePreset(feet);
    type(*dialog, "txtVref", "2");
    partOf<QCheckBox>(*dialog, "chkEquivalent").setChecked(true);
    click(*dialog, "btnImport");
    makeDialog();
    add(path);
    EXPECT_EQ(chosen("cboSpeed"), "ft/s");
    EXPECT_EQ(textIn(*dialog, "txtVref"), "2");
    EXPECT_TRUE(partOf<QCheckBox>(*dialog, "chkEquivalent").isChecked());
    EXPECT_THAT(label("lblRemembered"), HasSubstr("last chosen for this folder"));
    makeDialog();
    std::filesystem::create_directory(folder.file("other"));
    add(folder.write("other/wing.f06", summary()));
    EXPECT_EQ(chosen("cboSpeed"), "Choose ...");
}

TEST_F(DlgImport, asksOnceForAllFilesThatExist)
{
    folder.write("wing_s1_M0.30.ev2", "old");
    folder.write("wing_s2_M0.30.ev2", "old");
    add(folder.write("wing.f06", summary()));
    choosePreset(metric);
    user.confirmations = {false, true};
    click(*dialog, "btnImport");
    ASSERT_EQ(user.questions.size(), 1U);
    EXPECT_THAT(user.questions[0],
                AllOf(HasSubstr("wing_s1_M0.30.ev2"), HasSubstr("wing_s2_M0.30.ev2")));
    EXPECT_EQ(fileBytes(folder.file("wing_s1_M0.30.ev2")), "old");
    EXPECT_THAT(loaded(), IsEmpty());
    click(*dialog, "btnImport");
    EXPECT_EQ(user.questions.size(), 2U);
    EXPECT_EQ(loaded().size(), 2U);
}

TEST_F(DlgImport, readsAnOpenEvolutionAgainWhenItsFileIsReplaced)
{
    const std::string path = folder.write("wing.f06", summary());
    add(path);
    choosePreset(feet);
    click(*dialog, "btnImport");
    EXPECT_EQ(document.history().steps().undoText(), QStringLiteral("Import Solver Results"));
    EvmPlot& plot = document.plots().first();
    plotCurves(plot, {allCurvesOf(*document.evolutions().all().front())});
    ASSERT_EQ(plot.rows().count(), 1U);
    makeDialog();
    add(path);
    choosePreset(metric);
    user.confirmations = {true};
    click(*dialog, "btnImport");
    EXPECT_THAT(loaded(), ElementsAre("wing_s1_M0.30.ev2", "wing_s2_M0.30.ev2"));
    EXPECT_FLOAT_EQ(firstSpeed(0), 194.384449F);
    EXPECT_TRUE(plot.rows().isEmpty()) << "its curve was that of other speeds";
    EXPECT_FALSE(document.history().steps().canUndo())
        << "the curves of the replaced file do not come back";
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(DlgImport, saysWhatCannotBeWritten)
{
    std::filesystem::create_directory(folder.file("wing_s1_M0.30.ev2"));
    add(folder.write("wing.f06", summary()));
    choosePreset(metric);
    click(*dialog, "btnImport");
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text, HasSubstr("wing_s1_M0.30.ev2"));
    EXPECT_THAT(loaded(), ElementsAre("wing_s2_M0.30.ev2"));
}

TEST_F(DlgImport, staysOpenWhenNothingCouldBeWritten)
{
    add(folder.write("wing.f06", summary()));
    choosePreset(metric);
    type(*dialog, "txtFolder", folder.file("nowhere"));
    dialog->show();
    click(*dialog, "btnImport");
    EXPECT_EQ(user.messages.size(), 1U);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_THAT(loaded(), IsEmpty());
}

TEST_F(DlgImport, writesIntoTheChosenFolder)
{
    std::filesystem::create_directory(folder.file("runs"));
    add(folder.write("wing.f06", summary()));
    choosePreset(metric);
    user.folders = {folder.file("runs")};
    click(*dialog, "btnFolder");
    EXPECT_EQ(textIn(*dialog, "txtFolder"), folder.file("runs"));
    click(*dialog, "btnImport");
    EXPECT_TRUE(isWritten("runs/wing_s1_M0.30.ev2"));
}

TEST_F(DlgImport, refusesFilesWithoutASummaryAndKeepsTheOthers)
{
    EXPECT_FALSE(dialog->addFiles({folder.write("empty.f06", ""), folder.file("missing.f06")}));
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text,
                AllOf(HasSubstr("empty.f06 is empty"), HasSubstr("File not found")));
    EXPECT_TRUE(dialog->addFiles(
        {folder.write("letter.txt", "Dear Sir\n"), folder.write("wing.f06", summary())}));
    ASSERT_EQ(user.messages.size(), 2U);
    EXPECT_THAT(user.messages[1].text, AllOf(HasSubstr("letter.txt"), Not(HasSubstr("empty.f06"))));
    EXPECT_EQ(file(0).text(0).toStdString(), "wing.f06");
}

TEST_F(DlgImport, listsWhatIsWrongWithFileAndLine)
{
    add(folder.write("wing.f06", printed({.rows = {row("******"), row("2.0E+02")}})));
    auto& findings = partOf<QListWidget>(*dialog, "lstFindings");
    ASSERT_EQ(findings.count(), 1);
    EXPECT_EQ(findings.item(0)->text().toStdString(),
              "wing.f06, line 11: row left out: \"******\" is no value");
    EXPECT_FALSE(partOf<QGroupBox>(*dialog, "fraFindings").isHidden());
}

TEST_F(DlgImport, wantsAVrefAboveZero)
{
    add(folder.write("wing.f06", summary()));
    choosePreset(metric);
    for (const char* text : {"", "0", "-1", "1,5", "words"}) {
        type(*dialog, "txtVref", text);
        EXPECT_FALSE(canImport()) << text;
        EXPECT_FALSE(partOf<QLineEdit>(*dialog, "txtVref").toolTip().isEmpty());
    }
    type(*dialog, "txtVref", "0.5");
    EXPECT_TRUE(canImport());
    EXPECT_THAT(label("lblSpeeds"), HasSubstr("97.19"));
}

TEST_F(DlgImport, showsTheAnalysisUnderTheCursor)
{
    add(folder.write("wing.f06", summary()));
    add(folder.write("tail.f06", summary("1.5E+02")));
    choosePreset(metric);
    EXPECT_THAT(label("lblSpeeds"), HasSubstr("194.38"));
    const QImage wing = preview();
    partOf<QTreeWidget>(*dialog, "treAnalyses").setCurrentItem(&file(1));
    EXPECT_THAT(label("lblSpeeds"), HasSubstr("291.58"));
    EXPECT_NE(preview(), wing);
}

TEST_F(DlgImport, saysWhyAnAnalysisCannotBeConverted)
{
    add(folder.write("wing.f06",
                     printed({.pointLine = "   POINT = 1   MACH NUMBER = 0.2   METHOD = PK",
                              .rows = {row("1.0E+02")}})));
    choosePreset(metric);
    EXPECT_THAT(label("lblSpeeds"), HasSubstr("the summary has no density"));
    partOf<QCheckBox>(*dialog, "chkEquivalent").setChecked(true);
    EXPECT_THAT(label("lblSpeeds"), HasSubstr("194.38"));
}

TEST_F(DlgImport, addsFilesThatAreDropped)
{
    add(folder.write("wing.f06", summary()));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(
        QString::fromStdString(folder.write("tail.f06", summary("1.5E+02"))))});
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    static_cast<QObject&>(*dialog).event(&drop); // no drag source
    EXPECT_EQ(file(1).text(0).toStdString(), "tail.f06");
}

TEST_F(DlgImport, addsFilesThatAreChosen)
{
    add(folder.write("wing.f06", summary()));
    user.openFiles = {{folder.write("tail.f06", summary())}};
    click(*dialog, "btnAdd");
    EXPECT_EQ(file(1).text(0).toStdString(), "tail.f06");
    click(*dialog, "btnAdd"); // cancelled
    EXPECT_EQ(partOf<QTreeWidget>(*dialog, "treAnalyses").topLevelItemCount(), 2);
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(DlgImport, givesEachInputALetterOfItsOwn)
{
    std::set<QChar> letters;
    const auto take = [&letters](const QString& text) {
        const qsizetype position = text.indexOf(u'&');
        return position < 0 || letters.insert(text[position + 1].toLower()).second;
    };
    for (const QLabel* const one : dialog->findChildren<QLabel*>()) {
        if (one->buddy() != nullptr) {
            EXPECT_TRUE(take(one->text())) << one->text().toStdString();
        }
    }
    for (const QAbstractButton* const one : dialog->findChildren<QAbstractButton*>())
        EXPECT_TRUE(take(one->text())) << one->text().toStdString();
    EXPECT_GE(letters.size(), 10U);
}
