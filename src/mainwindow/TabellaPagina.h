// SPDX-License-Identifier: MIT
#pragma once

#include <QTableWidget>
#include <QVector>

#include <functional>

// The table of a page. What a screen reader says of a cell is made when one asks, so that the cells store nothing.
// What was typed is asked about in loops of their own, in which the cell's editor may be left once more: it asks only
// once, and stays until that is done.
class TabellaPagina final : public QTableWidget
{
public:
    // `cellName` tells it of a place of the table, 0-based.
    using CellName = std::function<QString(int row, int column)>;

    TabellaPagina(CellName name, QWidget *parent)
        : QTableWidget(parent)
        , cellName(std::move(name))
    {
    }

    const CellName cellName;

protected:
    void commitData(QWidget *editor) override
    {
        if (!m_committed.contains(editor)) {
            m_committed.append(editor);
            QTableWidget::commitData(editor);
            m_committed.removeLast();
        }
    }
    // Whoever committed closes it afterwards.
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override
    {
        if (!m_committed.contains(editor)) {
            QTableWidget::closeEditor(editor, hint);
        }
    }

private:
    QVector<QWidget *> m_committed; // of which one asks in the middle of another
};
