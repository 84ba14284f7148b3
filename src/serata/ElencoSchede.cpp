// SPDX-License-Identifier: MIT
#include "serata/ElencoSchede.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
constexpr size_t mostAtOnce = 500; // rows
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
    m_given.clear();
    give();
    endResetModel();
}

std::optional<size_t> ElencoSchede::schedaAt(const QModelIndex &index) const
{
    return index.isValid() ? std::optional<size_t>(m_given[static_cast<size_t>(index.row())]) : std::nullopt;
}

QModelIndex ElencoSchede::indexOf(size_t scheda)
{
    const auto found = std::lower_bound(cards().begin(), cards().end(), scheda);
    if (found == cards().end() || *found != scheda) {
        return QModelIndex();
    }
    const auto row = static_cast<int>(found - cards().begin());
    while (row >= rowCount()) {
        fetchMore(QModelIndex());
    }
    return index(row);
}

int ElencoSchede::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_given.size());
}

QVariant ElencoSchede::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole) {
        return QVariant();
    }
    return m_nota(*m_partita, *schedaAt(index));
}

bool ElencoSchede::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && left() > 0;
}

void ElencoSchede::fetchMore(const QModelIndex &parent)
{
    const auto more = static_cast<int>(std::min(left(), mostAtOnce));
    if (!parent.isValid() && more > 0) {
        beginInsertRows(QModelIndex(), rowCount(), rowCount() + more - 1);
        give();
        endInsertRows();
    }
}

size_t ElencoSchede::left() const
{
    const size_t given = m_given.size();
    return m_partita == nullptr ? 0 : std::max(cards().size(), given) - given;
}

void ElencoSchede::give()
{
    if (left() > 0) {
        const auto next = cards().begin() + static_cast<std::ptrdiff_t>(m_given.size());
        m_given.insert(m_given.end(), next, next + static_cast<std::ptrdiff_t>(std::min(left(), mostAtOnce)));
    }
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
