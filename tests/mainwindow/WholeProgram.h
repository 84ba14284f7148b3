// SPDX-License-Identifier: MIT
#pragma once

#include "support/BoxScript.h"

#include <QApplication>
#include <QTimer>

#include <functional>
#include <memory>

class FormatSelection;
class MainWindow;

// Runs the whole program, once or several times, each with an application object of its own. What the user does is a
// function that the first turn of the program's event loop calls.
namespace WholeProgram {
// While the application lives.
extern std::unique_ptr<BoxScript> boxes;

// The result of the program.
int run(const std::function<void()> &actions);

QString translated(const char *context, const char *text);
// Closes the window and confirms that.
void leave(MainWindow *window);
void pressOk(FormatSelection *dialog);

// The window of this class that is shown; null when there is none.
template<class Window>
Window *shown()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<Window *>(window); found != nullptr && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

// Continues once a window of this class is shown and the present action is over.
template<class Window>
void whenShown(const std::function<void(Window *)> &action)
{
    QTimer::singleShot(5, [action]() {
        if (auto *window = shown<Window>()) {
            action(window);
        } else {
            whenShown<Window>(action);
        }
    });
}
} // namespace WholeProgram
