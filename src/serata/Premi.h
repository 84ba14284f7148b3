// SPDX-License-Identifier: MIT
#pragma once

#include "serata/Scheda.h"

#include <functional>

// What a card can win: so many called numbers in one of its rows, a whole row twice over, or all its numbers.
enum class Premio {
    Ambo,        // two in a row
    Terno,       // three
    Quaterna,    // four
    Cinquina,    // five
    DueCinquine, // five in each of two rows
    Tombola,     // all numbers of the card
};

struct Vincita
{
    Premio premio;
    int chiamata; // the call that brought it, from 1
};

bool operator==(const Vincita &a, const Vincita &b);

// What a card has won, smallest first. `turnOf` tells with which call a number came, from 1; 0 when it was not called.
// A number that stands twice counts once; a card without numbers wins nothing.
std::vector<Vincita> vinciteOf(const Scheda &scheda, const std::function<int(quint32)> &turnOf);

// The word of the players of the language now shown.
QString premioText(Premio premio);
