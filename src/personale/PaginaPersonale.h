// SPDX-License-Identifier: MIT
#pragma once

#include "model/Types.h"
#include "personale/PersonaleChkBox.h"

#include <memory>

// One hand-drawn page of the editor. Its check boxes stand in row-major order: cell (r, c) is chk[r * nColonne + c].
// A box shown in a layout has that layout's widget as parent: make it parentless before this record goes.
struct PaginaPersonale
{
    std::unique_ptr<PersonaleChkBox[]> chk;
    U8 ordinaPerColonne = 0; // not 0: the numbers are drawn column by column
    U8 nRighe = 0;
    U8 nColonne = 0;

    size_t cellCount() const { return size_t{nRighe} * nColonne; }
};
