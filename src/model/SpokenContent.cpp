// SPDX-License-Identifier: MIT
#include "model/SpokenContent.h"

#include <QCoreApplication>

namespace {
class SpokenContentText
{
    Q_DECLARE_TR_FUNCTIONS(SpokenContent)
};

QString worded(const QString &alone, const QString &withText, const QString &text)
{
    return text.isEmpty() ? alone : withText.arg(text);
}
} // namespace

QString spokenContent(CELL_VALUE tipo, const QString &text)
{
    switch (tipo) {
    case CELL_NUMERO:
        return worded(SpokenContentText::tr("numero"), SpokenContentText::tr("numero %1"), text);
    case CELL_TESTO:
        return worded(SpokenContentText::tr("testo"), SpokenContentText::tr("testo %1"), text);
    case CELL_IMMAGINE:
        return SpokenContentText::tr("immagine");
    case CELL_VUOTA:
        break;
    }
    return SpokenContentText::tr("vuota");
}
