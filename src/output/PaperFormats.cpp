// SPDX-License-Identifier: MIT
#include "generation/GUtils.h"

#include <array>

namespace {
// In the order of QPagedPaintDevice::PageSize. Fixed texts, not translated, the swapped dimensions of A0 and Ledger
// included.
constexpr std::array<const char *, 31> names = {
    "A4 (210x297mm)",      "B5 (182x257mm)",  "Letter (216x279mm)", "Legal (216x356mm)",  "Executive (191x254mm)",
    "A0 (1189x841mm)",     "A1 (594x841mm)",  "A2 (420x594mm)",     "A3 (297x420mm)",     "A5 (148x210mm)",
    "A6 (105x148mm)",      "A7 (74x105mm)",   "A8 (52x74mm)",       "A9 (37x52mm)",       "B0 (1030x1456mm)",
    "B1 (728x1030mm)",     "B10 (32x45mm)",   "B2 (515x728mm)",     "B3 (364x515mm)",     "B4 (257x364mm)",
    "B6 (128x182mm)",      "B7 (91x128mm)",   "B8 (64x91mm)",       "B9 (45x64mm)",       "C5E (163x229mm)",
    "Comm10E (105x241mm)", "DLE (110x220mm)", "Folio (210x330mm)",  "Ledger (432x279mm)", "Tabloid (279x432mm)",
    "User defined size.",
};
} // namespace

QString GUtils::paperFormatName(int format)
{
    if (format < 0 || format >= static_cast<int>(names.size())) {
        return QStringLiteral("Unknown!");
    }
    return QString::fromLatin1(names[static_cast<size_t>(format)]);
}
