// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

// Asks, when there is a file already of a name that the user did not give in full; whether it may be written.
[[nodiscard]] bool confirmOverwriting(QWidget *parent, const QString &title, const QString &fileName);
