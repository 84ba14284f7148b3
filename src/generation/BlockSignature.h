// SPDX-License-Identifier: MIT
#pragma once

#include "model/Cartella.h"

#include <QString>

// What a block shows, as text: two blocks with the same signature count as equal. Rows end with "\n"; numbers in
// decimal, texts after "S", pictures as "J" and their bytes, blanks for empty cells, nothing in between. Fonts, colours
// and lines do not count. A cell of unknown type stops the program.
QString blockSignature(const Blocco &block);
