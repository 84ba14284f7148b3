// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

// A manual as it was read: one page of HTML, with its pictures in it.
struct ManualFile
{
    QString name;
    QByteArray page; // empty: it cannot be read
};

// Where the manual is looked for: manual/ in the current folder.
QString manualFolder();
ManualFile readManual(const QString &fileName);
// The manual in the language of a locale (such as it_IT), the English one where that cannot be read.
ManualFile manualFor(const QString &locale);
