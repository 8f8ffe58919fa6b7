// SPDX-License-Identifier: Apache-2.0

// A program with two buttons at the top of the screen. The left one runs an operation that lasts as
// long as a test wants: it writes the file "begun" and waits for the file "end". The right one
// writes the file "next". The operation changes nothing on the screen, so that no answer of the
// display wakes the program afterwards.

#include "app/QtUserInterface.h"
#include "app/StatusPanels.h"
#include "base/user/BusyStatus.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QPushButton>
#include <QThread>

namespace {

void makeFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("the folder cannot be written");
}

void waitForFile(const QString& path)
{
    while (!QFile::exists(path))
        QThread::msleep(5);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QDir folder(QApplication::arguments().value(1));
    QMainWindow window;
    auto* const panels = new tarsil::StatusPanels(&window);
    window.setStatusBar(panels);
    tarsil::QtUserInterface user;
    user.attach(&window, panels);
    auto* const content = new QWidget(&window);
    auto* const layout = new QHBoxLayout(content);
    for (const char* const name : {"left", "right"}) {
        auto* const button = new QPushButton(QString::fromLatin1(name), content);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        layout->addWidget(button);
    }
    window.setCentralWidget(content);
    const QList<QPushButton*> buttons = content->findChildren<QPushButton*>();
    QObject::connect(buttons[0], &QPushButton::clicked, &window, [&] {
        makeFile(folder.filePath(QStringLiteral("begun")));
        waitForFile(folder.filePath(QStringLiteral("end")));
        user.showStatus(tarsil::readyStatus);
    });
    QObject::connect(buttons[1], &QPushButton::clicked, &window,
                     [&] { makeFile(folder.filePath(QStringLiteral("next"))); });
    window.setWindowTitle(QStringLiteral("Busy"));
    window.setGeometry(0, 0, 400, 200);
    window.show();
    return QApplication::exec();
}
