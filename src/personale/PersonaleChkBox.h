// SPDX-License-Identifier: MIT
#pragma once

#include "model/Cartella.h"

#include <QCheckBox>

// One cell of a hand-drawn page: the tick says whether it is filled, `tipo` with what. Its colour and the first letter
// of its type show at a glance what it is. In the grid that holds it arrow keys move to the neighbours and Tab leaves,
// and the left button, once it has left the cell it was pressed on, ticks the cells that it is drawn over.
class PersonaleChkBox final : public QCheckBox
{
    Q_OBJECT

public:
    // What one takes in memory, with its private parts and its connections: rather too much than too little.
    static constexpr double bytes = 1600;

    PersonaleChkBox();

    // Stores another type and names it in the status tip. A value outside the enumeration stops the program.
    void setTipo(CELL_VALUE value);
    // Sets `riga` and `colonna` (0-based) and the tool tip, which tells them counted from 1.
    void setPosition(U8 row, U8 column);

    bool isTickedNumber() const { return tipo == CELL_NUMERO && isChecked(); }

    QSize sizeHint() const override;

    CELL_VALUE tipo;
    U8 riga = 0; // position in the page grid, 0-based
    U8 colonna = 0;

signals:
    // Every change of the tick, by the user or by program.
    void schecked(U8 riga, U8 colonna, bool checked);
    // A right click, or the key T.
    void rclicked(U8 riga, U8 colonna);

public slots:
    void checked(bool b);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    // Past the other cells.
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent *event) override;
    // The whole cell can be clicked.
    bool hitButton(const QPoint &position) const override;

private:
    static QString typeName(CELL_VALUE value);
    void moveFocus(int rows, int columns);
    void tickOnTheWay(const QPoint &from, const QPoint &to);

    bool m_dragging = false; // with the left button, since it has left the cell
    QPoint m_pointer;        // where it was last with the left button down, in the parent's coordinates
};
