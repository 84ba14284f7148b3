// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Where the manual is looked for: manual/ in the current folder.
QString manualFolder();
// The manual in the language of a locale (such as it_IT), the English one where that has none; empty when neither can
// be read.
QString manualFile(const QString &locale);
