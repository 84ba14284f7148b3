// SPDX-License-Identifier: MIT
#include "serata/Tabellone.h"

#include "serata/CaselleDelegate.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace {
constexpr int smallestCell = 24; // pixels

bool isChoosingKey(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

void fillTheView(QHeaderView *header)
{
    header->hide();
    header->setMinimumSectionSize(smallestCell);
    header->setSectionResizeMode(QHeaderView::Stretch);
}
} // namespace

void TabelloneModel::setPartita(const Partita *partita)
{
    beginResetModel();
    m_partita = partita;
    endResetModel();
}

void TabelloneModel::refresh()
{
    emit dataChanged(index(0, 0), index(rowCount() - 1, columns - 1));
}

std::optional<quint32> TabelloneModel::numberAt(const QModelIndex &index) const
{
    if (m_partita == nullptr || !index.isValid()) {
        return std::nullopt;
    }
    const quint32 numero = firstOfBoard() + static_cast<quint32>(index.row() * columns + index.column());
    return contains(m_partita->numeri(), numero) ? std::optional(numero) : std::nullopt;
}

// A row ends with a multiple of ten, unless there is a 0 to begin with.
quint32 TabelloneModel::firstOfBoard() const
{
    const quint32 lowest = m_partita->numeri().da;
    return lowest == 0 ? 0 : (lowest - 1) / columns * columns + 1;
}

int TabelloneModel::rowCount(const QModelIndex &parent) const
{
    if (m_partita == nullptr || parent.isValid()) {
        return 0;
    }
    return static_cast<int>((m_partita->numeri().a - firstOfBoard()) / columns) + 1;
}

int TabelloneModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant TabelloneModel::data(const QModelIndex &index, int role) const
{
    const auto numero = numberAt(index);
    if (!numero && role == Qt::AccessibleTextRole) {
        return tr("nessun numero");
    }
    if (!numero) {
        return QVariant();
    }
    const bool called = m_partita->turnOf(*numero) > 0;
    switch (role) {
    case Qt::DisplayRole:
        return *numero;
    case Qt::AccessibleTextRole:
        return CaselleDelegate::spoken(*numero, called);
    case CaselleDelegate::CalledRole:
        return called;
    default:
        return QVariant();
    }
}

Qt::ItemFlags TabelloneModel::flags(const QModelIndex &index) const
{
    return numberAt(index) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

Tabellone::Tabellone(QWidget *parent)
    : QTableView(parent)
    , m_model(new TabelloneModel(this))
{
    setModel(m_model);
    setItemDelegate(new CaselleDelegate(this));
    setSelectionMode(QAbstractItemView::NoSelection);
    setTabKeyNavigation(false);
    fillTheView(horizontalHeader());
    fillTheView(verticalHeader());
    connect(this, &QTableView::clicked, this, &Tabellone::choose);
}

void Tabellone::keyPressEvent(QKeyEvent *event)
{
    if (!isChoosingKey(event->key())) {
        QTableView::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) { // a key held down would call and take back
        choose(currentIndex());
    }
}

void Tabellone::choose(const QModelIndex &index)
{
    if (const auto numero = m_model->numberAt(index)) {
        emit numberChosen(*numero);
    }
}
