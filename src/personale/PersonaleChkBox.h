// SPDX-License-Identifier: MIT
#pragma once

#include "model/Cartella.h"

#include <QCheckBox>

// One cell of a hand-drawn page: the tick says whether it is filled, `tipo` with what.
class PersonaleChkBox final : public QCheckBox
{
    Q_OBJECT

public:
    PersonaleChkBox();

    // Stores another type and names it in the status tip. A value outside the enumeration stops the program.
    void setTipo(CELL_VALUE value);

    CELL_VALUE tipo;
    U8 riga = 0; // position in the page grid, 0-based
    U8 colonna = 0;

signals:
    // Every change of the tick, by the user or by program.
    void schecked(U8 riga, U8 colonna, bool checked);
    void rclicked(U8 riga, U8 colonna);

public slots:
    void checked(bool b);

protected:
    void mousePressEvent(QMouseEvent *event) override;
};
