// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <new>

class QWidget;

// Whether so many bytes may be taken: the user is asked, with No as default, when they do not fit the free memory.
// `loss` says what he would lose with the program.
[[nodiscard]] bool confirmMemory(QWidget *parent, const QString &title, double bytes, const QString &loss);

// After a step that failed for want of memory and left everything as it was.
void tellOfNoMemory(QWidget *parent, const QString &title);

// Does a step that changes nothing when it runs out of memory. False when it did; the user was told then.
template<class Step>
[[nodiscard]] bool withinMemory(QWidget *parent, const QString &title, Step step)
{
    try {
        step();
        return true;
    } catch (const std::bad_alloc &) {
        // What the step had made is gone only after this.
    }
    tellOfNoMemory(parent, title);
    return false;
}
