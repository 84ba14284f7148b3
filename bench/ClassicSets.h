// SPDX-License-Identifier: MIT
#pragma once

#include "model/Cartella.h"

#include <memory>

// Classic pages of six cards, 1 to 90, without jolly cells.
namespace ClassicSets {
constexpr U8 blocks = 6;
constexpr U8 rowsPerBlock = 3;
constexpr U8 columns = 9;
constexpr U8 drawnPerRow = 5;
constexpr int rows = blocks * rowsPerBlock;
constexpr int lowest = 1;
constexpr int highest = 90;

// The largest set, and a tenth of it.
constexpr int mostPages = 65535;
constexpr int tenthOfMostPages = 6553;

void fill(Pagina *page);
std::unique_ptr<Cartella> filled(int pages);
// The first pages of a set that is made once for all measurements and keeps them: the result is only a view.
std::unique_ptr<Cartella> firstPages(int pages);
} // namespace ClassicSets
