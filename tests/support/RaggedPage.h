// SPDX-License-Identifier: MIT
#pragma once

#include "model/Cartella.h"

#include <QVector>

#include <memory>

// A page of one block per entry, each with that many rows of three empty cells.
std::unique_ptr<Pagina> pageOfBlocks(const QVector<U8> &rows);

// Leaves a row that many empty cells.
void shortenRow(Riga &row, U8 cells);
