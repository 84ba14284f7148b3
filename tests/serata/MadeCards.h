// SPDX-License-Identifier: MIT
#pragma once

#include "serata/Scheda.h"

#include <QStringList>

// Cards for tests, from rows of words parted by blanks: a number, "-" for an empty cell, "*" for a picture, anything
// else a text.
inline Casella casellaOf(const QString &word)
{
    bool isNumber = false;
    const uint number = word.toUInt(&isNumber);
    if (isNumber) {
        return {CELL_NUMERO, number, QString()};
    }
    if (word == QLatin1String("-")) {
        return {};
    }
    if (word == QLatin1String("*")) {
        return {CELL_IMMAGINE, 0, QString()};
    }
    return {CELL_TESTO, 0, word};
}

inline Scheda made(Posizione posizione, const QStringList &rows)
{
    Scheda scheda{posizione, {}};
    for (const QString &row : rows) {
        scheda.righe.emplace_back();
        for (const QString &word : row.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            scheda.righe.back().push_back(casellaOf(word));
        }
    }
    return scheda;
}

// The block that shows a card.
inline Blocco blockOf(const Scheda &scheda)
{
    Blocco blocco;
    blocco.nRighe = static_cast<U8>(scheda.righe.size());
    blocco.righe = std::make_unique<Riga[]>(scheda.righe.size());
    for (size_t r = 0; r < scheda.righe.size(); ++r) {
        const std::vector<Casella> &caselle = scheda.righe[r];
        Riga &riga = blocco.righe[r];
        riga.nCelle = static_cast<U8>(caselle.size());
        riga.celle = std::make_unique<Cella[]>(caselle.size());
        for (size_t c = 0; c < caselle.size(); ++c) {
            riga.celle[c].tipo = caselle[c].tipo;
            riga.celle[c].numero = caselle[c].numero;
            riga.celle[c].testo = caselle[c].testo;
        }
    }
    return blocco;
}
