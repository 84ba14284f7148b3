// SPDX-License-Identifier: MIT
#pragma once

#include "serata/Partita.h"

#include <QFile>

// The course of an evening in a file: which cards it is about, then every game and every call, a line each.
//
//     schede 53a7c9e201b4f688
//     numeri 1 90
//     +34
//     -34
//
// A line "schede" gives the print of the cards, "numeri" begins a game with the numbers of this range, "+" calls a
// number and "-" takes it back. What an add…() has confirmed is on the disk: neither the end of the program nor that of
// the machine takes it away. A journal is open in one window at a time.
class Diario final
{
public:
    // The game that a journal leaves behind.
    struct Corso
    {
        quint64 impronta = 0;             // of the cards
        std::optional<Intervallo> numeri; // none when no game was begun
        std::vector<quint32> chiamate;
        int righeSaltate = 0; // lines that tell nothing
        QString errore;       // why a file that is there could not be read; what it tells is not known then
    };

    // Reads a file, without a last line that was not finished. One that is not there tells nothing.
    static Corso read(const QString &fileName);

    explicit Diario(const QString &fileName);

    // Begins an empty journal in place of whatever is there, or goes on with the one there, which is as it is told.
    // False or none, for the reason in errorString(), when it cannot be read or written or another window has it open.
    [[nodiscard]] bool begin(quint64 impronta, Intervallo numeri);
    [[nodiscard]] std::optional<Corso> resume();

    // False when the line did not reach the disk; it is then not part of the journal.
    [[nodiscard]] bool addCards(quint64 impronta);
    [[nodiscard]] bool addGame(Intervallo numeri);
    [[nodiscard]] bool addCall(quint32 numero);
    [[nodiscard]] bool addTakenBack(quint32 numero);

    QString errorString() const { return m_error; }

private:
    bool open();
    bool add(const QByteArray &line);
    bool fail(const QString &reason);

    QFile m_file;
    qint64 m_size = 0; // bytes of the lines confirmed
    QString m_error;
};
