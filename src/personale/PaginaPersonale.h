// SPDX-License-Identifier: MIT
#pragma once

#include "model/Types.h"
#include "personale/PersonaleChkBox.h"

#include <algorithm>
#include <memory>

// One hand-drawn page of the editor. Its check boxes stand in row-major order. Positions are 0-based.
// A box shown in a layout has that layout's widget as parent: make it parentless before this record goes.
struct PaginaPersonale
{
    std::unique_ptr<PersonaleChkBox[]> chk;
    U8 ordinaPerColonne = 0; // not 0: the numbers are drawn column by column
    U8 nRighe = 0;
    U8 nColonne = 0;

    size_t cellCount() const { return size_t{nRighe} * nColonne; }
    bool hasCell(int row, int column) const { return row < nRighe && column < nColonne; }
    PersonaleChkBox &cell(int row, int column) const { return chk[size_t(row) * nColonne + size_t(column)]; }
    PersonaleChkBox *begin() const { return chk.get(); }
    PersonaleChkBox *end() const { return begin() + cellCount(); }
    int tickedNumbers() const
    {
        return static_cast<int>(
            std::count_if(begin(), end(), [](const PersonaleChkBox &box) { return box.isTickedNumber(); }));
    }
};
