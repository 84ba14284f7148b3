// SPDX-License-Identifier: MIT
#include "settings/RigheSaltate.h"

#include <QCoreApplication>

namespace {
class RigheSaltateText
{
    Q_DECLARE_TR_FUNCTIONS(RigheSaltate)
};
} // namespace

QString skippedLinesText(int first, int last, const QString &reason)
{
    if (first == last) {
        return RigheSaltateText::tr("Riga %1: %2.").arg(first).arg(reason);
    }
    return RigheSaltateText::tr("Righe da %1 a %2: %3.").arg(first).arg(last).arg(reason);
}

QString skippedLinesGoOnText(int last)
{
    return RigheSaltateText::tr("L'elenco continua fino alla riga %1.").arg(last);
}
