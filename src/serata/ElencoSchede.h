// SPDX-License-Identifier: MIT
#pragma once

#include "serata/Partita.h"

#include <QAbstractListModel>

// A list of cards of a game, for a view: long ones are given in parts, as the view asks for more.
class ElencoSchede final : public QAbstractListModel
{
    Q_OBJECT

public:
    using Elenco = const std::vector<quint32> &(Partita::*)() const;
    // What stands beside the position of a card.
    using Nota = QString (*)(const Partita &partita, size_t scheda);

    ElencoSchede(Elenco elenco, Nota nota, QObject *parent);

    // Shows the list of a game as it is now. The game must live until another one is shown.
    void show(const Partita *partita);
    // The card of a row as it was when the list was shown; none for no row.
    std::optional<size_t> schedaAt(const QModelIndex &index) const;
    // The row of a card, which is given then; none of a card that is not in the list.
    QModelIndex indexOf(size_t scheda);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

private:
    const std::vector<quint32> &cards() const { return (m_partita->*m_elenco)(); }
    size_t left() const;
    void give();

    Elenco m_elenco;
    Nota m_nota;
    const Partita *m_partita = nullptr; // not owned
    std::vector<quint32> m_given;       // the cards of the rows
};

// "12.3: chiamata 45", "12.3: manca il 34".
QString noteOfTombola(const Partita &partita, size_t scheda);
QString noteOfQuasiTombola(const Partita &partita, size_t scheda);
