// SPDX-License-Identifier: MIT
#include "serata/SerataSalvata.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace {
// The journal goes first: what is left if the second step fails is a register without calls.
bool renameBoth(const QString &registro, const QString &newName)
{
    const QString diario = SerataSalvata::diarioOf(registro);
    const bool moved = !QFile::exists(diario) || QFile::rename(diario, SerataSalvata::diarioOf(newName));
    return moved && (!QFile::exists(registro) || QFile::rename(registro, newName));
}
} // namespace

SerataSalvata::SerataSalvata(std::vector<Scheda> schede, const QString &registro)
    : m_registro(registro)
    , m_impronta(improntaOf(schede))
    , m_partita(std::move(schede))
    , m_diario(diarioOf(registro))
    , m_before(Diario::read(diarioOf(registro)))
{
}

QString SerataSalvata::diarioOf(const QString &registro)
{
    return registro + QStringLiteral(".chiamate");
}

bool SerataSalvata::begin(Intervallo numeri)
{
    if (!m_diario.begin(m_impronta, numeri)) {
        return false;
    }
    m_partita.begin(numeri);
    return true;
}

bool SerataSalvata::resume()
{
    const Intervallo numeri = m_before.numeri.value_or(m_partita.numeri());
    const bool goesOn = m_diario.resume() && (m_before.impronta == m_impronta || m_diario.addCards(m_impronta)) &&
                        (m_before.numeri || m_diario.addGame(numeri));
    if (!goesOn) {
        return false;
    }
    m_partita.begin(numeri);
    m_partita.callAll(m_before.chiamate);
    return true;
}

bool SerataSalvata::startGame(Intervallo numeri)
{
    if (!m_diario.addGame(numeri)) {
        return false;
    }
    m_partita.begin(numeri);
    return true;
}

bool SerataSalvata::toggle(quint32 numero)
{
    const bool called = m_partita.turnOf(numero) > 0;
    if (!(called ? m_diario.addTakenBack(numero) : m_diario.addCall(numero))) {
        return false;
    }
    m_partita.toggle(numero);
    return true;
}

QString registerOfTheEvening(const QString &folder)
{
    return QDir(folder).filePath(QStringLiteral("Serata in corso.csv"));
}

QString setAside(const QString &registro)
{
    const QFileInfo file(registro);
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH.mm.ss"));
    const QString suffix = file.suffix().isEmpty() ? QString() : QLatin1Char('.') + file.suffix();
    const QString newName = file.dir().filePath(QStringLiteral("%1 %2").arg(file.completeBaseName(), time) + suffix);
    return renameBoth(registro, newName) ? newName : QString();
}
