// SPDX-License-Identifier: MIT
#pragma once

#include "model/Cartella.h"

#include <optional>

class QTableWidget;

// Rows of a page shorter than the table are filled up with items that stand for no cell.

// What the table shows for a cell; `emptyText` stands for a text cell without text. An unknown type stops the program.
[[nodiscard]] QString cellText(const Cella &cell, const QString &emptyText);

// What the tool tip of a cell says: why its picture will be missing; mostly empty.
[[nodiscard]] QString cellTip(const Cella &cell);

// What a screen reader says of a place of the table, such as "blocco 1, riga 2, colonna 3, numero 45".
[[nodiscard]] QString spokenCell(const Pagina &page, int row, int column, const QString &emptyText);

// The number that a text stands for: one to six decimal digits and nothing else.
[[nodiscard]] std::optional<quint32> typedNumber(const QString &text);

// Fills an empty table, not yet connected, with the items of the page. `columns` is at least the longest row.
void fillTable(QTableWidget *table, const Pagina &page, int columns, const QString &emptyText);
