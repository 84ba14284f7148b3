// SPDX-License-Identifier: MIT
#include "settings/Product.h"

QString Product::nameText()
{
    return QString::fromLatin1(name);
}

QString Product::releaseText()
{
    return QString::fromLatin1(release);
}

QString Product::nameAndRelease()
{
    return nameText() + QStringLiteral(" v") + releaseText();
}

QString Product::titleFor(const QString &role)
{
    return nameText() + QStringLiteral(" - ") + role;
}
