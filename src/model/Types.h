// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

// Counts and indices of blocks, rows, columns and cells: at most 255 of each.
using U8 = quint8;
// Counts and indices of pages: at most 65535.
using U16 = quint16;

// Of a card set.
constexpr int maxPages = 65535;

// The highest number that the parameters allow and that is read as a number when it is typed into a cell.
constexpr quint32 highestNumber = 999999;

// What a check of settings comes to.
enum class Verdict : int { Error = -1, Warning = 0, Correct = 1 };
