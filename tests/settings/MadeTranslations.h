// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

// One text of a translation file made for a test.
struct MadeText
{
    QString context;
    QString source;
    QString translation;
};

// The content of a .qm file with these texts, made by the toolkit's own compiler.
QByteArray madeTranslation(const QVector<MadeText> &texts);
