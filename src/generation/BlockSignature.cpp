// SPDX-License-Identifier: MIT
#include "generation/BlockSignature.h"

namespace {
void append(QString &signature, const Cella &cell)
{
    switch (cell.tipo) {
    case CELL_NUMERO:
        signature += QString::number(cell.numero);
        return;
    case CELL_TESTO:
        signature += QLatin1Char('S') + cell.testo;
        return;
    case CELL_IMMAGINE:
        signature += QLatin1Char('J') + QString::number(cell.immagine.sizeInBytes());
        return;
    case CELL_VUOTA:
        signature += QLatin1Char(' ');
        return;
    }
    qFatal("Cartella::checkForEqualBlocks() - CELL_VALUE type ERROR!");
}
} // namespace

QString blockSignature(const Blocco &block)
{
    QString signature;
    for (const Riga &row : block) {
        for (const Cella &cell : row) {
            append(signature, cell);
        }
        signature += QLatin1Char('\n');
    }
    return signature;
}
