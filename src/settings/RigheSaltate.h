// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <algorithm>
#include <vector>

// Neighbouring lines of a file, numbered from 1, that were skipped for the same reason.
template<class Motivo>
struct RigheSaltatePer
{
    int prima = 0;
    int ultima = 0;
    Motivo motivo = Motivo();
};

// Takes the next line that was skipped into the list.
template<class Motivo>
void skip(std::vector<RigheSaltatePer<Motivo>> &saltate, int line, Motivo motivo)
{
    if (!saltate.empty() && saltate.back().ultima == line - 1 && saltate.back().motivo == motivo) {
        saltate.back().ultima = line;
    } else {
        saltate.push_back({line, line, motivo});
    }
}

// "Riga 3: vuota.", "Righe da 3 a 5: vuota."; that a list goes on.
QString skippedLinesText(int first, int last, const QString &reason);
QString skippedLinesGoOnText(int last);

// The skipped lines and why, for the user; only the first entries of a long list.
template<class Motivo>
QString describe(const std::vector<RigheSaltatePer<Motivo>> &saltate, QString (*reasonText)(Motivo), size_t mostEntries)
{
    QString text;
    for (size_t i = 0; i < std::min(saltate.size(), mostEntries); ++i) {
        const RigheSaltatePer<Motivo> &some = saltate[i];
        text += QLatin1Char('\n') + skippedLinesText(some.prima, some.ultima, reasonText(some.motivo));
    }
    if (saltate.size() > mostEntries) {
        text += QLatin1Char('\n') + skippedLinesGoOnText(saltate.back().ultima);
    }
    return text;
}

constexpr size_t mostEntriesDescribed = 500; // in a window of their own
