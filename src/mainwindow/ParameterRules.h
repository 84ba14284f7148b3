// SPDX-License-Identifier: MIT
#pragma once

#include "model/Types.h"

#include <QString>

// Of the numbers that are drawn, both ends included.
struct NumberRange
{
    int lowest = 1;
    int highest = 90;
};

// The parameters of a classic card set, as the user set them.
struct CardParameters
{
    int pages = 1;
    int blocks = 6;      // per page
    int rows = 3;        // per block
    int columns = 9;     // cells per row
    int drawn = 5;       // filled cells per row
    int jolly = 0;       // filled cells of a row that hold an image
    int scritte = 0;     // filled cells of a row that hold a text
    int minimum = 1;     // of the numbers drawn
    int maximum = 90;    // of the numbers drawn
    bool manual = false; // filled by hand: only the size of the set is looked at
};

// What the card set already holds.
struct CardSetSize
{
    int pagesToKeep = 0; // pages that the new ones are appended to; 0 for a new set
    quint64 cellsInMemory = 0;
};

// The rules that parameters must keep before pages are made of them.
namespace ParameterRules {

struct Result
{
    Verdict verdict = Verdict::Correct;
    QString message; // of an error or a warning, translated
};

constexpr quint64 maxCells = 10000000; // above it the user is warned

// The first rule that is broken decides.
[[nodiscard]] Result check(const CardParameters &parameters, const CardSetSize &present);
// Tells what a new card set will be.
[[nodiscard]] QString outcome(const CardParameters &parameters);
// pages x blocks x rows x columns; it does not fit 32 bits at the upper end of the ranges.
[[nodiscard]] quint64 cellsRequested(const CardParameters &parameters);
// What the pages take in memory, rather too much than too little.
[[nodiscard]] double bytesRequested(const CardParameters &parameters);

} // namespace ParameterRules
