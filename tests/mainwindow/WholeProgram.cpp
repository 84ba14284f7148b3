// SPDX-License-Identifier: MIT
#include "mainwindow/WholeProgram.h"

#include "mainwindow/MainWindow.h"
#include "mainwindow/Startup.h"
#include "settings/FormatSelection.h"

#include <QPushButton>
#include <QtTest>

namespace {
constexpr int patience = 20000; // milliseconds

std::function<void()> user;

void endOfApplication()
{
    WholeProgram::boxes.reset();
}

void startOfApplication()
{
    QTimer::singleShot(0, []() {
        WholeProgram::boxes = std::make_unique<BoxScript>();
        qAddPostRoutine(endOfApplication);
        user();
    });
    QTimer::singleShot(patience, []() { qFatal("the program does not end"); });
}
Q_COREAPP_STARTUP_FUNCTION(startOfApplication)
} // namespace

namespace WholeProgram {
std::unique_ptr<BoxScript> boxes;

int run(const std::function<void()> &actions)
{
    user = actions;
    int argc = 1;
    char name[] = "quintra";
    char *argv[] = {name, nullptr};
    return startQuintra(argc, argv);
}

QString translated(const char *context, const char *text)
{
    return QCoreApplication::translate(context, text);
}

void leave(MainWindow *window)
{
    boxes->expectBox(QStringLiteral("Quintra"), translated("MainWindow", "Sei sicuro di voler uscire?"),
                     QMessageBox::Yes);
    window->close();
}

void pressOk(FormatSelection *dialog)
{
    QTest::mouseClick(dialog->findChild<QPushButton *>(QStringLiteral("procedi")), Qt::LeftButton);
}
} // namespace WholeProgram
