// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

// The widget or command of a window by its name. A window without it ends the test.
template<class Object>
Object *findIn(const QObject *window, const char *name)
{
    auto *found = window->findChild<Object *>(QString::fromLatin1(name));
    if (found == nullptr) {
        qFatal("no widget %s", name);
    }
    return found;
}
