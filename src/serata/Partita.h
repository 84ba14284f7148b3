// SPDX-License-Identifier: MIT
#pragma once

#include "serata/Premi.h"

// The numbers that can be called, both ends included.
struct Intervallo
{
    quint32 da = 1;
    quint32 a = 90;
};

bool operator==(Intervallo a, Intervallo b);
bool contains(Intervallo numeri, quint32 numero);
// From the lowest to the highest number of the cards; 1 to 90 when they have none.
Intervallo rangeOf(const std::vector<Scheda> &schede);
// The smallest range that contains both.
Intervallo united(Intervallo a, Intervallo b);
// What cards with these numbers were made for: 1 to 90, of which few cards may miss some, unless one is higher.
Intervallo withUsualNumbers(Intervallo numeri);

// A game: the numbers called, in order, and what they make of the cards. Cards are named by their index, from 0, in the
// order of their positions. A call counts in the cards that hold the number, and goes through the counts of all.
class Partita final
{
public:
    // `schede` are ordered by position.
    explicit Partita(std::vector<Scheda> schede);

    const std::vector<Scheda> &schede() const { return m_schede; }
    // Index of the card at a position.
    std::optional<size_t> find(Posizione posizione) const;

    // Begins anew: no number is called.
    void begin(Intervallo numeri);
    Intervallo numeri() const { return m_numeri; }

    // Calls a number, or takes back one that was called. The number is one of the range.
    void toggle(quint32 numero);
    // Calls these numbers, none of which was called.
    void callAll(const std::vector<quint32> &numeri);
    const std::vector<quint32> &chiamate() const { return m_chiamate; }
    // With which call a number came, from 1; 0 when it was not called.
    int turnOf(quint32 numero) const;
    // The numbers not called, ascending.
    std::vector<quint32> notCalled() const;

    // The cards all of whose numbers were called, and those that miss one number; ascending.
    const std::vector<quint32> &tombole() const { return m_tombole; }
    const std::vector<quint32> &quasiTombole() const { return m_quasiTombole; }
    // The lowest number of a card that was not called; the card misses one.
    quint32 missingNumber(size_t scheda) const;
    std::vector<Vincita> vincite(size_t scheda) const;

private:
    void count(quint32 numero, int change);
    void list();

    std::vector<Scheda> m_schede;
    std::vector<std::vector<quint32>> m_schedeByNumber; // which cards hold a number
    std::vector<quint16> m_differentNumbers;            // of each card
    std::vector<quint16> m_missing;                     // how many of them were not called
    Intervallo m_numeri;
    std::vector<quint32> m_chiamate;
    std::vector<int> m_turns; // by number, counted from the lowest of the range
    std::vector<quint32> m_tombole;
    std::vector<quint32> m_quasiTombole;
};

// Draws one of the numbers, which must not be none.
quint32 drawOneOf(const std::vector<quint32> &numeri);

// What a game on the cards of a set takes in memory (bytes), rather too much than too little.
double bytesToPlay(const Cartella &cartella);
