// SPDX-License-Identifier: MIT
#include "serata/Scheda.h"

#include "model/Positions.h"

#include <QRegularExpression>

#include <algorithm>
#include <limits>
#include <tuple>

namespace {
Casella casellaOf(const Cella &cella)
{
    switch (cella.tipo) {
    case CELL_NUMERO:
        return {CELL_NUMERO, cella.numero, QString()};
    case CELL_TESTO:
        return {CELL_TESTO, 0, cella.testo};
    default:
        return {cella.tipo, 0, QString()};
    }
}

void appendNumbers(std::vector<quint32> &numeri, const std::vector<Casella> &riga)
{
    for (const Casella &casella : riga) {
        if (casella.tipo == CELL_NUMERO) {
            numeri.push_back(casella.numero);
        }
    }
}

std::vector<quint32> sortedAndDifferent(std::vector<quint32> numeri)
{
    std::sort(numeri.begin(), numeri.end());
    numeri.erase(std::unique(numeri.begin(), numeri.end()), numeri.end());
    return numeri;
}
// The hash of Fowler, Noll and Vo, with a number at a time for its byte.
class Impronta final
{
public:
    void add(quint64 value) { m_value = (m_value ^ value) * prime; }
    void add(const QString &text)
    {
        add(static_cast<quint64>(text.size()));
        for (const QChar c : text) {
            add(c.unicode());
        }
    }
    quint64 value() const { return m_value; }

private:
    static constexpr quint64 prime = 0x100000001b3;
    quint64 m_value = 0xcbf29ce484222325;
};

void add(Impronta &impronta, const Scheda &scheda)
{
    impronta.add(scheda.posizione.pagina);
    impronta.add(scheda.posizione.blocco);
    impronta.add(scheda.righe.size());
    for (const auto &riga : scheda.righe) {
        impronta.add(riga.size());
        for (const Casella &casella : riga) {
            impronta.add(static_cast<quint64>(casella.tipo));
            impronta.add(casella.numero);
            impronta.add(casella.testo);
        }
    }
}
} // namespace

bool operator==(const Casella &a, const Casella &b)
{
    return a.tipo == b.tipo && a.numero == b.numero && a.testo == b.testo;
}

bool operator==(const Posizione &a, const Posizione &b)
{
    return a.pagina == b.pagina && a.blocco == b.blocco;
}

bool operator<(const Posizione &a, const Posizione &b)
{
    return std::tie(a.pagina, a.blocco) < std::tie(b.pagina, b.blocco);
}

bool operator==(const Scheda &a, const Scheda &b)
{
    return a.posizione == b.posizione && a.righe == b.righe;
}

std::vector<Scheda> schedeOf(const Cartella &cartella)
{
    std::vector<Scheda> schede;
    Posizione posizione;
    for (const Pagina *pagina : cartella.pagine) {
        ++posizione.pagina;
        posizione.blocco = 0;
        for (const Blocco &blocco : *pagina) {
            ++posizione.blocco;
            schede.push_back(schedaOf(blocco, posizione));
        }
    }
    return schede;
}

Scheda schedaOf(const Blocco &blocco, Posizione posizione)
{
    Scheda scheda{posizione, {}};
    scheda.righe.reserve(blocco.nRighe);
    for (const Riga &riga : blocco) {
        scheda.righe.emplace_back();
        scheda.righe.back().reserve(riga.nCelle);
        std::transform(begin(riga), end(riga), std::back_inserter(scheda.righe.back()), casellaOf);
    }
    return scheda;
}

quint64 improntaOf(const std::vector<Scheda> &schede)
{
    Impronta impronta;
    for (const Scheda &scheda : schede) {
        add(impronta, scheda);
    }
    return impronta.value();
}

std::vector<quint32> numbersOf(const std::vector<Casella> &riga)
{
    std::vector<quint32> numeri;
    appendNumbers(numeri, riga);
    return sortedAndDifferent(std::move(numeri));
}

std::vector<quint32> numbersOf(const Scheda &scheda)
{
    std::vector<quint32> numeri;
    for (const auto &riga : scheda.righe) {
        appendNumbers(numeri, riga);
    }
    return sortedAndDifferent(std::move(numeri));
}

QString positionText(Posizione posizione)
{
    return blockNumber(posizione.pagina, posizione.blocco);
}

std::optional<Posizione> parsePosition(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^\\s*([0-9]{1,9})[.,]([0-9]{1,9})\\s*$"));
    const QRegularExpressionMatch match = form.match(text);
    const uint pagina = match.captured(1).toUInt();
    const uint blocco = match.captured(2).toUInt();
    if (pagina == 0 || pagina > std::numeric_limits<U16>::max() || blocco == 0 ||
        blocco > std::numeric_limits<U8>::max()) {
        return std::nullopt;
    }
    return Posizione{static_cast<U16>(pagina), static_cast<U8>(blocco)};
}
