// SPDX-License-Identifier: MIT
#include "serata/Premi.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
constexpr Premio rowPrizes[] = {Premio::Ambo, Premio::Terno, Premio::Quaterna, Premio::Cinquina};
constexpr size_t fewestInRow = 2;
constexpr size_t wholeRow = 5;

using Turns = std::vector<int>;

class PremiText
{
    Q_DECLARE_TR_FUNCTIONS(Premi)
};

// With which calls the numbers called came, ascending.
Turns turnsOf(const std::vector<quint32> &numeri, const std::function<int(quint32)> &turnOf)
{
    Turns turns;
    for (const quint32 numero : numeri) {
        if (const int turn = turnOf(numero)) {
            turns.push_back(turn);
        }
    }
    std::sort(turns.begin(), turns.end());
    return turns;
}

// The calls that made the rows hold `count` numbers each, ascending.
Turns turnsToHold(size_t count, const std::vector<Turns> &rows)
{
    Turns turns;
    for (const Turns &row : rows) {
        if (row.size() >= count) {
            turns.push_back(row[count - 1]);
        }
    }
    std::sort(turns.begin(), turns.end());
    return turns;
}
} // namespace

bool operator==(const Vincita &a, const Vincita &b)
{
    return a.premio == b.premio && a.chiamata == b.chiamata;
}

std::vector<Vincita> vinciteOf(const Scheda &scheda, const std::function<int(quint32)> &turnOf)
{
    std::vector<Turns> rows;
    for (const auto &riga : scheda.righe) {
        rows.push_back(turnsOf(numbersOf(riga), turnOf));
    }
    std::vector<Vincita> vincite;
    size_t count = fewestInRow;
    for (const Premio premio : rowPrizes) {
        const Turns turns = turnsToHold(count++, rows);
        if (!turns.empty()) {
            vincite.push_back({premio, turns.front()});
        }
    }
    const Turns wholeRows = turnsToHold(wholeRow, rows);
    if (wholeRows.size() > 1) {
        vincite.push_back({Premio::DueCinquine, wholeRows[1]});
    }
    const std::vector<quint32> numeri = numbersOf(scheda);
    const Turns turns = turnsOf(numeri, turnOf);
    if (!numeri.empty() && turns.size() == numeri.size()) {
        vincite.push_back({Premio::Tombola, turns.back()});
    }
    return vincite;
}

QString premioText(Premio premio)
{
    switch (premio) {
    case Premio::Ambo:
        return PremiText::tr("Ambo");
    case Premio::Terno:
        return PremiText::tr("Terno");
    case Premio::Quaterna:
        return PremiText::tr("Quaterna");
    case Premio::Cinquina:
        return PremiText::tr("Cinquina");
    case Premio::DueCinquine:
        return PremiText::tr("Due cinquine");
    case Premio::Tombola:
        return PremiText::tr("Tombola");
    }
    return QString();
}
