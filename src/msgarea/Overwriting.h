// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

// Whether a file may be written under a name that the user did not give in full: he is asked when there is one already.
[[nodiscard]] bool mayOverwrite(QWidget *parent, const QString &title, const QString &fileName);
