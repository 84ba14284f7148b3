// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

// Whether so many bytes may be taken: the user is asked, with No as default, when they do not fit the free memory.
// `loss` says what he would lose with the program.
[[nodiscard]] bool confirmMemory(QWidget *parent, const QString &title, double bytes, const QString &loss);
