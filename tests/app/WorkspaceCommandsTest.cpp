// SPDX-License-Identifier: Apache-2.0

// New, Open and Save of the File menu.

#include "app/WndMainFixture.h"

#include "app/WorkspaceCommands.h"
#include "explorer/WndEvolExplorer.h"
#include "model/EVM.h"
#include "support/ChangeSeries.h"
#include "vgfplot/PictureWriter.h"

#include <QMouseEvent>
#include <QTextEdit>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <functional>

#include <pwd.h>
#include <unistd.h>

using namespace tarsil;
using test::sample;
using test::WndMainTest;
using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

namespace {

class WorkspaceCommandsTest : public WndMainTest
{
protected:
    /// Creates two evolutions beside the workspace, drawn in a plot with its own texts.
    void work()
    {
        for (const char* name : {"one.ev2", "two.ev2"})
            folder.write(name, test::fileBytes(sample("goland_clean_m040.ev2")));
        load({folder.file("one.ev2"), folder.file("two.ev2")});
        plot().texts().setText(TextBox::Header, QStringLiteral("header\nsecond line"));
        plot().SerieMove(1, 9);
        window.document().setDescription(QStringLiteral("an afternoon"));
        EvmPlot& second = window.evolPlot().AddPlot(QStringLiteral("Second"));
        second.SetScale(0, 100, 0, 10, 0, -1);
    }

    /// Opens two evolutions of one name in two folders, drawn in one plot.
    void openNamesakes()
    {
        for (const char* const name : {"clean", "store"})
            std::filesystem::create_directories(folder.path() / "runs" / name);
        folder.write("runs/clean/case.ev2", test::fileBytes(sample("goland_clean_m040.ev2")));
        folder.write("runs/store/case.ev2", test::fileBytes(sample("goland_tipstore_m040.ev2")));
        load({folder.file("runs/store/case.ev2"), folder.file("runs/clean/case.ev2")});
    }

    /// The mass configuration of the file of each curve.
    std::vector<std::string> massesOfCurves()
    {
        std::vector<std::string> masses;
        for (const Series& series : plot().SeriesCollection())
            masses.push_back(series.Mode->Parent->Param.Mass);
        return masses;
    }

    /// Sets everything that only further keys can store.
    void makeWhatOnlyNewerFilesHold()
    {
        plot().references().AddRef(352.1F, QStringLiteral("Vd    "));
        plot().references().AddRef(400, QStringLiteral("       VL"));
        plot().references().AddDampLine(0.01F, QStringLiteral("g = 1.00 %"));
        test::changeSeries(plot(), 3, [](Series& series) {
            series.LineStyle = 2;
            series.LineWidth = 3;
            series.IthMpf = 2;
        });
        window.document().evolutions().all()[0]->Param.Mass = "heavy";
        window.document().evolutions().all()[0]->Param.Mach = 0.62F;
        window.document().evolutions().setReference(window.document().evolutions().all()[1].get());
    }

    void save(const std::string& name = "case.tsw")
    {
        user.saveFiles.push_back(folder.file(name));
        choose("mnuSaveWorkspace");
    }

    void open(const std::string& path)
    {
        user.openFiles.push_back({path});
        choose("OpenMenu");
    }

    template <typename Change>
    void setTexts(Change change)
    {
        WorkspaceTexts texts = window.document().texts();
        change(texts);
        window.document().setTexts(texts);
    }
    const EVM& evolution(std::size_t index)
    {
        return *window.document().evolutions().all().at(index);
    }

    /// Double-clicks the header of the active plot and types.
    void typeHeader(const QString& text)
    {
        EvmPlotView& view = *window.evolPlot().viewOf(plot());
        const QPoint position = plot().Header().geometry().center();
        QMouseEvent event(QEvent::MouseButtonDblClick, position, view.mapToGlobal(position),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &event);
        const QList<QTextEdit*> editors = view.findChildren<QTextEdit*>();
        ASSERT_FALSE(editors.isEmpty());
        editors.back()->selectAll();
        editors.back()->insertPlainText(text);
    }

    std::string bytes(const std::string& name = "case.tsw")
    {
        std::string text = test::fileBytes(folder.file(name));
        const std::size_t date = text.find("Date_Modified=");
        return text.erase(date, text.find('\r', date) - date);
    }
};

/// Two plots of the same caption, each with these series.
std::string twoPlots(const std::string& series)
{
    const std::string axis = "a" + std::string(1, '\0') + "0" + std::string(1, '\0') + "9"
        + std::string(1, '\0') + "3\r\n";
    const std::string plot = "Caption=wing\r\nvelAxis=" + axis + "freqAxis=" + axis
        + "gAxis=" + axis + "NoOfSeries=" + series + "\r\n";
    return "[MODAL EVOLUTION FILES]\r\nNoOfFiles=0\r\n[PLOTS]\r\nNoOfPlots=2\r\n[PLOT1]\r\n" + plot
        + "[PLOT2]\r\n" + plot;
}

/// A series of mode 1 of evolution 1.
std::string nineFields()
{
    std::string value = "1";
    for (int field = 1; field < 9; ++field)
        value += std::string(1, '\0') + "1";
    return value;
}

} // namespace

TEST_F(WorkspaceCommandsTest, openWhatWasSavedAsItWas)
{
    work();
    save();
    const std::string saved = bytes();
    EXPECT_THAT(saved, StartsWith("[GENERAL INFORMATION]\r\nUsername="));
    EXPECT_EQ(window.document().texts().name, QStringLiteral("case"));
    choose("mnuNewWorkspace");
    EXPECT_TRUE(window.document().evolutions().all().empty());
    open(folder.file("case.tsw"));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(user.questions.empty()) << "nothing was changed, so nothing was asked";
    EXPECT_EQ(window.document().evolutions().all().size(), 2U);
    ASSERT_EQ(window.evolPlot().plots().size(), 2U);
    EXPECT_EQ(plot().Header().Text(), QStringLiteral("header\r\nsecond line"));
    EXPECT_EQ(plot().SeriesCollection().size(), 14U);
    EXPECT_EQ(window.evolPlot().plots()[1]->properties().Caption(), QStringLiteral("Second"));
    EXPECT_EQ(window.evolPlot().plots()[1]->axes().speed.max, 100.0F);
    EXPECT_EQ(window.document().texts().description, QStringLiteral("an afternoon"));
    save("again.tsw");
    EXPECT_EQ(bytes("again.tsw"), saved);
}

TEST_F(WorkspaceCommandsTest, nameTheUserWhateverTheEnvironmentSays)
{
    const passwd* const account = getpwuid(geteuid());
    ASSERT_NE(account, nullptr);
    qputenv("USER", "somebody");
    save();
    EXPECT_THAT(bytes(),
                HasSubstr("\r\nUsername=" + std::string(account->pw_name) + "\r\ntsw_Version="));
}

TEST_F(WorkspaceCommandsTest, writeADescriptionThatNobodyGaveUnchanged)
{
    load();
    save();
    const std::string saved = bytes();
    EXPECT_THAT(saved, HasSubstr("\r\nAnalysis_Description=   \r\n"));
    open(folder.file("case.tsw"));
    EXPECT_EQ(window.document().texts().description, QStringLiteral("   "));
    save("again.tsw");
    EXPECT_EQ(bytes("again.tsw"), saved);
}

TEST_F(WorkspaceCommandsTest, askBeforeTheyReplaceAFile)
{
    work();
    save();
    folder.write("case.tsw", "old");
    save();
    ASSERT_EQ(user.questions.size(), 1U);
    EXPECT_EQ(user.questions[0], "The file 'case.tsw' already exists. Do you want to replace it?");
    EXPECT_EQ(test::fileBytes(folder.file("case.tsw")), "old");
    EXPECT_FALSE(user.fileQuestions.back().confirmsReplacing) << "the dialog does not ask too";
    user.confirmations = {true};
    save();
    EXPECT_THAT(bytes(), StartsWith("[GENERAL INFORMATION]"));
}

TEST_F(WorkspaceCommandsTest, saveWhatHasChangedBeforeTheyLeaveIt)
{
    work();
    user.unsaved = {Unsaved::Save};
    user.saveFiles.push_back(folder.file("case.tsw"));
    choose("mnuNewWorkspace");
    EXPECT_THAT(bytes(), StartsWith("[GENERAL INFORMATION]"));
    EXPECT_TRUE(window.document().evolutions().all().empty());
}

TEST_F(WorkspaceCommandsTest, stayWhereTheUserCancelsOrCannotSave)
{
    work();
    choose("mnuNewWorkspace"); // cancels the question
    user.unsaved = {Unsaved::Save};
    choose("mnuNewWorkspace"); // cancels the dialog
    user.unsaved = {Unsaved::Save};
    user.saveFiles.push_back(folder.file("gone/case.tsw"));
    choose("QuitMenu");
    EXPECT_EQ(user.questions.size(), 3U);
    EXPECT_EQ(user.messages.size(), 1U) << "the folder is not there";
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.document().evolutions().all().size(), 2U);
}

TEST_F(WorkspaceCommandsTest, keepTheDateOfCreation)
{
    work();
    setTexts(
        [](WorkspaceTexts& texts) { texts.dateCreated = QStringLiteral("07-Mar-2024 14:05:31"); });
    save("case");
    EXPECT_THAT(test::fileBytes(folder.file("case.tsw")),
                HasSubstr("Date_Created=07-Mar-2024 14:05:31\r\n"));
    EXPECT_FALSE(window.document().texts().dateModified.trimmed().isEmpty());
}

TEST_F(WorkspaceCommandsTest, askBeforeChangesAreLost)
{
    work();
    for (const char* command : {"mnuNewWorkspace", "OpenMenu", "QuitMenu"}) {
        user.questions.clear();
        choose(command);
        ASSERT_EQ(user.questions.size(), 1U) << command;
        EXPECT_THAT(user.questions[0], HasSubstr("has changed since it was last saved"));
        EXPECT_EQ(window.document().evolutions().all().size(), 2U) << command;
        EXPECT_TRUE(window.isVisible()) << command;
    }
    save();
    user.questions.clear();
    window.resize(900, 600);
    choose("mnuDefLayout");
    choose("QuitMenu");
    EXPECT_TRUE(user.questions.empty()) << "another size of the window is no change";
    EXPECT_FALSE(window.isVisible());
}

TEST_F(WorkspaceCommandsTest, keepAllThatAUserMakes)
{
    work();
    makeWhatOnlyNewerFilesHold();
    save();
    EXPECT_TRUE(user.messages.empty());
    const std::string saved = bytes();
    choose("mnuNewWorkspace");
    EXPECT_TRUE(plot().references().referenceSpeeds().empty());
    open(folder.file("case.tsw"));
    ASSERT_EQ(plot().references().referenceSpeeds().size(), 2U);
    EXPECT_EQ(plot().references().referenceSpeeds()[1].Caption, QStringLiteral("       VL"));
    ASSERT_EQ(plot().references().dampingLines().size(), 2U) << "fitted axes have a line at 0";
    EXPECT_EQ(plot().references().dampingLines()[1].Y1, 0.01F);
    const Series& series = plot().SeriesCollection()[3];
    EXPECT_EQ(series.LineStyle, 2);
    EXPECT_EQ(series.LineWidth, 3);
    EXPECT_EQ(series.IthMpf, 2);
    EXPECT_EQ(window.document().evolutions().reference(), &evolution(1));
    EXPECT_EQ(evolution(0).Param.Mass, "heavy");
    EXPECT_EQ(evolution(0).Param.Mach, 0.62F);
    EXPECT_EQ(evolution(1).Param.Mach, evolution(1).paramOfFile().mach);
    const auto* const tree = window.explorer().findChild<QTreeWidget*>();
    EXPECT_EQ(tree->findItems(QStringLiteral("heavy"), Qt::MatchRecursive).size(), 1)
        << "the tree shows it";
    user.confirmations = {true};
    save();
    EXPECT_EQ(bytes(), saved);
    choose("QuitMenu");
    EXPECT_EQ(user.questions.size(), 1U) << "only whether to replace the file";
    EXPECT_FALSE(window.isVisible());
}

TEST_F(WorkspaceCommandsTest, writeNothingNewWhereAUserMadeNothingNew)
{
    work();
    test::changeAllSeries(plot(), [](Series& series) {
        series.LineStyle = 0;
        series.IthMpf = 0; // never set
    });
    choose("mnuClearDamp"); // fitted axes have a line at 0
    save();
    for (const char* const key : {"RefSpeed", "DampLine", "SerieLook", "Edited", "Reference"})
        EXPECT_THAT(bytes(), Not(HasSubstr(std::string("\r\n") + key))) << key;
}

TEST_F(WorkspaceCommandsTest, askBeforeOnlyThatIsLostWhichNewerFilesHold)
{
    work();
    const std::vector<std::function<void()>> changes = {
        [this] { plot().references().AddRef(300, QStringLiteral("Vc")); },
        [this] { plot().references().RemoveRef(); },
        [this] { plot().references().AddDampLine(0.02F, QStringLiteral("g")); },
        [this] { plot().references().RemoveDampLine(); },
        [this] { test::changeSeries(plot(), 0, [](Series& one) { one.LineStyle = 4; }); },
        [this] { test::changeSeries(plot(), 0, [](Series& one) { one.LineWidth = 2; }); },
        [this] { test::changeSeries(plot(), 0, [](Series& one) { one.IthMpf = 5; }); },
        [this] { window.document().evolutions().all()[1]->Param.Airplane = "X"; },
        [this] { window.document().evolutions().all()[1]->Param.Mass = "Y"; },
        [this] { window.document().evolutions().all()[1]->Param.Mach = 0.1F; },
        [this] {
            window.document().evolutions().setReference(
                window.document().evolutions().all()[1].get());
        }};
    for (std::size_t i = 0; i < changes.size(); ++i) {
        save(std::to_string(i) + ".tsw");
        user.questions.clear();
        changes[i]();
        for (const char* command : {"mnuNewWorkspace", "OpenMenu", "QuitMenu"})
            choose(command);
        ASSERT_EQ(user.questions.size(), 3U) << "change " << i;
        EXPECT_THAT(user.questions, Each(HasSubstr("has changed since it was last saved")));
        EXPECT_TRUE(window.isVisible()) << "change " << i;
    }
}

TEST_F(WorkspaceCommandsTest, passOverWhatDoesNotFitInNewerFiles)
{
    work();
    makeWhatOnlyNewerFilesHold();
    save();
    std::string text = test::fileBytes(folder.file("case.tsw"));
    const std::vector<std::pair<std::string, std::string>> replacements = {
        {"RefSpeed(1)=\"352.1", "RefSpeed(1)=\"x"},
        {"SerieLook(4)=2", "SerieLook(4)=9"},
        {"Edited(1)=", "Edited(7)="},
        {"Reference=2", "Reference=-2"}};
    for (const auto& [part, replacement] : replacements)
        text.replace(text.find(part), part.size(), replacement);
    folder.write("damaged.tsw", text);
    choose("mnuNewWorkspace");
    open(folder.file("damaged.tsw"));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(plot().references().referenceSpeeds().size(), 1U);
    EXPECT_EQ(plot().SeriesCollection()[3].LineStyle, 0);
    EXPECT_EQ(window.document().evolutions().reference(), nullptr);
    EXPECT_EQ(evolution(0).Param.editable(), evolution(0).paramOfFile());
}

TEST_F(WorkspaceCommandsTest, tellOfFilesThatAreCountedButNotListedAndOpenTheRest)
{
    work();
    save();
    std::string text = test::fileBytes(folder.file("case.tsw"));
    const std::string count = "NoOfFiles=2";
    text.replace(text.find(count), count.size(), "NoOfFiles=4");
    folder.write("counted.tsw", text);
    choose("mnuNewWorkspace");
    open(folder.file("counted.tsw"));
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text,
              "Modal evolution file not found:\nfile 3 of the list, which has no path\n"
              "file 4 of the list, which has no path");
    EXPECT_EQ(window.document().evolutions().all().size(), 2U);
    EXPECT_EQ(plot().SeriesCollection().size(), 14U);
    EXPECT_EQ(window.evolPlot().plots().size(), 2U);
}

TEST_F(WorkspaceCommandsTest, keepTheRowOfTheHeader)
{
    work();
    save();
    std::string text = test::fileBytes(folder.file("case.tsw"));
    const std::size_t start = text.find("HeadPos=") + 8;
    const std::size_t end = text.find("\r\n", start);
    const std::string left = text.substr(start, text.find('\0', start) - start);
    text.replace(start, end - start, "7" + std::string(1, '\0') + "450");
    folder.write("low.tsw", text);
    choose("mnuNewWorkspace");
    open(folder.file("low.tsw"));
    EXPECT_EQ(plot().Header().Top(), 30) << "450 twentieths of a point at 96 per inch";
    user.saveFiles.push_back(folder.file("again.tsw"));
    choose("mnuSaveWorkspace");
    EXPECT_THAT(bytes("again.tsw"),
                HasSubstr("HeadPos=" + left + std::string(1, '\0') + "450\r\n"));
    choose("mnuNewWorkspace");
    EXPECT_EQ(plot().Header().Top(), 4) << "the row of a new plot";
}

TEST_F(WorkspaceCommandsTest, keepEveryCharacterOfALongHeader)
{
    work();
    for (const int length : {928, 929, 940}) {
        plot().texts().setText(TextBox::Header, QString(length, u'x'));
        const std::string name = std::to_string(length) + ".tsw";
        save(name);
        EXPECT_EQ(user.statuses.back(), "Ready");
        choose("mnuNewWorkspace");
        open(folder.file(name));
        EXPECT_EQ(plot().Header().Text().size(), length);
    }
}

TEST_F(WorkspaceCommandsTest, sayWhichCaptionsWillBeCut)
{
    work();
    plot().references().AddRef(300, QString(1024, u'x'));
    plot().references().AddDampLine(0, QString(1023, u'x'));
    save();
    EXPECT_THAT(user.note, StartsWith("RefSpeed(1) of [PLOT1] is longer than 1023 "));
    choose("mnuNewWorkspace");
    open(folder.file("case.tsw"));
    EXPECT_EQ(user.note,
              "RefSpeed(1) of [PLOT1] is cut: the limit of the format is 1023 characters.");
    EXPECT_EQ(plot().references().referenceSpeeds().at(0).Caption.size(), 1023);
    EXPECT_EQ(plot().references().dampingLines().back().Caption.size(), 1023);
}

TEST_F(WorkspaceCommandsTest, doNothingWhenADialogIsCancelled)
{
    work();
    choose("mnuSaveWorkspace");
    EXPECT_FALSE(std::filesystem::exists(folder.file("case.tsw")));
    user.unsaved = {Unsaved::Discard};
    choose("OpenMenu");
    EXPECT_EQ(window.document().evolutions().all().size(), 2U);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(WorkspaceCommandsTest, findMovedFilesBesideTheWorkspaceAndBelow)
{
    work();
    save();
    choose("mnuNewWorkspace");
    const test::TemporaryFolder elsewhere;
    std::filesystem::create_directories(elsewhere.path() / "deep" / "down");
    elsewhere.write("case.tsw", test::fileBytes(folder.file("case.tsw")));
    std::filesystem::rename(folder.file("one.ev2"), elsewhere.file("one.ev2"));
    std::filesystem::rename(folder.file("two.ev2"), elsewhere.file("deep/down/two.ev2"));
    open(elsewhere.file("case.tsw"));
    ASSERT_EQ(user.messages.size(), 1U) << "of the file that has only its name";
    EXPECT_THAT(user.messages[0].text, HasSubstr("deep/down/two.ev2"));
    EXPECT_THAT(user.messages[0].text, Not(HasSubstr(elsewhere.file("one.ev2"))));
    EXPECT_EQ(window.document().evolutions().all().size(), 2U);
    EXPECT_EQ(plot().SeriesCollection().size(), 14U);
}

TEST_F(WorkspaceCommandsTest, keepTheOtherFilesWhenOneIsMissing)
{
    work();
    const std::int16_t mode = plot().SeriesCollection().front().Mode->Id;
    save();
    choose("mnuNewWorkspace");
    std::filesystem::remove(folder.file("one.ev2"));
    open(folder.file("case.tsw"));
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text, StartsWith("Modal evolution file not found:\n"));
    ASSERT_EQ(plot().SeriesCollection().size(), 7U);
    for (const Series& series : plot().SeriesCollection())
        EXPECT_EQ(series.Mode->Parent->FileName, "two.ev2");
    EXPECT_GT(mode, 0);
}

TEST_F(WorkspaceCommandsTest, askTwiceBeforeWhatCouldNotBeOpenedIsLost)
{
    work();
    save();
    choose("mnuNewWorkspace");
    std::filesystem::remove(folder.file("one.ev2"));
    open(folder.file("case.tsw"));
    const std::string whole = bytes();
    user.questions.clear();
    user.confirmations = {true, false};
    save();
    ASSERT_EQ(user.questions.size(), 2U);
    EXPECT_EQ(user.questions[0], "The file 'case.tsw' already exists. Do you want to replace it?");
    EXPECT_THAT(user.questions[1], StartsWith("Some of this workspace could not be opened "));
    EXPECT_EQ(bytes(), whole);
    save("copy.tsw");
    EXPECT_EQ(user.questions.size(), 2U) << "the other file is whole";
}

TEST_F(WorkspaceCommandsTest, tellOfAFileThatIsTakenByItsNameAlone)
{
    work();
    save();
    choose("mnuNewWorkspace");
    std::filesystem::create_directory(folder.file("other"));
    std::filesystem::rename(folder.file("one.ev2"), folder.file("other/one.ev2"));
    user.questions.clear();
    open(folder.file("case.tsw"));
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text,
                StartsWith("These modal evolutions are not at their paths."));
    EXPECT_THAT(user.messages[0].text,
                HasSubstr("\n" + folder.file("one.ev2") + ": " + folder.file("other/one.ev2")));
    user.confirmations = {true, false};
    save();
    EXPECT_EQ(user.questions.size(), 2U) << "the true position would be lost";
}

TEST_F(WorkspaceCommandsTest, tellOfTextsThatWereCutAndAskBeforeTheyAreLost)
{
    work();
    plot().texts().setText(TextBox::Header, QString(3000, u'x'));
    save();
    const std::string whole = bytes();
    choose("mnuNewWorkspace");
    user.questions.clear();
    open(folder.file("case.tsw"));
    EXPECT_THAT(user.note, StartsWith("Header of [PLOT1] is cut"));
    user.confirmations = {true, false};
    save();
    EXPECT_EQ(user.questions.size(), 2U);
    EXPECT_EQ(bytes(), whole);
}

TEST_F(WorkspaceCommandsTest, reportADamagedFileAndGoOn)
{
    load();
    open(folder.write("bad.tsw", std::string("\x01\xFF\0[PLOTS]\r\nNoOfPlots=many\r\n", 28)));
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text, StartsWith("Error # 13 was generated by "));
    EXPECT_THAT(user.messages[0].text, HasSubstr(" in Module mdlWorkSpace\r"));
    open(folder.file("missing.tsw"));
    EXPECT_THAT(user.messages.back().text, StartsWith("Error # 53 "));
    ASSERT_NE(window.evolPlot().ActivePlot(), nullptr);
    EXPECT_EQ(window.evolPlot().plots().size(), 1U);
}

TEST_F(WorkspaceCommandsTest, leaveTheOldFileWhenItCannotBeWritten)
{
    work();
    const QString before = window.document().texts().dateModified;
    save("missing/case.tsw");
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text, StartsWith("Error # 76 "));
    EXPECT_EQ(window.document().texts().dateModified, before);
}

TEST_F(WorkspaceCommandsTest, sayWhichTextsWillBeCut)
{
    work();
    plot().texts().setText(TextBox::Legend, QString(1200, u'x'));
    save();
    EXPECT_THAT(user.note, StartsWith("Legend of [PLOT1] is longer than 1023 "));
    window.evolPlot().plots()[1]->texts().setText(TextBox::Header, QString(1200, u'x'));
    save("both.tsw");
    EXPECT_THAT(user.note,
                StartsWith("Legend of [PLOT1], Header of [PLOT2] are longer than 1023 "));
    for (EvmPlot* const one : window.evolPlot().plots()) {
        one->texts().setText(TextBox::Header, QString());
        one->texts().setText(TextBox::Legend, QString());
    }
    save("neither.tsw");
    EXPECT_EQ(user.note, "The workspace is in " + folder.file("neither.tsw"))
        << "what was said of another text is over";
}

TEST_F(WorkspaceCommandsTest, sayWhereTheFileIsUntilTheNextCommand)
{
    work();
    save();
    EXPECT_EQ(user.note, "The workspace is in " + folder.file("case.tsw"));
    choose("mnuClearRef");
    EXPECT_EQ(user.note, "");
    save("missing/case.tsw");
    EXPECT_EQ(user.note, "") << "there is no file";
}

TEST_F(WorkspaceCommandsTest, takeAlongWhatIsBeingTyped)
{
    work();
    save();
    typeHeader(QStringLiteral("typed"));
    choose("QuitMenu");
    EXPECT_EQ(user.questions.size(), 1U) << "it is a change like any other";
    EXPECT_TRUE(window.isVisible());
    typeHeader(QStringLiteral("again"));
    save("typed.tsw");
    choose("mnuNewWorkspace");
    open(folder.file("typed.tsw"));
    EXPECT_EQ(plot().Header().Text(), QStringLiteral("again"));
}

TEST_F(WorkspaceCommandsTest, giveEveryNameTheExtensionOfWorkspaces)
{
    work();
    save("wing m0.40");
    EXPECT_TRUE(std::filesystem::exists(folder.file("wing m0.40.tsw")));
    EXPECT_EQ(window.document().texts().name, QStringLiteral("wing m0.40"));
    save("upper.TSW");
    EXPECT_TRUE(std::filesystem::exists(folder.file("upper.TSW")));
}

TEST_F(WorkspaceCommandsTest, proposeTheFileThatIsOpen)
{
    work();
    save();
    EXPECT_EQ(user.fileQuestions.back().fileName, "") << "there was none";
    save("again.tsw");
    EXPECT_EQ(user.fileQuestions.back().fileName, folder.file("case.tsw"));
    open(folder.file("case.tsw"));
    EXPECT_EQ(user.fileQuestions.back().fileName, "");
    save("again.tsw");
    EXPECT_EQ(user.fileQuestions.back().fileName, folder.file("case.tsw"));
    choose("mnuNewWorkspace");
    save("again.tsw");
    EXPECT_EQ(user.fileQuestions.back().fileName, "");
}

TEST_F(WorkspaceCommandsTest, keepThePictureOfAPlotThatWasNeverShown)
{
    work();
    EvmPlot& hidden = *window.evolPlot().plots()[1];
    hidden.texts().setText(TextBox::Legend, QStringLiteral("legend"));
    hidden.texts().setText(TextBox::Mechanism, QStringLiteral("subtitle"));
    save();
    window.evolPlot().ActivatePlot(&hidden);
    const QByteArray shown = pictureBytes(hidden, PictureFormat::Emf);
    choose("mnuNewWorkspace");
    open(folder.file("case.tsw"));
    EvmPlot& again = *window.evolPlot().plots()[1];
    window.evolPlot().ActivatePlot(&again);
    EXPECT_EQ(pictureBytes(again, PictureFormat::Emf), shown);
}

TEST_F(WorkspaceCommandsTest, keepPlotsOfOneNameApart)
{
    load();
    open(folder.write("same.tsw", twoPlots("0")));
    EXPECT_TRUE(user.messages.empty());
    const std::vector<EvmPlot*> plots = window.evolPlot().plots();
    ASSERT_EQ(plots.size(), 2U);
    EXPECT_EQ(plots[0]->properties().Caption(), QStringLiteral("wing"));
    EXPECT_EQ(plots[1]->properties().Caption(), QStringLiteral("wing(2)"));
}

TEST_F(WorkspaceCommandsTest, reportOnceWhateverFails)
{
    load();
    open(folder.write("bad.tsw", twoPlots("1\r\nSerie(1)=" + nineFields())));
    ASSERT_EQ(user.messages.size(), 1U) << "neither plot has its evolution";
    EXPECT_THAT(user.messages[0].text,
                HasSubstr("plot \"wing\", series 1 is left out: there is no modal evolution 1; the "
                          "workspace lists 0\nplot \"wing\", series 1 is left out: there is no"));
    EXPECT_EQ(window.evolPlot().plots().size(), 2U) << "the second one is there all the same";
}

TEST_F(WorkspaceCommandsTest, reportOnceWhereverTheFileIsCut)
{
    constexpr std::size_t step = 7; // bytes
    work();
    save();
    const std::string whole = test::fileBytes(folder.file("case.tsw"));
    const std::size_t lastValue = whole.find('=', whole.rfind("NoOfSeries=")) + 1;
    for (std::size_t size = 0; size <= lastValue; size += step) {
        SCOPED_TRACE(size);
        user.messages.clear();
        open(folder.write("cut.tsw", whole.substr(0, size)));
        EXPECT_EQ(
            std::count_if(user.messages.begin(), user.messages.end(),
                          [](const auto& message) { return message.text.starts_with("Error # "); }),
            1)
            << user.messages.size() << " messages; the file ends with "
            << whole.substr(size < 200 ? 0 : size - 200, std::min<std::size_t>(size, 200));
        ASSERT_NE(window.evolPlot().ActivePlot(), nullptr);
    }
    user.messages.clear();
    open(folder.file("case.tsw"));
    EXPECT_EQ(plot().SeriesCollection().size(), 14U) << "a whole one opens as ever";
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(user.questions.empty()) << "what was opened is no change";
}

TEST_F(WorkspaceCommandsTest, tellNamesakesApartByTheirFolders)
{
    openNamesakes();
    const std::string masses[] = {evolution(0).Param.Mass, evolution(1).Param.Mass};
    ASSERT_NE(masses[0], masses[1]);
    save();
    choose("mnuNewWorkspace");
    std::filesystem::create_directories(folder.path() / "moved");
    std::filesystem::rename(folder.path() / "runs", folder.path() / "moved" / "runs");
    std::filesystem::rename(folder.file("case.tsw"), folder.file("moved/case.tsw"));
    open(folder.file("moved/case.tsw"));
    EXPECT_TRUE(user.messages.empty());
    ASSERT_EQ(window.document().evolutions().all().size(), 2U);
    EXPECT_EQ(evolution(0).Param.Mass, masses[0]);
    EXPECT_EQ(evolution(1).Param.Mass, masses[1]);
}

TEST_F(WorkspaceCommandsTest, bindCurvesToTheirOwnFilesWhereBothHaveMovedDeeper)
{
    openNamesakes();
    const std::vector<std::string> masses = massesOfCurves();
    save();
    choose("mnuNewWorkspace");
    std::filesystem::create_directories(folder.path() / "a" / "b");
    std::filesystem::rename(folder.path() / "runs", folder.path() / "a" / "b" / "runs");
    open(folder.file("case.tsw"));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(massesOfCurves(), masses);
}

TEST_F(WorkspaceCommandsTest, bindNoCurveToTheNamesakeOfAFileThatIsMissing)
{
    openNamesakes();
    const std::string mass = evolution(1).Param.Mass;
    save();
    choose("mnuNewWorkspace");
    std::filesystem::remove(folder.file("runs/store/case.ev2"));
    open(folder.file("case.tsw"));
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text,
              "Modal evolution file not found:\n" + folder.file("runs/store/case.ev2"));
    ASSERT_EQ(window.document().evolutions().all().size(), 1U);
    const std::vector<std::string> masses = massesOfCurves();
    ASSERT_FALSE(masses.empty());
    EXPECT_THAT(masses, Each(mass));
}

TEST_F(WorkspaceCommandsTest, tellOfAllMissingFilesAtOnce)
{
    work();
    save();
    choose("mnuNewWorkspace");
    std::filesystem::remove(folder.file("one.ev2"));
    std::filesystem::remove(folder.file("two.ev2"));
    open(folder.file("case.tsw"));
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text,
              "Modal evolution file not found:\n" + folder.file("one.ev2") + "\n"
                  + folder.file("two.ev2"));
    EXPECT_EQ(user.messages[0].title, "Error");
    EXPECT_EQ(user.messages[0].icon, MessageIcon::Critical);
}

TEST_F(WorkspaceCommandsTest, leaveTheSessionAsItIsWhereAFileIsNoWorkspace)
{
    work();
    save();
    window.document().setDescription(QStringLiteral("an evening"));
    for (const char* const bytes : {"", "a letter", "[GENERAL INFORMATION]\r\nUsername=x\r\n"}) {
        SCOPED_TRACE(bytes);
        user.messages.clear();
        user.unsaved = {Unsaved::Discard};
        open(folder.write("letter.tsw", bytes));
        ASSERT_EQ(user.messages.size(), 1U);
        EXPECT_THAT(user.messages[0].text, StartsWith("Error # 13 was generated by "));
        EXPECT_EQ(window.document().evolutions().all().size(), 2U);
        EXPECT_EQ(window.evolPlot().plots().size(), 2U);
        EXPECT_EQ(plot().SeriesCollection().size(), 14U);
        EXPECT_EQ(window.document().texts().description, QStringLiteral("an evening"));
        EXPECT_EQ(window.document().texts().name, QStringLiteral("case"));
    }
    user.questions.clear();
    choose("QuitMenu");
    EXPECT_EQ(user.questions.size(), 1U) << "the change is still not saved";
}

TEST_F(WorkspaceCommandsTest, keepEveryCurveHoweverLongItsLegendIs)
{
    work();
    test::changeSeries(plot(), 0, [](Series& one) { one.LegendText = QString(3000, u'x'); });
    plot().properties().setVLabel(QString(3000, u'v'));
    save();
    EXPECT_THAT(user.note,
                StartsWith("velAxis of [PLOT1], Serie(1) of [PLOT1] are longer than 1023 "));
    choose("mnuNewWorkspace");
    open(folder.file("case.tsw"));
    EXPECT_TRUE(user.messages.empty());
    ASSERT_EQ(plot().SeriesCollection().size(), 14U);
    EXPECT_EQ(plot().SeriesCollection().front().LegendText, QString(1023, u'x'));
}

TEST_F(WorkspaceCommandsTest, openTheFilesOfAWorkspaceWithoutPlots)
{
    folder.write("one.ev2", test::fileBytes(sample("goland_clean_m040.ev2")));
    open(folder.write("none.tsw",
                      "[MODAL EVOLUTION FILES]\r\nNoOfFiles=1\r\nFile(1)=" + folder.file("one.ev2")
                          + "\r\n[PLOTS]\r\nNoOfPlots=0\r\n[END OF FILE]\r\n"));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(window.document().evolutions().all().size(), 1U);
    ASSERT_EQ(window.evolPlot().plots().size(), 1U) << "the one that is always there";
    EXPECT_TRUE(plot().SeriesCollection().empty());
}

TEST_F(WorkspaceCommandsTest, renewTheDateOfSavingAlone)
{
    work();
    save();
    std::string bytes = test::fileBytes(folder.file("case.tsw"));
    for (const char* const key : {"Date_Created=", "Date_Modified="}) {
        const std::size_t date = bytes.find(key) + std::string_view(key).size();
        bytes.replace(date, bytes.find('\r', date) - date, "07-Mar-2024 14:05:31");
    }
    open(folder.write("old.tsw", bytes));
    for (const char* const name : {"again.tsw", "again.tsw"}) {
        user.confirmations = {true}; // replaces the file the second time
        setTexts([](WorkspaceTexts& texts) {
            texts.dateModified = QStringLiteral("07-Mar-2024 14:05:31");
        });
        save(name);
        const std::string saved = test::fileBytes(folder.file(name));
        EXPECT_THAT(saved, HasSubstr("\r\nDate_Created=07-Mar-2024 14:05:31\r\n"));
        EXPECT_THAT(saved, Not(HasSubstr("Date_Modified=07-Mar-2024")));
        EXPECT_THAT(saved,
                    HasSubstr("\r\nDate_Modified="
                              + window.document().texts().dateModified.toStdString() + "\r\n"));
    }
}

TEST_F(WorkspaceCommandsTest, changeNothingWhenAFileIsNotToBeReplaced)
{
    work();
    save();
    setTexts(
        [](WorkspaceTexts& texts) { texts.dateModified = QStringLiteral("07-Mar-2024 14:05:31"); });
    folder.write("other.tsw", "old");
    user.questions.clear();
    save("other.tsw");
    EXPECT_EQ(user.questions.size(), 1U);
    EXPECT_EQ(window.document().texts().name, QStringLiteral("case"));
    EXPECT_EQ(window.document().texts().dateModified, QStringLiteral("07-Mar-2024 14:05:31"));
    EXPECT_EQ(test::fileBytes(folder.file("other.tsw")), "old");
}

TEST_F(WorkspaceCommandsTest, openTheWorkspaceOfTheCommandLineInItsQuotes)
{
    work();
    save();
    choose("mnuNewWorkspace");
    load({"\"" + folder.file("case.tsw") + "\"", folder.file("one.ev2")});
    EXPECT_EQ(window.document().evolutions().all().size(), 2U);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(WorkspaceCommandsTest, openTheSampleWhoseFilesHaveMoved)
{
    open(sample("goland.tsw"));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(window.document().evolutions().all().size(), 6U);
    const auto plots = window.evolPlot().plots();
    ASSERT_EQ(plots.size(), 2U);
    EXPECT_EQ(plots[0]->properties().Caption(), QStringLiteral("Clean wing"));
    EXPECT_EQ(plots[0]->SeriesCollection().size(), 6U);
    EXPECT_EQ(plots[1]->SeriesCollection().size(), 6U);
    EXPECT_EQ(plots[1]->SeriesCollection()[5].Mode->Parent->FileName, "goland_tipstore_m060.ev2");
}

TEST_F(WorkspaceCommandsTest, writesNoRowWithoutACurveAndSaysWhich)
{
    work();
    const std::size_t curves = plot().SeriesCollection().size();
    save();
    ASSERT_TRUE(user.messages.empty());
    EvmPlot& second = *window.evolPlot().plots().back();
    second.rows().add(*window.document().evolutions().all()[1]->Modes[0]);
    second.rows().setMode(second.rows().at(0).id, 99);
    plot().rows().setMode(plot().rows().at(2).id, 0);
    user.confirmations.push_back(true);
    save();
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text,
              "Rows without a curve are left out of the workspace:\n"
              "There is no mode 0 in modal evolution one.ev2 (row 3 of Plot1)\n"
              "There is no mode 99 in modal evolution two.ev2 (row 1 of Second)");
    EXPECT_EQ(plot().rows().count(), curves) << "the rows are still there";
    open(folder.file("case.tsw"));
    EXPECT_EQ(plot().SeriesCollection().size(), curves - 1);
    EXPECT_EQ(plot().rows().count(), curves - 1);
    EXPECT_TRUE(window.evolPlot().plots().back()->SeriesCollection().empty());
}

TEST_F(WorkspaceCommandsTest, asksWhenACurveIsGoneWithItsMode)
{
    work();
    save();
    plot().rows().setMode(plot().rows().at(2).id, 0);
    user.questions.clear();
    choose("mnuNewWorkspace");
    EXPECT_EQ(user.questions.size(), 1U);
    EXPECT_FALSE(plot().rows().at(2).hasCurve()) << "the answer was no";
    user.unsaved = {Unsaved::Discard};
    choose("mnuNewWorkspace");
    EXPECT_EQ(plot().rows().count(), 0U) << "a new workspace has no rows";
}
