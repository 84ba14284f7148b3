// SPDX-License-Identifier: MIT
#pragma once

#include <QTableWidget>

#include <functional>

// The table of a page. What a screen reader says of a cell is made when one asks, so that the cells store nothing.
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
};
