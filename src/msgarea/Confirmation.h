// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

// Asks a question of which Yes destroys something: No is the default, and `loss` says below the question what is lost.
// Whether the answer was Yes.
[[nodiscard]] bool confirmLoss(QWidget *parent, const QString &title, const QString &question, const QString &loss);
