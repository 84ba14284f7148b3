// SPDX-License-Identifier: MIT
#pragma once

#include "model/Cartella.h"

#include <functional>
#include <memory>

// Card sets for the printing tests.
namespace SampleSets {
constexpr int blocks = 6;
constexpr int rows = 3;
constexpr int columns = 9;
constexpr int drawnPerRow = 5;

// Pages of 6 blocks of 3 rows of 9 cells, 5 of them drawn, that carry every number from 1 to 90 once.
std::unique_ptr<Cartella> classic(quint16 pages);
// One page of one block; its cells are empty.
std::unique_ptr<Cartella> singleBlock(U8 rowCount, U8 columnCount);

Blocco &block(Cartella &set, int index = 0);
Cella &cell(Cartella &set, int row, int column);
void forEachCell(Cartella &set, const std::function<void(Cella &)> &change);

void setNumber(Cella &cell, quint32 number);
void setText(Cella &cell, const QString &text);
void setPicture(Cella &cell, const QImage &picture);
// Upper half of one colour, lower half of another.
QImage twoColoredPicture(const QSize &size, const QColor &upper, const QColor &lower);
} // namespace SampleSets
