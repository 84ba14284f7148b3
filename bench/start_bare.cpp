// SPDX-License-Identifier: MIT
// The start of a program that shows the widgets of the main window and does nothing else.
#include "FirstWindow.h"

#include "resources/Resources.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QColorDialog>
#include <QMainWindow>
#include <QTableWidget>

int main(int argc, char **argv)
{
    endAtFirstWindow();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    initQuintraResources();
    QMainWindow window;
    Ui::MainWindow form;
    form.setupUi(&window);
    form.gridLayout->addWidget(new QTableWidget(form.centralwidget), 0, 0);
    const QColorDialog colorDialog(&window);
    window.showMaximized();
    return QApplication::exec();
}
