// SPDX-License-Identifier: MIT
#include "model/SpokenContent.h"

#include <QCoreApplication>

namespace {
class Text
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
        return worded(Text::tr("numero"), Text::tr("numero %1"), text);
    case CELL_TESTO:
        return worded(Text::tr("testo"), Text::tr("testo %1"), text);
    case CELL_IMMAGINE:
        return Text::tr("immagine");
    case CELL_VUOTA:
        break;
    }
    return Text::tr("vuota");
}
