// SPDX-License-Identifier: MIT
#include "model/PageNumbers.h"

#include <QStringList>

QString pageNumbersText(const QVector<int> &pages)
{
    constexpr int mostNamed = 20;
    QStringList named;
    for (const int page : pages.mid(0, mostNamed)) {
        named.append(QString::number(page + 1));
    }
    if (pages.size() > mostNamed) {
        named.append(QStringLiteral("..."));
    }
    return named.join(QStringLiteral(", "));
}
