// SPDX-License-Identifier: MIT
#pragma once

#include "serata/Diario.h"

// An evening every step of which is on the disk before it counts: a game on the cards of a register, and its journal in
// a file beside that.
class SerataSalvata final
{
public:
    // Of the cards of this register. Nothing is written, and no game goes on, until begin() or resume().
    SerataSalvata(std::vector<Scheda> schede, const QString &registro);

    // Where the journal of a register is.
    static QString diarioOf(const QString &registro);

    // What the journal tells of an evening before this one: the numbers called in its last game.
    size_t callsBefore() const { return m_before.chiamate.size(); }
    // Whether that evening was one of these cards.
    bool isSameEvening() const { return m_before.numeri && m_before.impronta == m_impronta; }
    // Lines of the journal that tell nothing.
    int skippedLines() const { return m_before.righeSaltate; }
    // Why it could not be read, so that nothing is known of that evening; empty when it could, or there is none.
    const QString &whyUnreadable() const { return m_before.errore; }

    // What of the evening before is put aside: its journal, or its register too.
    enum class Parte { Chiamate, Tutto };
    // Gives that, as far as it is there, a name that tells the present time. The new name of the register; empty when
    // it fails, or the evening is open in another window.
    [[nodiscard]] QString putAside(Parte parte);

    // These are false, for the reason in errorString(), when the step does not reach the disk; nothing changes then.
    // A new evening, in place of the one before, or the one before.
    [[nodiscard]] bool begin(Intervallo numeri);
    [[nodiscard]] bool resume();
    // A new game: no number is called.
    [[nodiscard]] bool startGame(Intervallo numeri);
    // Calls a number of the range, or takes back one that was called.
    [[nodiscard]] bool toggle(quint32 numero);

    const Partita &partita() const { return m_partita; }
    const QString &registro() const { return m_registro; }
    QString errorString() const { return m_diario.errorString(); }

private:
    QString m_registro;
    quint64 m_impronta;
    Partita m_partita;
    Diario m_diario;
    Diario::Corso m_before;
};

// Where the register of an evening is kept that has none of its own.
QString registerOfTheEvening(const QString &folder);
