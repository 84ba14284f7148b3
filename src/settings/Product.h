// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Name and release of the program; nothing else spells them.
namespace Product {
constexpr char name[] = "Quintra";
constexpr char release[] = "0.704";

inline QString nameText()
{
    return QString::fromLatin1(name);
}

inline QString releaseText()
{
    return QString::fromLatin1(release);
}

// "Quintra v0.704": window titles, PDF document name.
inline QString nameAndRelease()
{
    return nameText() + QStringLiteral(" v") + releaseText();
}

// "Quintra - <role>": titles of boxes and dialogs. `role` is already translated.
inline QString titleFor(const QString &role)
{
    return nameText() + QStringLiteral(" - ") + role;
}
} // namespace Product
