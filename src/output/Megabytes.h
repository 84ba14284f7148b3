// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Megabytes of 1048576 bytes, with two decimals. Reports of printed files compute them in double precision, those of
// saved mappings in single precision; where the two round apart (393216 bytes are 0.37 and 0.38), the reports of before
// and after must agree.
template<typename Real>
[[nodiscard]] QString megabytesText(qint64 bytes)
{
    constexpr auto megabytesPerByte = static_cast<Real>(9.536743e-07);
    return QString::number(static_cast<double>(static_cast<Real>(bytes) * megabytesPerByte), 'f', 2);
}
