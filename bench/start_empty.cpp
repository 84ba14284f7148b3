// SPDX-License-Identifier: MIT
// The start of the barest program with a window.
#include "FirstWindow.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char **argv)
{
    endAtFirstWindow();
    const QApplication application(argc, argv);
    QMainWindow window;
    window.showMaximized();
    return QApplication::exec();
}
