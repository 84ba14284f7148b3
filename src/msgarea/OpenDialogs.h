// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <algorithm>

// Whether a dialog over a window, or over one that belongs to it, waits for an answer. Who asks goes on with the window
// afterwards: it must not be closed for good until then.
inline bool isAsking(const QWidget &window)
{
    const QList<QDialog *> dialogs = window.findChildren<QDialog *>();
    return std::any_of(dialogs.begin(), dialogs.end(),
                       [](const QDialog *dialog) { return dialog->isVisible() && dialog->isModal(); });
}
