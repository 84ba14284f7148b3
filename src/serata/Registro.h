// SPDX-License-Identifier: MIT
#pragma once

#include "serata/Scheda.h"
#include "settings/RigheSaltate.h"

#include <QByteArray>
#include <QString>

#include <vector>

class QIODevice;

// A card set as a text that a spreadsheet opens: one card a line, in columns separated by ";".
//
//     12;3;|;5;;;34;"jolly";|;;17;immagine;...
//
// The page and the card's number on it (both from 1), then the rows: each begins with a column "|" and has a column for
// each of its cells. A number stands as it is, a text in quotes (those within it doubled), a picture as its word, an
// empty cell as nothing. The text is Latin-1; what is not, and control characters, are written as \u and four
// hexadecimal digits, a backslash is doubled.
namespace Registro {

// Why a line gives no card.
enum class Motivo {
    Vuota,          // no character at all
    Tronca,         // the last line, without its end
    TroppoLunga,    // longer than any card that is written
    SenzaPosizione, // no page and card number that can be
    SenzaRiga,      // a cell before the first "|"
    Casella,        // neither number, nor text in quotes, nor picture
    Numero,         // higher than a card can hold
    Testo,          // quotes not closed, or a backslash before what it cannot stand before
    TroppeCaselle,  // more rows or cells in a row than a card has
    Doppia,         // a card of this position was read before
};

using RigheSaltate = ::RigheSaltatePer<Motivo>;

struct Lettura
{
    std::vector<Scheda> schede; // ordered by position
    std::vector<RigheSaltate> saltate;
};

// The line of a card, with its end.
QByteArray lineOf(const Blocco &blocco, Posizione posizione);
// False when the device does not take everything, or a line would be too long to be read again.
[[nodiscard]] bool write(QIODevice &device, const Cartella &cartella);
// Writes a file, whole or not at all. False when that fails, for the reason then in `reason`.
[[nodiscard]] bool save(const QString &fileName, const Cartella &cartella, QString &reason);
// Whether an open device holds what would be written.
[[nodiscard]] bool holds(QIODevice &device, const Cartella &cartella);
// Reads an open device to its end, or until it fails, which it then tells itself. Odd lines are skipped.
Lettura read(QIODevice &device);

// The skipped lines and why, for the user. Long lists are cut after their first entries.
QString describe(const std::vector<RigheSaltate> &saltate, size_t mostEntries = mostEntriesDescribed);

} // namespace Registro
