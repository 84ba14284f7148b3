// SPDX-License-Identifier: MIT
#pragma once

#include "model/Cartella.h"

#include <QString>

#include <optional>
#include <vector>

// What an evening knows of the cards: their numbers, texts and where a picture is, not how they look.

// The highest number that a card can hold.
constexpr quint32 numeroPiuAlto = highestNumber;

struct Casella
{
    CELL_VALUE tipo = CELL_VUOTA;
    quint32 numero = 0; // of a CELL_NUMERO cell, else 0
    QString testo;      // of a CELL_TESTO cell, else empty
};

// The place of a card in its set, 1-based, as it is printed: "12.3".
struct Posizione
{
    U16 pagina = 0;
    U8 blocco = 0;
};

struct Scheda
{
    Posizione posizione;
    std::vector<std::vector<Casella>> righe; // top to bottom, each left to right
};

bool operator==(const Casella &a, const Casella &b);
bool operator==(const Posizione &a, const Posizione &b);
bool operator<(const Posizione &a, const Posizione &b);
bool operator==(const Scheda &a, const Scheda &b);

// All cards of a set, in its order.
std::vector<Scheda> schedeOf(const Cartella &cartella);
// The card of a block.
Scheda schedaOf(const Blocco &blocco, Posizione posizione);

// A number that tells these cards from others, the same on every machine.
quint64 improntaOf(const std::vector<Scheda> &schede);

// The different numbers of a row or of a whole card, ascending.
std::vector<quint32> numbersOf(const std::vector<Casella> &riga);
std::vector<quint32> numbersOf(const Scheda &scheda);

QString positionText(Posizione posizione);
// The position of "12.3", also typed as "12,3"; nothing for any other text.
std::optional<Posizione> parsePosition(const QString &text);
