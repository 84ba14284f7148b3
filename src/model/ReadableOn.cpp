// SPDX-License-Identifier: MIT
#include "model/ReadableOn.h"

#include <cmath>

namespace {
// Of a part of a colour, the light that a screen gives for it; both from 0 to 1.
double light(double part)
{
    constexpr double darkest = 0.04045;
    return part <= darkest ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}
} // namespace

QColor readableOn(const QColor &background)
{
    constexpr double halfway = 0.179; // as far from black as from white, to the eye
    const double luminance =
        0.2126 * light(background.redF()) + 0.7152 * light(background.greenF()) + 0.0722 * light(background.blueF());
    return luminance < halfway ? Qt::white : Qt::black;
}
