// SPDX-License-Identifier: MIT
#include "serata/ElencoSchede.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
constexpr int mostAtOnce = 500; // rows
} // namespace

ElencoSchede::ElencoSchede(Elenco elenco, Nota nota, QObject *parent)
    : QAbstractListModel(parent)
    , m_elenco(elenco)
    , m_nota(nota)
{
}

void ElencoSchede::show(const Partita *partita)
{
    beginResetModel();
    m_partita = partita;
    m_given = 0;
    m_given = std::min(left(), mostAtOnce);
    endResetModel();
}

size_t ElencoSchede::schedaAt(const QModelIndex &index) const
{
    return cards()[static_cast<size_t>(index.row())];
}

int ElencoSchede::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_given;
}

QVariant ElencoSchede::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole) {
        return QVariant();
    }
    return m_nota(*m_partita, schedaAt(index));
}

bool ElencoSchede::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && left() > 0;
}

void ElencoSchede::fetchMore(const QModelIndex &parent)
{
    const int more = std::min(left(), mostAtOnce);
    if (!parent.isValid() && more > 0) {
        beginInsertRows(QModelIndex(), m_given, m_given + more - 1);
        m_given += more;
        endInsertRows();
    }
}

int ElencoSchede::left() const
{
    return m_partita == nullptr ? 0 : static_cast<int>(cards().size()) - m_given;
}

QString noteOfTombola(const Partita &partita, size_t scheda)
{
    return ElencoSchede::tr("%1: chiamata %2")
        .arg(positionText(partita.schede()[scheda].posizione))
        .arg(partita.vincite(scheda).back().chiamata);
}

QString noteOfQuasiTombola(const Partita &partita, size_t scheda)
{
    return ElencoSchede::tr("%1: manca il %2")
        .arg(positionText(partita.schede()[scheda].posizione))
        .arg(partita.missingNumber(scheda));
}
