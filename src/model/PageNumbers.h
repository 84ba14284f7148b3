// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

// Pages (0-based) as a user counts them, from 1: "1, 2, 5". Of many only the first ones are named.
[[nodiscard]] QString pageNumbersText(const QVector<int> &pages);
