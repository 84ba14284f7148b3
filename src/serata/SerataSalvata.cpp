// SPDX-License-Identifier: MIT
#include "serata/SerataSalvata.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace {
// A name beside a file that tells the present time.
QString nameAside(const QString &fileName)
{
    const QFileInfo file(fileName);
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH.mm.ss"));
    const QString name = QStringLiteral("%1 %2").arg(file.completeBaseName(), time);
    if (file.suffix().isEmpty()) {
        return file.dir().filePath(name);
    }
    return file.dir().filePath(name + QLatin1Char('.') + file.suffix());
}

bool renameIfThere(const QString &fileName, const QString &newName)
{
    return !QFile::exists(fileName) || QFile::rename(fileName, newName);
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
    const auto before = m_diario.resume();
    if (!before) {
        return false;
    }
    m_before = *before; // another window may have called since
    const Intervallo numeri = m_before.numeri.value_or(m_partita.numeri());
    const bool goesOn = (m_before.impronta == m_impronta || m_diario.addCards(m_impronta)) &&
                        (m_before.numeri || m_diario.addGame(numeri));
    if (!goesOn) {
        return false;
    }
    m_partita.begin(numeri);
    m_partita.callAll(m_before.chiamate);
    return true;
}

// The journal goes first: what is left if the second step fails is a register without calls. It is held meanwhile, so
// that no evening loses its files that is played in another window.
QString SerataSalvata::putAside(Parte parte)
{
    const QString diario = diarioOf(m_registro);
    const QString newName = nameAside(m_registro);
    if (QFile::exists(diario) && !m_diario.resume()) {
        return QString();
    }
    if (!renameIfThere(diario, diarioOf(newName))) {
        return QString();
    }
    const bool whole = parte == Parte::Chiamate || renameIfThere(m_registro, newName);
    return whole ? newName : QString();
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
