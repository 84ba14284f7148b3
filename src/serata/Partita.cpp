// SPDX-License-Identifier: MIT
#include "serata/Partita.h"

#include "generation/GUtils.h"

#include <algorithm>

bool operator==(Intervallo a, Intervallo b)
{
    return a.da == b.da && a.a == b.a;
}

bool contains(Intervallo numeri, quint32 numero)
{
    return numeri.da <= numero && numero <= numeri.a;
}

Intervallo rangeOf(const std::vector<Scheda> &schede)
{
    std::optional<Intervallo> range;
    for (const Scheda &scheda : schede) {
        const std::vector<quint32> numeri = numbersOf(scheda);
        if (!numeri.empty()) {
            const Intervallo own{numeri.front(), numeri.back()};
            range = range ? united(*range, own) : own;
        }
    }
    return range.value_or(Intervallo());
}

Intervallo united(Intervallo a, Intervallo b)
{
    return {std::min(a.da, b.da), std::max(a.a, b.a)};
}

Intervallo withUsualNumbers(Intervallo numeri)
{
    constexpr Intervallo usual;
    return numeri.a <= usual.a ? united(numeri, usual) : numeri;
}

Partita::Partita(std::vector<Scheda> schede)
    : m_schede(std::move(schede))
{
    m_differentNumbers.reserve(m_schede.size());
    for (size_t i = 0; i < m_schede.size(); ++i) {
        const std::vector<quint32> numeri = numbersOf(m_schede[i]);
        m_differentNumbers.push_back(static_cast<quint16>(numeri.size()));
        for (const quint32 numero : numeri) {
            m_schedeByNumber.resize(std::max(m_schedeByNumber.size(), size_t{numero} + 1));
            m_schedeByNumber[numero].push_back(static_cast<quint32>(i));
        }
    }
    begin(rangeOf(m_schede));
}

std::optional<size_t> Partita::find(Posizione posizione) const
{
    const auto found = std::lower_bound(m_schede.begin(), m_schede.end(), posizione,
                                        [](const Scheda &s, Posizione p) { return s.posizione < p; });
    if (found == m_schede.end() || !(found->posizione == posizione)) {
        return std::nullopt;
    }
    return static_cast<size_t>(found - m_schede.begin());
}

void Partita::begin(Intervallo numeri)
{
    m_numeri = numeri;
    m_chiamate.clear();
    m_turns.assign(numeri.a - numeri.da + size_t{1}, 0);
    m_missing = m_differentNumbers;
    list();
}

void Partita::toggle(quint32 numero)
{
    if (turnOf(numero) == 0) {
        callAll({numero});
        return;
    }
    m_chiamate.erase(std::find(m_chiamate.begin(), m_chiamate.end(), numero));
    m_turns[numero - m_numeri.da] = 0;
    for (size_t i = 0; i < m_chiamate.size(); ++i) {
        m_turns[m_chiamate[i] - m_numeri.da] = static_cast<int>(i) + 1;
    }
    count(numero, 1);
    list();
}

void Partita::callAll(const std::vector<quint32> &numeri)
{
    for (const quint32 numero : numeri) {
        m_chiamate.push_back(numero);
        m_turns[numero - m_numeri.da] = static_cast<int>(m_chiamate.size());
        count(numero, -1);
    }
    list();
}

int Partita::turnOf(quint32 numero) const
{
    return contains(m_numeri, numero) ? m_turns[numero - m_numeri.da] : 0;
}

std::vector<quint32> Partita::notCalled() const
{
    std::vector<quint32> numeri;
    for (quint32 numero = m_numeri.da; numero <= m_numeri.a; ++numero) {
        if (turnOf(numero) == 0) {
            numeri.push_back(numero);
        }
    }
    return numeri;
}

quint32 Partita::missingNumber(size_t scheda) const
{
    const std::vector<quint32> numeri = numbersOf(m_schede[scheda]);
    return *std::find_if(numeri.begin(), numeri.end(), [this](quint32 numero) { return turnOf(numero) == 0; });
}

std::vector<Vincita> Partita::vincite(size_t scheda) const
{
    return vinciteOf(m_schede[scheda], [this](quint32 numero) { return turnOf(numero); });
}

// Changes what the cards with a number miss.
void Partita::count(quint32 numero, int change)
{
    if (numero < m_schedeByNumber.size()) {
        for (const quint32 scheda : m_schedeByNumber[numero]) {
            m_missing[scheda] = static_cast<quint16>(m_missing[scheda] + change);
        }
    }
}

void Partita::list()
{
    m_tombole.clear();
    m_quasiTombole.clear();
    for (size_t i = 0; i < m_schede.size(); ++i) {
        if (m_missing[i] == 1) {
            m_quasiTombole.push_back(static_cast<quint32>(i));
        } else if (m_missing[i] == 0 && m_differentNumbers[i] > 0) {
            m_tombole.push_back(static_cast<quint32>(i));
        }
    }
}

quint32 drawOneOf(const std::vector<quint32> &numeri)
{
    const auto last = static_cast<unsigned>(numeri.size() - 1);
    return numeri[GUtils::generate_X_different_numbers(1, 0, last).first()];
}

double bytesToPlay(const Cartella &cartella)
{
    constexpr size_t bytesOfCell = sizeof(Casella) + 2 * sizeof(quint32); // in the index, which grows ahead
    constexpr size_t bytesOfRow = 2 * sizeof(std::vector<Casella>);       // with what its allocation loses
    constexpr size_t bytesOfCard = 2 * sizeof(Scheda);
    double bytes = 0;
    for (const Pagina *pagina : cartella.pagine) {
        for (const Blocco &blocco : *pagina) {
            bytes += bytesOfCard;
            for (const Riga &riga : blocco) {
                bytes += static_cast<double>(bytesOfRow + bytesOfCell * riga.nCelle);
            }
        }
    }
    return bytes;
}
