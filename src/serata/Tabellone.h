// SPDX-License-Identifier: MIT
#pragma once

#include "serata/Partita.h"

#include <QAbstractTableModel>
#include <QTableView>

// The numbers of a game in rows of ten, as they stand on the board: 1 to 10, 11 to 20, and so on.
class TabelloneModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int columns = 10;

    using QAbstractTableModel::QAbstractTableModel;

    // The game must live until another one is set; null shows nothing.
    void setPartita(const Partita *partita);
    // A number was called or taken back.
    void refresh();

    // The number of a place; nothing beside the range.
    std::optional<quint32> numberAt(const QModelIndex &index) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    quint32 firstOfBoard() const;

    const Partita *m_partita = nullptr; // not owned
};

// The board, that fills its place. A click, or Enter or the space bar on the current number, chooses a number.
class Tabellone final : public QTableView
{
    Q_OBJECT

public:
    explicit Tabellone(QWidget *parent = nullptr);

    void setPartita(const Partita *partita) { m_model->setPartita(partita); }
    void refresh() { m_model->refresh(); }

signals:
    void numberChosen(quint32 numero);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void choose(const QModelIndex &index);

    TabelloneModel *m_model; // child
};
