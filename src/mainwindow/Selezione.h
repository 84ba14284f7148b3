// SPDX-License-Identifier: MIT
#pragma once

#include "model/Positions.h"

#include <QVector>

// What is selected in the table of a page. Indices are 0-based, and -1 where there is none.
struct Selezione
{
    enum Kind { Nothing, OneCell, Filler, Several };

    Kind kind = Nothing;
    int places = 0; // of the table
    int block = -1; // that all places lie in
    int row = -1;   // of a single place, in its block
    int column = -1;
    Cella *cell = nullptr; // of a single place; the page owns it
};

// What the selected places of the page's table stand for. Nothing when the page has no such rows.
[[nodiscard]] Selezione selectionOf(Pagina &page, const QVector<TablePosition> &places);
