// SPDX-License-Identifier: MIT
#pragma once

#include "support/MemoryLimit.h"

#include <QMessageBox>
#include <QtTest>

// What the editor says when its boxes do not fit the memory.
inline const QString editorTitle = QStringLiteral("Quintra - Mappatura manuale");
inline const QString noMemory = QStringLiteral("La memoria libera non è bastata: nulla è cambiato.");
inline constexpr rlim_t room = 32 << 20; // bytes of memory, which the boxes of some hundred pages do not fit

inline void isMemoryQuestion(QMessageBox *box)
{
    QVERIFY(box->text().startsWith(
        QStringLiteral("La memoria libera potrebbe non bastare, e il programma chiudersi.\nMB necessari: ")));
    QCOMPARE(box->defaultButton(), box->button(QMessageBox::No));
}
