// SPDX-License-Identifier: MIT
#include "model/SpokenContent.h"

#include <QCoreApplication>

namespace {
class Text
{
    Q_DECLARE_TR_FUNCTIONS(SpokenContent)
};
} // namespace

QString spokenContent(CELL_VALUE tipo, const QString &text)
{
    switch (tipo) {
    case CELL_NUMERO:
        return text.isEmpty() ? Text::tr("numero") : Text::tr("numero %1").arg(text);
    case CELL_TESTO:
        return text.isEmpty() ? Text::tr("testo") : Text::tr("testo %1").arg(text);
    case CELL_IMMAGINE:
        return Text::tr("immagine");
    case CELL_VUOTA:
        break;
    }
    return Text::tr("vuota");
}
