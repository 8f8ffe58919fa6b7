// SPDX-License-Identifier: Apache-2.0

// The main window without a user: opens the files, runs one command, and quits. Exits with 1 when a
// message other than of success was shown, and prints it to standard error.
//
// usage: fault_window save|picture|mix|report|document|pictures|options|quit TARGET [FILE...]

#include "app/WndMain.h"
#include "support/SilentUser.h"

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

#include <iostream>

namespace {

using namespace tarsil;

/// Answers a question for a file to save with the target, that for a format with the second, SVG,
/// and the others so that the command goes on.
class EagerUser : public test::SilentUser
{
public:
    explicit EagerUser(std::string target) : m_target(std::move(target)) { }

    bool wasTold() const { return m_wasTold; }

    void showMessage(const std::string& text, const std::string& /*title*/,
                     MessageIcon /*icon*/) override
    {
        std::cerr << text << '\n';
        m_wasTold = true;
    }
    bool confirm(const std::string& /*question*/, const std::string& /*title*/) override
    {
        return true;
    }
    Unsaved askToSave(const std::string& /*question*/, const std::string& /*title*/) override
    {
        return Unsaved::Discard;
    }
    std::optional<std::string> askText(const std::string& /*prompt*/, const std::string& /*title*/,
                                       const std::string& /*initial*/) override
    {
        return "0";
    }
    std::optional<std::size_t> askChoice(const std::string&, const std::string&,
                                         const std::vector<std::string>&) override
    {
        return 1;
    }
    std::optional<std::string> askSaveFile(const FileQuestion& /*question*/) override
    {
        return m_target;
    }
    std::optional<std::string> askFolder(const std::string& /*initial*/) override
    {
        return QFileInfo(QString::fromStdString(m_target)).path().toStdString();
    }

private:
    std::string m_target;
    bool m_wasTold = false;
};

void choose(wndMain& window, const char* name)
{
    window.findChild<QAction*>(QString::fromLatin1(name))->trigger();
}

/// Types other axes into the dialog, which saves them when the program quits.
void changeOptions(wndMain& window)
{
    choose(window, "mnuOptions");
    auto* const dialog = window.findChild<QWidget*>(QStringLiteral("dlgOptions"));
    dialog->findChild<QLineEdit*>(QStringLiteral("txtVgfScale"))
        ->setText(QStringLiteral("0|450|0|-0.25|0|20"));
    dialog->findChild<QPushButton*>(QStringLiteral("btnOK"))->click();
}

void give(wndMain& window, const std::string& command)
{
    if (command == "save")
        choose(window, "mnuSaveWorkspace");
    else if (command == "picture")
        window.findChild<QPushButton*>(QStringLiteral("SavePic"))->click();
    else if (command == "mix")
        choose(window, "ExportMenu");
    else if (command == "report")
        choose(window, "mnuFlutCalc");
    else if (command == "document")
        choose(window, "writeDocument");
    else if (command == "pictures")
        choose(window, "savePictures");
    else if (command == "options")
        changeOptions(window);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const std::vector<std::string> words(argv + 1, argv + argc);
    const std::string& target = words.at(1);
    const std::string home = qEnvironmentVariable("HOME").toStdString();
    EagerUser user(target);
    wndMain window(
        user, [](const QString& /*file*/) { return true; },
        OptionsStore(target.ends_with(".ini") ? target : home + "/tarsil.ini"));
    window.setReportFolder(QFileInfo(QString::fromStdString(target)).path());
    window.resize(1000, 700);
    window.show();
    window.MDIForm_Load({words.begin() + 2, words.end()});
    give(window, words.front());
    window.close();
    return user.wasTold() ? 1 : 0;
}
