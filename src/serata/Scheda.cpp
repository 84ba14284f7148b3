// SPDX-License-Identifier: MIT
#include "serata/Scheda.h"

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
    for (int p = 0; p < cartella.getNumPages(); ++p) {
        const Pagina &pagina = *cartella.pagine[p];
        for (int b = 0; b < pagina.nBlocchi; ++b) {
            schede.push_back(schedaOf(pagina.blocchi[size_t(b)], {static_cast<U16>(p + 1), static_cast<U8>(b + 1)}));
        }
    }
    return schede;
}

Scheda schedaOf(const Blocco &blocco, Posizione posizione)
{
    Scheda scheda{posizione, std::vector<std::vector<Casella>>(blocco.nRighe)};
    for (size_t r = 0; r < blocco.nRighe; ++r) {
        const Riga &riga = blocco.righe[r];
        scheda.righe[r].reserve(riga.nCelle);
        std::transform(riga.celle.get(), riga.celle.get() + riga.nCelle, std::back_inserter(scheda.righe[r]),
                       casellaOf);
    }
    return scheda;
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
    return QStringLiteral("%1.%2").arg(posizione.pagina).arg(posizione.blocco);
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
