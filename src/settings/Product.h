// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Name and release of the program; nothing else spells them.
namespace Product {
constexpr char name[] = "Quintra";
constexpr char release[] = "0.704";

QString nameText();
QString releaseText();

// "Quintra v0.704": window titles, PDF document name.
QString nameAndRelease();

// "Quintra - <role>": titles of boxes and dialogs. `role` is already translated.
QString titleFor(const QString &role);
} // namespace Product
