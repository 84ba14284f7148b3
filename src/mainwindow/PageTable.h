// SPDX-License-Identifier: MIT
#pragma once

#include "model/Cartella.h"

#include <optional>

class QTableWidget;

// A page as a table: the rows of all its blocks follow each other, and shorter rows are filled up with items that
// stand for no cell. Rows and columns of the table are 0-based.

// Where a row of the table lies in its page, all 0-based.
struct RowPosition
{
    int block = 0;
    int row = 0;      // in the block
    int firstRow = 0; // of the block, in the table
};

// None when the page has no such row.
[[nodiscard]] std::optional<RowPosition> rowPosition(const Pagina &page, int tableRow);

// Rows of all blocks of the page.
[[nodiscard]] int tableRowCount(const Pagina &page);

// The cell shown at a place of the table; null for a filler and outside the table.
[[nodiscard]] Cella *cellAt(Pagina &page, int tableRow, int column);

// What the table shows for a cell; `emptyText` stands for a text cell without text. An unknown type stops the program.
[[nodiscard]] QString cellText(const Cella &cell, const QString &emptyText);

// The number that a text stands for: one to six decimal digits and nothing else.
[[nodiscard]] std::optional<quint32> typedNumber(const QString &text);

// Black or white, whichever reads better on the background.
[[nodiscard]] QColor readableOn(const QColor &background);

// Fills an empty table, not yet connected, with the items of the page. `columns` is at least the longest row.
void fillTable(QTableWidget *table, Pagina &page, int columns, const QString &emptyText);
