// SPDX-License-Identifier: MIT
#include "msgarea/OpenDialogs.h"

#include <QDialog>

#include <algorithm>

bool isAsking(const QWidget &window)
{
    const QList<QDialog *> dialogs = window.findChildren<QDialog *>();
    return std::any_of(dialogs.begin(), dialogs.end(),
                       [](const QDialog *dialog) { return dialog->isVisible() && dialog->isModal(); });
}
