// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The pages of the manual in one language, as one HTML page that needs no other file.
struct BuiltManual
{
    QByteArray html;
    QStringList problems; // links without a target, pictures without a file, pages that the contents leave out
};

// The folder holds index.md, the contents, which link to the other pages in the order in which they are to stand. Links
// from page to page become links within the one page, pictures are part of it. The same files give the same bytes.
BuiltManual buildManual(const QString &folder, const QString &language);
// By which a heading is linked to from the outside, as the places where code is hosted have it.
QString headingAnchor(const QString &heading);
