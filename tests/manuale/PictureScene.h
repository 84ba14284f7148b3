// SPDX-License-Identifier: MIT
#pragma once

#include "generation/GUtils.h"
#include "mainwindow/MainWindow.h"
#include "settings/Config.h"
#include "support/BoxScript.h"
#include "support/Find.h"
#include "support/ScratchFolder.h"

#include <QAbstractButton>
#include <QAction>
#include <QMap>
#include <QSpinBox>

// What a picture shows: the picture itself, and the texts in it.
struct Shot
{
    QImage image;
    QStringList texts;
};

// A user at work with the program, in a folder of its own. The numbers drawn are always the same.
class PictureScene final
{
public:
    // A first start in the language, before its dialog.
    explicit PictureScene(const QString &language);
    ~PictureScene();
    Q_DISABLE_COPY_MOVE(PictureScene)

    // The main window; started when it is first asked for.
    MainWindow *mainWindow();
    // The window of a class that the main window has opened.
    template<class Window>
    Window *opened()
    {
        auto *window = mainWindow()->findChild<Window *>();
        if (window == nullptr) {
            qFatal("PictureScene: no %s", Window::staticMetaObject.className());
        }
        return window;
    }

    static void type(const QWidget *window, const char *spinBox, int value);
    static void type(QWidget *lineEdit, const QString &text);
    static void press(const QWidget *window, const char *button);
    static void choose(const QWidget *window, const char *comboBox, int index);
    void trigger(const char *action) { findIn<QAction>(mainWindow(), action)->trigger(); }
    // Types the number of pages and makes them.
    void makePages(int pages);
    // The colour that the open dialog for colours is to have.
    void chooseColour(const char *button, const QString &colour);
    QString titleOf(const char *role) const;

    // Takes the picture of a widget of this size in pixels, its own one when none is given.
    void take(QWidget *widget, const QSize &size = QSize());
    const Shot &shot() const { return m_shot; }

private:
    ScratchFolder m_folder;
    std::unique_ptr<GUtils> m_utils;

public:
    BoxScript boxes;
    std::unique_ptr<CurrentConfig> config;

private:
    std::unique_ptr<MainWindow> m_mainWindow;
    Shot m_shot;
};

// The texts of a widget and of all that is seen in it, each as often as it is seen; numbers are none.
QStringList textsSeen(const QWidget *widget);
