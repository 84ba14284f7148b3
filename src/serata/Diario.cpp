// SPDX-License-Identifier: MIT
#include "serata/Diario.h"

#include "settings/DiskFile.h"
#include "settings/WholeFile.h"

#include <QCoreApplication>

#include <algorithm>
#include <cerrno>
#include <sys/file.h>

namespace {
constexpr char cardsWord[] = "schede ";
constexpr char gameWord[] = "numeri ";
constexpr int hexadecimal = 16;

class DiarioText
{
    Q_DECLARE_TR_FUNCTIONS(Diario)
};

// The lines, without their ends.
QByteArray cardsLine(quint64 impronta)
{
    return cardsWord + QByteArray::number(impronta, hexadecimal);
}

QByteArray gameLine(Intervallo numeri)
{
    return gameWord + QByteArray::number(numeri.da) + ' ' + QByteArray::number(numeri.a);
}

QByteArray callLine(quint32 numero)
{
    return '+' + QByteArray::number(numero);
}

QByteArray takenBackLine(quint32 numero)
{
    return '-' + QByteArray::number(numero);
}

// Each of these takes a line into the course of the evening, or tells that the line is none of its kind.
bool takeCards(const QByteArray &line, Diario::Corso &corso)
{
    const quint64 impronta = line.mid(int(qstrlen(cardsWord))).toULongLong(nullptr, hexadecimal);
    if (line != cardsLine(impronta)) {
        return false;
    }
    corso.impronta = impronta;
    return true;
}

bool takeGame(const QByteArray &line, Diario::Corso &corso)
{
    const QList<QByteArray> bounds = line.mid(int(qstrlen(gameWord))).split(' ');
    const Intervallo numeri{bounds.first().toUInt(), bounds.last().toUInt()};
    const bool wellFormed = line == gameLine(numeri);
    if (!wellFormed || numeri.da > numeri.a || numeri.a > numeroPiuAlto) {
        return false;
    }
    corso.numeri = numeri;
    corso.chiamate.clear();
    return true;
}

bool takeCall(const QByteArray &line, Diario::Corso &corso)
{
    const quint32 numero = line.mid(1).toUInt();
    const auto found = std::find(corso.chiamate.begin(), corso.chiamate.end(), numero);
    const bool wasCalled = found != corso.chiamate.end();
    const bool isCall = line == callLine(numero);
    const bool isTakenBack = line == takenBackLine(numero);
    if (isCall && !wasCalled && corso.numeri && contains(*corso.numeri, numero)) {
        corso.chiamate.push_back(numero);
        return true;
    }
    if (isTakenBack && wasCalled) {
        corso.chiamate.erase(found);
        return true;
    }
    return false;
}

Diario::Corso courseOf(const QByteArray &text)
{
    Diario::Corso corso;
    QList<QByteArray> lines = text.split('\n');
    lines.removeLast(); // empty, or not finished
    for (const QByteArray &line : qAsConst(lines)) {
        if (!takeCards(line, corso) && !takeGame(line, corso) && !takeCall(line, corso)) {
            ++corso.righeSaltate;
        }
    }
    return corso;
}

Diario::Corso unreadable(const QString &reason)
{
    Diario::Corso corso;
    corso.errore = reason;
    return corso;
}
} // namespace

Diario::Corso Diario::read(const QString &fileName)
{
    QFile file(fileName);
    if (!file.exists()) {
        return Corso();
    }
    if (isDevice(fileName)) {
        return unreadable(DiarioText::tr("Non è un file."));
    }
    const QByteArray text = file.open(QIODevice::ReadOnly) ? readToEnd(file) : QByteArray();
    if (file.error() != QFile::NoError) {
        return unreadable(file.errorString());
    }
    return courseOf(text);
}

Diario::Diario(const QString &fileName)
    : m_file(fileName)
{
}

bool Diario::begin(quint64 impronta, Intervallo numeri)
{
    if (!open()) {
        return false;
    }
    m_size = 0;
    if (!add(cardsLine(impronta) + '\n' + gameLine(numeri))) {
        return false;
    }
    if (!isFolderSynced(m_file.fileName())) {
        return fail(qt_error_string(errno));
    }
    return true;
}

std::optional<Diario::Corso> Diario::resume()
{
    if (!open()) {
        return std::nullopt;
    }
    const QByteArray text = readToEnd(m_file);
    if (m_file.error() != QFile::NoError) {
        fail(m_file.errorString());
        return std::nullopt;
    }
    m_size = text.lastIndexOf('\n') + 1; // what follows was not confirmed
    return courseOf(text);
}

bool Diario::addCards(quint64 impronta)
{
    return add(cardsLine(impronta));
}

bool Diario::addGame(Intervallo numeri)
{
    return add(gameLine(numeri));
}

bool Diario::addCall(quint32 numero)
{
    return add(callLine(numero));
}

bool Diario::addTakenBack(quint32 numero)
{
    return add(takenBackLine(numero));
}

bool Diario::open()
{
    m_file.close();
    if (!m_file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        return fail(m_file.errorString());
    }
    // The system takes the lock off when the program ends, however that happens.
    if (flock(m_file.handle(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        return fail(DiarioText::tr("La serata è già aperta in un'altra finestra."));
    }
    return true;
}

// After the lines confirmed, in place of what may be left there.
bool Diario::add(const QByteArray &line)
{
    const QByteArray bytes = line + '\n';
    if (!m_file.resize(m_size) || !m_file.seek(m_size) || !writeAll(m_file, bytes.constData(), bytes.size())) {
        fail(m_file.errorString());
    } else if (!isSynced(m_file.handle())) {
        fail(qt_error_string(errno));
    } else {
        m_size += bytes.size();
        return true;
    }
    m_file.resize(m_size);
    return false;
}

bool Diario::fail(const QString &reason)
{
    m_error = reason;
    return false;
}
