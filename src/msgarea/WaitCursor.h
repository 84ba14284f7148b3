// SPDX-License-Identifier: MIT
#pragma once

#include <QCursor>
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
