// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QCursor>
#include <QEventLoop>
#include <QWidget>

// Shows the wait cursor on a window for as long as it lives, then the cursor from before: the arrow, or the wait cursor
// of an operation around it.
class WaitCursor final
{
public:
    explicit WaitCursor(QWidget *window)
        : m_window(window)
        , m_before(window->cursor())
    {
        m_window->setCursor(Qt::WaitCursor);
    }
    ~WaitCursor() { m_window->setCursor(m_before); }
    Q_DISABLE_COPY_MOVE(WaitCursor)

private:
    QWidget *m_window; // not owned, outlives the guard
    QCursor m_before;
};

// A dialog or menu that was just closed stays painted until events are handled: to be called before long work begins.
inline void letClosedDialogsDisappear()
{
    constexpr int milliseconds = 100; // at most: all events that wait, not only the first few
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, milliseconds);
}
